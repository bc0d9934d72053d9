// The table of tools. Index, picture, tooltip and menu entry of a tool belong together by the index of imgTool.
#pragma once

#include <array>
#include <string>

namespace gp {

enum Tool : int {
  kNoTool = 0,
  kPaint = 4,
  kErase,
  kFill,
  kReplace,
  kRestore,
  kLine,
  kRectangle,
  kFilledRectangle,
  kOval,
  kFilledOval,
  kRegion,
  kShift,
};

struct ToolRow {
  int index;
  const char* tooltip;
  const char* picture;
};

inline constexpr int kFirstTool = kPaint;
inline constexpr int kLastTool = kShift;
const std::array<ToolRow, 12>& toolTable();
const ToolRow& toolRow(int index);
// A tool's tooltip up to its first bracket: the name a person knows it by.
std::string toolName(int index);

}  // namespace gp
