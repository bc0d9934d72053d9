#include "shell/PanelTable.h"

#include "document/ScreenState.h"
#include "shell/Shell.h"

#include <algorithm>
#include <iterator>

namespace gp {

namespace {

void saveCursor(Shell& shell) { shell.files().iconSaver.doSaveAs(SaveMode::Cursor); }
void rotate(Shell& shell) { shell.drawing().rotatePanel.doRotateProceed(); }
void search(Shell& shell) { shell.extraction().search.doSearchExtract(); }
void applyEffect(Shell& shell) { shell.effects().proceed(shell.screen().mActivePanel); }

constexpr PanelRow kPanels[] = {
    {kColorPanel, "Color", nullptr},
    {kIconsListPanel, "Icons List", nullptr},
    {kCursorPanel, "Save as cursor", saveCursor, "mnuFileSub", 18},
    {3, "Print", nullptr},
    {kRotatePanel, "Rotate image (-359 to +359)", rotate},
    {5, "Text", applyEffect},
    {6, "Auto-draw sphere", applyEffect},
    {7, "Buttonize", applyEffect},
    {8, "Gradient unpainted area", applyEffect},
    {9, "Adjust brightness of colors", applyEffect},
    {10, "Sharpen/soften image", applyEffect},
    {11, "Antialiasing", applyEffect},
    {12, "Set color theme", applyEffect},
    {13, "Effects - shades", applyEffect},
    {14, "Swap elements of pixels", applyEffect},
    {15, "Image for disabled button", applyEffect},
    {16, "Blend in other icon into current one", applyEffect},
    {17, "Texturize Painted Area", applyEffect},
    {18, "Resize current icon", applyEffect},
    {19, "Reduce number of colors", applyEffect},
    {SearchPanel::kNumber, "Search && extract from exe files", search},
    {PreviewPanel::kNumber, PreviewPanel::kCaption, nullptr},
};

}  // namespace

std::span<const PanelRow> panelTable() { return kPanels; }

const PanelRow* findPanel(int number) {
  const auto* row = std::ranges::find(kPanels, number, &PanelRow::number);
  return row == std::end(kPanels) ? nullptr : row;
}

}  // namespace gp
