// Line, Rectangle, Filled Rectangle, Oval and Filled Oval. A drag shows a rubber band over the Editing Area and nothing
// else; the release draws the shape on picImage and picMask. One object serves all five: the drag is theirs together,
// and the tool that is selected says what it draws.
//
// A drag belongs to the icon it began on. When that has gone, or a panel, a region or Shift works on it meanwhile, the
// shape is dropped whole.
#pragma once

#include "document/Context.h"
#include "drawing/DrawingTool.h"
#include "platform/gdi/Outlines.h"

namespace gp {

class EditingArea;
class Tools;
class UndoHistory;
struct DrawState;

class ShapeTool : public DrawingTool {
 public:
  ShapeTool(const Context& context, EditingArea& editingArea, UndoHistory& history, const Tools& tools,
            DrawState& drawState);

  void press(const ToolMouse& mouse) override;
  void move(const ToolMouse& mouse) override;
  // Draws what the last move left; the position of the release is not used. Pumps messages for an oval.
  void release(const ToolMouse& mouse) override;
  // Ends a drag without drawing anything and takes its band away.
  void cancel() override;

 private:
  // What a drag draws on.
  struct Ground {
    unsigned icon;  // iconSerial
    int panel;
    bool hasRegion;
    bool isShifting;
    bool operator==(const Ground&) const = default;
  };

  Ground ground() const;
  bool isStillOn(const Ground& ground) const;
  bool isDragging() const;
  void follow(const ToolMouse& mouse);
  void showBand(Tool tool);
  void clearBand();

  Context context_;
  EditState& state_;
  EditingArea& editingArea_;
  UndoHistory& history_;
  const Tools& tools_;
  DrawState& drawState_;

  bool dragged_ = false;  // a press began what the next release draws
  Ground dragGround_{};
  ShapeBox shownBand_;  // where a band stands on the Editing Area
};

}  // namespace gp
