// The operations that have one owner among the subsystems and callers in many. A subsystem calls them here and need
// not know who owns them; shell/ hands each call to its owner.
#pragma once

#include <string>

namespace gp {

class Editor {
 public:
  virtual ~Editor() = default;

  // Records and containers (document).
  virtual void ClearContainer() = 0;
  virtual void CommitPendingPaint() = 0;
  virtual void EndToolAction() = 0;
  virtual void SwitchContainer(int container) = 0;

  // The Editing Area (document).
  virtual void SizeEditSurfaces(int size) = 0;
  virtual void SizePanelSurfaces(int size) = 0;
  virtual void ComposeCurrentIcon() = 0;
  virtual void UpdatePanelFromCurrent() = 0;
  virtual void MagnifyIcon() = 0;
  virtual void ShowCurrentIcon() = 0;
  virtual void RefreshStatusBar() = 0;
  virtual void ClearStatusBar() = 0;

  // Colour.
  // Brings up the chart that fits the Current Icon: 256 colours for true colour and for many, 16 otherwise.
  virtual void chooseColorChart() = 0;
  virtual void showChart16() = 0;
  virtual void deselectColorPicker() = 0;
  virtual bool isColorPickerSelected() const = 0;

  // Drawing.
  virtual void clearAllTools() = 0;
  virtual void selectTool(int tool) = 0;
  virtual int selectedTool() const = 0;  // index of imgTool, 0 for none
  virtual void clearRegion() = 0;
  // Draws the region's box again on an Editing Area that was built anew.
  virtual void redrawRegion() = 0;
  virtual void recordUndo() = 0;
  virtual void clearUndoHistory() = 0;

  // Files.
  virtual void doOpenIconFile(const std::string& path, bool useBrowser, bool& ok) = 0;
  virtual void doOpenIconFileQuietly(const std::string& path, bool& ok) = 0;
  // Offers to save the Current Icon; `proceed` is false when the caller must not go on.
  virtual void AskSaveCurrent(const std::string& message, bool& proceed) = 0;
  // A click on the Editing Area while the Panel of the cursor's hot spot is up, in pixels of the icon.
  virtual void setHotspotByClick(int x, int y) = 0;
  // The number of colours that a Surface counts as: 2, 16, 256 or -1 for true colour.
  virtual int colorBitCountOfImage() const = 0;

  // Shell.
  virtual void UpdateCommands() = 0;
  virtual void showPanel(int panel) = 0;
  // Closes an open side panel; the colour panel comes back.
  virtual void closePanels() = 0;
  virtual void AddHistory(const std::string& path) = 0;
  virtual void ShowRunTimeError(const std::string& name, const std::string& description) = 0;
};

}  // namespace gp
