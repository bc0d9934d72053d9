#include "shell/PanelTable.h"

namespace gp {

namespace {

constexpr PanelRow kPanels[] = {
    {kColorPanel, "Color"},
    {kIconsListPanel, "Icons List"},
    {kCursorPanel, "Save as cursor"},
    {3, "Print"},
    {4, "Rotate image (-359 to +359)"},
    {5, "Text"},
    {6, "Auto-draw sphere"},
    {7, "Buttonize"},
    {8, "Gradient unpainted area"},
    {9, "Adjust brightness of colors"},
    {10, "Sharpen/soften image"},
    {11, "Antialiasing"},
    {12, "Set color theme"},
    {13, "Effects - shades"},
    {14, "Swap elements of pixels"},
    {15, "Image for disabled button"},
    {16, "Blend in other icon into current one"},
    {17, "Texturize Painted Area"},
    {18, "Resize current icon"},
    {19, "Reduce number of colors"},
    {20, "Search && extract from exe files"},
    {21, "Preview - different screen colors"},
};

}  // namespace

std::span<const PanelRow> panelTable() { return kPanels; }

}  // namespace gp
