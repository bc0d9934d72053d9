// The rows of the command table.
#include "shell/CommandBodies.h"
#include "shell/CommandNeeds.h"
#include "shell/CommandTable.h"
#include "shell/CommandTicks.h"
#include "shell/EffectCommands.h"

namespace gp {

namespace {

using namespace bodies;
using namespace ticks;

constexpr TopMenu kTopMenus[] = {
    {"mnuFile", "&File", true},       {"mnuPopUp", "Popup Menu", false}, {"mnuToolBox", "&Toolbox", true},
    {"mnuEdit", "&Edit", true},       {"mnuRotate", "&Rotate", true},    {"mnuEffects", "Effe&cts", true},
    {"mnuBrush", "&Brush", true},     {"mnuPalette", "&Palette", true},  {"mnuEnquiry", "I&nquiry", true},
    {"mnuOptions", "&Options", true}, {"mnuExtract", "E&xtract", true},  {"mnuANIFile", "Ani&mation", true},
    {"mnuAlpha", "&Alpha", true},     {"mnuHelp", "&Help", true},
};

// A row without a body is a sub-menu, or a command that is not implemented yet.
// clang-format off
constexpr Command kCommands[] = {
    // File
    {"mnuFileSub", 0, "mnuFile", "Custom Si&ze", "", "", needs::always, Commits::No, nullptr, nullptr},
    {"mnuFileSubCustomSize", kNoIndex, "mnuFileSub(0)", "&Switch To Custom Size Glimmerpane", "", "", needs::always, Commits::No, nullptr, call<&Shell::switchToCustomSize>},
    {"mnuFileSub", 2, "mnuFile", "&New Icon 32x32", "Ctrl+N", "new-32", needs::always, Commits::Yes, nullptr, call<&IconSaver::doNewIcon, 32>},
    {"mnuFileSub", 3, "mnuFile", "N&ew Icon 16x16", "Ctrl+E", "new-16", needs::always, Commits::Yes, nullptr, call<&IconSaver::doNewIcon, 16>},
    {"mnuFileSub", 4, "mnuFile", "Ne&w Icon 48x48", "", "", needs::always, Commits::Yes, nullptr, call<&IconSaver::doNewIcon, 48>},
    {"mnuFileSub", 5, "mnuFile", "New &Icon 24x24", "", "", needs::always, Commits::Yes, nullptr, call<&IconSaver::doNewIcon, 24>},
    {"mnuFileSub", 7, "mnuFile", "&Open Icon File  (ico) ....", "Ctrl+O", "open", needs::always, Commits::Yes, nullptr, call<&IconFiles::doMnuFileOpenIcon>},
    {"mnuFileSub", 8, "mnuFile", "&Display All Icons In Folder ....", "Ctrl+D", "open-folder", needs::always, Commits::Yes, nullptr, call<&IconsList::displayIconsInFolder>},
    {"mnuFileSub", 9, "mnuFile", "Open &Cursor File  (cur) ....", "", "", needs::always, Commits::Yes, nullptr, call<&CursorFiles::doMnuFileOpenCursor>},
    {"mnuFileSub", 10, "mnuFile", "Impo&rt Bitmap File  (bmp/gif/jpg/wmf/emf)", "", "", needs::always, Commits::No, nullptr, nullptr},
    {"mnuFileSubImportSub", 0, "mnuFileSub(10)", "&Original Image ....", "", "", needs::always, Commits::No, nullptr, nullptr},
    {"mnuFileSubImportSub", 2, "mnuFileSub(10)", "&Resize To Icon Size", "", "", needs::always, Commits::No, nullptr, nullptr},
    {"mnuFileSubImportSubSub1", 0, "mnuFileSubImportSub(2)", "&Auto Antialiasing ....", "", "", needs::always, Commits::No, nullptr, nullptr},
    {"mnuFileSubImportSubSub1", 1, "mnuFileSubImportSub(2)", "&Without Auto Antialiasing ....", "", "", needs::always, Commits::No, nullptr, nullptr},
    {"mnuFileSubImportSub", 3, "mnuFileSub(10)", "Resize - Preserve &Aspect Ratio", "", "", needs::always, Commits::No, nullptr, nullptr},
    {"mnuFileSubImportSubSub2", 0, "mnuFileSubImportSub(3)", "&Auto Antialiasing ....", "", "", needs::always, Commits::No, nullptr, nullptr},
    {"mnuFileSubImportSubSub2", 1, "mnuFileSubImportSub(3)", "&Without Auto Antialiasing ....", "", "", needs::always, Commits::No, nullptr, nullptr},
    {"mnuFileSub", 12, "mnuFile", "&Save   (Single-Icon File)", "Ctrl+S", "save", needs::icon, Commits::Yes, nullptr, call<&IconSaver::doFileSave>},
    {"mnuFileSub", 13, "mnuFile", "Save &As   (Single-Icon File) ....", "Ctrl+T", "save-as", needs::icon, Commits::Yes, nullptr, call<&IconSaver::doSaveAs, SaveMode::Icon>},
    {"mnuFileSub", 15, "mnuFile", "Save As &Multi-Icon File ....", "", "", needs::multiIconFile, Commits::Yes, nullptr, call<&MultiIconCommands::doMnuFileSaveMultiIconReplace>},
    {"mnuFileSub", 16, "mnuFile", "Save As Multi-Icon File  (Add &To) ....", "", "", needs::singleIconFile, Commits::Yes, nullptr, call<&MultiIconCommands::doMnuFileSaveMultiIconAddTo>},
    {"mnuFileSub", 18, "mnuFile", "Save As C&ursor ....", "", "", needs::cursorSize, Commits::Yes, nullptr, call<&IconSaver::saveAsCursor>},
    {"mnuFileSub", 19, "mnuFile", "Save As &Bitmap ....", "", "", needs::icon, Commits::Yes, nullptr, call<&IconSaver::saveAsBitmap>},
    {"mnuFileSub", 20, "mnuFile", "Save Mas&k ....", "", "", needs::icon, Commits::Yes, nullptr, call<&IconSaver::doSaveAs, SaveMode::Mask>},
    {"mnuFileSub", 22, "mnuFile", "&Print", "", "", needs::always, Commits::No, nullptr, nullptr},
    {"mnuFileSubPrintSub", 0, "mnuFileSub(22)", "Print &Current Icon ....", "", "", needs::icon, Commits::No, nullptr, nullptr},
    {"mnuFileSubPrintSub", 1, "mnuFileSub(22)", "Print Icons In Icons &List ....", "", "", needs::always, Commits::No, nullptr, nullptr},
    {"mnuFileHistory", 0, "mnuFile", "", "", "", needs::always, Commits::No, nullptr, nullptr},
    {"mnuFileHistory", 1, "mnuFile", "", "", "", needs::always, Commits::Yes, nullptr, callWithIndex<&Shell::openFromHistory>},
    {"mnuFileHistory", 2, "mnuFile", "", "", "", needs::always, Commits::Yes, nullptr, callWithIndex<&Shell::openFromHistory>},
    {"mnuFileHistory", 3, "mnuFile", "", "", "", needs::always, Commits::Yes, nullptr, callWithIndex<&Shell::openFromHistory>},
    {"mnuFileHistory", 4, "mnuFile", "", "", "", needs::always, Commits::Yes, nullptr, callWithIndex<&Shell::openFromHistory>},
    {"mnuFileHistory", 5, "mnuFile", "", "", "", needs::always, Commits::Yes, nullptr, callWithIndex<&Shell::openFromHistory>},
    {"mnuFileHistory", 6, "mnuFile", "", "", "", needs::always, Commits::Yes, nullptr, callWithIndex<&Shell::openFromHistory>},
    {"mnuFileExit", kNoIndex, "mnuFile", "E&xit", "", "", needs::always, Commits::No, nullptr, call<&Shell::exitProgram>},
    // Pop-up menu of the Editing Area
    {"mnuPopUpSub", 0, "mnuPopUp", "&Open Icon File ....", "", "", needs::always, Commits::Yes, nullptr, call<&IconFiles::doMnuFileOpenIcon>},
    {"mnuPopUpSub", 1, "mnuPopUp", "&Display All Icons In Folder ....", "", "", needs::always, Commits::Yes, nullptr, call<&IconsList::displayIconsInFolder>},
    {"mnuPopUpSub", 3, "mnuPopUp", "&Show Icons In Current Multi-Icon File ....", "", "", needs::multiIconFile, Commits::Yes, nullptr, call<&Enquiry::showIconsInFile>},
    {"mnuPopUpSub", 5, "mnuPopUp", "&View Current Icon With Alpha Effects", "", "", needs::alpha, Commits::No, nullptr, call<&PreviewPanel::open, PreviewForm::AlphaEffects>},
    {"mnuPopUpSub", 7, "mnuPopUp", "&Reveal Hotspot Of Original Cursor", "", "", needs::cursor, Commits::No, nullptr, call<&Enquiry::revealHotspot>},
    // Toolbox
    {"mnuTools", 0, "mnuToolBox", "&Clear Tools", "F2", "clear-tools", needs::iconQuietly, Commits::No, nullptr, call<&Tools::clearFromMenu>},
    {"mnuTools", 2, "mnuToolBox", "Color Pic&ker (Pick Color From Icon)", "F3", "color-picker", needs::colorPicker, Commits::No, isToolSelected, call<&Tools::pickColorFromMenu>},
    {"mnuTools", 4, "mnuToolBox", "&Paint", "F4", "paint", needs::icon, Commits::No, isToolSelected, callWithIndex<&Tools::selectFromMenu>},
    {"mnuTools", 5, "mnuToolBox", "&Erase", "F5", "erase", needs::icon, Commits::No, isToolSelected, callWithIndex<&Tools::selectFromMenu>},
    {"mnuTools", 6, "mnuToolBox", "&Fill", "F6", "fill", needs::icon, Commits::No, isToolSelected, callWithIndex<&Tools::selectFromMenu>},
    {"mnuTools", 7, "mnuToolBox", "Repl&ace Color", "F7", "replace", needs::icon, Commits::No, isToolSelected, callWithIndex<&Tools::selectFromMenu>},
    {"mnuTools", 8, "mnuToolBox", "Restore/Copy Pi&xel", "F8", "restore", needs::icon, Commits::No, isToolSelected, callWithIndex<&Tools::selectFromMenu>},
    {"mnuTools", 9, "mnuToolBox", "&Line", "Shift+F2", "line", needs::icon, Commits::No, isToolSelected, callWithIndex<&Tools::selectFromMenu>},
    {"mnuTools", 10, "mnuToolBox", "Rec&tangle/Square", "Shift+F3", "rectangle", needs::icon, Commits::No, isToolSelected, callWithIndex<&Tools::selectFromMenu>},
    {"mnuTools", 11, "mnuToolBox", "Filled Rectangle/Sq&uare", "Shift+F4", "filled-rectangle", needs::icon, Commits::No, isToolSelected, callWithIndex<&Tools::selectFromMenu>},
    {"mnuTools", 12, "mnuToolBox", "&Oval/Circle", "Shift+F5", "oval", needs::icon, Commits::No, isToolSelected, callWithIndex<&Tools::selectFromMenu>},
    {"mnuTools", 13, "mnuToolBox", "Filled O&val/Circle", "Shift+F6", "filled-oval", needs::icon, Commits::No, isToolSelected, callWithIndex<&Tools::selectFromMenu>},
    {"mnuTools", 14, "mnuToolBox", "&Region (Rectangle or Square)", "Shift+F7", "region", needs::icon, Commits::No, isToolSelected, callWithIndex<&Tools::selectFromMenu>},
    {"mnuTools", 15, "mnuToolBox", "Shi&ft Directions", "Shift+F8", "shift", needs::icon, Commits::No, isToolSelected, callWithIndex<&Tools::selectFromMenu>},
    // Edit
    {"mnuEditSub", 0, "mnuEdit", "Undo &All", "Ctrl+Y", "undo-all", needs::undoStep, Commits::No, nullptr, call<&UndoCommands::doUndoAll>},
    {"mnuEditSub", 1, "mnuEdit", "&Undo", "Ctrl+Z", "undo", needs::undoStep, Commits::No, nullptr, call<&UndoCommands::doUndo>},
    {"mnuEditSub", 2, "mnuEdit", "&Redo", "Ctrl+R", "redo", needs::redoStep, Commits::No, nullptr, call<&UndoCommands::doRedo>},
    {"mnuEditSub", 4, "mnuEdit", "Cu&t && Copy", "Ctrl+X", "cut", needs::region, Commits::No, nullptr, call<&ClipboardCommands::doCutRegion, true>},
    {"mnuEditSub", 5, "mnuEdit", "Cut/&Erase Region", "Ctrl+U", "erase-region", needs::region, Commits::No, nullptr, call<&ClipboardCommands::doCutRegion, false>},
    {"mnuEditSub", 6, "mnuEdit", "&Copy", "Ctrl+C", "copy", needs::icon, Commits::No, nullptr, call<&ClipboardCommands::doCopyRegion>},
    {"mnuEditSub", 7, "mnuEdit", "&Paste", "Ctrl+V", "paste", needs::clipboardPicture, Commits::No, nullptr, call<&ClipboardCommands::doPaste, false>},
    {"mnuEditSub", 8, "mnuEdit", "Paste &Opaque", "", "paste-opaque", needs::clipboardPicture, Commits::No, nullptr, call<&ClipboardCommands::doPaste, true>},
    {"mnuEditSub", 9, "mnuEdit", "C&lear Clipboard", "", "", needs::always, Commits::No, nullptr, call<&ClipboardCommands::clearClipboard>},
    {"mnuEditSub", 11, "mnuEdit", "Copy To A&nother Container", "", "", needs::always, Commits::No, nullptr, nullptr},
    {"mnuEditSubCopyToContainer", 0, "mnuEditSub(11)", "To Container &1", "", "", needs::otherContainer, Commits::No, nullptr, callWithIndex<&ContainerCopies::mnuEditSubCopyToContainer>},
    {"mnuEditSubCopyToContainer", 1, "mnuEditSub(11)", "To Container &2", "", "", needs::otherContainer, Commits::No, nullptr, callWithIndex<&ContainerCopies::mnuEditSubCopyToContainer>},
    {"mnuEditSubCopyToContainer", 2, "mnuEditSub(11)", "To Container &3", "", "", needs::otherContainer, Commits::No, nullptr, callWithIndex<&ContainerCopies::mnuEditSubCopyToContainer>},
    {"mnuEditSubCopyToContainer", 3, "mnuEditSub(11)", "To Container &4", "", "", needs::otherContainer, Commits::No, nullptr, callWithIndex<&ContainerCopies::mnuEditSubCopyToContainer>},
    {"mnuEditSubCopyToContainer", 4, "mnuEditSub(11)", "To Container &5", "", "", needs::otherContainer, Commits::No, nullptr, callWithIndex<&ContainerCopies::mnuEditSubCopyToContainer>},
    {"mnuEditSubCopyToContainer", 5, "mnuEditSub(11)", "To Container &6", "", "", needs::otherContainer, Commits::No, nullptr, callWithIndex<&ContainerCopies::mnuEditSubCopyToContainer>},
    {"mnuEditSub", 12, "mnuEdit", "Copy &From Another Container", "", "", needs::always, Commits::No, nullptr, nullptr},
    {"mnuEditSubCopyFromContainer", 0, "mnuEditSub(12)", "From Container &1", "", "", needs::otherUsedContainer, Commits::No, nullptr, callWithIndex<&ContainerCopies::mnuEditSubCopyFromContainer>},
    {"mnuEditSubCopyFromContainer", 1, "mnuEditSub(12)", "From Container &2", "", "", needs::otherUsedContainer, Commits::No, nullptr, callWithIndex<&ContainerCopies::mnuEditSubCopyFromContainer>},
    {"mnuEditSubCopyFromContainer", 2, "mnuEditSub(12)", "From Container &3", "", "", needs::otherUsedContainer, Commits::No, nullptr, callWithIndex<&ContainerCopies::mnuEditSubCopyFromContainer>},
    {"mnuEditSubCopyFromContainer", 3, "mnuEditSub(12)", "From Container &4", "", "", needs::otherUsedContainer, Commits::No, nullptr, callWithIndex<&ContainerCopies::mnuEditSubCopyFromContainer>},
    {"mnuEditSubCopyFromContainer", 4, "mnuEditSub(12)", "From Container &5", "", "", needs::otherUsedContainer, Commits::No, nullptr, callWithIndex<&ContainerCopies::mnuEditSubCopyFromContainer>},
    {"mnuEditSubCopyFromContainer", 5, "mnuEditSub(12)", "From Container &6", "", "", needs::otherUsedContainer, Commits::No, nullptr, callWithIndex<&ContainerCopies::mnuEditSubCopyFromContainer>},
    {"mnuEditSub", 13, "mnuEdit", "Clear Conta&iner", "", "", needs::icon, Commits::No, nullptr, call<&ContainerCopies::doClearContainer>},
    // Rotate
    {"mnuRotateSubmenu", 0, "mnuRotate", "Flip &Horizontal", "", "flip-horizontal", needs::icon, Commits::No, nullptr, call<&Transforms::RotateFlipHoriz>},
    {"mnuRotateSubmenu", 1, "mnuRotate", "Flip &Verical", "", "flip-vertical", needs::icon, Commits::No, nullptr, call<&Transforms::RotateFlipVertical>},
    {"mnuRotateSubmenu", 2, "mnuRotate", "Rotate &Left 90 Degree", "", "rotate-left", needs::icon, Commits::No, nullptr, call<&Transforms::RotateLeft>},
    {"mnuRotateSubmenu", 3, "mnuRotate", "Rotate &Right 90 Degree", "", "rotate-right", needs::icon, Commits::No, nullptr, call<&Transforms::RotateRight>},
    {"mnuRotateSubmenu", 4, "mnuRotate", "Rotate At Any &Selected Angle ....", "", "", needs::icon, Commits::No, nullptr, call<&Transforms::rotateAtAnyAngle>},
    // Effects; those with a side panel come from the table of effects
    {"mnuEffectsSub", 26, "mnuEffects", "Expand Si&ze", "", "", needs::always, Commits::No, nullptr, nullptr},
    {"mnuEffectsSub1", 0, "mnuEffectsSub(26)", "Expand To &24x24 ....", "", "", needs::iconToResize, Commits::No, nullptr, callWithIndex<&ResizePanel::expandTo>},
    {"mnuEffectsSub1", 1, "mnuEffectsSub(26)", "Expand To &32x32 ....", "", "", needs::iconToResize, Commits::No, nullptr, callWithIndex<&ResizePanel::expandTo>},
    {"mnuEffectsSub1", 2, "mnuEffectsSub(26)", "Expand To &48x48 ....", "", "", needs::iconToResize, Commits::No, nullptr, callWithIndex<&ResizePanel::expandTo>},
    {"mnuEffectsSub", 27, "mnuEffects", "Shrin&k Size", "", "", needs::always, Commits::No, nullptr, nullptr},
    {"mnuEffectsSub2", 0, "mnuEffectsSub(27)", "Shrink To &32x32 ....", "", "", needs::iconToResize, Commits::No, nullptr, callWithIndex<&ResizePanel::shrinkTo>},
    {"mnuEffectsSub2", 1, "mnuEffectsSub(27)", "Shrink To &24x24 ....", "", "", needs::iconToResize, Commits::No, nullptr, callWithIndex<&ResizePanel::shrinkTo>},
    {"mnuEffectsSub2", 2, "mnuEffectsSub(27)", "Shrink To &16x16 ....", "", "", needs::iconToResize, Commits::No, nullptr, callWithIndex<&ResizePanel::shrinkTo>},
    {"mnuEffectsSub", 29, "mnuEffects", "Reduce Co&lors Used", "", "", needs::always, Commits::No, nullptr, nullptr},
    {"mnuEffectsSub3", 0, "mnuEffectsSub(29)", "Confine Colors To &256-Color-Palette ....", "", "", needs::icon, Commits::No, nullptr, confineColors},
    {"mnuEffectsSub3", 1, "mnuEffectsSub(29)", "Confine Colors To &16-Color-Palette ....", "", "", needs::icon, Commits::No, nullptr, confineColors},
    {"mnuEffectsSub3", 2, "mnuEffectsSub(29)", "Confine To &Mono (Black && White) ....", "", "", needs::icon, Commits::No, nullptr, confineColors},
    // Brush
    {"mnuBrushSize", 0, "mnuBrush", "&1", "", "", needs::always, Commits::No, isBrushSelected, callWithIndex<&Tools::setBrush>},
    {"mnuBrushSize", 1, "mnuBrush", "&2", "", "", needs::always, Commits::No, isBrushSelected, callWithIndex<&Tools::setBrush>},
    {"mnuBrushSize", 2, "mnuBrush", "&3", "", "", needs::always, Commits::No, isBrushSelected, callWithIndex<&Tools::setBrush>},
    {"mnuBrushSize", 3, "mnuBrush", "&4", "", "", needs::always, Commits::No, isBrushSelected, callWithIndex<&Tools::setBrush>},
    {"mnuBrushSize", 4, "mnuBrush", "&5", "", "", needs::always, Commits::No, isBrushSelected, callWithIndex<&Tools::setBrush>},
    {"mnuBrushSize", 5, "mnuBrush", "&6", "", "", needs::always, Commits::No, isBrushSelected, callWithIndex<&Tools::setBrush>},
    // Palette
    {"mnuPaletteSub", 0, "mnuPalette", "&16-Color Palette", "", "chart-16", needs::always, Commits::No, isColorFrameUp, showColorFrame<&ColorSelection::imgGet16ColorChart>},
    {"mnuPaletteSub", 1, "mnuPalette", "&256-Color Palette", "", "chart-256", needs::always, Commits::No, isColorFrameUp, showColorFrame<&ColorSelection::imgGet256ColorChart>},
    {"mnuPaletteSub", 2, "mnuPalette", "&Direct Entry Of Color Value", "", "direct-entry", needs::always, Commits::No, isColorFrameUp, showColorFrame<&ColorSelection::imgGetDirectEntryColor>},
    {"mnuPaletteSub", 4, "mnuPalette", "&Load Palette ....", "", "load-palette", needs::always, Commits::No, nullptr, call<&PaletteFile::imgLoadPalette>},
    {"mnuPaletteSub", 5, "mnuPalette", "&Save Palette ....", "", "save-palette", needs::always, Commits::No, nullptr, call<&PaletteFile::imgSavePalette>},
    // Inquiry
    {"mnuEnquiryCurrent", 0, "mnuEnquiry", "Enquiry - &General Properties", "Ctrl+Q", "properties", needs::icon, Commits::No, nullptr, call<&Enquiry::showProperties>},
    {"mnuEnquiryCurrent", 2, "mnuEnquiry", "Enquiry - &Number Of Colors Used", "", "", needs::icon, Commits::No, nullptr, call<&Enquiry::showColorCount>},
    {"mnuEnquiryCurrent", 3, "mnuEnquiry", "Enquiry - Number Of B&ytes", "", "", needs::icon, Commits::No, nullptr, call<&Enquiry::showByteCount>},
    {"mnuEnquiryCurrent", 5, "mnuEnquiry", "Enquiry - &Original Header Entry  (If Diff To Image Data)", "", "", needs::discrepancy, Commits::No, nullptr, call<&Enquiry::showOriginalHeaders>},
    {"mnuEnquiryCurrent", 7, "mnuEnquiry", "&Preview With Different Screen Colors ....", "Ctrl+P", "", needs::icon, Commits::No, nullptr, call<&PreviewPanel::open, PreviewForm::ScreenColors>},
    {"mnuEnquiryCurrent", 9, "mnuEnquiry", "&Show Icons In Current Multi-Icon File ....", "Ctrl+M", "", needs::multiIconFile, Commits::Yes, nullptr, call<&Enquiry::showIconsInFile>},
    {"mnuEnquiryCurrent", 10, "mnuEnquiry", "&View Current Icon With Alpha Effects", "Ctrl+A", "", needs::alpha, Commits::No, nullptr, call<&PreviewPanel::open, PreviewForm::AlphaEffects>},
    {"mnuEnquiryCurrent", 11, "mnuEnquiry", "&Reveal Hotspot Of Original Cursor", "Ctrl+H", "", needs::cursor, Commits::No, nullptr, call<&Enquiry::revealHotspot>},
    // Options
    {"mnuOptionsSub", 0, "mnuOptions", "&Grid In Editing Area", "", "", needs::always, Commits::No, nullptr, nullptr},
    {"mnuOptionsSubGrid", 0, "mnuOptionsSub(0)", "Clean Grid With &Light Lines", "", "", needs::always, Commits::No, isGridSelected, callWithIndex<&EditingAreaOptions::SetGrid>},
    {"mnuOptionsSubGrid", 1, "mnuOptionsSub(0)", "Clean Grid With &Dark Lines", "", "", needs::always, Commits::No, isGridSelected, callWithIndex<&EditingAreaOptions::SetGrid>},
    {"mnuOptionsSubGrid", 2, "mnuOptionsSub(0)", "Clean Grid With D&otted Lines", "", "", needs::always, Commits::No, isGridSelected, callWithIndex<&EditingAreaOptions::SetGrid>},
    {"mnuOptionsSubGrid", 3, "mnuOptionsSub(0)", "Patterned Grid - &Gray", "", "", needs::always, Commits::No, isGridSelected, callWithIndex<&EditingAreaOptions::SetGrid>},
    {"mnuOptionsSubGrid", 4, "mnuOptionsSub(0)", "Patterned Grid - Light &Blue", "", "", needs::always, Commits::No, isGridSelected, callWithIndex<&EditingAreaOptions::SetGrid>},
    {"mnuOptionsSubGrid", 5, "mnuOptionsSub(0)", "Patterned Grid -&Turquoise", "", "", needs::always, Commits::No, isGridSelected, callWithIndex<&EditingAreaOptions::SetGrid>},
    {"mnuOptionsSubGrid", 6, "mnuOptionsSub(0)", "&No Grid", "", "", needs::always, Commits::No, isGridSelected, callWithIndex<&EditingAreaOptions::SetGrid>},
    {"mnuOptionsSub", 2, "mnuOptions", "&Start Screen", "", "", needs::always, Commits::No, nullptr, nullptr},
    {"mnuOptionsStartScreenSub", 0, "mnuOptionsSub(2)", "&Default Size", "", "", needs::always, Commits::No, isStartScreenSelected, callWithIndex<&Shell::selectStartScreen>},
    {"mnuOptionsStartScreenSub", 1, "mnuOptionsSub(2)", "Default If Not &Maximized In Last Session ", "", "", needs::always, Commits::No, isStartScreenSelected, callWithIndex<&Shell::selectStartScreen>},
    {"mnuOptionsStartScreenSub", 2, "mnuOptionsSub(2)", "&Per Last Session", "", "", needs::always, Commits::No, isStartScreenSelected, callWithIndex<&Shell::selectStartScreen>},
    {"mnuOptionsSub", 3, "mnuOptions", "Use Enlarged Editing Area When Screen Size Allo&ws", "Ctrl+W", "", needs::always, Commits::No, isOptionOn, callWithIndex<&Shell::toggleOption>},
    {"mnuOptionsSub", 5, "mnuOptions", "Display Pixel &RGB Of Current Icon", "", "", needs::always, Commits::No, isOptionOn, callWithIndex<&Shell::toggleOption>},
    {"mnuOptionsSub", 7, "mnuOptions", "Show &Tooltip Of Color Values of 256-Color Chart", "", "", needs::always, Commits::No, isOptionOn, callWithIndex<&Shell::toggleOption>},
    {"mnuOptionsSub", 9, "mnuOptions", "&Update Only Editing Area During Region Dragging", "", "", needs::noRegion, Commits::No, isOptionOn, callWithIndex<&Shell::toggleOption>},
    {"mnuOptionsSub", 11, "mnuOptions", "Prompt To Save On &Icons Panel Switching", "", "", needs::always, Commits::No, isOptionOn, callWithIndex<&Shell::toggleOption>},
    {"mnuOptionsSub", 12, "mnuOptions", "Remind To Create Transparent Area If &Bitmap", "", "", needs::always, Commits::No, isOptionOn, callWithIndex<&Shell::toggleOption>},
    {"mnuOptionsSub", 13, "mnuOptions", "Flag Message When Icon Is With &Alpha Channel", "", "", needs::always, Commits::No, isOptionOn, callWithIndex<&Shell::toggleOption>},
    {"mnuOptionsSub", 14, "mnuOptions", "Alert If &Original Icon File Header Entries Discrepant", "", "", needs::always, Commits::No, isOptionOn, callWithIndex<&Shell::toggleOption>},
    {"mnuOptionsSub", 16, "mnuOptions", "R&eset To Default", "", "", needs::always, Commits::No, nullptr, call<&Shell::confirmReset>},
    // Extract
    {"mnuExtractSub", 0, "mnuExtract", "Extract Icons From &ANI (Animated Cursor) File ....", "Ctrl+K", "", needs::always, Commits::Yes, nullptr, callWithIndex<&IconsList::mnuExtractSub>},
    {"mnuExtractSub", 1, "mnuExtract", "Extract &Large Icons - DLL Or Similar Resource....", "Ctrl+L", "", needs::always, Commits::Yes, nullptr, callWithIndex<&IconsList::mnuExtractSub>},
    {"mnuExtractSub", 2, "mnuExtract", "Extract &Small Icons - DLL Or Similar Resource....", "", "", needs::always, Commits::Yes, nullptr, callWithIndex<&IconsList::mnuExtractSub>},
    {"mnuExtractSub", 3, "mnuExtract", "Extract Icons From &ICL File ....", "", "", needs::always, Commits::Yes, nullptr, callWithIndex<&IconsList::mnuExtractSub>},
    {"mnuExtractSub", 4, "mnuExtract", "Extract Icons Associated With Any &File Type ....", "", "", needs::always, Commits::Yes, nullptr, callWithIndex<&IconsList::mnuExtractSub>},
    {"mnuExtractSub", 5, "mnuExtract", "Extract &Desktop Icons....", "", "", needs::always, Commits::Yes, nullptr, callWithIndex<&IconsList::mnuExtractSub>},
    {"mnuExtractSub", 7, "mnuExtract", "Search && &Extract Icons From All EXE Files In Folder....", "", "", needs::always, Commits::Yes, nullptr, call<&SearchPanel::open>},
    {"mnuExtractSub", 9, "mnuExtract", "&Capture Image From Desktop", "", "capture", needs::always, Commits::No, nullptr, nullptr},
    // Animation
    {"mnuANIFileCreateOrEdit", kNoIndex, "mnuANIFile", "&Create/Edit Animated Cursor File ....", "", "animation", needs::always, Commits::Yes, nullptr, call<&AniSession::enter>},
    {"mnuANIFileHistory", 0, "mnuANIFile", "", "", "", needs::always, Commits::No, nullptr, nullptr},
    {"mnuANIFileHistory", 1, "mnuANIFile", "", "", "", needs::always, Commits::Yes, nullptr, callWithIndex<&Shell::openFromAniHistory>},
    {"mnuANIFileHistory", 2, "mnuANIFile", "", "", "", needs::always, Commits::Yes, nullptr, callWithIndex<&Shell::openFromAniHistory>},
    {"mnuANIFileHistory", 3, "mnuANIFile", "", "", "", needs::always, Commits::Yes, nullptr, callWithIndex<&Shell::openFromAniHistory>},
    // Alpha
    {"mnuAlphaSub", 0, "mnuAlpha", "&View/Edit/Create Alpha Channel ....", "", "alpha", needs::icon, Commits::No, nullptr, callWithIndex<&AlphaCommands::mnuAlphaSub>},
    {"mnuAlphaSub", 1, "mnuAlpha", "&Convert 32 to 24 BPP (&& Retain Alpha Effects) ....", "", "", needs::icon, Commits::No, nullptr, callWithIndex<&AlphaCommands::mnuAlphaSub>},
    // Help
    {"mnuHelpSub", 0, "mnuHelp", "&Help ....", "F1", "help", needs::always, Commits::No, nullptr, call<&Shell::openHelp>},
    {"mnuHelpSub", 1, "mnuHelp", "&About ....", "", "info", needs::always, Commits::No, nullptr, call<&Shell::showAbout>},
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

}  // namespace

std::span<const TopMenu> topMenus() { return kTopMenus; }
std::span<const Command> commandTable() {
  static const std::vector<Command> kTable = withEffects(kCommands);
  return kTable;
}
std::span<const ToolbarButton> toolbarTable() { return kToolbar; }

}  // namespace gp
