#include "colour/ui/ColorChartView.h"

#include "document/ui/PixelCursor.h"
#include "document/ui/SurfacePainting.h"
#include "platform/qt/Contrast.h"
#include "platform/qt/FocusRing.h"
#include "platform/qt/PathText.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <array>

namespace gp {
namespace {

constexpr std::array kChoosingKeys = {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter};

struct Look {
  const char* name;
  Surface (*create)(int cellWidth, int cellHeight);
};

const Look& lookOf(ChartKind chart) {
  // Ordered like ChartKind.
  static constexpr std::array<Look, 2> kLooks = {
      {{"256-Color Palette", CreateColorChart256}, {"16-Color Palette", CreateColorChart16}}};
  return kLooks.at(static_cast<std::size_t>(chart));
}

}  // namespace

ColorChartView::ColorChartView(QWidget* parent, ChartKind chart) : QWidget(parent), chart_(chart) {
  setObjectName(QString("picColorChart(%1)").arg(static_cast<int>(chart)));
  setAccessibleName(lookOf(chart).name);
  setMouseTracking(true);
  setFocusPolicy(Qt::TabFocus);
}

QSize ColorChartView::cellSize() const {
  const ChartShape shape = shapeOf(chart_);
  const auto device = [this](int length) { return static_cast<int>((length - 2 * kFrame) * devicePixelRatioF()); };
  return {std::max(1, device(width()) / shape.columns), std::max(1, device(height()) / shape.rows)};
}

QPoint ColorChartView::corner() const {
  const int frame = qRound(kFrame * devicePixelRatioF());
  return {frame, frame};
}

QPointF ColorChartView::unitsAt(const QPointF& position) const {
  const QPointF device = (position - deviceShift(this)) * devicePixelRatioF() - corner();
  return {device.x() / cellSize().width(), device.y() / cellSize().height()};
}

QRect ColorChartView::cellRect(const QPoint& cell) const {
  const QSize size = cellSize();
  return {corner() + QPoint(cell.x() * size.width(), cell.y() * size.height()), size};
}

void ColorChartView::paintEvent(QPaintEvent*) {
  DevicePainter painter(this);
  const QSize cell = cellSize();
  const Surface chart = lookOf(chart_).create(cell.width(), cell.height());
  const ScreenScale oneToOne(1, 1, 1);
  painter.drawImage(corner(), imageOf(chart, oneToOne, QRect(0, 0, chart.width(), chart.height())));
  paintRings(painter);
}

// The rings of the keyboard's cell, or none, and below them those of the current colour. White within black is visible
// on any colour.
void ColorChartView::paintRings(DevicePainter& painter) const {
  const int line = std::max(1, qRound(devicePixelRatioF())), wide = qRound(kFocusRing * devicePixelRatioF());
  const auto paintInside = [&painter](QRect& place, const QColor& color, int width) {
    paintRing(painter, place, color, width);
    place.adjust(width, width, -width, -width);
  };
  QRect current = current_ ? cellRect(*current_) : QRect();
  if (hasFocus()) {
    const QColor accent = accentOn(palette());
    paintRing(painter, painter.toDevice(rect()), accent, wide);
    QRect key = cellRect(cursor_);
    paintInside(key, accent, wide);
    if (current_ == cursor_)
      current = key;
    else
      paintInside(key, visibleOn(accent, Qt::white), line);
  }
  if (!current_) return;
  paintInside(current, Qt::black, line);
  paintInside(current, Qt::white, line);
}

void ColorChartView::setCurrent(Color color) {
  const int cell = chartCellOf(chart_, color);
  std::optional<QPoint> place;
  if (cell >= 0) place = QPoint(chartPlaceOf(chart_, cell).column, chartPlaceOf(chart_, cell).row);
  if (place == current_) return;
  current_ = place;
  moveToCurrent();
  update();
}

void ColorChartView::moveToCurrent() {
  if (current_) cursor_ = *current_;
}

void ColorChartView::mouseMoveEvent(QMouseEvent* event) { emit hovered(unitsAt(event->position())); }

void ColorChartView::mouseReleaseEvent(QMouseEvent* event) { emit released(unitsAt(event->position())); }

bool ColorChartView::moveCursor(int key) {
  const auto step = cellStep(key);
  if (!step) return false;
  const ChartShape shape = shapeOf(chart_);
  const QPoint to = cursor_ + *step;
  cursor_ = {std::clamp(to.x(), 0, shape.columns - 1), std::clamp(to.y(), 0, shape.rows - 1)};
  return true;
}

void ColorChartView::keyPressEvent(QKeyEvent* event) {
  if (std::ranges::find(kChoosingKeys, event->key()) != kChoosingKeys.end()) {
    emit released(cursorUnits());
  } else if (moveCursor(event->key())) {
    emit hovered(cursorUnits());
    update();
    accessibleValueChanged(this);
  } else {
    QWidget::keyPressEvent(event);
  }
}

// When only the window was left, the keyboard's cell stays where it was.
void ColorChartView::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason) moveToCurrent();
  accessibleValueChanged(this);
}

QString ColorChartView::accessibleValue() const {
  const QPointF at = cursorUnits();
  return toText(chartText(chart_, chartCellAt(chart_, at.x(), at.y()))).trimmed();
}

}  // namespace gp
