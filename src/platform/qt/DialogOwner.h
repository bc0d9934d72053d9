// The parent window of a dialog. Create it before the dialog, so that it is destroyed after it. When two dialogs close
// at once, or a box closes over a dialog, a desktop may give the focus to a closing window and leave none active: so
// the destructor activates the parent window.
#pragma once

#include <QApplication>
#include <QMainWindow>
#include <QPointer>

namespace gp {

class DialogOwner {
 public:
  DialogOwner() : window_(present()) {}
  ~DialogOwner() {
    if (window_ && window_->isVisible()) window_->activateWindow();
  }
  DialogOwner(const DialogOwner&) = delete;
  DialogOwner& operator=(const DialogOwner&) = delete;

  // Null when there is none.
  QWidget* window() const { return window_; }

 private:
  // The open modal window, which the desktop may not have activated yet; otherwise the active window; otherwise the
  // main form, which is inactive while the desktop moves the focus.
  static QWidget* present() {
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    if (QWidget* active = QApplication::activeWindow()) return active;
    for (QWidget* window : QApplication::topLevelWidgets())
      if (window->isVisible() && qobject_cast<QMainWindow*>(window)) return window;
    return nullptr;
  }

  const QPointer<QWidget> window_;
};

}  // namespace gp
