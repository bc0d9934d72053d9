// The window that a dialog stands over, for dialogs that are shown from outside of any form.
#pragma once

#include <QApplication>
#include <QMainWindow>
#include <QPointer>

namespace gp {

// The modal window that is up, which the desktop need not have made the active one yet; else the active one; else the
// main form, which is inactive while the desktop hands the focus on. Null when there is none of them.
inline QWidget* dialogOwner() {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  if (QWidget* active = QApplication::activeWindow()) return active;
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->isVisible() && qobject_cast<QMainWindow*>(window)) return window;
  return nullptr;
}

// The owner for as long as a dialog lives: made before the dialog, so that it outlives it. When two dialogs close at
// once, a desktop may hand the focus to the one that is just going and leave no window active: the owner asks for it.
class DialogOwner {
 public:
  DialogOwner() : window_(dialogOwner()) {}
  ~DialogOwner() {
    if (window_ && window_->isVisible()) window_->activateWindow();
  }
  DialogOwner(const DialogOwner&) = delete;
  DialogOwner& operator=(const DialogOwner&) = delete;

  QWidget* window() const { return window_; }

 private:
  const QPointer<QWidget> window_;
};

}  // namespace gp
