#include "platform/qt/ProgramStyle.h"

#include <QApplication>
#include <QProxyStyle>
#include <QStyleOption>

namespace gp {
namespace {

constexpr int kDarkLightness = 128;
// How much lighter, in percent, a dark window counts for outlines: they are drawn a third darker than that.
constexpr int kLighter = 480;

// Outlines are drawn darker than the window, which nobody sees on a dark one: there they are drawn as on a light one.
template <class Option>
Option withVisibleOutline(const Option& option) {
  Option visible = option;
  const QColor window = option.palette.color(QPalette::Window);
  if (window.lightness() < kDarkLightness) visible.palette.setColor(QPalette::Window, window.lighter(kLighter));
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
