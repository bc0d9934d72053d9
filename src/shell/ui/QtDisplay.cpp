#include "shell/ui/QtDisplay.h"

#include <utility>

namespace gp {

void QtDisplay::listen(DisplayPart part, std::function<void()> listener) {
  listeners_.at(static_cast<std::size_t>(part)).push_back(std::move(listener));
}

void QtDisplay::forgetAll() {
  for (auto& listeners : listeners_) listeners.clear();
  requests_ = {};
}

void QtDisplay::changed(DisplayPart part) {
  for (const auto& listener : listeners_.at(static_cast<std::size_t>(part))) listener();
}

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

}  // namespace gp
