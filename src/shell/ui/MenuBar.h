// The menu bar as F10 and Alt hand it the keyboard. A command's key pressed meanwhile leaves the bar and runs its
// command.
#pragma once

#include <QMenuBar>

namespace gp {

class MenuBar final : public QMenuBar {
  Q_OBJECT

 public:
  explicit MenuBar(QWidget* form);

 protected:
  bool event(QEvent* event) override;

 private:
  void toggleKeyboard();
  void leaveKeyboard();
};

}  // namespace gp
