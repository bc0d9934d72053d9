#include "document/ui/SampleView.h"

#include "document/ui/SurfacePainting.h"

#include <algorithm>

namespace gp {
namespace {

constexpr int kFrame = 1;

}  // namespace

SampleView::SampleView(QWidget* parent, const QString& objectName, const QString& accessibleName,
                       const Surface& picture, int side, SampleRoom room)
    : QWidget(parent), picture_(picture) {
  setObjectName(objectName);
  setAccessibleName(accessibleName);
  setMinimumSize(side + 2 * kFrame, side + 2 * kFrame);
  if (room == SampleRoom::Fixed) setMaximumSize(minimumSize());
}

void SampleView::refresh() {
  update();
  accessibleValueChanged(this);
}

void SampleView::setValueText(const QString& text) {
  value_ = text;
  refresh();
}

QString SampleView::accessibleValue() const {
  return value_.isEmpty() ? QString("%1 x %2").arg(picture_.width()).arg(picture_.height()) : value_;
}

QRect SampleView::place() const {
  const int side = static_cast<int>(std::min(width(), height()) * devicePixelRatioF()) - 2 * kFrame;
  const QSize picture(picture_.width(), picture_.height());
  if (picture.isEmpty()) return {kFrame, kFrame, side, side};
  const int factor = std::max(1, side / std::max(picture.width(), picture.height()));
  return {QPoint(kFrame, kFrame), picture * factor};
}

void SampleView::paintEvent(QPaintEvent*) {
  DevicePainter painter(this);
  const QRect inside = place();
  painter.fillRect(inside.adjusted(-kFrame, -kFrame, kFrame, kFrame), palette().color(QPalette::Mid));
  painter.fillRect(inside, QColor(toRgb(kGround)));
  if (picture_.width() == 0) return;
  paintCentred(painter, picture_, inside, static_cast<double>(inside.width()) / picture_.width());
}

}  // namespace gp
