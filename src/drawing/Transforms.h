// Flips and quarter turns of the Current Icon, or of the region where one stands, and the commands of the Rotate menu.
#pragma once

#include "document/Display.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "drawing/Regions.h"
#include "drawing/RotatePanel.h"
#include "platform/ports/MessageBoxes.h"

namespace gp {

class Transforms {
 public:
  Transforms(EditState& state, Editor& editor, Display& display, MessageBoxes& boxes, Regions& regions,
             RotatePanel& rotatePanel);

  // mnuRotateSubmenu Click, 0 to 4: asks to end a Shift first. An index outside does nothing.
  void mnuRotateSubmenu(int index);

  // Left and right, or top and bottom, change places.
  void RotateFlipHoriz();
  void RotateFlipVertical();
  // Against the clock and with it. A region changes its shape and keeps its top left corner.
  void RotateLeft();
  void RotateRight();

 private:
  using Mirror = void (*)(Surface& surface, const Surface& source);
  using Turn = void (*)(const Surface& source, Surface& target);

  void flip(Mirror mirror);
  void turn(Turn turnPixels);
  void turnIntoTemp(Turn turnPixels, const Surface& image, const Surface& mask);
  void takeOver();
  void takeOverRegion();
  void bringColorPanelForward();

  EditState& state_;
  Editor& editor_;
  Display& display_;
  MessageBoxes& boxes_;
  Regions& regions_;
  RotatePanel& rotatePanel_;
};

}  // namespace gp
