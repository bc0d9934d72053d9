// The window that a dialog stands over, for as long as the dialog lives: made before the dialog, so that it outlives
// it. When two dialogs close at once, or a box closed over one, a desktop may hand the focus to the one that is just
// going and leave no window active: then the owner asks for it.
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

  // Null when there was none.
  QWidget* window() const { return window_; }

 private:
  // The modal window that is up, which the desktop need not have made the active one yet; else the active one; else the
  // main form, which is inactive while the desktop hands the focus on.
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
