#include "document/ui/SampleView.h"

#include "document/ui/SurfacePainting.h"

#include <algorithm>

namespace gp {
namespace {

constexpr int kFrame = 1;

}  // namespace

SampleView::SampleView(QWidget* parent, const QString& objectName, const QString& accessibleName,
                       const Surface& picture, int room)
    : QWidget(parent), picture_(picture), room_(room) {
  setObjectName(objectName);
  setAccessibleName(accessibleName);
  setFixedSize(room + 2 * kFrame, room + 2 * kFrame);
  setAttribute(Qt::WA_OpaquePaintEvent);
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

void SampleView::paintEvent(QPaintEvent*) {
  DevicePainter painter(this);
  const QRect whole = painter.toDevice(rect());
  painter.fillRect(whole, palette().color(QPalette::Mid));
  const QRect inside = whole.adjusted(kFrame, kFrame, -kFrame, -kFrame);
  painter.fillRect(inside, QColor(toRgb(kGround)));
  paintCentred(painter, picture_, inside, factor() * devicePixelRatioF());
}

int SampleView::factor() const { return std::max(1, room_ / std::max({1, picture_.width(), picture_.height()})); }

}  // namespace gp
