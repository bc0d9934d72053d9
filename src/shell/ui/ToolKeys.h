// The keys of the tools.
#pragma once

namespace gp {

class ShiftPad;
class ToolBox;

// Has the buttons of the tools name the keys of their entries in the Toolbox menu.
void showToolKeys(ToolBox& toolBox, ShiftPad& shiftPad);

}  // namespace gp
