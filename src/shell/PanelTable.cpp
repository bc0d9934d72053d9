#include "shell/PanelTable.h"

#include "shell/Shell.h"

#include <algorithm>
#include <iterator>

namespace gp {

namespace {

void saveCursor(Shell& shell) { shell.iconSaver().doSaveAs(SaveMode::Cursor); }
void rotate(Shell& shell) { shell.drawing().rotatePanel.doRotateProceed(); }
void buttonize(Shell& shell) { shell.effects().buttonize.proceed(); }
void shade(Shell& shell) { shell.effects().shades.proceed(); }
void drawDisabled(Shell& shell) { shell.effects().disabledImage.proceed(); }
void confine(Shell& shell) { shell.effects().confine.proceed(); }

constexpr PanelRow kPanels[] = {
    {kColorPanel, "Color", nullptr},
    {kIconsListPanel, "Icons List", nullptr},
    {kCursorPanel, "Save as cursor", saveCursor},
    {3, "Print", nullptr},
    {kRotatePanel, "Rotate image (-359 to +359)", rotate},
    {5, "Text", nullptr},
    {6, "Auto-draw sphere", nullptr},
    {kButtonizePanel, "Buttonize", buttonize},
    {8, "Gradient unpainted area", nullptr},
    {9, "Adjust brightness of colors", nullptr},
    {10, "Sharpen/soften image", nullptr},
    {11, "Antialiasing", nullptr},
    {12, "Set color theme", nullptr},
    {kShadesPanel, "Effects - shades", shade},
    {14, "Swap elements of pixels", nullptr},
    {kDisabledImagePanel, "Image for disabled button", drawDisabled},
    {16, "Blend in other icon into current one", nullptr},
    {17, "Texturize Painted Area", nullptr},
    {18, "Resize current icon", nullptr},
    {kConfinePanel, "Reduce number of colors", confine},
    {20, "Search && extract from exe files", nullptr},
    {21, "Preview - different screen colors", nullptr},
};

}  // namespace

std::span<const PanelRow> panelTable() { return kPanels; }

const PanelRow* findPanel(int number) {
  const auto* row = std::ranges::find(kPanels, number, &PanelRow::number);
  return row == std::end(kPanels) ? nullptr : row;
}

}  // namespace gp
