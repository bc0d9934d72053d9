// The row of six containers beside the Editing Area: switching between them, the right click, and files dropped on
// them.
#pragma once

#include "document/Context.h"

#include <string>
#include <vector>

namespace gp {

class EditingArea;
class IconArrival;

class IconsPanel {
 public:
  IconsPanel(const Context& context, EditingArea& editingArea, IconArrival& arrival);

  // Makes a container current: picPanelIcon(i) and lblPanelIcon(i) Click and DblClick.
  void SwitchContainer(int container);
  // A right click on a container: ends the Icons List view where it is up.
  void PanelRightClick(int container);
  // True when a drop of these file names is taken: the first ends in ".ICO".
  bool PanelDragOver(const std::vector<std::string>& files) const;
  // Opens the first file into the container, without questions. A failure leaves the current container as it was.
  void PanelDrop(int container, const std::vector<std::string>& files);
  // imgUpdIconsPanel: the icon's present state goes to its container and becomes the baseline of Undo.
  void updateFromCurrent();

  // Commits an open tool action by a click on the current container.
  void CommitPendingPaint();
  // Ends a tool action: overlay, region and read-out go.
  void EndToolAction();
  // Empties the current container and shows the empty Editing Area.
  void showEmptyContainer();

 private:
  bool leaveCurrent();
  void showCurrentContainer();

  Context context_;
  EditState& state_;
  EditingArea& editingArea_;
  IconArrival& arrival_;
};

}  // namespace gp
