// The conditions for ticks of menu entries, one function for each kind of entry.
#pragma once

namespace gp {

class Shell;

namespace ticks {

bool isToolSelected(const Shell& shell, int index);
bool isBrushSelected(const Shell& shell, int index);
bool isColorFrameUp(const Shell& shell, int index);
bool isGridSelected(const Shell& shell, int index);
bool isStartScreenSelected(const Shell& shell, int index);
bool isOptionOn(const Shell& shell, int index);

}  // namespace ticks
}  // namespace gp
