#include "document/ui/QtDisplay.h"

#include <utility>

namespace gp {

void QtDisplay::listen(DisplayPart part, QObject* view, std::function<void()> listener) {
  connect(this, &QtDisplay::partChanged, view, [part, listener = std::move(listener)](DisplayPart changedPart) {
    if (changedPart == part) listener();
  });
}

void QtDisplay::forgetAll() {
  disconnect();
  requests_ = {};
}

void QtDisplay::changed(DisplayPart part) { emit partChanged(part); }

void QtDisplay::repaintEditingArea(int x, int y, int width, int height) {
  if (requests_.repaintEditingArea) requests_.repaintEditingArea(x, y, width, height);
}

void QtDisplay::showPopUpMenu() {
  if (requests_.showPopUpMenu) requests_.showPopUpMenu();
}

void QtDisplay::nudgeMousePointer() {
  if (requests_.nudgeMousePointer) requests_.nudgeMousePointer();
}

void QtDisplay::focusColorValue() {
  if (requests_.focusColorValue) requests_.focusColorValue();
}

void QtDisplay::announce(const std::string& text) {
  if (requests_.announce) requests_.announce(text);
}

}  // namespace gp
