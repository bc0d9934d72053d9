#include "platform/qt/widgets/WrappedCheckBox.h"

#include <QStyleOptionButton>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

#include <algorithm>

namespace gp {
namespace {

constexpr int kAround = 3;         // between the text and the outer edge of its focus ring, pixels
constexpr int kLeastLetters = 12;  // of a line
constexpr int kFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextShowMnemonic | Qt::TextWordWrap;

}  // namespace

WrappedCheckBox::WrappedCheckBox(const QString& text, QWidget* parent) : QCheckBox(text, parent) {
  QSizePolicy wraps(QSizePolicy::Preferred, QSizePolicy::Preferred, QSizePolicy::CheckBox);
  wraps.setHeightForWidth(true);
  setSizePolicy(wraps);
}

int WrappedCheckBox::textLeft() const {
  return style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this) +
         style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, this);
}

QRect WrappedCheckBox::textRect(int width) const {
  const QRect room(textLeft(), kAround, std::max(1, width - textLeft() - kAround), QWIDGETSIZE_MAX);
  return fontMetrics().boundingRect(room, kFlags, text());
}

int WrappedCheckBox::heightForWidth(int width) const {
  const int indicator = style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this);
  return std::max(indicator, textRect(width).height()) + 2 * kAround;
}

QSize WrappedCheckBox::sizeHint() const {
  const int width = textRect(QWIDGETSIZE_MAX).right() + 1 + kAround;
  return {width, heightForWidth(width)};
}

QSize WrappedCheckBox::minimumSizeHint() const {
  const int line = textLeft() + kAround + kLeastLetters * fontMetrics().averageCharWidth();
  return {std::min(line, sizeHint().width()), sizeHint().height()};
}

// The box is beside the first line.
void WrappedCheckBox::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  const QRect place = textRect(width());
  QRect box(0, 0, style()->pixelMetric(QStyle::PM_IndicatorWidth, &option, this),
            style()->pixelMetric(QStyle::PM_IndicatorHeight, &option, this));
  box.moveTop(std::max(0, place.top() + (fontMetrics().height() - box.height()) / 2));
  option.rect = box;
  painter.drawPrimitive(QStyle::PE_IndicatorCheckBox, option);
  painter.drawItemText(place, kFlags, palette(), isEnabled(), text(), QPalette::WindowText);
  if (!hasFocus()) return;
  QStyleOptionFocusRect focus;
  focus.initFrom(this);
  focus.rect = place.adjusted(-kAround, -kAround, kAround, kAround) & rect();
  painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

}  // namespace gp
