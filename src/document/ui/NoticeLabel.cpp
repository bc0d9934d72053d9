#include "document/ui/NoticeLabel.h"

#include <QTimer>

namespace gp {

NoticeLabel::NoticeLabel(QWidget* parent) : TextCell(parent, "lblNotice", {}), timer_(new QTimer(this)) {
  timer_->setSingleShot(true);
  timer_->setInterval(kShownMs);
  connect(timer_, &QTimer::timeout, this, &NoticeLabel::end);
  QSizePolicy keepsItsPlace = sizePolicy();
  keepsItsPlace.setRetainSizeWhenHidden(true);
  setSizePolicy(keepsItsPlace);
  hide();
}

void NoticeLabel::announce(const QString& text) {
  setText(text);
  setAccessibleName(text);
  if (!placeTaken_) showNotice();
}

void NoticeLabel::setPlaceTaken(bool taken) {
  if (placeTaken_ == taken) return;
  placeTaken_ = taken;
  if (taken) {
    hide();
    timer_->stop();
  } else if (!text().isEmpty()) {
    showNotice();
  }
}

// A notification is spoken when it appears, so one that is shown already disappears first.
void NoticeLabel::showNotice() {
  hide();
  show();
  timer_->start();
  if (!QAccessible::isActive()) return;
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void NoticeLabel::end() {
  hide();
  setText({});
  setAccessibleName({});
}

}  // namespace gp
