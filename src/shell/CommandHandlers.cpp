#include "shell/CommandHandlers.h"

#include "effects/ConfinePanel.h"
#include "shell/PanelTable.h"
#include "shell/Shell.h"

#include <algorithm>
#include <array>

namespace gp::commands {

namespace {

constexpr int kCursorSize = 32;
constexpr std::array kColorFrames = {ColorFrame::Chart16, ColorFrame::Chart256, ColorFrame::DirectEntry};

const IconContainerRec& record(const Shell& shell) { return shell.state().current(); }

}  // namespace

bool always(const Shell&, int) { return true; }
bool hasIcon(const Shell& shell, int) { return record(shell).present; }
bool isFromMultiIconFile(const Shell& shell, int) { return record(shell).present && record(shell).fromMultiIconFile; }
bool isFromSingleIconFile(const Shell& shell, int) { return record(shell).present && !record(shell).fromMultiIconFile; }
bool hasCursorSize(const Shell& shell, int) { return record(shell).present && record(shell).size == kCursorSize; }
bool hasAlpha(const Shell& shell, int) { return record(shell).present && record(shell).hasAlpha; }
bool isCursor(const Shell& shell, int) { return record(shell).present && record(shell).isCursor; }
bool isDiscrepant(const Shell& shell, int) { return record(shell).present && record(shell).isDiscrepant(); }
bool hasEffect(const Shell& shell, int index) { return record(shell).present && shell.effects().has(index); }
bool hasNoRegion(const Shell& shell, int) { return !shell.state().mRegionActive; }

bool hasRegion(const Shell& shell, int) { return record(shell).present && shell.state().mRegionExists; }
bool canUndo(const Shell& shell, int) { return record(shell).present && shell.drawing().history.canUndo(); }
bool canRedo(const Shell& shell, int) { return record(shell).present && shell.drawing().history.canRedo(); }
bool canPaste(const Shell& shell, int) {
  return shell.state().screen.mActivePanel != kIconsListPanel && shell.ports().clipboard.hasImage();
}
bool isOtherContainer(const Shell& shell, int index) {
  return record(shell).present && index != shell.state().mCurContainer;
}
bool isOtherUsedContainer(const Shell& shell, int index) {
  return index != shell.state().mCurContainer && shell.state().mIconRecs.at(static_cast<std::size_t>(index)).used;
}

bool canPickColor(const Shell& shell, int) {
  const ScreenState& screen = shell.state().screen;
  return record(shell).present && screen.mActivePanel == 0 && screen.colorFrame == ColorFrame::Chart256;
}

bool isToolSelected(const Shell& shell, int index) {
  if (index == kColorPickerPointer) return shell.colors().isPickerSelected();
  return shell.tools().selectedTool() == index;
}
bool isBrushSelected(const Shell& shell, int index) { return shell.state().screen.brushIndex == index; }
bool isColorFrameUp(const Shell& shell, int index) {
  return shell.state().screen.colorFrame == kColorFrames.at(static_cast<std::size_t>(index));
}
bool isGridSelected(const Shell& shell, int index) { return shell.state().options.grid == index; }
bool isStartScreenSelected(const Shell& shell, int index) { return shell.state().options.startScreen == index; }
bool isOptionOn(const Shell& shell, int index) { return shell.state().options.*findBooleanOption(index)->member; }

void newIcon(Shell& shell, int index) { shell.iconSaver().doNewIcon(index); }
void openIconFile(Shell& shell, int) { shell.openIconFile(); }
void openCursorFile(Shell& shell, int) { shell.cursorFiles().doMnuFileOpenCursor(); }
void saveIntoMultiIconFile(Shell& shell, int) { shell.multiIcon().doMnuFileSaveMultiIconReplace(); }
void addToMultiIconFile(Shell& shell, int) { shell.multiIcon().doMnuFileSaveMultiIconAddTo(); }
void enquire(Shell& shell, int index) { shell.enquiry().mnuEnquiryCurrent(index); }
void saveIcon(Shell& shell, int index) { shell.iconSaver().mnuFileSub(index); }
void openFromHistory(Shell& shell, int index) { shell.openFromHistory(index); }
void switchToCustomSize(Shell& shell, int) { shell.switchToCustomSize(); }
void exitProgram(Shell& shell, int) { shell.exitProgram(); }
void chooseTool(Shell& shell, int index) { shell.tools().mnuTools(index); }
void chooseBrush(Shell& shell, int index) { shell.tools().setBrush(index); }
void editCommand(Shell& shell, int index) { shell.mnuEditSub(index); }
void copyToContainer(Shell& shell, int index) { shell.drawing().containerCopies.mnuEditSubCopyToContainer(index); }
void copyFromContainer(Shell& shell, int index) { shell.drawing().containerCopies.mnuEditSubCopyFromContainer(index); }
void rotateCommand(Shell& shell, int index) { shell.drawing().transforms.mnuRotateSubmenu(index); }
void effect(Shell& shell, int index) { shell.effects().mnuEffectsSub(index); }
void confineColors(Shell& shell, int index) { shell.effects().panel<ConfinePanel>().doConfineColors(index); }
void loadPalette(Shell& shell, int) { shell.paletteFile().imgLoadPalette(); }
void savePalette(Shell& shell, int) { shell.paletteFile().imgSavePalette(); }
void chooseGrid(Shell& shell, int index) { shell.editingArea().SetGrid(index); }
void chooseStartScreen(Shell& shell, int index) { shell.selectStartScreen(index); }
void toggleOption(Shell& shell, int index) { shell.toggleOption(index); }
void resetToDefault(Shell& shell, int) { shell.confirmReset(); }
void openHelp(Shell& shell, int) { shell.openHelp(); }
void showAbout(Shell& shell, int) { shell.showAbout(); }

void popUpEnquire(Shell& shell, int index) {
  struct Row {
    int popUp;    // index of mnuPopUpSub
    int enquiry;  // of mnuEnquiryCurrent
  };
  static constexpr std::array<Row, 2> kEntries{{{3, 9}, {7, 11}}};
  shell.enquiry().mnuEnquiryCurrent(std::ranges::find(kEntries, index, &Row::popUp)->enquiry);
}

void chooseColorFrame(Shell& shell, int index) {
  using Choice = void (ColorSelection::*)();
  constexpr std::array<Choice, 3> kChoices = {&ColorSelection::imgGet16ColorChart, &ColorSelection::imgGet256ColorChart,
                                              &ColorSelection::imgGetDirectEntryColor};
  // Under a side panel the frame would not be seen.
  shell.closePanels();
  (shell.colors().*kChoices.at(static_cast<std::size_t>(index)))();
}

}  // namespace gp::commands
