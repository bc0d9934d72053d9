#include "animation/ui/AniGroup.h"

#include <QEvent>
#include <QHBoxLayout>

namespace gp {
namespace {

constexpr int kPadding = 4;  // between the frame and the controls
constexpr int kFrame = 1;

}  // namespace

AniGroup::AniGroup(QWidget* parent, const QString& objectName, const QString& caption)
    : CaptionFrame(parent, objectName, caption), rows_(new QVBoxLayout(this)) {
  rows_->setSpacing(kGap);
  makeMargins();
}

// The margins of the frame are wider than this pane has room for.
void AniGroup::makeMargins() {
  const QMargins wide = frameMargins();
  const int top = wide.top() - wide.bottom() + kFrame + kPadding;
  rows_->setContentsMargins(flat_ ? QMargins()
                                  : QMargins(kPadding + kFrame, top, kPadding + kFrame, kPadding + kFrame));
}

void AniGroup::setFlat(bool flat) {
  flat_ = flat;
  makeMargins();
  update();
}

QHBoxLayout* AniGroup::addRow() {
  auto* row = new QHBoxLayout;
  row->setSpacing(kGap);
  rows_->addLayout(row, 1);
  return row;
}

void AniGroup::paintEvent(QPaintEvent* event) {
  if (!flat_) CaptionFrame::paintEvent(event);
}

void AniGroup::changeEvent(QEvent* event) {
  CaptionFrame::changeEvent(event);
  if (event->type() == QEvent::FontChange) makeMargins();
}

}  // namespace gp
