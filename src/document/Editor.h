// The operations that a subsystem may ask of those to its right in the row of rooms, which it cannot name. What stands
// to its left is passed to it by reference instead. shell/ implements this by forwarding each call to its owner.
#pragma once

#include "document/Tool.h"

#include <string>

namespace gp {

class Editor {
 public:
  virtual ~Editor() = default;

  // Colour.
  // Shows the chart that fits the Current Icon: 256 colours for true colour and for many, 16 otherwise.
  virtual void chooseColorChart() = 0;
  virtual void showChart16() = 0;

  // Drawing.
  virtual void clearAllTools() = 0;
  virtual Tool selectedTool() const = 0;
  virtual void clearRegion() = 0;
  // Draws the region's box again on an Editing Area that was rebuilt.
  virtual void redrawRegion() = 0;
  virtual void recordUndo() = 0;
  virtual void clearUndoHistory() = 0;

  // Files.
  // Opens the file into the current container without any question; false when it cannot be opened.
  virtual void doOpenIconFileQuietly(const std::string& path, bool& ok) = 0;
  // Offers to save the Current Icon; `proceed` is false when the caller must not go on.
  virtual void AskSaveCurrent(const std::string& message, bool& proceed) = 0;
  // A click on the Editing Area while the cursor panel is up, in icon pixels.
  virtual void setHotspotByClick(int x, int y) = 0;

  // Shell.
  virtual void UpdateCommands() = 0;
  virtual void showPanel(int panel) = 0;
  // Closes an open side panel and shows the colour panel.
  virtual void closePanels() = 0;
  virtual void AddHistory(const std::string& path) = 0;
  virtual void ShowRunTimeError(const std::string& name, const std::string& description) = 0;
};

}  // namespace gp
