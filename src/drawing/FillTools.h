// Fill and Replace. Areas are determined by what the user sees: PicIcon, where transparent pixels have the ground's
// colour. Both change picImage and picMask on the release; any modifier key makes pixels transparent instead of
// painting them. Fill changes only pixels of the clicked kind, transparent or opaque. Clicks outside the icon are
// ignored.
#pragma once

#include "document/Context.h"
#include "drawing/DrawingTool.h"

namespace gp {

class EditingArea;
class UndoHistory;

// Fills the area around the clicked pixel.
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

// Replaces all pixels of the icon that show the clicked colour.
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
