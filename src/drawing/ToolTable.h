// The table of tools: the index of imgTool, tooltip and picture of each tool.
#pragma once

#include "document/Tool.h"

#include <array>
#include <string>

namespace gp {

struct ToolRow {
  Tool index;
  const char* tooltip;
  const char* picture;
};

inline constexpr Tool kFirstTool = kPaint;
inline constexpr Tool kLastTool = kShift;
const std::array<ToolRow, 12>& toolTable();
// Throws std::out_of_range for an index without a tool.
const ToolRow& toolRow(int index);
inline constexpr const char* kColorPickerName = "Color Picker";
// Returns what a tool's tooltip says in brackets: what the Shift key does, or how it paints. Empty for some.
std::string toolHint(int index);
// Returns a tool's tooltip up to its first bracket: the name that users know.
std::string toolName(int index);

}  // namespace gp
