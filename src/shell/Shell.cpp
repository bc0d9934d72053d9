#include "shell/Shell.h"

#include "document/Containers.h"
#include "document/Hourglass.h"
#include "files/ColorCount.h"
#include "shell/PanelTable.h"

namespace gp {

namespace {

// Of commands on files with several icons; it exists only between two of their steps.
constexpr const char* kScratchFileName = "gptmp.ico";

}  // namespace

Shell::Shell(EditState& state, const Ports& ports, Display& display, std::string folder)
    : state_(state),
      ports_(ports),
      display_(display),
      folder_(std::move(folder)),
      mDialog(ports.dialogs),
      editingArea_(state, *this, display, ports.pump),
      iconsPanel_(state, *this, editingArea_, display, ports.pump),
      colors_(state, *this, display, ports.boxes, ports.pump, mDialog),
      mixer_(state, display, ports.pump, colors_),
      paletteFile_(state, *this, ports.boxes, mDialog, ports.pictures, mixer_, folder_),
      drawing_(state, *this, display, editingArea_, colors_, ports.boxes, ports.pump, ports.clipboard),
      effects_(state, *this, display, ports.boxes, ports.pump),
      filesContext_{state, *this, display, ports.boxes, ports.pump, mDialog},
      multiIcon_(filesContext_, iconForms_, folder_ + "/" + kScratchFileName),
      iconFiles_(filesContext_, multiIcon_),
      cursorFiles_(filesContext_),
      iconSaver_(filesContext_, cursorFiles_),
      enquiry_(state, *this, ports.boxes, ports.pump, iconForms_, cursorFiles_),
      settings_(state.options, settingsPath()),
      fileHistory_(kFileHistorySection, kFileHistoryLimit, settingsPath()),
      aniHistory_(kAniHistorySection, kAniHistoryLimit, settingsPath()) {}

Shell::~Shell() = default;

void Shell::ShownForms::showMultiIcon() {
  if (shell_.form_) shell_.form_->showMultiIcon();
}

void Shell::ShownForms::showHeaderDiff() {
  if (shell_.form_) shell_.form_->showHeaderDiff();
}

std::string Shell::settingsPath() const { return folder_ + "/" + kSettingsFileName; }

void Shell::run(const Command& command) {
  if (!command.run) return;
  guarded(std::string(command.control) + "_Click", [&] { command.run(*this, command.index); });
}

void Shell::runToolbar(const ToolbarButton& button) {
  state_.picDisp.clearDrawing();
  display_.changed(DisplayPart::EditingArea);
  if (const Command* command = findCommand(button.control, button.commandIndex)) run(*command);
  // A region that the command left standing is seen again.
  if (state_.mRegionExists) redrawRegion();
}

void Shell::ShowRunTimeError(const std::string& name, const std::string& description) {
  // The number is the platform's general one: the causes are told by the description.
  constexpr int kGeneralError = 5;
  ports_.boxes.tell(name + "\n" + std::to_string(kGeneralError) + "     " + description, BoxIcon::Exclamation);
}

// The Editor's calls, each handed to its owner.

void Shell::ClearContainer() { gp::ClearContainer(state_); }
void Shell::CommitPendingPaint() { iconsPanel_.CommitPendingPaint(); }
void Shell::EndToolAction() { iconsPanel_.EndToolAction(); }
void Shell::SwitchContainer(int container) { iconsPanel_.SwitchContainer(container); }
void Shell::SizeEditSurfaces(int size) { editingArea_.SizeEditSurfaces(size); }
void Shell::SizePanelSurfaces(int size) { editingArea_.SizePanelSurfaces(size); }
void Shell::ComposeCurrentIcon() { editingArea_.ComposeCurrentIcon(); }
void Shell::UpdatePanelFromCurrent() { editingArea_.UpdatePanelFromCurrent(); }
void Shell::MagnifyIcon() { editingArea_.MagnifyIcon(); }
void Shell::ShowCurrentIcon() { editingArea_.ShowCurrentIcon(); }
void Shell::RefreshStatusBar() { editingArea_.RefreshStatusBar(); }
void Shell::ClearStatusBar() { editingArea_.ClearStatusBar(); }
void Shell::chooseColorChart() { colors_.chooseColorChart(); }
void Shell::showChart16() { colors_.imgGet16ColorChart(); }
void Shell::deselectColorPicker() { colors_.deselectPicker(); }
bool Shell::isColorPickerSelected() const { return colors_.isPickerSelected(); }
void Shell::clearAllTools() { drawing_.tools.clearAllTools(); }
void Shell::selectTool(int tool) { drawing_.tools.selectTool(tool); }
int Shell::selectedTool() const { return drawing_.tools.selectedTool(); }
void Shell::doOpenIconFile(const std::string& path, bool useBrowser, bool& ok) {
  iconFiles_.doOpenIconFile(path, useBrowser, ok);
}
void Shell::doOpenIconFileQuietly(const std::string& path, bool& ok) { iconFiles_.doOpenIconFileQuietly(path, ok); }
void Shell::AskSaveCurrent(const std::string& message, bool& proceed) { iconSaver_.AskSaveCurrent(message, proceed); }
void Shell::setHotspotByClick(int x, int y) { cursorFiles_.setHotspotByClick(x, y); }
void Shell::UpdateCommands() { display_.changed(DisplayPart::Commands); }

int Shell::colorBitCountOfImage() const {
  int count = 0;
  GetColorBitCount_Image(state_.picImage, count);
  return count;
}

void Shell::clearRegion() { drawing_.regions.clearRegion(); }
void Shell::redrawRegion() { drawing_.regions.redrawRegion(); }
void Shell::recordUndo() { drawing_.history.recordUndo(); }
void Shell::clearUndoHistory() { drawing_.history.clearUndoHistory(); }

void Shell::showPanel(int panel) {
  // Nothing could be done with a region while a side panel is up.
  if (panel == kColorPanel)
    drawing_.tools.clearAllTools();
  else
    drawing_.tools.imgClearAllTools();
  const Hourglass hourglass(state_, display_);
  if (panel != kCursorPanel) cursorFiles_.mark().cancel();
  if (state_.screen.mActivePanel == kColorPanel && state_.screen.aniContainerVisible) {
    state_.screen.aniContainerVisible = false;
    RefreshStatusBar();
  }
  state_.screen.mActivePanel = panel;
  display_.changed(DisplayPart::Panel);
  UpdateCommands();
}

void Shell::closePanels() {
  if (state_.screen.mActivePanel != kColorPanel) showPanel(kColorPanel);
}

void Shell::AddHistory(const std::string& path) {
  fileHistory_.add(path);
  display_.changed(DisplayPart::History);
}

}  // namespace gp
