#include "platform/qt/widgets/PictureButton.h"

#include "platform/qt/Pictures.h"

#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace gp {

PictureButton::PictureButton(QWidget* parent, const QString& objectName, const PictureButtonLook& look)
    : QToolButton(parent) {
  setObjectName(objectName);
  setAutoRaise(true);
  setIconSize(QSize(Pictures::kSize, Pictures::kSize));
  setFixedSize(look.side, look.side);
  setIcon(Pictures::icon(look.picture));
  setToolTip(look.tooltip);
  setAccessibleName(look.tooltip);
}

void PictureButton::setDimmed(bool dimmed) {
  if (dimmed_ == dimmed) return;
  dimmed_ = dimmed;
  update();
}

void PictureButton::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionToolButton option;
  initStyleOption(&option);
  if (dimmed_) option.state &= ~QStyle::State_Enabled;
  painter.drawComplexControl(QStyle::CC_ToolButton, option);
}

}  // namespace gp
