#include "platform/qt/KeyToolTip.h"

#include <QPalette>
#include <QString>

namespace gp {
namespace {

// Percent of the text's colour in the grey: enough for a contrast of 4.5:1 to a white and to a black ground.
constexpr int kTextPercent = 65;

QColor mixed(const QColor& ground, const QColor& text) {
  const auto part = [](int from, int to) { return (from * (100 - kTextPercent) + to * kTextPercent) / 100; };
  return {part(ground.red(), text.red()), part(ground.green(), text.green()), part(ground.blue(), text.blue())};
}

}  // namespace

QString toolTipWithKey(const QString& toolTip, const QString& key, const QPalette& palette) {
  const QColor grey = mixed(palette.color(QPalette::ToolTipBase), palette.color(QPalette::ToolTipText));
  return QString("<p style='white-space:pre'>%1  <span style='color:%2'>%3</span></p>")
      .arg(toolTip.toHtmlEscaped(), grey.name(), key.toHtmlEscaped());
}

}  // namespace gp
