#include "platform/qt/ProgramStyle.h"

#include "platform/qt/Contrast.h"
#include "platform/qt/FocusRing.h"
#include "platform/qt/Pictures.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QProxyStyle>
#include <QStyleOption>

namespace gp {
namespace {

constexpr int kMoreMenus = 24;  // width of the menu bar's button for the entries that do not fit, pixels
constexpr int kNearText = 6;    // eighths of the way from the window's colour to that of its text

// Qt draws outlines a third darker than the window, which is invisible on a dark window. There the outline is computed
// from a lighter window colour.
template <class Option>
Option withVisibleOutline(const Option& option) {
  Option visible = option;
  const QColor window = option.palette.color(QPalette::Window), text = option.palette.color(QPalette::WindowText);
  if (window.lightness() < text.lightness())
    visible.palette.setColor(QPalette::Window, between(window, text, kNearText));
  return visible;
}

struct OwnPicture {
  QStyle::StandardPixmap standard;
  const char* picture;
};
constexpr OwnPicture kOwnPictures[] = {
    // Qt's picture for the entries that do not fit the menu bar is black in every theme.
    {QStyle::SP_ToolBarHorizontalExtensionButton, "more"}, {QStyle::SP_MessageBoxInformation, "box-information"},
    {QStyle::SP_MessageBoxQuestion, "box-question"},       {QStyle::SP_MessageBoxWarning, "box-exclamation"},
    {QStyle::SP_MessageBoxCritical, "box-exclamation"},
};

// Qt marks the focus of each kind of control in another way, and most of these marks are too faint. They are turned off
// by drawing the control without its focus.
template <class Option>
Option withoutFocus(const Option& option) {
  Option plain = option;
  plain.state &= ~QStyle::State_HasFocus;
  return plain;
}

void paintRingOf(const QStyleOption& option, QPainter* painter) {
  if (option.state & QStyle::State_HasFocus) paintFocusRing(*painter, option.rect, accentOn(option.palette));
}

bool isScrollArea(const QWidget* widget) { return qobject_cast<const QAbstractScrollArea*>(widget) != nullptr; }

class ProgramStyle final : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override {
    if (hint == SH_ComboBox_Popup || hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
  }

  // The frame of a list has room for the ring, and the button for more menus for its picture.
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    if (metric == PM_DefaultFrameWidth && isScrollArea(widget)) return kFocusRing;
    if (metric == PM_MessageBoxIconSize) return Pictures::kBoxSize;
    return metric == PM_ToolBarExtensionExtent ? kMoreMenus : QProxyStyle::pixelMetric(metric, option, widget);
  }

  QIcon standardIcon(StandardPixmap standard, const QStyleOption* option, const QWidget* widget) const override {
    for (const OwnPicture& own : kOwnPictures)
      if (own.standard == standard) return Pictures::icon(own.picture);
    return QProxyStyle::standardIcon(standard, option, widget);
  }

  // A box whose text continues on further lines takes clicks, and is known to assistive technology, in all of its area.
  QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override {
    const bool isWrapped = element == SE_CheckBoxClickRect && widget && widget->hasHeightForWidth();
    return isWrapped ? option->rect : QProxyStyle::subElementRect(element, option, widget);
  }

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    if (element == PE_FrameFocusRect) return drawFocus(*option, painter);
    if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option); frame && element == PE_FrameLineEdit) {
      const QStyleOptionFrame plain = withoutFocus(*frame);
      QProxyStyle::drawPrimitive(element, &plain, painter, widget);
      return paintRingOf(*option, painter);
    }
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (button && (element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton)) {
      const QStyleOptionButton visible = withVisibleOutline(withoutFocus(*button));
      return QProxyStyle::drawPrimitive(element, &visible, painter, widget);
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    if (const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option); entry && element == CE_MenuBarItem)
      return drawMenuBarEntry(*entry, painter, widget);
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (button && element == CE_PushButton) {
      const QStyleOptionButton plain = withoutFocus(*button);
      QProxyStyle::drawControl(element, &plain, painter, widget);
      return paintRingOf(*option, painter);
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_ShapedFrame && isScrollArea(widget)) paintRingOf(*option, painter);
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override {
    if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option); slider && control == CC_Slider)
      drawPlain(control, withVisibleOutline(*slider), painter, widget);
    else if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option))
      drawPlain(control, *button, painter, widget);
    else if (const auto* list = qstyleoption_cast<const QStyleOptionComboBox*>(option))
      drawPlain(control, *list, painter, widget);
    else if (const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option))
      drawPlain(control, *spin, painter, widget);
    else
      return QProxyStyle::drawComplexControl(control, option, painter, widget);
    paintRingOf(*option, painter);
  }

 private:
  // The style marks an entry only while its menu is open.
  void drawMenuBarEntry(const QStyleOptionMenuItem& entry, QPainter* painter, const QWidget* widget) const {
    QStyleOptionMenuItem marked = entry;
    if (widget && widget->hasFocus() && entry.state & State_Selected) marked.state |= State_Sunken;
    QProxyStyle::drawControl(CE_MenuBarItem, &marked, painter, widget);
  }

  template <class Option>
  void drawPlain(ComplexControl control, const Option& option, QPainter* painter, const QWidget* widget) const {
    const Option plain = withoutFocus(option);
    QProxyStyle::drawComplexControl(control, &plain, painter, widget);
  }

  // The focus of a part of a control. A selected item of a list is filled with the accent colour already.
  static void drawFocus(const QStyleOption& option, QPainter* painter) {
    const bool isItem = option.state & State_Item;
    if (isItem && option.state & State_Selected) return;
    const QColor ground = option.palette.color(isItem ? QPalette::Base : QPalette::Window);
    paintFocusRing(*painter, option.rect, accentOn(ground, option.palette));
  }
};

}  // namespace

void installProgramStyle() { QApplication::setStyle(new ProgramStyle(QApplication::style()->name())); }

}  // namespace gp
