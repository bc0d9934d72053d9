// How the Editing Area shows the icon: its grid and its magnification. The options first commit floating content; the
// zoom takes a region with it.
#pragma once

#include "document/Context.h"
#include "document/Zoom.h"

namespace gp {

class EditingArea;
class IconsPanel;

class EditingAreaOptions {
 public:
  EditingAreaOptions(const Context& context, EditingArea& editingArea, IconsPanel& iconsPanel);

  // Selects a grid, an index of mnuOptionsSubGrid.
  void SetGrid(int index);
  // Chooses the magnification again after the option or the room changed. Forgets the zoom.
  void ApplyEnlargedOption();
  // Enlarges or reduces all icons, until the zoom is forgotten. Pumps messages. Without an icon it can only be
  // forgotten.
  void zoom(ZoomStep step);
  // Takes the client size of picDispContainer, in pixels, after a new layout.
  void setRoom(int width, int height);

 private:
  void chooseMagnify();
  void showAtMagnification();

  Context context_;
  EditState& state_;
  EditingArea& editingArea_;
  IconsPanel& iconsPanel_;
};

}  // namespace gp
