#include "output/ui/ScreenColorView.h"

#include "colour/ui/SwatchPainting.h"
#include "document/ui/SurfacePainting.h"

namespace gp {
namespace {

constexpr int kLeastSide = 48 + 2 * 8;  // the largest icon with some of the colour around it, pixels

}  // namespace

ScreenColorView::ScreenColorView(QWidget* parent, const QString& objectName, const QString& accessibleName,
                                 const Surface& picture, const Color& color)
    : QWidget(parent), picture_(picture), color_(color) {
  setObjectName(objectName);
  setAccessibleName(accessibleName);
  setMinimumSize(kLeastSide, kLeastSide);
}

void ScreenColorView::refresh() {
  update();
  accessibleValueChanged(this);
}

QString ScreenColorView::accessibleValue() const {
  const QString size =
      picture_.width() == 0 ? "No icon" : QString("%1 x %2").arg(picture_.width()).arg(picture_.height());
  return size + ", " + colorText(color_);
}

void ScreenColorView::paintEvent(QPaintEvent*) {
  paintSwatch(*this, color_);
  DevicePainter painter(this);
  paintCentred(painter, picture_, painter.toDevice(rect()), devicePixelRatioF());
}

}  // namespace gp
