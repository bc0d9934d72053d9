#include "platform/qt/widgets/CaptionFrame.h"

#include "platform/qt/Accessibility.h"

#include <QPainter>

namespace gp {
namespace {

constexpr int kPadding = 8;  // between the frame and its content, pixels
constexpr int kCaptionIndent = 2;
constexpr int kCaptionGap = 3;

}  // namespace

CaptionFrame::CaptionFrame(QWidget* parent, const QString& objectName, const QString& caption)
    : QWidget(parent), caption_(caption) {
  setObjectName(objectName);
  makeGroup(this, caption);
}

QMargins CaptionFrame::frameMargins() const {
  return {kPadding, fontMetrics().height() + kCaptionGap + kPadding, kPadding, kPadding};
}

void CaptionFrame::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const int captionHeight = fontMetrics().height() + kCaptionGap;
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(QRect(kCaptionIndent, 0, width() - kCaptionIndent, captionHeight), Qt::AlignLeft | Qt::AlignTop,
                   caption_);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(QRect(0, captionHeight, width() - 1, height() - captionHeight - 1));
}

}  // namespace gp
