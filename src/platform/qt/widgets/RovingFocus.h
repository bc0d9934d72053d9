// One Tab stop for a group of buttons: Tab reaches the group; the arrow keys, Home and End move within it. The group
// remembers its last position. It does not own the members, which must outlive it or be children of its owner.
#pragma once

#include <QObject>

#include <vector>

class QKeyEvent;
class QWidget;

namespace gp {

class RovingFocus : public QObject {
  Q_OBJECT

 public:
  // The members are in rows of `columns`; for a group of one row, pass the number of members.
  RovingFocus(QWidget* owner, int columns);

  void add(QWidget* member);
  // The member that Tab reaches; null while none can have the focus.
  QWidget* stop() const { return stop_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool handleKey(const QWidget* member, const QKeyEvent& key);
  bool moveBy(int from, int step);
  void setStop(QWidget* member);
  void ensureStop();

  std::vector<QWidget*> members_;
  int columns_;
  QWidget* stop_ = nullptr;
};

}  // namespace gp
