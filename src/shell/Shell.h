// The whole program without its windows: composes the subsystems, implements Editor by handing each call to its owner,
// and runs commands and the life-cycle of the main form. The forms forward their events here.
#pragma once

#include "colour/ColorMixer.h"
#include "colour/ColorSelection.h"
#include "colour/PaletteFile.h"
#include "document/EditState.h"
#include "document/EditingArea.h"
#include "document/Editor.h"
#include "document/IconsPanel.h"
#include "drawing/Drawing.h"
#include "effects/Effects.h"
#include "files/CursorFiles.h"
#include "files/IconFiles.h"
#include "files/IconSaver.h"
#include "files/MultiIconCommands.h"
#include "output/Enquiry.h"
#include "platform/dialogs/clsGPDialog.h"
#include "platform/ports/SystemInfo.h"
#include "shell/CommandTable.h"
#include "shell/FormPlacement.h"
#include "shell/History.h"
#include "shell/MainForm.h"
#include "shell/Settings.h"

#include <exception>
#include <string>

namespace gp {

// The ports the program stands on; app/ and the tests make them.
struct Ports {
  MessageBoxes& boxes;
  FileDialogs& dialogs;
  MessagePump& pump;
  SystemInfo& system;
  Processes& processes;
  Clipboard& clipboard;
  PictureLoader& pictures;
};

class Shell final : public Editor {
 public:
  // `folder` is the program's folder: settings, help file and companion are looked for there.
  Shell(EditState& state, const Ports& ports, Display& display, std::string folder);
  ~Shell() override;

  // The main form tells that it is there; before that, commands that need a window do nothing.
  void attach(MainForm* form) { form_ = form; }

  EditState& state() { return state_; }
  const EditState& state() const { return state_; }
  EditingArea& editingArea() { return editingArea_; }
  IconsPanel& iconsPanel() { return iconsPanel_; }
  ColorSelection& colors() { return colors_; }
  const ColorSelection& colors() const { return colors_; }
  ColorMixer& mixer() { return mixer_; }
  PaletteFile& paletteFile() { return paletteFile_; }
  Drawing& drawing() { return drawing_; }
  const Drawing& drawing() const { return drawing_; }
  Tools& tools() { return drawing_.tools; }
  const Tools& tools() const { return drawing_.tools; }
  Effects& effects() { return effects_; }
  const Effects& effects() const { return effects_; }
  MultiIconCommands& multiIcon() { return multiIcon_; }
  IconFiles& iconFiles() { return iconFiles_; }
  CursorFiles& cursorFiles() { return cursorFiles_; }
  IconSaver& iconSaver() { return iconSaver_; }
  Enquiry& enquiry() { return enquiry_; }
  // What the forms on icon files work with.
  const FilesContext& filesContext() const { return filesContext_; }
  const History& fileHistory() const { return fileHistory_; }
  const History& aniHistory() const { return aniHistory_; }
  const Ports& ports() const { return ports_; }
  const std::string& folder() const { return folder_; }

  // Runs a command as a click on its menu entry does; errors in it end in a box. Nothing for a row without a handler.
  void run(const Command& command);
  // A toolbar button: the overlay of the Editing Area goes first.
  void runToolbar(const ToolbarButton& button);
  // Runs any handler under the guard that reports run-time errors under the given name.
  template <class Handler>
  void guarded(const std::string& name, Handler handler);

  // The life of the main form. Load places it; the first Activate reads settings and opens the file of the command
  // line.
  void formLoad();
  void formActivate(const std::string& commandLine);
  // The room of picDispContainer after the form got another size.
  void formResize(int dispContainerWidth, int dispContainerHeight);
  // False when the form must stay.
  bool queryUnload();

  // Command bodies of the shell itself.
  void openIconFile();
  void openFromHistory(int index);
  void mnuEditSub(int index);
  // Proceed of the side panel that is up; nothing where it has none.
  void cmdProceed();
  // Its Close: nothing of it is kept.
  void cmdCancel();
  void openHelp();
  void switchToCustomSize();
  void toggleOption(int index);
  void selectStartScreen(int index);
  void resetToDefault();
  void confirmReset();
  // Esc ends what is open: a side panel, otherwise the region, which is merged.
  void escapeKey();
  void exitProgram();
  void showAbout();

  // Editor.
  void ClearContainer() override;
  void CommitPendingPaint() override;
  void EndToolAction() override;
  void SwitchContainer(int container) override;
  void SizeEditSurfaces(int size) override;
  void SizePanelSurfaces(int size) override;
  void ComposeCurrentIcon() override;
  void UpdatePanelFromCurrent() override;
  void MagnifyIcon() override;
  void ShowCurrentIcon() override;
  void RefreshStatusBar() override;
  void ClearStatusBar() override;
  void chooseColorChart() override;
  void showChart16() override;
  void deselectColorPicker() override;
  bool isColorPickerSelected() const override;
  void clearAllTools() override;
  void selectTool(int tool) override;
  int selectedTool() const override;
  void clearRegion() override;
  void redrawRegion() override;
  void recordUndo() override;
  void clearUndoHistory() override;
  void doOpenIconFile(const std::string& path, bool useBrowser, bool& ok) override;
  void doOpenIconFileQuietly(const std::string& path, bool& ok) override;
  void AskSaveCurrent(const std::string& message, bool& proceed) override;
  void setHotspotByClick(int x, int y) override;
  int colorBitCountOfImage() const override;
  void UpdateCommands() override;
  void showPanel(int panel) override;
  void closePanels() override;
  void AddHistory(const std::string& path) override;
  void ShowRunTimeError(const std::string& name, const std::string& description) override;

 private:
  // Shows forms over the main form, once that is there.
  class ShownForms final : public IconForms {
   public:
    explicit ShownForms(const Shell& shell) : shell_(shell) {}
    void showMultiIcon() override;
    void showHeaderDiff() override;

   private:
    const Shell& shell_;
  };

  std::string settingsPath() const;
  void placeForm();
  void showEmptyStart();
  void openCommandLineFile(const std::string& commandLine);
  void applyStartScreen();
  void saveScreenPos(const FormPlace& place);

  EditState& state_;
  Ports ports_;
  Display& display_;
  std::string folder_;
  MainForm* form_ = nullptr;
  clsGPDialog mDialog;
  EditingArea editingArea_;
  IconsPanel iconsPanel_;
  ColorSelection colors_;
  ColorMixer mixer_;
  PaletteFile paletteFile_;
  Drawing drawing_;
  Effects effects_;
  ShownForms iconForms_{*this};
  const FilesContext filesContext_;
  MultiIconCommands multiIcon_;
  IconFiles iconFiles_;
  CursorFiles cursorFiles_;
  IconSaver iconSaver_;
  Enquiry enquiry_;
  Settings settings_;
  History fileHistory_;
  History aniHistory_;
  FormStart start_;
  bool mFirstActivate = true;
};

template <class Handler>
void Shell::guarded(const std::string& name, Handler handler) {
  try {
    handler();
  } catch (const std::exception& error) {
    ShowRunTimeError(name, error.what());
  }
}

}  // namespace gp
