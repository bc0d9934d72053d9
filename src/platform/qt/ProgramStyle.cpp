#include "platform/qt/ProgramStyle.h"

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

class ProgramStyle final : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override {
    return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
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
