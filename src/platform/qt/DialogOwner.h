// The window that a dialog stands over, for dialogs that are shown from outside of any form. It owns nothing.
#pragma once

#include <QApplication>
#include <QMainWindow>

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

}  // namespace gp
