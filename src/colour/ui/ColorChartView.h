// picColorChart(0) and (1): a chart on the screen, usable by mouse and keyboard. Reports the pointer's position and
// button releases in chart units. The cell of the current colour has a ring in black and white; the keyboard's cell,
// which starts there, has a ring in the accent colour around it.
#pragma once

#include "colour/ColorCharts.h"
#include "platform/qt/Accessibility.h"

#include <QWidget>

#include <optional>

namespace gp {

class DevicePainter;

class ColorChartView : public QWidget, public AccessibleValue {
  Q_OBJECT

 public:
  ColorChartView(QWidget* parent, ChartKind chart);

  // Space around the chart for the focus ring, pixels.
  static constexpr int kFrame = 2;

  // The current colour; if the chart has it, the keyboard's cell is its cell now.
  void setCurrent(Color color);

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
  void moveToCurrent();
  // The corner of the first cell, and the place of a cell, in device pixels.
  QPoint corner() const;
  QRect cellRect(const QPoint& cell) const;
  void paintRings(DevicePainter& painter) const;
  // The size of one cell in device pixels; all cells are equal.
  QSize cellSize() const;

  const ChartKind chart_;
  QPoint cursor_;                  // column and row of the keyboard's cell
  std::optional<QPoint> current_;  // column and row of the current colour's cell
};

}  // namespace gp
