#include "platform/qt/ProgramStyle.h"

#include <QApplication>
#include <QProxyStyle>

namespace gp {
namespace {

class ProgramStyle final : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override {
    return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
  }
};

}  // namespace

void installProgramStyle() { QApplication::setStyle(new ProgramStyle(QApplication::style()->name())); }

}  // namespace gp
