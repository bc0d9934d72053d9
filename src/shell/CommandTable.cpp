#include "shell/CommandTable.h"

#include "shell/CommandHandlers.h"
#include "shell/Shell.h"

#include <algorithm>
#include <array>

namespace gp {

namespace {

using namespace commands;

constexpr TopMenu kTopMenus[] = {
    {"mnuFile", "&File", true},       {"mnuPopUp", "Popup Menu", false}, {"mnuToolBox", "&Toolbox", true},
    {"mnuEdit", "&Edit", true},       {"mnuRotate", "&Rotate", true},    {"mnuEffects", "Effe&cts", true},
    {"mnuBrush", "&Brush", true},     {"mnuPalette", "&Palette", true},  {"mnuEnquiry", "I&nquiry", true},
    {"mnuOptions", "&Options", true}, {"mnuExtract", "E&xtract", true},  {"mnuANIFile", "Ani&mation", true},
    {"mnuAlpha", "&Alpha", true},     {"mnuHelp", "&Help", true},
};

// A row without a handler is a sub-menu, or a command whose subsystem is not part of the program yet.
// clang-format off
constexpr Command kCommands[] = {
    // File
    {"mnuFileSub", 0, "mnuFile", "Custom Si&ze", "", "", always, nullptr, nullptr},
    {"mnuFileSubCustomSize", kNoIndex, "mnuFileSub(0)", "&Switch To Custom Size Glimmerpane", "", "", always, nullptr, switchToCustomSize},
    {"mnuFileSub", 2, "mnuFile", "&New Icon 32x32", "Ctrl+N", "new-32", always, nullptr, newIcon},
    {"mnuFileSub", 3, "mnuFile", "N&ew Icon 16x16", "Ctrl+E", "new-16", always, nullptr, newIcon},
    {"mnuFileSub", 4, "mnuFile", "Ne&w Icon 48x48", "", "", always, nullptr, newIcon},
    {"mnuFileSub", 5, "mnuFile", "New &Icon 24x24", "", "", always, nullptr, newIcon},
    {"mnuFileSub", 7, "mnuFile", "&Open Icon File  (ico) ....", "Ctrl+O", "open", always, nullptr, openIconFile},
    {"mnuFileSub", 8, "mnuFile", "&Display All Icons In Folder ....", "Ctrl+D", "open-folder", always, nullptr, nullptr},
    {"mnuFileSub", 9, "mnuFile", "Open &Cursor File  (cur) ....", "", "", always, nullptr, openCursorFile},
    {"mnuFileSub", 10, "mnuFile", "Impo&rt Bitmap File  (bmp/gif/jpg/wmf/emf)", "", "", always, nullptr, nullptr},
    {"mnuFileSubImportSub", 0, "mnuFileSub(10)", "&Original Image ....", "", "", always, nullptr, nullptr},
    {"mnuFileSubImportSub", 2, "mnuFileSub(10)", "&Resize To Icon Size", "", "", always, nullptr, nullptr},
    {"mnuFileSubImportSubSub1", 0, "mnuFileSubImportSub(2)", "&Auto Antialiasing ....", "", "", always, nullptr, nullptr},
    {"mnuFileSubImportSubSub1", 1, "mnuFileSubImportSub(2)", "&Without Auto Antialiasing ....", "", "", always, nullptr, nullptr},
    {"mnuFileSubImportSub", 3, "mnuFileSub(10)", "Resize - Preserve &Aspect Ratio", "", "", always, nullptr, nullptr},
    {"mnuFileSubImportSubSub2", 0, "mnuFileSubImportSub(3)", "&Auto Antialiasing ....", "", "", always, nullptr, nullptr},
    {"mnuFileSubImportSubSub2", 1, "mnuFileSubImportSub(3)", "&Without Auto Antialiasing ....", "", "", always, nullptr, nullptr},
    {"mnuFileSub", 12, "mnuFile", "&Save   (Single-Icon File)", "Ctrl+S", "save", hasIcon, nullptr, saveIcon},
    {"mnuFileSub", 13, "mnuFile", "Save &As   (Single-Icon File) ....", "Ctrl+T", "save-as", hasIcon, nullptr, saveIcon},
    {"mnuFileSub", 15, "mnuFile", "Save As &Multi-Icon File ....", "", "", isFromMultiIconFile, nullptr, saveIntoMultiIconFile},
    {"mnuFileSub", 16, "mnuFile", "Save As Multi-Icon File  (Add &To) ....", "", "", isFromSingleIconFile, nullptr, addToMultiIconFile},
    {"mnuFileSub", 18, "mnuFile", "Save As C&ursor ....", "", "", hasCursorSize, nullptr, saveIcon},
    {"mnuFileSub", 19, "mnuFile", "Save As &Bitmap ....", "", "", hasIcon, nullptr, saveIcon},
    {"mnuFileSub", 20, "mnuFile", "Save Mas&k ....", "", "", hasIcon, nullptr, saveIcon},
    {"mnuFileSub", 22, "mnuFile", "&Print", "", "", always, nullptr, nullptr},
    {"mnuFileSubPrintSub", 0, "mnuFileSub(22)", "Print &Current Icon ....", "", "", hasIcon, nullptr, nullptr},
    {"mnuFileSubPrintSub", 1, "mnuFileSub(22)", "Print Icons In Icons &List ....", "", "", always, nullptr, nullptr},
    {"mnuFileHistory", 0, "mnuFile", "", "", "", always, nullptr, nullptr},
    {"mnuFileHistory", 1, "mnuFile", "", "", "", always, nullptr, openFromHistory},
    {"mnuFileHistory", 2, "mnuFile", "", "", "", always, nullptr, openFromHistory},
    {"mnuFileHistory", 3, "mnuFile", "", "", "", always, nullptr, openFromHistory},
    {"mnuFileHistory", 4, "mnuFile", "", "", "", always, nullptr, openFromHistory},
    {"mnuFileHistory", 5, "mnuFile", "", "", "", always, nullptr, openFromHistory},
    {"mnuFileHistory", 6, "mnuFile", "", "", "", always, nullptr, openFromHistory},
    {"mnuFileExit", kNoIndex, "mnuFile", "E&xit", "", "", always, nullptr, exitProgram},
    // Pop-up menu of the Editing Area
    {"mnuPopUpSub", 0, "mnuPopUp", "&Open Icon File ....", "", "", always, nullptr, openIconFile},
    {"mnuPopUpSub", 1, "mnuPopUp", "&Display All Icons In Folder ....", "", "", always, nullptr, nullptr},
    {"mnuPopUpSub", 3, "mnuPopUp", "&Show Icons In Current Multi-Icon File ....", "", "", isFromMultiIconFile, nullptr, popUpEnquire},
    {"mnuPopUpSub", 5, "mnuPopUp", "&View Current Icon With Alpha Effects", "", "", hasAlpha, nullptr, nullptr},
    {"mnuPopUpSub", 7, "mnuPopUp", "&Reveal Hotspot Of Original Cursor", "", "", isCursor, nullptr, popUpEnquire},
    // Toolbox
    {"mnuTools", 0, "mnuToolBox", "&Clear Tools", "F2", "clear-tools", hasIcon, nullptr, chooseTool},
    {"mnuTools", 2, "mnuToolBox", "Color Pic&ker (Pick Color From Icon)", "F3", "color-picker", canPickColor, isToolSelected, chooseTool},
    {"mnuTools", 4, "mnuToolBox", "&Paint", "F4", "paint", hasIcon, isToolSelected, chooseTool},
    {"mnuTools", 5, "mnuToolBox", "&Erase", "F5", "erase", hasIcon, isToolSelected, chooseTool},
    {"mnuTools", 6, "mnuToolBox", "&Fill", "F6", "fill", hasIcon, isToolSelected, chooseTool},
    {"mnuTools", 7, "mnuToolBox", "Repl&ace Color", "F7", "replace", hasIcon, isToolSelected, chooseTool},
    {"mnuTools", 8, "mnuToolBox", "Restore/Copy Pi&xel", "F8", "restore", hasIcon, isToolSelected, chooseTool},
    {"mnuTools", 9, "mnuToolBox", "&Line", "Shift+F2", "line", hasIcon, isToolSelected, chooseTool},
    {"mnuTools", 10, "mnuToolBox", "Rec&tangle/Square", "Shift+F3", "rectangle", hasIcon, isToolSelected, chooseTool},
    {"mnuTools", 11, "mnuToolBox", "Filled Rectangle/Sq&uare", "Shift+F4", "filled-rectangle", hasIcon, isToolSelected, chooseTool},
    {"mnuTools", 12, "mnuToolBox", "&Oval/Circle", "Shift+F5", "oval", hasIcon, isToolSelected, chooseTool},
    {"mnuTools", 13, "mnuToolBox", "Filled O&val/Circle", "Shift+F6", "filled-oval", hasIcon, isToolSelected, chooseTool},
    {"mnuTools", 14, "mnuToolBox", "&Region (Rectangle or Square)", "Shift+F7", "region", hasIcon, isToolSelected, chooseTool},
    {"mnuTools", 15, "mnuToolBox", "Shi&ft Directions", "Shift+F8", "shift", hasIcon, isToolSelected, chooseTool},
    // Edit
    {"mnuEditSub", 0, "mnuEdit", "Undo &All", "Ctrl+Y", "undo-all", canUndo, nullptr, editCommand},
    {"mnuEditSub", 1, "mnuEdit", "&Undo", "Ctrl+Z", "undo", canUndo, nullptr, editCommand},
    {"mnuEditSub", 2, "mnuEdit", "&Redo", "Ctrl+R", "redo", canRedo, nullptr, editCommand},
    {"mnuEditSub", 4, "mnuEdit", "Cu&t && Copy", "Ctrl+X", "cut", hasRegion, nullptr, editCommand},
    {"mnuEditSub", 5, "mnuEdit", "Cut/&Erase Region", "Ctrl+U", "erase-region", hasRegion, nullptr, editCommand},
    {"mnuEditSub", 6, "mnuEdit", "&Copy", "Ctrl+C", "copy", hasIcon, nullptr, editCommand},
    {"mnuEditSub", 7, "mnuEdit", "&Paste", "Ctrl+V", "paste", canPaste, nullptr, editCommand},
    {"mnuEditSub", 8, "mnuEdit", "Paste &Opaque", "", "paste-opaque", canPaste, nullptr, editCommand},
    {"mnuEditSub", 9, "mnuEdit", "C&lear Clipboard", "", "", always, nullptr, editCommand},
    {"mnuEditSub", 11, "mnuEdit", "Copy To A&nother Container", "", "", always, nullptr, nullptr},
    {"mnuEditSubCopyToContainer", 0, "mnuEditSub(11)", "To Container &1", "", "", isOtherContainer, nullptr, copyToContainer},
    {"mnuEditSubCopyToContainer", 1, "mnuEditSub(11)", "To Container &2", "", "", isOtherContainer, nullptr, copyToContainer},
    {"mnuEditSubCopyToContainer", 2, "mnuEditSub(11)", "To Container &3", "", "", isOtherContainer, nullptr, copyToContainer},
    {"mnuEditSubCopyToContainer", 3, "mnuEditSub(11)", "To Container &4", "", "", isOtherContainer, nullptr, copyToContainer},
    {"mnuEditSubCopyToContainer", 4, "mnuEditSub(11)", "To Container &5", "", "", isOtherContainer, nullptr, copyToContainer},
    {"mnuEditSubCopyToContainer", 5, "mnuEditSub(11)", "To Container &6", "", "", isOtherContainer, nullptr, copyToContainer},
    {"mnuEditSub", 12, "mnuEdit", "Copy &From Another Container", "", "", always, nullptr, nullptr},
    {"mnuEditSubCopyFromContainer", 0, "mnuEditSub(12)", "From Container &1", "", "", isOtherUsedContainer, nullptr, copyFromContainer},
    {"mnuEditSubCopyFromContainer", 1, "mnuEditSub(12)", "From Container &2", "", "", isOtherUsedContainer, nullptr, copyFromContainer},
    {"mnuEditSubCopyFromContainer", 2, "mnuEditSub(12)", "From Container &3", "", "", isOtherUsedContainer, nullptr, copyFromContainer},
    {"mnuEditSubCopyFromContainer", 3, "mnuEditSub(12)", "From Container &4", "", "", isOtherUsedContainer, nullptr, copyFromContainer},
    {"mnuEditSubCopyFromContainer", 4, "mnuEditSub(12)", "From Container &5", "", "", isOtherUsedContainer, nullptr, copyFromContainer},
    {"mnuEditSubCopyFromContainer", 5, "mnuEditSub(12)", "From Container &6", "", "", isOtherUsedContainer, nullptr, copyFromContainer},
    {"mnuEditSub", 13, "mnuEdit", "Clear Conta&iner", "", "", hasIcon, nullptr, editCommand},
    // Rotate
    {"mnuRotateSubmenu", 0, "mnuRotate", "Flip &Horizontal", "", "flip-horizontal", hasIcon, nullptr, rotateCommand},
    {"mnuRotateSubmenu", 1, "mnuRotate", "Flip &Verical", "", "flip-vertical", hasIcon, nullptr, rotateCommand},
    {"mnuRotateSubmenu", 2, "mnuRotate", "Rotate &Left 90 Degree", "", "rotate-left", hasIcon, nullptr, rotateCommand},
    {"mnuRotateSubmenu", 3, "mnuRotate", "Rotate &Right 90 Degree", "", "rotate-right", hasIcon, nullptr, rotateCommand},
    {"mnuRotateSubmenu", 4, "mnuRotate", "Rotate At Any &Selected Angle ....", "", "", hasIcon, nullptr, rotateCommand},
    // Effects
    {"mnuEffectsSub", 0, "mnuEffects", "&Text ....", "Ctrl+F2", "text", hasEffect, nullptr, effect},
    {"mnuEffectsSub", 2, "mnuEffects", "Auto-Draw &Sphere ....", "Ctrl+F3", "sphere", hasEffect, nullptr, effect},
    {"mnuEffectsSub", 3, "mnuEffects", "&Buttonize Icon ....", "Ctrl+F4", "buttonize", hasEffect, nullptr, effect},
    {"mnuEffectsSub", 4, "mnuEffects", "Gradient &Unpainted Area ....", "Ctrl+F5", "gradient", hasEffect, nullptr, effect},
    {"mnuEffectsSub", 6, "mnuEffects", "&Adjust Brightness Of Colors ....", "Ctrl+F6", "brightness", hasEffect, nullptr, effect},
    {"mnuEffectsSub", 7, "mnuEffects", "Shar&pen / Soften Image ....", "Ctrl+F7", "", hasEffect, nullptr, effect},
    {"mnuEffectsSub", 8, "mnuEffects", "A&ntialias ....", "Ctrl+F8", "", hasEffect, nullptr, effect},
    {"mnuEffectsSub", 9, "mnuEffects", "Set Color The&me ....", "Ctrl+F9", "", hasEffect, nullptr, effect},
    {"mnuEffectsSub", 11, "mnuEffects", "Emb&ossed ....", "", "", hasEffect, nullptr, effect},
    {"mnuEffectsSub", 12, "mnuEffects", "Engra&ved ....", "", "", hasEffect, nullptr, effect},
    {"mnuEffectsSub", 13, "mnuEffects", "&Raised ....", "", "", hasEffect, nullptr, effect},
    {"mnuEffectsSub", 14, "mnuEffects", "Shado&wed ....", "", "", hasEffect, nullptr, effect},
    {"mnuEffectsSub", 16, "mnuEffects", "&Cast ....", "", "", hasEffect, nullptr, effect},
    {"mnuEffectsSub", 17, "mnuEffects", "&Grayscale ....", "", "", hasEffect, nullptr, effect},
    {"mnuEffectsSub", 18, "mnuEffects", "&Invert / Negative ....", "", "", hasEffect, nullptr, effect},
    {"mnuEffectsSub", 20, "mnuEffects", "Swap Elements Of Pi&xels ....", "", "", hasEffect, nullptr, effect},
    {"mnuEffectsSub", 21, "mnuEffects", "Image For &Disabled Buton ....", "", "", hasEffect, nullptr, effect},
    {"mnuEffectsSub", 23, "mnuEffects", "Bl&end In Another Icon ....", "", "", hasEffect, nullptr, effect},
    {"mnuEffectsSub", 24, "mnuEffects", "Texturi&ze Painted Surface ....", "", "", hasEffect, nullptr, effect},
    {"mnuEffectsSub", 26, "mnuEffects", "Expand Si&ze", "", "", always, nullptr, nullptr},
    {"mnuEffectsSub1", 0, "mnuEffectsSub(26)", "Expand To &24x24 ....", "", "", hasIcon, nullptr, nullptr},
    {"mnuEffectsSub1", 1, "mnuEffectsSub(26)", "Expand To &32x32 ....", "", "", hasIcon, nullptr, nullptr},
    {"mnuEffectsSub1", 2, "mnuEffectsSub(26)", "Expand To &48x48 ....", "", "", hasIcon, nullptr, nullptr},
    {"mnuEffectsSub", 27, "mnuEffects", "Shrin&k Size", "", "", always, nullptr, nullptr},
    {"mnuEffectsSub2", 0, "mnuEffectsSub(27)", "Shrink To &32x32 ....", "", "", hasIcon, nullptr, nullptr},
    {"mnuEffectsSub2", 1, "mnuEffectsSub(27)", "Shrink To &24x24 ....", "", "", hasIcon, nullptr, nullptr},
    {"mnuEffectsSub2", 2, "mnuEffectsSub(27)", "Shrink To &16x16 ....", "", "", hasIcon, nullptr, nullptr},
    {"mnuEffectsSub", 29, "mnuEffects", "Reduce Co&lors Used", "", "", always, nullptr, nullptr},
    {"mnuEffectsSub3", 0, "mnuEffectsSub(29)", "Confine Colors To &256-Color-Palette ....", "", "", hasIcon, nullptr, confineColors},
    {"mnuEffectsSub3", 1, "mnuEffectsSub(29)", "Confine Colors To &16-Color-Palette ....", "", "", hasIcon, nullptr, confineColors},
    {"mnuEffectsSub3", 2, "mnuEffectsSub(29)", "Confine To &Mono (Black && White) ....", "", "", hasIcon, nullptr, confineColors},
    // Brush
    {"mnuBrushSize", 0, "mnuBrush", "&1", "", "", always, isBrushSelected, chooseBrush},
    {"mnuBrushSize", 1, "mnuBrush", "&2", "", "", always, isBrushSelected, chooseBrush},
    {"mnuBrushSize", 2, "mnuBrush", "&3", "", "", always, isBrushSelected, chooseBrush},
    {"mnuBrushSize", 3, "mnuBrush", "&4", "", "", always, isBrushSelected, chooseBrush},
    {"mnuBrushSize", 4, "mnuBrush", "&5", "", "", always, isBrushSelected, chooseBrush},
    {"mnuBrushSize", 5, "mnuBrush", "&6", "", "", always, isBrushSelected, chooseBrush},
    // Palette
    {"mnuPaletteSub", 0, "mnuPalette", "&16-Color Palette", "", "chart-16", always, isColorFrameUp, chooseColorFrame},
    {"mnuPaletteSub", 1, "mnuPalette", "&256-Color Palette", "", "chart-256", always, isColorFrameUp, chooseColorFrame},
    {"mnuPaletteSub", 2, "mnuPalette", "&Direct Entry Of Color Value", "", "direct-entry", always, isColorFrameUp, chooseColorFrame},
    {"mnuPaletteSub", 4, "mnuPalette", "&Load Palette ....", "", "load-palette", always, nullptr, loadPalette},
    {"mnuPaletteSub", 5, "mnuPalette", "&Save Palette ....", "", "save-palette", always, nullptr, savePalette},
    // Inquiry
    {"mnuEnquiryCurrent", 0, "mnuEnquiry", "Enquiry - &General Properties", "Ctrl+Q", "properties", hasIcon, nullptr, nullptr},
    {"mnuEnquiryCurrent", 2, "mnuEnquiry", "Enquiry - &Number Of Colors Used", "", "", hasIcon, nullptr, nullptr},
    {"mnuEnquiryCurrent", 3, "mnuEnquiry", "Enquiry - Number Of B&ytes", "", "", hasIcon, nullptr, nullptr},
    {"mnuEnquiryCurrent", 5, "mnuEnquiry", "Enquiry - &Original Header Entry  (If Diff To Image Data)", "", "", isDiscrepant, nullptr, enquire},
    {"mnuEnquiryCurrent", 7, "mnuEnquiry", "&Preview With Different Screen Colors ....", "Ctrl+P", "", hasIcon, nullptr, nullptr},
    {"mnuEnquiryCurrent", 9, "mnuEnquiry", "&Show Icons In Current Multi-Icon File ....", "Ctrl+M", "", isFromMultiIconFile, nullptr, enquire},
    {"mnuEnquiryCurrent", 10, "mnuEnquiry", "&View Current Icon With Alpha Effects", "Ctrl+A", "", hasAlpha, nullptr, nullptr},
    {"mnuEnquiryCurrent", 11, "mnuEnquiry", "&Reveal Hotspot Of Original Cursor", "Ctrl+H", "", isCursor, nullptr, enquire},
    // Options
    {"mnuOptionsSub", 0, "mnuOptions", "&Grid In Editing Area", "", "", always, nullptr, nullptr},
    {"mnuOptionsSubGrid", 0, "mnuOptionsSub(0)", "Clean Grid With &Light Lines", "", "", always, isGridSelected, chooseGrid},
    {"mnuOptionsSubGrid", 1, "mnuOptionsSub(0)", "Clean Grid With &Dark Lines", "", "", always, isGridSelected, chooseGrid},
    {"mnuOptionsSubGrid", 2, "mnuOptionsSub(0)", "Clean Grid With D&otted Lines", "", "", always, isGridSelected, chooseGrid},
    {"mnuOptionsSubGrid", 3, "mnuOptionsSub(0)", "Patterned Grid - &Gray", "", "", always, isGridSelected, chooseGrid},
    {"mnuOptionsSubGrid", 4, "mnuOptionsSub(0)", "Patterned Grid - Light &Blue", "", "", always, isGridSelected, chooseGrid},
    {"mnuOptionsSubGrid", 5, "mnuOptionsSub(0)", "Patterned Grid -&Turquoise", "", "", always, isGridSelected, chooseGrid},
    {"mnuOptionsSubGrid", 6, "mnuOptionsSub(0)", "&No Grid", "", "", always, isGridSelected, chooseGrid},
    {"mnuOptionsSub", 2, "mnuOptions", "&Start Screen", "", "", always, nullptr, nullptr},
    {"mnuOptionsStartScreenSub", 0, "mnuOptionsSub(2)", "&Default Size", "", "", always, isStartScreenSelected, chooseStartScreen},
    {"mnuOptionsStartScreenSub", 1, "mnuOptionsSub(2)", "Default If Not &Maximized In Last Session ", "", "", always, isStartScreenSelected, chooseStartScreen},
    {"mnuOptionsStartScreenSub", 2, "mnuOptionsSub(2)", "&Per Last Session", "", "", always, isStartScreenSelected, chooseStartScreen},
    {"mnuOptionsSub", 3, "mnuOptions", "Use Enlarged Editing Area When Screen Size Allo&ws", "Ctrl+W", "", always, isOptionOn, toggleOption},
    {"mnuOptionsSub", 5, "mnuOptions", "Display Pixel &RGB Of Current Icon", "", "", always, isOptionOn, toggleOption},
    {"mnuOptionsSub", 7, "mnuOptions", "Show &Tooltip Of Color Values of 256-Color Chart", "", "", always, isOptionOn, toggleOption},
    {"mnuOptionsSub", 9, "mnuOptions", "&Update Only Editing Area During Region Dragging", "", "", hasNoRegion, isOptionOn, toggleOption},
    {"mnuOptionsSub", 11, "mnuOptions", "Prompt To Save On &Icons Panel Switching", "", "", always, isOptionOn, toggleOption},
    {"mnuOptionsSub", 12, "mnuOptions", "Remind To Create Transparent Area If &Bitmap", "", "", always, isOptionOn, toggleOption},
    {"mnuOptionsSub", 13, "mnuOptions", "Flag Message When Icon Is With &Alpha Channel", "", "", always, isOptionOn, toggleOption},
    {"mnuOptionsSub", 14, "mnuOptions", "Alert If &Original Icon File Header Entries Discrepant", "", "", always, isOptionOn, toggleOption},
    {"mnuOptionsSub", 16, "mnuOptions", "R&eset To Default", "", "", always, nullptr, resetToDefault},
    // Extract
    {"mnuExtractSub", 0, "mnuExtract", "Extract Icons From &ANI (Animated Cursor) File ....", "Ctrl+K", "", always, nullptr, nullptr},
    {"mnuExtractSub", 1, "mnuExtract", "Extract &Large Icons - DLL Or Similar Resource....", "Ctrl+L", "", always, nullptr, nullptr},
    {"mnuExtractSub", 2, "mnuExtract", "Extract &Small Icons - DLL Or Similar Resource....", "", "", always, nullptr, nullptr},
    {"mnuExtractSub", 3, "mnuExtract", "Extract Icons From &ICL File ....", "", "", always, nullptr, nullptr},
    {"mnuExtractSub", 4, "mnuExtract", "Extract Icons Associated With Any &File Type ....", "", "", always, nullptr, nullptr},
    {"mnuExtractSub", 5, "mnuExtract", "Extract &Desktop Icons....", "", "", always, nullptr, nullptr},
    {"mnuExtractSub", 7, "mnuExtract", "Search && &Extract Icons From All EXE Files In Folder....", "", "", always, nullptr, nullptr},
    {"mnuExtractSub", 9, "mnuExtract", "&Capture Image From Desktop", "", "capture", always, nullptr, nullptr},
    // Animation
    {"mnuANIFileCreateOrEdit", kNoIndex, "mnuANIFile", "&Create/Edit Animated Cursor File ....", "", "animation", always, nullptr, nullptr},
    {"mnuANIFileHistory", 0, "mnuANIFile", "", "", "", always, nullptr, nullptr},
    {"mnuANIFileHistory", 1, "mnuANIFile", "", "", "", always, nullptr, nullptr},
    {"mnuANIFileHistory", 2, "mnuANIFile", "", "", "", always, nullptr, nullptr},
    {"mnuANIFileHistory", 3, "mnuANIFile", "", "", "", always, nullptr, nullptr},
    // Alpha
    {"mnuAlphaSub", 0, "mnuAlpha", "&View/Edit/Create Alpha Channel ....", "", "alpha", hasIcon, nullptr, nullptr},
    {"mnuAlphaSub", 1, "mnuAlpha", "&Convert 32 to 24 BPP (&& Retain Alpha Effects) ....", "", "", hasIcon, nullptr, nullptr},
    // Help
    {"mnuHelpSub", 0, "mnuHelp", "&Help ....", "F1", "help", always, nullptr, openHelp},
    {"mnuHelpSub", 1, "mnuHelp", "&About ....", "", "info", always, nullptr, showAbout},
};
// clang-format on

constexpr ToolbarButton kToolbar[] = {
    {0, "New  32x32", "mnuFileSub", 2, false},
    {1, "New 16x16", "mnuFileSub", 3, false},
    {2, "Open icon file", "mnuFileSub", 7, true},
    {3, "Display all icons in folder", "mnuFileSub", 8, false},
    {4, "Save to icon file", "mnuFileSub", 12, false},
    {5, "Save as", "mnuFileSub", 13, false},
    {6, "Undo all", "mnuEditSub", 0, true},
    {7, "Undo", "mnuEditSub", 1, false},
    {8, "Redo", "mnuEditSub", 2, false},
    {9, "Cut and copy", "mnuEditSub", 4, true},
    {10, "Delete/erase region", "mnuEditSub", 5, false},
    {11, "Copy", "mnuEditSub", 6, false},
    {12, "Paste", "mnuEditSub", 7, false},
    {13, "Paste opaque", "mnuEditSub", 8, false},
    {14, "Flip icon/region horizontally", "mnuRotateSubmenu", 0, true},
    {15, "Flip icon/region vertically", "mnuRotateSubmenu", 1, false},
    {16, "Rotate icon/region left 90-degree", "mnuRotateSubmenu", 2, false},
    {17, "Rotate icon/region right 90-degree", "mnuRotateSubmenu", 3, false},
    {18, "Add text", "mnuEffectsSub", 0, true},
    {19, "Auto-draw sphere", "mnuEffectsSub", 2, false},
    {20, "Buttonize icon", "mnuEffectsSub", 3, false},
    {21, "Gradient background (unpainted areas)", "mnuEffectsSub", 4, false},
    {22, "Adjust brightness of colors", "mnuEffectsSub", 6, false},
    {23, "General properties", "mnuEnquiryCurrent", 0, true},
    {24, "Capture image from desktop", "mnuExtractSub", 9, false},
    {25, "Create/edit animated cursor", "mnuANIFileCreateOrEdit", kNoIndex, true},
    {26, "View/edit/create Alpha (32 BPP icon)", "mnuAlphaSub", 0, false},
};

// The entries of a history menu: its control, and which history stands behind it.
const History* historyOf(const Command& command, const Shell& shell) {
  const std::string_view control = command.control;
  if (control == "mnuFileHistory") return &shell.fileHistory();
  if (control == "mnuANIFileHistory") return &shell.aniHistory();
  return nullptr;
}

}  // namespace

std::span<const TopMenu> topMenus() { return kTopMenus; }
std::span<const Command> commandTable() { return kCommands; }
std::span<const ToolbarButton> toolbarTable() { return kToolbar; }

std::string objectNameOf(std::string_view control, int index) {
  std::string name(control);
  if (index != kNoIndex) name += "(" + std::to_string(index) + ")";
  return name;
}

const Command* findCommand(std::string_view control, int index) {
  const auto* found =
      std::ranges::find_if(kCommands, [=](const Command& row) { return row.index == index && row.control == control; });
  return found == std::end(kCommands) ? nullptr : found;
}

bool isSubMenu(const Command& command) {
  const std::string name = objectNameOf(command.control, command.index);
  return std::ranges::any_of(kCommands, [&name](const Command& row) { return name == row.parent; });
}

bool isEnabled(const Command& command, const Shell& shell) {
  if (command.run) return command.enabled(shell, command.index);
  const std::string name = objectNameOf(command.control, command.index);
  return std::ranges::any_of(kCommands,
                             [&](const Command& row) { return name == row.parent && isEnabled(row, shell); });
}

bool isChecked(const Command& command, const Shell& shell) {
  return command.checked && command.checked(shell, command.index);
}

bool isVisible(const Command& command, const Shell& shell) {
  const History* history = historyOf(command, shell);
  if (!history) return true;
  return history->isVisible(command.index);
}

std::string captionOf(const Command& command, const Shell& shell) {
  const History* history = historyOf(command, shell);
  if (!history) return command.caption;
  return history->caption(command.index);
}

}  // namespace gp
