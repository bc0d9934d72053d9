// The whole program without its windows: creates the subsystems, implements Editor by forwarding each call to its
// owner, and handles commands and the life cycle of the main form. The forms forward their events to it.
#pragma once

#include "alpha/Alpha.h"
#include "animation/Animation.h"
#include "colour/Colour.h"
#include "document/Document.h"
#include "document/Editor.h"
#include "drawing/Drawing.h"
#include "effects/Effects.h"
#include "extraction/Extraction.h"
#include "files/Files.h"
#include "output/Output.h"
#include "platform/dialogs/clsGPDialog.h"
#include "platform/files/ProgramFolders.h"
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
class FileTypeIcons;
class PictureLoader;
class TextDrawing;
class Timer;
struct EditState;
struct ScreenState;

// The ports of the program; app/ and the tests create them.
struct Ports {
  MessageBoxes& boxes;
  FileDialogs& dialogs;
  MessagePump& pump;
  SystemInfo& system;
  Processes& processes;
  Clipboard& clipboard;
  PictureLoader& pictures;
  TextDrawing& text;
  Timer& timer;
  FileTypeIcons& fileTypes;
};

class Shell final : public Editor {
 public:
  Shell(EditState& state, const Ports& ports, Display& display, ProgramFolders folders);
  ~Shell() override;

  // Sets the main form; null before it is destroyed. Without a form, commands that need a window do nothing.
  void attach(ShellForms* form, FileForms* fileForms, AlphaForms* alphaForms);

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
  Alpha& alpha() { return alpha_; }
  Effects& effects() { return effects_; }
  const Effects& effects() const { return effects_; }
  Animation& animation() { return animation_; }
  Extraction& extraction() { return extraction_; }
  const Extraction& extraction() const { return extraction_; }
  Output& output() { return output_; }
  const History& fileHistory() const { return fileHistory_; }
  const History& aniHistory() const { return aniHistory_; }
  const Ports& ports() const { return ports_; }

  // Runs a command of a menu, a key, the toolbar or the pop-up menu: checks its need and shows the message if it is not
  // met, commits an open tool action if the row requires it, then calls the body. Errors are shown in a box. Does
  // nothing for a row without a body.
  void run(const Command& command);
  // Returns true when a command's need is met; otherwise shows the message.
  bool mayRun(const Command& command);
  // Runs a toolbar button's command after removing the overlay of the Editing Area.
  void runToolbar(const ToolbarButton& button);
  // Runs a handler and reports its exceptions as run-time errors under the given name.
  template <class Handler>
  void guarded(const std::string& name, Handler handler);

  // The main form's life cycle. Load places it; the first Activate reads settings and opens the command line's file.
  void formLoad();
  void formActivate(const std::string& commandLine);
  // Sets the size of picDispContainer after the form was resized.
  void formResize(int dispContainerWidth, int dispContainerHeight);
  // Returns false when the form must stay open.
  bool queryUnload();

  // Command bodies of the shell itself.
  void openFromHistory(int index);
  void openFromAniHistory(int index);
  // Clicks on imgTool, imgColorPicker and the directions of imgShiftDirBase.
  void chooseTool(Tool tool);
  void chooseColorPicker();
  void shiftTowards(ShiftCell cell);
  // Proceed of the open side panel; does nothing for a panel without an action.
  void cmdProceed();
  // Close of the open side panel, which discards its settings.
  void cmdCancel();
  void openHelp();
  void switchToCustomSize();
  void toggleOption(int index);
  void selectStartScreen(int index);
  void resetToDefault();
  void confirmReset();
  // Enlarges or reduces the Editing Area; a region and what a drag shows follow.
  void zoom(ZoomStep step);
  // Esc closes what is open: a side panel, or else the region, which is merged.
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
  void offerIconsOfFile(const std::string& path, int container) override;
  void AskSaveCurrent(const std::string& message, bool& proceed) override;
  void setHotspotByClick(int x, int y) override;
  void UpdateCommands() override;
  void showPanel(int panel) override;
  void closePanels() override;
  void AddHistory(const std::string& path) override;
  void AddAniHistory(const std::string& path) override;
  void endAniSession() override;
  void aniPaneHidden() override;
  void ShowRunTimeError(const std::string& name, const std::string& description) override;

 private:
  // Returns false when the command cannot run; then at most a message was shown.
  bool prepare(const Command& command);
  bool mayAct();
  bool isRefusedByList(const Command& command);
  bool isMet(const char* refusal);
  bool isThere(const std::string& path);
  std::string settingsPath() const;
  void placeForm();
  void showEmptyStart();
  void offerBackups();
  void openCommandLineFile(const std::string& commandLine);
  void applyStartScreen();
  void saveSettings();

  EditState& state_;
  Ports ports_;
  Display& display_;
  ProgramFolders folders_;
  ShellForms* form_ = nullptr;
  clsGPDialog mDialog;
  const Context context_;
  Document document_;
  Colour colour_;
  Drawing drawing_;
  Files files_;
  Alpha alpha_;
  Effects effects_;
  Animation animation_;
  Extraction extraction_;
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
