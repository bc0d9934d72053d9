// The six containers beside the Editing Area: switching between them, the right click, and files dropped on them.
#pragma once

#include "document/Context.h"
#include "platform/scope/FlagFor.h"

#include <string>
#include <vector>

namespace gp {

class EditingArea;
class IconArrival;
struct IconContainerRec;
struct IconImage;

class IconsPanel {
 public:
  IconsPanel(const Context& context, EditingArea& editingArea, IconArrival& arrival);

  // Makes a container current: picPanelIcon(i) and lblPanelIcon(i) Click and DblClick.
  void SwitchContainer(int container);
  // A right click on a container: closes the Icons List if it is open and switches to the container.
  void PanelRightClick(int container);
  // Returns true when dropping these files is accepted: the first name ends in ".ICO", or is that of a shortcut
  // to such a file.
  bool PanelDragOver(const std::vector<std::string>& files) const;
  // Opens the first file into the container, without questions. A file that cannot be opened changes no container; if
  // it holds icons all the same, they are offered.
  void PanelDrop(int container, const std::vector<std::string>& files);
  // The same for a file dropped on the Editing Area, whose icon it replaces: the user is asked about unsaved changes.
  void AreaDrop(const std::vector<std::string>& files);
  // imgUpdIconsPanel: copies the icon's current state to its container and makes it the baseline of Undo.
  void updateFromCurrent();

  // The Icons List fills the current container, whose icon is not shown yet: the Editing Area keeps the former one.
  void storeForList(const IconImage& icon, const IconContainerRec& record);
  // True while the Editing Area shows another icon than that of the current container. Whatever uses picImage, or what
  // the screen shows, calls showWaitingIcon() first.
  bool displayWaits() const;
  // Shows the icon, or that there is none. False when the display does not wait.
  bool showWaitingIcon();
  // While it lives, the containers and the Editing Area do not answer the user.
  class Hold {
   public:
    explicit Hold(IconsPanel& panel) : held_(panel.isHeld_) {}

   private:
    FlagFor held_;
  };
  bool isHeld() const { return isHeld_; }

  // Ends an open tool action, clears the tools and stores the icon in its container, with the same question as a click
  // on the container. Unlike a click it keeps the Undo history, of which the action is a step.
  void CommitPendingPaint();
  // Ends a tool action: removes overlay, region and read-out. What the action has changed is a step of Undo.
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
  bool isHeld_ = false;
};

}  // namespace gp
