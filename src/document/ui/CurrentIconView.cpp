#include "document/ui/CurrentIconView.h"

#include "document/EditState.h"
#include "document/ui/SurfacePainting.h"
#include "platform/qt/Accessibility.h"

namespace gp {
namespace {

constexpr int kSide = 48 + 2;  // the largest icon with an outline, pixels

}  // namespace

CurrentIconView::CurrentIconView(QWidget* parent, const EditState& state) : QWidget(parent), state_(state) {
  setObjectName("PicIcon");
  setAccessibleName("Current icon");
  setAccessibleRole(this, QAccessible::Graphic);
  setFixedSize(kSide, kSide);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void CurrentIconView::paintEvent(QPaintEvent*) {
  DevicePainter painter(this);
  const QRect whole = painter.toDevice(rect());
  painter.fillRect(whole, palette().color(QPalette::Mid));
  const QRect inside = whole.adjusted(1, 1, -1, -1);
  painter.fillRect(inside, QColor(toRgb(kGround)));
  paintCentred(painter, state_.PicIcon, inside, devicePixelRatioF());
}

}  // namespace gp
