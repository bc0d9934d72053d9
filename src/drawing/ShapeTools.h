// Line, Rectangle, Filled Rectangle, Oval and Filled Oval. A drag shows a rubber band over the Editing Area and nothing
// else; the release draws the shape on picImage and picMask. One object serves all five: the drag is theirs together,
// and the tool that is selected says what it draws.
//
// A drag belongs to the icon it began on. When that has gone, or a panel or region has come up that works on it, the
// shape is dropped whole.
#pragma once

#include "document/Display.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "drawing/DrawState.h"
#include "drawing/DrawingTool.h"
#include "drawing/UndoHistory.h"
#include "platform/gdi/Outlines.h"
#include "platform/ports/MessagePump.h"

namespace gp {

class ShapeTool : public DrawingTool {
 public:
  ShapeTool(EditState& state, Editor& editor, Display& display, MessagePump& pump, DrawState& drawState,
            const UndoHistory& history);

  void press(const ToolMouse& mouse) override;
  void move(const ToolMouse& mouse) override;
  // Draws what the last move left; the position of the release is not used. Pumps messages for an oval.
  void release(const ToolMouse& mouse) override;
  // Ends a drag without drawing anything and takes its band away.
  void cancel() override;

 private:
  // What the icon under a drag is known by.
  struct Ground {
    int container;
    int panel;
    unsigned era;
    bool hasRegion;
    bool operator==(const Ground&) const = default;
  };

  Ground ground() const;
  bool hasStillIts(const Ground& ground) const;
  bool isDragging() const;
  void follow(const ToolMouse& mouse);
  void showBand(int tool);
  void clearBand();

  EditState& state_;
  Editor& editor_;
  Display& display_;
  MessagePump& pump_;
  DrawState& drawState_;
  const UndoHistory& history_;

  bool dragged_ = false;  // a press began what the next release draws
  Ground dragGround_{};
  ShapeBox shownBand_;  // where a band stands on the Editing Area
};

}  // namespace gp
