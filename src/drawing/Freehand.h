// The freehand tools: Paint and Erase stamp the brush wherever the pointer is, Restore takes pixels from the icon that
// the container holds. A stroke runs from press to release; whatever ends it, icon and Mask agree.
#pragma once

#include "document/Context.h"
#include "drawing/DrawingTool.h"

namespace gp {

class EditingArea;
class UndoHistory;
struct DrawState;

// Paint and Erase, by the tool that is selected.
class FreehandTool : public DrawingTool {
 public:
  FreehandTool(const Context& context, EditingArea& editingArea, UndoHistory& history, DrawState& drawState);

  void press(const ToolMouse& mouse) override;
  void move(const ToolMouse& mouse) override;
  void release(const ToolMouse& mouse) override;
  // A stroke under way is finished as a step of its own.
  void cancel() override;

 private:
  // True while a stroke of that tool is under way.
  bool& stroke(Tool tool);
  void stamp(const ToolMouse& mouse);
  void showStamp(Tool tool);

  Context context_;
  EditState& state_;
  EditingArea& editingArea_;
  UndoHistory& history_;
  DrawState& drawState_;
};

// One pixel at a time, whatever the brush. Its strokes are recorded with the next step only.
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
