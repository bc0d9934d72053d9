#include "colour/ui/ColorChartView.h"

#include "document/ui/PixelCursor.h"
#include "document/ui/SurfacePainting.h"
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
  const auto device = [this](int length) { return static_cast<int>(length * devicePixelRatioF()); };
  return {std::max(1, device(width()) / shape.columns), std::max(1, device(height()) / shape.rows)};
}

QPointF ColorChartView::unitsAt(const QPointF& position) const {
  const QPointF device = (position - deviceShift(this)) * devicePixelRatioF();
  return {device.x() / cellSize().width(), device.y() / cellSize().height()};
}

void ColorChartView::paintEvent(QPaintEvent*) {
  DevicePainter painter(this);
  const QSize cell = cellSize();
  const Surface chart = lookOf(chart_).create(cell.width(), cell.height());
  const ScreenScale oneToOne(1, 1, 1);
  painter.drawImage(0, 0, imageOf(chart, oneToOne, QRect(0, 0, chart.width(), chart.height())));
  if (!hasFocus()) return;
  QRect around(QPoint(cursor_.x() * cell.width(), cursor_.y() * cell.height()), cell);
  for (const Qt::GlobalColor color : {Qt::white, Qt::black}) {
    painter.setPen(color);
    painter.drawRect(around.adjusted(0, 0, -1, -1));
    around.adjust(1, 1, -1, -1);
  }
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

void ColorChartView::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  accessibleValueChanged(this);
}

QString ColorChartView::accessibleValue() const {
  const QPointF at = cursorUnits();
  return toText(chartText(chart_, chartCellAt(chart_, at.x(), at.y()))).trimmed();
}

}  // namespace gp
