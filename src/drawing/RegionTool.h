// The Region tool's share of the mouse handlers: drawing a box, moving a region, and moving one of its sides. It keeps
// only the mouse position; the region itself belongs to Regions. Whatever arrives while it pumps messages finds icon,
// Mask and region in agreement, since pumping comes last.
#pragma once

#include "document/Context.h"
#include "drawing/DrawingTool.h"

namespace gp {

class Regions;
class Tools;
class UndoHistory;
struct DrawState;

class RegionTool : public DrawingTool {
 public:
  RegionTool(const Context& context, DrawState& draw, UndoHistory& history, Regions& regions, Tools& tools);

  void press(const ToolMouse& mouse) override;
  void move(const ToolMouse& mouse) override;
  void release(const ToolMouse& mouse) override;
  // A drag ends where it is.
  void cancel() override;
  int pointer(float x, float y) const override;

 private:
  void snap(const ToolMouse& mouse);
  void beginBox();
  void extendBox(int modifiers);
  void finishBox();
  void beginEdgeDrag(const ToolMouse& mouse);
  void moveEdge(const ToolMouse& mouse);
  void finishEdgeDrag();
  void moveRegion();
  void merge();

  Context context_;
  EditState& state_;
  DrawState& draw_;
  UndoHistory& history_;
  Regions& regions_;
  Tools& tools_;
  double mRegionX = 0;  // the mouse at the nearest grid corner, Editing Area pixels
  double mRegionY = 0;
};

}  // namespace gp
