// The operations that a subsystem may call in the rooms to its right, which it cannot include. Rooms to its left are
// passed to it by reference instead. shell/ implements this interface by forwarding each call to its owner.
#pragma once

#include "document/Tool.h"

#include <string>

namespace gp {

class Editor {
 public:
  virtual ~Editor() = default;

  // Colour.
  // Shows the chart for the Current Icon: 256 colours for true colour and for 256 colours and more, otherwise 16.
  virtual void chooseColorChart() = 0;
  virtual void showChart16() = 0;

  // Drawing.
  virtual void clearAllTools() = 0;
  virtual Tool selectedTool() const = 0;
  virtual void clearRegion() = 0;
  // Draws the region's box again after the Editing Area was rebuilt.
  virtual void redrawRegion() = 0;
  virtual void recordUndo() = 0;
  virtual void clearUndoHistory() = 0;

  // Files.
  // Opens the file into the current container without questions; `ok` is false when it cannot be opened, and then
  // nothing has changed.
  virtual void doOpenIconFileQuietly(const std::string& path, bool& ok) = 0;
  // Offers to show the icons of a file that could not be opened but holds some; `container` is their proposed place.
  virtual void offerIconsOfFile(const std::string& path, int container) = 0;
  // Offers to save the Current Icon; `proceed` is false when the caller must not continue.
  virtual void AskSaveCurrent(const std::string& message, bool& proceed) = 0;
  // A click on the Editing Area while the cursor panel is shown, in icon pixels.
  virtual void setHotspotByClick(int x, int y) = 0;

  // Animation.
  // Ends the animated cursor session: its film is given up and its pane hidden. The caller has asked.
  virtual void endAniSession() = 0;
  // Its pane was hidden, and its film is kept.
  virtual void aniPaneHidden() = 0;

  // Shell.
  virtual void UpdateCommands() = 0;
  virtual void showPanel(int panel) = 0;
  // Closes an open side panel and shows the colour panel.
  virtual void closePanels() = 0;
  virtual void AddHistory(const std::string& path) = 0;
  // The same for the list of animated cursors.
  virtual void AddAniHistory(const std::string& path) = 0;
  virtual void ShowRunTimeError(const std::string& name, const std::string& description) = 0;
};

}  // namespace gp
