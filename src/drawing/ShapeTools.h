// Line, Rectangle, Filled Rectangle, Oval and Filled Oval. A drag only shows a rubber band over the Editing Area; the
// release draws the shape on picImage and picMask. One object handles all five tools; the selected one determines what
// the drag draws.
//
// A drag belongs to the icon on which it started. When the icon is replaced, or when the panel, the region or Shift
// changes meanwhile, the shape is discarded.
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
  // Draws the shape of the last move; the position of the release is not used. For an oval it processes events first.
  void release(const ToolMouse& mouse) override;
  // Ends a drag without drawing and removes its band.
  void cancel() override;
  bool isHeld() const override { return isDragging(); }
  void followMagnification() override;
  std::optional<DrawnSize> drawnSize() const override;

 private:
  // Identifies the icon and the state in which a drag draws.
  struct DragTarget {
    unsigned icon;  // iconSerial
    int panel;
    bool hasRegion;
    bool isShifting;
    bool operator==(const DragTarget&) const = default;
  };

  DragTarget currentTarget() const;
  bool isCurrent(const DragTarget& target) const;
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

  bool dragged_ = false;  // a press has started the shape that the next release draws
  DragTarget dragTarget_{};
  ShapeBox shownBand_;  // the area of the Editing Area that shows the band
};

}  // namespace gp
