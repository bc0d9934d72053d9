// The freehand tools: Paint and Erase stamp the brush wherever the pointer is, Restore takes pixels from the icon that
// the container holds. A stroke runs from press to release; whatever ends it, icon and Mask agree.
#pragma once

#include "document/EditState.h"
#include "document/EditingArea.h"
#include "document/Editor.h"
#include "drawing/DrawState.h"
#include "drawing/DrawingTool.h"
#include "platform/ports/MessagePump.h"

namespace gp {

// Paint and Erase, by the tool that is selected.
class FreehandTool : public DrawingTool {
 public:
  FreehandTool(EditState& state, Editor& editor, EditingArea& editingArea, MessagePump& pump, DrawState& drawState);

  void press(const ToolMouse& mouse) override;
  void move(const ToolMouse& mouse) override;
  void release(const ToolMouse& mouse) override;
  // A stroke under way is finished as a step of its own.
  void cancel() override;

 private:
  bool isErase() const;
  void stamp(const ToolMouse& mouse);
  void showStamp();

  EditState& state_;
  Editor& editor_;
  EditingArea& editingArea_;
  MessagePump& pump_;
  DrawState& drawState_;
};

// One pixel at a time, whatever the brush. Its strokes are recorded with the next step only.
class RestoreTool : public DrawingTool {
 public:
  RestoreTool(EditState& state, Editor& editor, DrawState& drawState);

  void press(const ToolMouse& mouse) override;
  void move(const ToolMouse& mouse) override;
  void cancel() override { drawState_.mRestoring = false; }

 private:
  void restorePixel(const ToolMouse& mouse);

  EditState& state_;
  Editor& editor_;
  DrawState& drawState_;
};

}  // namespace gp
