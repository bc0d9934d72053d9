#include "platform/qt/ProgramStyle.h"

#include "platform/qt/Pictures.h"

#include <QApplication>
#include <QProxyStyle>
#include <QStyleOption>

namespace gp {
namespace {

// Returns the colour three quarters of the way from the window's colour to the colour of its text.
QColor nearText(const QColor& window, const QColor& text) {
  const auto mixed = [](int from, int to) { return (from + 3 * to) / 4; };
  return {mixed(window.red(), text.red()), mixed(window.green(), text.green()), mixed(window.blue(), text.blue())};
}

// Qt draws outlines a third darker than the window, which is invisible on a dark window. There the outline is computed
// from a lighter window colour.
template <class Option>
Option withVisibleOutline(const Option& option) {
  Option visible = option;
  const QColor window = option.palette.color(QPalette::Window), text = option.palette.color(QPalette::WindowText);
  if (window.lightness() < text.lightness()) visible.palette.setColor(QPalette::Window, nearText(window, text));
  return visible;
}

struct BoxPicture {
  QStyle::StandardPixmap standard;
  const char* picture;
};
constexpr BoxPicture kBoxPictures[] = {
    {QStyle::SP_MessageBoxInformation, "box-information"},
    {QStyle::SP_MessageBoxQuestion, "box-question"},
    {QStyle::SP_MessageBoxWarning, "box-exclamation"},
    {QStyle::SP_MessageBoxCritical, "box-exclamation"},
};

class ProgramStyle final : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override {
    if (hint == SH_ComboBox_Popup || hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
  }

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    return metric == PM_MessageBoxIconSize ? Pictures::kBoxSize : QProxyStyle::pixelMetric(metric, option, widget);
  }

  QIcon standardIcon(StandardPixmap standard, const QStyleOption* option, const QWidget* widget) const override {
    for (const BoxPicture& box : kBoxPictures)
      if (box.standard == standard) return Pictures::icon(box.picture);
    return QProxyStyle::standardIcon(standard, option, widget);
  }

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (button && (element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton)) {
      const QStyleOptionButton visible = withVisibleOutline(*button);
      return QProxyStyle::drawPrimitive(element, &visible, painter, widget);
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }

  // The style marks an entry of the menu bar only while its menu is open.
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (entry && element == CE_MenuBarItem && widget && widget->hasFocus() && entry->state & State_Selected) {
      QStyleOptionMenuItem marked = *entry;
      marked.state |= State_Sunken;
      return QProxyStyle::drawControl(element, &marked, painter, widget);
    }
    QProxyStyle::drawControl(element, option, painter, widget);
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override {
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (slider && control == CC_Slider) {
      const QStyleOptionSlider visible = withVisibleOutline(*slider);
      return QProxyStyle::drawComplexControl(control, &visible, painter, widget);
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
};

}  // namespace

void installProgramStyle() { QApplication::setStyle(new ProgramStyle(QApplication::style()->name())); }

}  // namespace gp
