#include "platform/qt/widgets/RovingFocus.h"

#include <QEvent>
#include <QKeyEvent>
#include <QWidget>

#include <algorithm>

namespace gp {
namespace {

bool canHaveFocus(const QWidget* member) { return member->isEnabled() && !member->isHidden(); }

}  // namespace

RovingFocus::RovingFocus(QWidget* owner, int columns) : QObject(owner), columns_(columns) {}

void RovingFocus::add(QWidget* member) {
  members_.push_back(member);
  member->setFocusPolicy(Qt::NoFocus);
  member->installEventFilter(this);
  if (!stop_ && canHaveFocus(member)) setStop(member);
}

void RovingFocus::setStop(QWidget* member) {
  if (stop_ == member) return;
  if (stop_) stop_->setFocusPolicy(Qt::NoFocus);
  stop_ = member;
  if (stop_) stop_->setFocusPolicy(Qt::TabFocus);
}

void RovingFocus::ensureStop() {
  if (stop_ && canHaveFocus(stop_)) return;
  const auto first = std::ranges::find_if(members_, canHaveFocus);
  setStop(first == members_.end() ? nullptr : *first);
}

bool RovingFocus::moveBy(int from, int step) {
  const int count = static_cast<int>(members_.size());
  for (int to = from + step; to >= 0 && to < count; to += step) {
    QWidget* member = members_[static_cast<std::size_t>(to)];
    if (!canHaveFocus(member)) continue;
    setStop(member);
    member->setFocus(Qt::TabFocusReason);
    return true;
  }
  return false;
}

bool RovingFocus::handleKey(const QWidget* member, const QKeyEvent& key) {
  if (key.modifiers() & ~Qt::KeypadModifier) return false;
  const int from = static_cast<int>(std::ranges::find(members_, member) - members_.begin());
  const int count = static_cast<int>(members_.size());
  switch (key.key()) {
    case Qt::Key_Left:
      return moveBy(from, -1), true;
    case Qt::Key_Right:
      return moveBy(from, 1), true;
    case Qt::Key_Up:
      return moveBy(from, -columns_), true;
    case Qt::Key_Down:
      return moveBy(from, columns_), true;
    case Qt::Key_Home:
      return moveBy(-1, 1), true;
    case Qt::Key_End:
      return moveBy(count, -1), true;
    default:
      return false;
  }
}

bool RovingFocus::eventFilter(QObject* watched, QEvent* event) {
  auto* member = static_cast<QWidget*>(watched);
  switch (event->type()) {
    case QEvent::KeyPress:
      if (handleKey(member, *static_cast<QKeyEvent*>(event))) return true;
      break;
    case QEvent::FocusIn:
      setStop(member);
      break;
    case QEvent::EnabledChange:
    case QEvent::HideToParent:
    case QEvent::ShowToParent:
      ensureStop();
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace gp
