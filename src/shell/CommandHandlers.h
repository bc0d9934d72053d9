// The conditions and handlers that rows of the command table name. A handler is a line that calls the command body of
// its subsystem; what a command does stands there.
#pragma once

namespace gp {

class Shell;

namespace commands {

// Conditions.
bool always(const Shell& shell, int index);
bool hasIcon(const Shell& shell, int index);
bool isFromMultiIconFile(const Shell& shell, int index);
bool isFromSingleIconFile(const Shell& shell, int index);
bool hasCursorSize(const Shell& shell, int index);
bool hasAlpha(const Shell& shell, int index);
bool isCursor(const Shell& shell, int index);
bool isDiscrepant(const Shell& shell, int index);
bool hasEffect(const Shell& shell, int index);
bool canPickColor(const Shell& shell, int index);
bool hasNoRegion(const Shell& shell, int index);
bool hasRegion(const Shell& shell, int index);
bool canUndo(const Shell& shell, int index);
bool canRedo(const Shell& shell, int index);
bool canPaste(const Shell& shell, int index);
bool isOtherContainer(const Shell& shell, int index);
bool isOtherUsedContainer(const Shell& shell, int index);

// Ticks.
bool isToolSelected(const Shell& shell, int index);
bool isBrushSelected(const Shell& shell, int index);
bool isColorFrameUp(const Shell& shell, int index);
bool isGridSelected(const Shell& shell, int index);
bool isStartScreenSelected(const Shell& shell, int index);
bool isOptionOn(const Shell& shell, int index);

// Handlers; the index is that of the control array.
void newIcon(Shell& shell, int index);
void openIconFile(Shell& shell, int index);
void openCursorFile(Shell& shell, int index);
void saveIcon(Shell& shell, int index);
void saveIntoMultiIconFile(Shell& shell, int index);
void addToMultiIconFile(Shell& shell, int index);
void enquire(Shell& shell, int index);
void popUpEnquire(Shell& shell, int index);
void openFromHistory(Shell& shell, int index);
void switchToCustomSize(Shell& shell, int index);
void exitProgram(Shell& shell, int index);
void chooseTool(Shell& shell, int index);
void chooseBrush(Shell& shell, int index);
void editCommand(Shell& shell, int index);
void copyToContainer(Shell& shell, int index);
void copyFromContainer(Shell& shell, int index);
void rotateCommand(Shell& shell, int index);
void effect(Shell& shell, int index);
void confineColors(Shell& shell, int index);
void chooseColorFrame(Shell& shell, int index);
void loadPalette(Shell& shell, int index);
void savePalette(Shell& shell, int index);
void chooseGrid(Shell& shell, int index);
void chooseStartScreen(Shell& shell, int index);
void toggleOption(Shell& shell, int index);
void resetToDefault(Shell& shell, int index);
void openHelp(Shell& shell, int index);
void showAbout(Shell& shell, int index);

}  // namespace commands
}  // namespace gp
