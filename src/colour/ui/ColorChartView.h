// picColorChart(0) and (1): a chart on the screen, usable by mouse and keyboard. Reports the pointer's position and
// button releases in chart units.
#pragma once

#include "colour/ColorCharts.h"
#include "platform/qt/Accessibility.h"

#include <QWidget>

namespace gp {

class ColorChartView : public QWidget, public AccessibleValue {
  Q_OBJECT

 public:
  ColorChartView(QWidget* parent, ChartKind chart);

  QString accessibleValue() const override;
  QAccessible::Role accessibleRole() const override { return QAccessible::ColorChooser; }

 signals:
  // Positions are in chart units: a cell is 1 x 1.
  void hovered(QPointF position);
  void released(QPointF position);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override { event->accept(); }
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  QPointF unitsAt(const QPointF& position) const;
  QPointF cursorUnits() const { return QPointF(cursor_) + QPointF(0.5, 0.5); }
  bool moveCursor(int key);
  // The size of one cell in device pixels; all cells are equal.
  QSize cellSize() const;

  const ChartKind chart_;
  QPoint cursor_;  // column and row of the keyboard's cell
};

}  // namespace gp
