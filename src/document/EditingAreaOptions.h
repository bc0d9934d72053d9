// The options that change how the Editing Area shows the icon: its grid and its magnification. Both first commit
// floating content.
#pragma once

#include "document/Context.h"

namespace gp {

class EditingArea;
class IconsPanel;

class EditingAreaOptions {
 public:
  EditingAreaOptions(const Context& context, EditingArea& editingArea, IconsPanel& iconsPanel);

  // Selects a grid, an index of mnuOptionsSubGrid.
  void SetGrid(int index);
  // Chooses the magnification again after the option or the room changed.
  void ApplyEnlargedOption();
  // Takes the client size of picDispContainer, in pixels, after a new layout.
  void setRoom(int width, int height);

 private:
  Context context_;
  EditState& state_;
  EditingArea& editingArea_;
  IconsPanel& iconsPanel_;
};

}  // namespace gp
