// The whole program without its windows: composes the subsystems, implements Editor by handing each call to its owner,
// and runs commands and the life-cycle of the main form. The forms forward their events here.
#pragma once

#include "colour/Colour.h"
#include "document/Document.h"
#include "document/Editor.h"
#include "drawing/Drawing.h"
#include "effects/Effects.h"
#include "files/Files.h"
#include "output/Output.h"
#include "platform/dialogs/clsGPDialog.h"
#include "platform/ports/SystemInfo.h"
#include "shell/CommandTable.h"
#include "shell/FormPlacement.h"
#include "shell/History.h"
#include "shell/Settings.h"
#include "shell/ShellForms.h"

#include <exception>
#include <string>

namespace gp {

class Clipboard;
class FileDialogs;
class PictureLoader;
struct EditState;
struct ScreenState;

// The ports that the program uses; app/ and the tests make them.
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

  // The main form, or null when it goes. Without it, commands that need a window do nothing.
  void attach(ShellForms* form, FileForms* fileForms);

  EditState& state() { return state_; }
  const EditState& state() const { return state_; }
  // What the views show.
  const ScreenState& screen() const;
  Document& document() { return document_; }
  const Document& document() const { return document_; }
  Colour& colour() { return colour_; }
  const Colour& colour() const { return colour_; }
  Drawing& drawing() { return drawing_; }
  const Drawing& drawing() const { return drawing_; }
  Files& files() { return files_; }
  Effects& effects() { return effects_; }
  const Effects& effects() const { return effects_; }
  Output& output() { return output_; }
  const History& fileHistory() const { return fileHistory_; }
  const History& aniHistory() const { return aniHistory_; }
  const Ports& ports() const { return ports_; }
  const std::string& folder() const { return folder_; }

  // Runs a command, whether it comes from a menu, a key, the toolbar or the pop-up menu: asks what it needs and tells
  // the user why not, commits what is open where the command says so, then calls its body. Errors end in a box. Nothing
  // for a row without a body.
  void run(const Command& command);
  // True when what a command needs is there; otherwise the user is told why not.
  bool mayRun(const Command& command);
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
  void openFromHistory(int index);
  // Clicks on imgTool, imgColorPicker and the directions of imgShiftDirBase.
  void chooseTool(Tool tool);
  void chooseColorPicker();
  void shiftTowards(ShiftCell cell);
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
  void chooseColorChart() override;
  void showChart16() override;
  void clearAllTools() override;
  Tool selectedTool() const override;
  void clearRegion() override;
  void redrawRegion() override;
  void recordUndo() override;
  void clearUndoHistory() override;
  void doOpenIconFileQuietly(const std::string& path, bool& ok) override;
  void AskSaveCurrent(const std::string& message, bool& proceed) override;
  void setHotspotByClick(int x, int y) override;
  void UpdateCommands() override;
  void showPanel(int panel) override;
  void closePanels() override;
  void AddHistory(const std::string& path) override;
  void ShowRunTimeError(const std::string& name, const std::string& description) override;

 private:
  // False, and nothing but a box has come of it, when the command cannot run.
  bool prepare(const Command& command);
  bool isMet(const char* refusal);
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
  ShellForms* form_ = nullptr;
  clsGPDialog mDialog;
  const Context context_;
  Document document_;
  Colour colour_;
  Drawing drawing_;
  Files files_;
  Effects effects_;
  Output output_;
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
