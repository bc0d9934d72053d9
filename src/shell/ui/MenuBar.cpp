#include "shell/ui/MenuBar.h"

#include <QKeyEvent>
#include <QShortcut>

namespace gp {
namespace {

constexpr int kMenuKey = Qt::Key_F10;

bool isFunctionKey(int key) { return key >= Qt::Key_F1 && key <= Qt::Key_F35; }

// Letters without Ctrl are access keys of the bar.
bool isCommandKey(const QKeyEvent& event) {
  if (event.key() == kMenuKey || event.key() == Qt::Key_Control) return false;
  return event.modifiers().testFlag(Qt::ControlModifier) || isFunctionKey(event.key());
}

}  // namespace

MenuBar::MenuBar(QWidget* form) : QMenuBar(form) {
  connect(new QShortcut(QKeySequence(kMenuKey), form), &QShortcut::activated, this, &MenuBar::toggleKeyboard);
}

// Qt enters and leaves this state on a press and release of Alt, and has no other access to it.
// QKeyEvent inverts the modifier of a modifier key.
void MenuBar::toggleKeyboard() {
  QKeyEvent press(QEvent::ShortcutOverride, Qt::Key_Alt, Qt::NoModifier);
  QKeyEvent release(QEvent::KeyRelease, Qt::Key_Alt, Qt::AltModifier);
  eventFilter(window(), &press);
  eventFilter(window(), &release);
}

void MenuBar::leaveKeyboard() {
  QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  keyPressEvent(&escape);
}

// While the bar has the focus, its entries and the form both claim a command's key, and Qt runs neither.
bool MenuBar::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && hasFocus() && isCommandKey(*static_cast<QKeyEvent*>(event)))
    leaveKeyboard();
  return QMenuBar::event(event);
}

}  // namespace gp
