#include "shell/ui/DrawingHold.h"

#include "shell/Shell.h"

#include <QKeyEvent>
#include <QWindow>

namespace gp {
namespace {

bool isInput(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
      return true;
    default:
      return false;
  }
}

}  // namespace

DrawingHold::DrawingHold(QWindow& window, Shell& shell) : QObject(&window), shell_(shell) {
  window.installEventFilter(this);
}

bool DrawingHold::eventFilter(QObject* watched, QEvent* event) {
  IconsList& list = shell_.extraction().list;
  if (!list.isDrawing()) return QObject::eventFilter(watched, event);
  // An accepted override keeps the key from the shortcuts of the menus.
  if (event->type() == QEvent::ShortcutOverride) {
    event->accept();
    return true;
  }
  if (!isInput(event->type())) return QObject::eventFilter(watched, event);
  event->setAccepted(event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove &&
                     event->type() != QEvent::Drop);
  if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
    shell_.guarded("Form_KeyDown", [&list] { list.stopDrawing(); });
  return true;
}

}  // namespace gp
