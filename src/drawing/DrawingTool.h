// The mouse handling of one tool on picDisp. Tools has done the common steps before each call: an icon is present, the
// tool is selected, the position is converted to a pixel, and on a release the icon is marked as modified.
#pragma once

#include "document/Tool.h"

namespace gp {

struct ToolMouse {
  Tool tool = kNoTool;  // the selected tool
  int pixelX = 0;       // icon pixel; can lie outside the icon on a release
  int pixelY = 0;
  float x = 0;  // Editing Area pixels
  float y = 0;
  int modifiers = 0;  // kShiftKey, kCtrlKey, kAltKey
};

// The result of pointer() for a tool whose pointer is the picture with the name of the tool.
inline constexpr int kOwnPicture = 0;

class DrawingTool {
 public:
  virtual ~DrawingTool() = default;
  virtual void press(const ToolMouse& /*mouse*/) {}
  virtual void move(const ToolMouse& /*mouse*/) {}
  virtual void release(const ToolMouse& /*mouse*/) {}
  // Called after the tool has been selected.
  virtual void selected() {}
  // Called before the tool is deselected: finishes or discards the current operation as a whole.
  virtual void cancel() {}
  // Returns the pointer for a position in Editing Area pixels: kOwnPicture, or a pointer listed in ScreenState.
  virtual int pointer(float /*x*/, float /*y*/) const { return kOwnPicture; }
};

}  // namespace gp
