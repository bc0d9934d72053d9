// One tool's share of the mouse handlers of picDisp. Tools has done the common steps when it calls: an icon is present,
// the tool is selected, the position has become a pixel, and at a release the icon is marked as modified.
#pragma once

#include "document/Tool.h"

namespace gp {

struct ToolMouse {
  Tool tool = kNoTool;  // the selected one
  int pixelX = 0;       // icon pixel; at a release it may lie outside the icon
  int pixelY = 0;
  float x = 0;  // Editing Area pixels
  float y = 0;
  int modifiers = 0;  // kShiftKey, kCtrlKey, kAltKey
};

// What pointer() gives for a tool that is shown by its own picture.
inline constexpr int kOwnPicture = 0;

class DrawingTool {
 public:
  virtual ~DrawingTool() = default;
  virtual void press(const ToolMouse& /*mouse*/) {}
  virtual void move(const ToolMouse& /*mouse*/) {}
  virtual void release(const ToolMouse& /*mouse*/) {}
  // The tool has just been selected.
  virtual void selected() {}
  // The tool is about to be deselected: what is under way is finished or dropped, whole.
  virtual void cancel() {}
  // The pointer over a position, in Editing Area pixels: kOwnPicture, or one of the pointers that ScreenState tells.
  virtual int pointer(float /*x*/, float /*y*/) const { return kOwnPicture; }
};

}  // namespace gp
