#include "drawing/ToolTable.h"

#include <stdexcept>

namespace gp {

const std::array<ToolRow, 12>& toolTable() {
  static const std::array<ToolRow, 12> kTools = {{
      {kPaint, "Paint", "paint"},
      {kErase, "Erase (paint transparent)", "erase"},
      {kFill, "Fill (+Shift key if to fill transparent)", "fill"},
      {kReplace, "Replace painted color (+Shift key if to replace by transparent)", "replace"},
      {kRestore, "Restore/copy pixel of icon in panel", "restore"},
      {kLine, "Line (+Shift key if for straight line)", "line"},
      {kRectangle, "Rectangle (+Shift key if for square)", "rectangle"},
      {kFilledRectangle, "Filled Rectangle (+Shift key if for filled square)", "filled-rectangle"},
      {kOval, "Oval (+Shift key if for circle)", "oval"},
      {kFilledOval, "Filled Oval (+Shift key if for filled circle)", "filled-oval"},
      {kRegion, "Region (+Shift key if for square region)", "region"},
      {kShift, "Set/unset shift image", "shift"},
  }};
  return kTools;
}

const ToolRow& toolRow(int index) {
  if (index < kFirstTool || index > kLastTool) throw std::out_of_range("no such tool");
  return toolTable()[static_cast<std::size_t>(index - kFirstTool)];
}

std::string toolHint(int index) {
  const std::string tooltip = toolRow(index).tooltip;
  const std::size_t bracket = tooltip.find(" (");
  return bracket == std::string::npos ? "" : tooltip.substr(bracket + 2, tooltip.rfind(')') - bracket - 2);
}

std::string toolName(int index) {
  const std::string tooltip = toolRow(index).tooltip;
  return tooltip.substr(0, tooltip.find(" ("));
}

}  // namespace gp
