#include "platform/qt/widgets/TextCell.h"

#include "platform/qt/PathText.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace gp {
namespace {

constexpr int kLeading = 4;
constexpr int kSlack = 2;  // letter widths are not whole pixels

}  // namespace

TextCell::TextCell(QWidget* parent, const QString& objectName, const QString& accessibleName) : QWidget(parent) {
  setObjectName(objectName);
  setAccessibleName(accessibleName);
}

void TextCell::setText(const QString& text, const QString& spoken) {
  if (text_ == text && spoken_ == spoken) return;
  text_ = text;
  spoken_ = spoken;
  update();
  accessibleValueChanged(this);
}

QSize TextCell::sizeHint() const {
  return {fontMetrics().horizontalAdvance(text_) + kSlack + 2 * kMargin, fontMetrics().height() + kLeading};
}

QSize TextCell::minimumSizeHint() const { return {0, sizeHint().height()}; }

QString TextCell::shownText() const {
  return fontMetrics().elidedText(printable(text_), elide_, width() - 2 * kMargin);
}

void TextCell::paintEvent(QPaintEvent*) {
  if (text_.isEmpty()) return;
  QPainter painter(this);
  painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
  painter.drawText(rect().adjusted(kMargin, 0, -kMargin, 0), Qt::TextSingleLine | Qt::AlignVCenter | alignment_,
                   shownText());
}

bool TextCell::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && shownText() != text_) {
    const auto* help = static_cast<QHelpEvent*>(event);
    // Escaped, because rich text would drop parts of a name that look like a tag.
    QToolTip::showText(help->globalPos(), text_.toHtmlEscaped(), this);
    return true;
  }
  return QWidget::event(event);
}

}  // namespace gp
