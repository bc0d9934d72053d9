// The freehand tools: Paint and Erase stamp the brush at the pointer's position; Restore takes pixels from the
// container's copy of the icon. A stroke lasts from press to release; however it ends, icon and Mask match.
#pragma once

#include "document/Context.h"
#include "drawing/DrawingTool.h"

namespace gp {

class EditingArea;
class UndoHistory;
struct DrawState;

// Paint and Erase, depending on the selected tool.
class FreehandTool : public DrawingTool {
 public:
  FreehandTool(const Context& context, EditingArea& editingArea, UndoHistory& history, DrawState& drawState);

  void press(const ToolMouse& mouse) override;
  void move(const ToolMouse& mouse) override;
  void release(const ToolMouse& mouse) override;
  // Records the current stroke as an Undo step.
  void cancel() override;

 private:
  // The flag that is true during a stroke of that tool.
  bool& stroke(Tool tool);
  void stamp(const ToolMouse& mouse);
  void showStamp(Tool tool);

  Context context_;
  EditState& state_;
  EditingArea& editingArea_;
  UndoHistory& history_;
  DrawState& drawState_;
};

// Restores one pixel at a time, independent of the brush. Undo records its strokes only with the next step.
class RestoreTool : public DrawingTool {
 public:
  RestoreTool(const Context& context, EditingArea& editingArea, DrawState& drawState);

  void press(const ToolMouse& mouse) override;
  void move(const ToolMouse& mouse) override;
  void cancel() override;

 private:
  void restorePixel(const ToolMouse& mouse);

  EditState& state_;
  EditingArea& editingArea_;
  DrawState& drawState_;
};

}  // namespace gp
