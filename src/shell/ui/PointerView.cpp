#include "shell/ui/PointerView.h"

#include "drawing/ToolTable.h"
#include "platform/qt/Pictures.h"

#include <QCursor>
#include <QGuiApplication>
#include <QWidget>

namespace gp {
namespace {

const char* pictureOfPointer(int pointer) {
  return pointer == kColorPickerPointer ? "color-picker" : toolRow(pointer).picture;
}

QCursor cursorOf(int pointer, double ratio) {
  switch (pointer) {
    case kDefaultPointer:
      return Qt::ArrowCursor;
    case kCrossPointer:
      return Qt::CrossCursor;
    case kHorizontalResizePointer:
      return Qt::SizeHorCursor;
    case kVerticalResizePointer:
      return Qt::SizeVerCursor;
    case kMovePointer:
      return Qt::SizeAllCursor;
    default:
      return Pictures::cursor(pictureOfPointer(pointer), ratio);
  }
}

}  // namespace

PointerView::~PointerView() { showHourglass(false); }

void PointerView::refresh() {
  showHourglass(screen_.hourglass);
  if (screen_.editingPointer == pointerShown_) return;
  pointerShown_ = screen_.editingPointer;
  editingArea_.setCursor(cursorOf(pointerShown_, editingArea_.devicePixelRatioF()));
}

void PointerView::showHourglass(bool shown) {
  if (shown == hourglassShown_) return;
  hourglassShown_ = shown;
  if (shown)
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  else
    QGuiApplication::restoreOverrideCursor();
}

}  // namespace gp
