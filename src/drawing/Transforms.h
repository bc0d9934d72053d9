// Flips and quarter turns of the Current Icon, or of the region if there is one, and the commands of the Rotate menu.
#pragma once

#include "document/Context.h"
#include "drawing/IconTransforms.h"

namespace gp {

class EditingArea;
class Regions;
class RotatePanel;
class Tools;
class UndoHistory;

class Transforms {
 public:
  Transforms(const Context& context, EditingArea& editingArea, UndoHistory& history, Regions& regions, Tools& tools,
             RotatePanel& rotatePanel);

  // The commands of the Rotate menu. During a Shift, each asks to end it first and does nothing when the user refuses.
  // Mirror left and right, or top and bottom.
  void RotateFlipHoriz();
  void RotateFlipVertical();
  // Turn counter-clockwise and clockwise. A region changes its shape; its top left corner stays in place.
  void RotateLeft();
  void RotateRight();
  // Opens the Panel that rotates the icon by any angle.
  void rotateAtAnyAngle();

 private:
  bool endShift();
  void transform(IconTransform transformed);
  void takeOver(const IconImage& icon);
  void bringColorPanelForward();

  Context context_;
  EditState& state_;
  EditingArea& editingArea_;
  UndoHistory& history_;
  Regions& regions_;
  Tools& tools_;
  RotatePanel& rotatePanel_;
};

}  // namespace gp
