// The mouse handling of one tool on picDisp. Tools has done the common steps before each call: an icon is present, the
// tool is selected, the position is converted to a pixel, and on a release the icon is marked as modified.
#pragma once

#include "document/Tool.h"

#include <optional>

namespace gp {

struct ToolMouse {
  Tool tool = kNoTool;  // the selected tool
  int pixelX = 0;       // icon pixel; can lie outside the icon on a release
  int pixelY = 0;
  float x = 0;  // Editing Area pixels
  float y = 0;
  int modifiers = 0;        // kShiftKey, kCtrlKey, kAltKey
  bool byKeyboard = false;  // the keyboard means the whole pixel; its position is the middle of the cell
};

// Width and height in icon pixels.
struct DrawnSize {
  int width = 0;
  int height = 0;
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
  // True while a drag is under way that the keyboard goes on with: its press stays down until the next one. Tools that
  // work at a point are done with a press and a release at once.
  virtual bool isHeld() const { return false; }
  // Gives the drag up: nothing that it has done stays.
  virtual void giveUp() { cancel(); }
  // Draws what a drag shows on an Editing Area that was rebuilt at another magnification.
  virtual void followMagnification() {}
  // The size of what a drag draws; none while it draws nothing.
  virtual std::optional<DrawnSize> drawnSize() const { return std::nullopt; }
  // Returns the pointer for a position in Editing Area pixels: kOwnPicture, or a pointer listed in ScreenState.
  virtual int pointer(float /*x*/, float /*y*/) const { return kOwnPicture; }
};

}  // namespace gp
