// Fill and Replace. What hangs together is judged by what the user sees, on PicIcon, where transparent pixels show the
// ground; what changes is picImage and picMask, and only pixels of the kind, transparent or opaque, that was clicked.
// Both work at the release; any modifier makes pixels transparent instead of painting them. A click outside the icon
// finds nothing.
#pragma once

#include "document/Context.h"
#include "drawing/DrawingTool.h"

namespace gp {

class EditingArea;
class UndoHistory;

// The area around the pixel.
class FillTool : public DrawingTool {
 public:
  FillTool(const Context& context, EditingArea& editingArea, UndoHistory& history)
      : state_(context.state), editingArea_(editingArea), history_(history) {}
  void release(const ToolMouse& mouse) override;

 private:
  void fill(int x, int y);
  void fillTransparent(int x, int y);

  EditState& state_;
  EditingArea& editingArea_;
  UndoHistory& history_;
};

// All pixels of the icon that show the same colour.
class ReplaceTool : public DrawingTool {
 public:
  ReplaceTool(const Context& context, EditingArea& editingArea, UndoHistory& history)
      : state_(context.state), editingArea_(editingArea), history_(history) {}
  void release(const ToolMouse& mouse) override;

 private:
  EditState& state_;
  EditingArea& editingArea_;
  UndoHistory& history_;
};

}  // namespace gp
