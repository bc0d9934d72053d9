#include "drawing/ToolTable.h"

#include <stdexcept>

namespace gp {

const std::array<ToolRow, 12>& toolTable() {
  static const std::array<ToolRow, 12> kTools = {{
      {kPaint, "Paint", "paint", true},
      {kErase, "Erase (paint transparent)", "erase", true},
      {kFill, "Fill (+Shift key if to fill transparent)", "fill", false},
      {kReplace, "Replace painted color (+Shift key if to replace by transparent)", "replace", false},
      {kRestore, "Restore/copy pixel of icon in panel", "restore", true},
      {kLine, "Line (+Shift key if for straight line)", "line", false},
      {kRectangle, "Rectangle (+Shift key if for square)", "rectangle", false},
      {kFilledRectangle, "Filled Rectangle (+Shift key if for filled square)", "filled-rectangle", false},
      {kOval, "Oval (+Shift key if for circle)", "oval", false},
      {kFilledOval, "Filled Oval (+Shift key if for filled circle)", "filled-oval", false},
      {kRegion, "Region (+Shift key if for square region)", "region", false},
      {kShift, "Set/unset shift image", "shift", false},
  }};
  return kTools;
}

const ToolRow& toolRow(int index) {
  if (index < kFirstTool || index > kLastTool) throw std::out_of_range("no such tool");
  return toolTable()[static_cast<std::size_t>(index - kFirstTool)];
}

std::string toolName(int index) {
  const std::string tooltip = toolRow(index).tooltip;
  return tooltip.substr(0, tooltip.find(" ("));
}

}  // namespace gp
