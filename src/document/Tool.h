// The numbers of the drawing tools: the indices of imgTool and mnuTools.
#pragma once

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

}  // namespace gp
