// The table of tools. Index, picture, tooltip and menu entry of a tool belong together by the index of imgTool.
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
// Throws std::out_of_range for a number that is no tool.
const ToolRow& toolRow(int index);
// A tool's tooltip up to its first bracket: the name a person knows it by.
std::string toolName(int index);

}  // namespace gp
