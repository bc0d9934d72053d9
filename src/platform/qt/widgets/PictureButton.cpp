#include "platform/qt/widgets/PictureButton.h"

#include "platform/qt/Accessibility.h"
#include "platform/qt/Contrast.h"
#include "platform/qt/FocusRing.h"
#include "platform/qt/KeyToolTip.h"
#include "platform/qt/Pictures.h"

#include <QHelpEvent>
#include <QStyleOptionToolButton>
#include <QStylePainter>
#include <QToolTip>

namespace gp {
namespace {

constexpr int kTile = 7;  // eighths of the way from the window's colour to that of its text
constexpr int kTileRadius = 3;

// What makes Qt paint a panel behind the picture.
constexpr QStyle::State kRaisedOrSunken =
    QStyle::State_On | QStyle::State_Sunken | QStyle::State_Raised | QStyle::State_MouseOver;

}  // namespace

PictureButton::PictureButton(QWidget* parent, const QString& objectName, const PictureButtonLook& look)
    : QToolButton(parent), reversed_(Pictures::reversedIcon(look.picture)) {
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

void PictureButton::setToggle() {
  setCheckable(true);
  setAccessibleRole(this, QAccessible::CheckBox);
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

// A chosen button is a tile in nearly the colour of text, which differs from any window.
void PictureButton::paintTile(QPainter& painter) const {
  const QColor window = palette().color(QPalette::Window), text = palette().color(QPalette::WindowText);
  const int edge = hasFocus() ? kFocusRing : 0;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(visibleOn(window, text));
  painter.setBrush(visibleOn(window, between(window, text, kTile)));
  painter.drawRoundedRect(QRectF(rect()).adjusted(edge + 0.5, edge + 0.5, -edge - 0.5, -edge - 0.5), kTileRadius,
                          kTileRadius);
}

void PictureButton::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionToolButton option;
  initStyleOption(&option);
  if (dimmed_) option.state &= ~QStyle::State_Enabled;
  if (isChecked() || isDown()) {
    paintTile(painter);
    option.icon = reversed_;
    option.state &= ~kRaisedOrSunken;
  }
  painter.drawComplexControl(QStyle::CC_ToolButton, option);
}

}  // namespace gp
