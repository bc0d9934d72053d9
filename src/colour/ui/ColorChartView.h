// picColorChart(0) and (1): a chart on the screen, used by mouse or keyboard. Tells in chart units where the pointer is
// and where a button was released.
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
  // One cell in device pixels, and the whole chart: whole cells only.
  QSize cellSize() const;

  const ChartKind chart_;
  QPoint cursor_;  // column and row of the keyboard's cell
};

}  // namespace gp
