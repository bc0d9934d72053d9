#include "colour/ui/ColorSample.h"

#include "colour/ui/SwatchPainting.h"

namespace gp {
namespace {

constexpr int kWidth = 28, kHeight = 20;  // pixels

}  // namespace

ColorSample::ColorSample(QWidget* parent, const QString& objectName, const QString& accessibleName, const Color& shown)
    : QWidget(parent), shown_(shown), last_(shown) {
  setObjectName(objectName);
  setAccessibleName(accessibleName);
  setToolTip(accessibleName);
  setFixedSize(kWidth, kHeight);
}

void ColorSample::refresh() {
  if (last_ == shown_) return;
  last_ = shown_;
  update();
  accessibleValueChanged(this);
}

QString ColorSample::accessibleValue() const { return colorText(shown_); }

void ColorSample::paintEvent(QPaintEvent*) { paintSwatch(*this, shown_); }

}  // namespace gp
