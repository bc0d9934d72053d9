#include "alpha/ui/AlphaSampleView.h"

#include "document/IconSizes.h"
#include "document/ui/SurfacePainting.h"
#include "platform/qt/Accessibility.h"

namespace gp {
namespace {

constexpr int kOutline = 1;
constexpr int kMargin = 4;  // around the largest icon, pixels
constexpr int kSide = kLargestIconSize + 2 * (kMargin + kOutline);

}  // namespace

AlphaSampleView::AlphaSampleView(QWidget* parent, const QString& objectName, const QString& accessibleName,
                                 const Surface& picture, Color ground)
    : QWidget(parent), picture_(picture), ground_(ground) {
  setObjectName(objectName);
  setAccessibleName(accessibleName);
  setAccessibleRole(this, QAccessible::Graphic);
  setToolTip(accessibleName);
  setFixedSize(kSide, kSide);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void AlphaSampleView::paintEvent(QPaintEvent*) {
  DevicePainter painter(this);
  const QRect whole = painter.toDevice(rect());
  painter.fillRect(whole, palette().color(QPalette::Mid));
  const QRect inside = whole.adjusted(kOutline, kOutline, -kOutline, -kOutline);
  painter.fillRect(inside, QColor(toRgb(ground_)));
  paintCentred(painter, picture_, inside, devicePixelRatioF());
}

}  // namespace gp
