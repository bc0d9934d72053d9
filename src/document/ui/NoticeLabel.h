// The live region of the main form: shows for some seconds what was announced, and has assistive technology speak it.
// A notice waits while the place of the label is taken by something more important.
#pragma once

#include "platform/qt/widgets/TextCell.h"

class QTimer;

namespace gp {

class NoticeLabel : public TextCell {
  Q_OBJECT

 public:
  static constexpr int kShownMs = 3000;

  explicit NoticeLabel(QWidget* parent);

  // Shows a notice in place of the former one; an equal one is spoken again.
  void announce(const QString& text);
  // While the place is taken, nothing is shown. A notice that came meanwhile is shown afterwards for its full time.
  void setPlaceTaken(bool taken);

  // The name is all that is spoken.
  QString accessibleValue() const override { return {}; }
  QAccessible::Role accessibleRole() const override { return QAccessible::Notification; }

 private:
  void showNotice();
  void end();

  QTimer* timer_;
  bool placeTaken_ = false;
};

}  // namespace gp
