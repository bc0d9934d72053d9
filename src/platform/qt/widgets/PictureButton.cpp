#include "platform/qt/widgets/PictureButton.h"

#include "platform/qt/Accessibility.h"
#include "platform/qt/KeyToolTip.h"
#include "platform/qt/Pictures.h"

#include <QHelpEvent>
#include <QStyleOptionToolButton>
#include <QStylePainter>
#include <QToolTip>

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
  setAccessibleRole(this, QAccessible::PushButton);
}

void PictureButton::setKey(const QString& key) {
  key_ = key;
  setAccessibleKey(this, key);
}

void PictureButton::setChoice() {
  setCheckable(true);
  setAccessibleRole(this, QAccessible::RadioButton);
}

// The key is added here, so that the tooltip remains the plain text that is also the button's name.
bool PictureButton::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || key_.isEmpty()) return QToolButton::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  QToolTip::showText(help->globalPos(), toolTipWithKey(toolTip(), key_, QToolTip::palette()), this);
  return true;
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
