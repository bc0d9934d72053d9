#include "shell/CommandTicks.h"

#include "document/EditState.h"
#include "shell/Shell.h"

#include <array>

namespace gp::ticks {

namespace {

constexpr std::array kColorFrames = {ColorFrame::Chart16, ColorFrame::Chart256, ColorFrame::DirectEntry};

}  // namespace

bool isToolSelected(const Shell& shell, int index) {
  if (index == kColorPickerPointer) return shell.colour().selection.isPickerSelected();
  return shell.drawing().tools.selectedTool() == index;
}
bool isBrushSelected(const Shell& shell, int index) { return shell.state().screen.brushIndex == index; }
bool isColorFrameUp(const Shell& shell, int index) {
  return shell.state().screen.colorFrame == kColorFrames.at(static_cast<std::size_t>(index));
}
bool isGridSelected(const Shell& shell, int index) { return shell.state().options.grid == index; }
bool isStartScreenSelected(const Shell& shell, int index) { return shell.state().options.startScreen == index; }
bool isOptionOn(const Shell& shell, int index) { return shell.state().options.*findBooleanOption(index)->member; }

}  // namespace gp::ticks
