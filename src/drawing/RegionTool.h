// The Region tool's part of the mouse handlers. Passes the mouse to Regions, merges a region at a press outside it, and
// pumps messages last, so that whatever arrives then finds icon, Mask and region in agreement.
#pragma once

#include "document/Context.h"
#include "drawing/DrawingTool.h"

namespace gp {

class Regions;
class Tools;
class UndoHistory;

class RegionTool : public DrawingTool {
 public:
  RegionTool(const Context& context, UndoHistory& history, Regions& regions, Tools& tools);

  void press(const ToolMouse& mouse) override;
  void move(const ToolMouse& mouse) override;
  void release(const ToolMouse& mouse) override;
  void cancel() override;
  bool isHeld() const override;
  void giveUp() override;
  void followMagnification() override;
  std::optional<DrawnSize> drawnSize() const override;
  int pointer(float x, float y) const override;

 private:
  void merge();
  void pumpWhileSizing();

  Context context_;
  UndoHistory& history_;
  Regions& regions_;
  Tools& tools_;
};

}  // namespace gp
