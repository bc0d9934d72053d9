// The needs of the commands of drawing, colours and Inquiry, and what happens when they are not met: by menu, key,
// toolbar and tool box alike.
#include "document/PanelNumbers.h"
#include "support/ShellFixture.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace gp::test {
namespace {

constexpr const char* kNoIcon = "No icon in Editing Area yet";
constexpr int kNewIcon16 = 3, kUndoAll = 0, kUndo = 1, kRedo = 2, kCutAndCopy = 4, kEraseRegion = 5, kCopy = 6,
              kPaste = 7;
constexpr int kClearTools = 0, kPicker = 2, kHeaders = 5, kIconsInFile = 9, kHotspot = 11;

struct Row {
  const char* control;
  int index;
};

class CommandDispatch : public ShellFixture {
 protected:
  Drawing& drawing = shell.drawing();

  CommandDispatch() { start(); }
  // Discards what is unsaved without a question.
  void newIcon() {
    state.current().modified = false;
    click("mnuFileSub", kNewIcon16);
  }
  // A region around pixels 0, 0 to 1, 0, which are a and b.
  void markTwo(Color a, Color b) {
    newIcon();
    state.picImage.SetPixelV(0, 0, a);
    state.picImage.SetPixelV(1, 0, b);
    for (const int x : {0, 1}) state.picMask.SetPixelV(x, 0, kBlack);
    shell.document().editingArea.showChangedIcon();
    click("mnuTools", kRegion);
    const auto m = static_cast<float>(state.gMagnification);
    drawing.tools.press({kLeftButton, 0, 0, 0});
    drawing.tools.move({0, 0, 2 * m, m});
    drawing.tools.release({kLeftButton, 0, 2 * m, m});
    ASSERT_TRUE(state.mRegionExists);
  }
  // The colours of a row or column of two pixels, kNoColor where the icon is transparent.
  std::vector<Color> pixels(std::vector<std::pair<int, int>> places) const {
    std::vector<Color> colors;
    for (const auto& [x, y] : places)
      colors.push_back(state.picMask.GetPixel(x, y) == kBlack ? state.picImage.GetPixel(x, y) : kNoColor);
    return colors;
  }
  bool isBlank() const {
    return std::ranges::all_of(state.picMask.pixels(),
                               [](std::uint32_t pixel) { return (pixel & kColorBits) == kWhite; });
  }
};

// Without an icon.

TEST_F(CommandDispatch, CommandsOnAnIconSayThatThereIsNone) {
  std::vector<Row> rows = {{"mnuTools", kPicker},
                           {"mnuEditSub", kUndoAll},
                           {"mnuEditSub", kUndo},
                           {"mnuEditSub", kRedo},
                           {"mnuEditSub", kCopy},
                           {"mnuEditSub", 13},
                           {"mnuEditSubCopyToContainer", 0},
                           {"mnuEditSubCopyToContainer", 2},
                           {"mnuEnquiryCurrent", kHeaders},
                           {"mnuEnquiryCurrent", kIconsInFile},
                           {"mnuEnquiryCurrent", kHotspot},
                           {"mnuPopUpSub", 3},
                           {"mnuPopUpSub", 7}};
  for (int tool = kPaint; tool <= kShift; ++tool) rows.push_back({"mnuTools", tool});
  for (int index = 0; index <= 4; ++index) rows.push_back({"mnuRotateSubmenu", index});
  for (const Row& row : rows) {
    SCOPED_TRACE(objectNameOf(row.control, row.index));
    EXPECT_FALSE(enabled(row.control, row.index));
    boxes.expectTold(kNoIcon, BoxIcon::None);
    click(row.control, row.index);
    EXPECT_TRUE(boxes.done());
  }
  EXPECT_EQ(drawing.tools.selectedTool(), kNoTool);
  EXPECT_FALSE(shell.colour().selection.isPickerSelected());
  EXPECT_EQ(drawing.history.undoCount(), 0);
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
  EXPECT_FALSE(clipboard.held);
  EXPECT_EQ(clipboard.clears, 0);
  EXPECT_EQ(display.nudges, 0);
  EXPECT_FALSE(state.current().used);
  EXPECT_FALSE(state.mIconRecs[2].used);
  EXPECT_EQ(form.multiIcons + form.headerDiffs, 0);
}

TEST_F(CommandDispatch, TheToolBoxSaysThatThereIsNoIcon) {
  boxes.expectTold(kNoIcon, BoxIcon::None);
  shell.chooseTool(kPaint);
  EXPECT_EQ(drawing.tools.selectedTool(), kNoTool);
  boxes.expectTold(kNoIcon, BoxIcon::None);
  shell.chooseColorPicker();
  EXPECT_FALSE(shell.colour().selection.isPickerSelected());
  boxes.expectTold(kNoIcon, BoxIcon::None);
  shell.shiftTowards(ShiftCell::Top);
  EXPECT_EQ(drawing.shift.mShiftY(), 0);
}

TEST_F(CommandDispatch, ClearToolsCutAndEraseSayNothingWithoutAnIcon) {
  const unsigned icon = state.iconSerial;
  for (const Row& row : {Row{"mnuTools", kClearTools}, {"mnuEditSub", kCutAndCopy}, {"mnuEditSub", kEraseRegion}}) {
    EXPECT_FALSE(enabled(row.control, row.index));
    click(row.control, row.index);
  }
  EXPECT_EQ(display.nudges, 0);
  EXPECT_EQ(clipboard.clears, 0);
  EXPECT_EQ(drawing.history.undoCount(), 0);
  EXPECT_EQ(state.iconSerial, icon);
}

// The tool box.

TEST_F(CommandDispatch, TheToolBoxSelectsToolsAndPicker) {
  newIcon();
  shell.chooseTool(kErase);
  EXPECT_EQ(drawing.tools.selectedTool(), kErase);
  shell.chooseTool(kErase);
  EXPECT_EQ(drawing.tools.selectedTool(), kNoTool);
  EXPECT_EQ(display.nudges, 0) << "the pointer is not over the Editing Area";
  shell.chooseColorPicker();
  EXPECT_TRUE(shell.colour().selection.isPickerSelected());
}

TEST_F(CommandDispatch, ThePadMovesThePictureOnceShiftIsSelected) {
  newIcon();
  paint(5, 5);
  boxes.expectTold("Please select Shift first (middle square)", BoxIcon::None);
  shell.shiftTowards(ShiftCell::Right);
  EXPECT_EQ(state.picMask.GetPixel(5, 5), kBlack);
  shell.chooseTool(kShift);
  shell.shiftTowards(ShiftCell::Right);
  EXPECT_EQ(state.picMask.GetPixel(5, 5), kWhite);
  EXPECT_EQ(state.picMask.GetPixel(6, 5), kBlack);
}

TEST_F(CommandDispatch, TheMenuSelectsEachToolByItsIndexAndNudgesThePointer) {
  newIcon();
  click("mnuTools", kClearTools);
  EXPECT_EQ(drawing.tools.selectedTool(), kNoTool);
  EXPECT_EQ(display.nudges, 1);
  for (int tool = kPaint; tool <= kShift; ++tool) {
    const int nudges = display.nudges;
    click("mnuTools", tool);
    EXPECT_EQ(drawing.tools.selectedTool(), tool);
    EXPECT_EQ(display.nudges, nudges + 1);
  }
}

TEST_F(CommandDispatch, TheMenusPickerWorksWithTheLargeChartOnly) {
  newIcon();
  click("mnuPaletteSub", 0);
  const int nudges = display.nudges;
  click("mnuTools", kPicker);
  EXPECT_FALSE(shell.colour().selection.isPickerSelected());
  EXPECT_EQ(display.nudges, nudges);
  click("mnuPaletteSub", 1);
  click("mnuTools", kPicker);
  EXPECT_TRUE(shell.colour().selection.isPickerSelected());
  EXPECT_EQ(display.nudges, nudges + 1);
}

TEST_F(CommandDispatch, ThePickerPutsTheToolAway) {
  newIcon();
  click("mnuPaletteSub", 1);
  click("mnuTools", kErase);
  click("mnuTools", kPicker);
  EXPECT_EQ(drawing.tools.selectedTool(), kNoTool);
  EXPECT_TRUE(checked("mnuTools", kPicker));
  click("mnuTools", kErase);
  EXPECT_FALSE(checked("mnuTools", kPicker));
}

TEST_F(CommandDispatch, ClearToolsEndsARegionAsAStep) {
  markTwo(1, 2);
  const int steps = drawing.history.undoCount();
  click("mnuTools", kClearTools);
  EXPECT_FALSE(state.mRegionExists);
  EXPECT_EQ(drawing.history.undoCount(), steps + 1);
}

// Edit.

TEST_F(CommandDispatch, CutAndEraseWithoutARegionDoNothing) {
  newIcon();
  paint(3, 3);
  const int steps = drawing.history.undoCount();
  for (const int index : {kCutAndCopy, kEraseRegion}) click("mnuEditSub", index);
  EXPECT_EQ(state.picMask.GetPixel(3, 3), kBlack);
  EXPECT_EQ(drawing.history.undoCount(), steps);
  EXPECT_FALSE(clipboard.held);
  EXPECT_EQ(clipboard.clears, 0);
}

TEST_F(CommandDispatch, CutKeepsTheRegionInTheClipboardAndEraseDoesNot) {
  markTwo(0x0000FF, 0x00FF00);
  click("mnuEditSub", kEraseRegion);
  EXPECT_TRUE(isBlank());
  EXPECT_FALSE(clipboard.held);
  markTwo(0x0000FF, 0x00FF00);
  click("mnuEditSub", kCutAndCopy);
  EXPECT_TRUE(isBlank());
  ASSERT_TRUE(clipboard.held);
  EXPECT_EQ(clipboard.held->corner.GetPixel(1, 0), 0x00FF00);
}

TEST_F(CommandDispatch, PasteSaysThatThereIsNoPicture) {
  newIcon();
  for (const int index : {kPaste, kPaste + 1}) {
    boxes.expectTold("No image in clipboard yet", BoxIcon::None);
    click("mnuEditSub", index);
  }
  EXPECT_FALSE(state.mRegionExists);
}

TEST_F(CommandDispatch, WhileTheIconsListIsUpAPasteDoesNothing) {
  newIcon();
  state.screen.mActivePanel = kIconsListPanel;
  click("mnuEditSub", kPaste);
  clipboard.hold(Surface(2, 2, 0x0000FF));
  click("mnuEditSub", kPaste);
  EXPECT_TRUE(isBlank());
  EXPECT_FALSE(state.mRegionExists);
  EXPECT_EQ(state.screen.mActivePanel, kIconsListPanel);
}

TEST_F(CommandDispatch, PasteNeedsNoIconAndOpaqueKeepsSilver) {
  clipboard.hold(Surface(16, 16, kGround));
  click("mnuEditSub", kPaste);
  EXPECT_EQ(state.current().size, 16);
  EXPECT_TRUE(isBlank()) << "silver counts as the ground";
  click("mnuEditSub", kPaste + 1);
  EXPECT_EQ(state.picMask.GetPixel(15, 15), kBlack);
  EXPECT_EQ(state.picImage.GetPixel(15, 15), kGround);
}

TEST_F(CommandDispatch, UndoAndRedoAreSilentWhereThereIsNoStep) {
  newIcon();
  for (const int index : {kUndoAll, kUndo, kRedo}) {
    EXPECT_FALSE(enabled("mnuEditSub", index));
    click("mnuEditSub", index);
  }
  EXPECT_EQ(drawing.history.undoCount(), 1);
}

TEST_F(CommandDispatch, UndoRedoAndUndoAllHaveTheirRows) {
  newIcon();
  paint(1, 1);
  paint(3, 3);
  click("mnuEditSub", kUndo);
  EXPECT_EQ(pixels({{1, 1}, {3, 3}}), (std::vector<Color>{kWhite, kNoColor}));
  click("mnuEditSub", kRedo);
  EXPECT_EQ(pixels({{1, 1}, {3, 3}}), (std::vector<Color>{kWhite, kWhite}));
  click("mnuEditSub", kUndoAll);
  EXPECT_TRUE(isBlank());
  EXPECT_FALSE(enabled("mnuEditSub", kRedo));
}

TEST_F(CommandDispatch, AnIconIsNotCopiedToItsOwnContainerNorFromThereNorFromAnEmptyOne) {
  boxes.expectTold("Cannot copy from empty container", BoxIcon::None);
  click("mnuEditSubCopyFromContainer", 4);
  newIcon();
  paint(2, 2);
  boxes.expectTold("Cannot copy to current container itself", BoxIcon::None);
  click("mnuEditSubCopyToContainer", 0);
  boxes.expectTold("Cannot copy from empty container", BoxIcon::None);
  click("mnuEditSubCopyFromContainer", 4);
  const unsigned icon = state.iconSerial;
  click("mnuEditSubCopyFromContainer", 0);
  EXPECT_EQ(state.iconSerial, icon);
  EXPECT_EQ(state.picMask.GetPixel(2, 2), kBlack) << "it would have shown the container's copy";
  for (int container = 0; container < kContainerCount; ++container) {
    EXPECT_EQ(enabled("mnuEditSubCopyToContainer", container), container != 0);
    EXPECT_FALSE(enabled("mnuEditSubCopyFromContainer", container));
  }
}

TEST_F(CommandDispatch, EachContainerHasItsRowForCopies) {
  newIcon();
  for (int container = 1; container < kContainerCount; ++container) {
    boxes.expectAsked("Copy current icon to Container " + std::to_string(container + 1) + ".  Proceed?\n",
                      BoxAnswer::Yes);
    click("mnuEditSubCopyToContainer", container);
    EXPECT_TRUE(state.mIconRecs[static_cast<std::size_t>(container)].used);
    EXPECT_TRUE(enabled("mnuEditSubCopyFromContainer", container));
    boxes.expectAsked("Copy from Container " + std::to_string(container + 1) + " to current container.  Proceed?",
                      BoxAnswer::No);
    click("mnuEditSubCopyFromContainer", container);
  }
}

// Rotate.

TEST_F(CommandDispatch, TheRotateMenuRunsEachRoutineByItsIndex) {
  constexpr Color kA = 0x0000F0, kB = 0x00F000;
  struct Case {
    std::vector<std::pair<int, int>> places;
    std::vector<Color> colors;
  };
  const Case cases[] = {{{{0, 0}, {1, 0}}, {kB, kA}},
                        {{{0, 0}, {1, 0}}, {kA, kB}},
                        {{{0, 0}, {0, 1}}, {kB, kA}},
                        {{{0, 0}, {0, 1}}, {kA, kB}}};
  for (int index = 0; index < 4; ++index) {
    markTwo(kA, kB);
    click("mnuRotateSubmenu", index);
    EXPECT_EQ(pixels(cases[index].places), cases[index].colors) << index;
    EXPECT_TRUE(state.mRegionExists);
  }
  click("mnuRotateSubmenu", 4);
  EXPECT_EQ(state.screen.mActivePanel, kRotatePanel);
}

// Inquiry.

TEST_F(CommandDispatch, HeadersThatAgreeAreNotShownAndDiscrepantOnesAre) {
  const std::string path = folder.write("plain.ico", plainIconFile(16, 3));
  bool ok = false;
  shell.files().iconFiles.doOpenIconFile(path, true, ok);
  ASSERT_TRUE(ok);
  click("mnuEnquiryCurrent", kHeaders);
  EXPECT_EQ(form.headerDiffs, 0);
  state.current().bihBitCount = 8;
  click("mnuEnquiryCurrent", kHeaders);
  EXPECT_EQ(form.headerDiffs, 1);
}

TEST_F(CommandDispatch, AnIconOfASingleIconFileHasNoOthersToShow) {
  newIcon();
  for (const Row& row : {Row{"mnuEnquiryCurrent", kIconsInFile}, {"mnuPopUpSub", 3}}) {
    EXPECT_FALSE(enabled(row.control, row.index));
    click(row.control, row.index);
  }
  EXPECT_EQ(form.multiIcons, 0);
}

TEST_F(CommandDispatch, OnlyCursorsHaveAHotSpotToReveal) {
  newIcon();
  for (const Row& row : {Row{"mnuEnquiryCurrent", kHotspot}, {"mnuPopUpSub", 7}}) {
    state.current().isCursor = false;
    pump.waitedMilliseconds = 0;
    click(row.control, row.index);
    EXPECT_EQ(pump.waitedMilliseconds, 0);
    state.current().isCursor = true;
    click(row.control, row.index);
    EXPECT_EQ(pump.waitedMilliseconds, 900);
  }
}

// What is open on the Editing Area.

TEST_F(CommandDispatch, ShowingTheIconsInTheFileCommitsAFloatingRegionFirst) {
  for (const Row& row : {Row{"mnuEnquiryCurrent", kIconsInFile}, {"mnuPopUpSub", 3}}) {
    markTwo(1, 2);
    click("mnuRotateSubmenu", 0);
    ASSERT_TRUE(state.mPendingPaint);
    state.current().fromMultiIconFile = true;
    state.current().modified = true;
    // The user is asked about the icon that includes the region.
    boxes.expect("Save current icon to file?", BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::Cancel);
    click(row.control, row.index);
    EXPECT_FALSE(state.mPendingPaint);
    EXPECT_FALSE(state.mRegionExists);
    EXPECT_EQ(state.picPanelImage[0].GetPixel(0, 0), 2);
  }
}

TEST_F(CommandDispatch, ACommandThatCannotRunCommitsNothing) {
  for (const Row& row : {Row{"mnuEnquiryCurrent", kIconsInFile}, {"mnuPopUpSub", 3}}) {
    markTwo(1, 2);
    click("mnuRotateSubmenu", 0);
    ASSERT_TRUE(state.mPendingPaint);
    click(row.control, row.index);
    EXPECT_TRUE(state.mPendingPaint);
    EXPECT_TRUE(state.mRegionExists);
    EXPECT_EQ(form.multiIcons, 0);
  }
}

TEST_F(CommandDispatch, CommandsOfDrawingLeaveAFloatingRegionFloating) {
  clipboard.hold(Surface(4, 4, 0x0000FF));
  for (const Row& row : {Row{"mnuEditSub", kCopy},
                         {"mnuRotateSubmenu", 0},
                         {"mnuRotateSubmenu", 2},
                         {"mnuPaletteSub", 1},
                         {"mnuBrushSize", 2},
                         {"mnuEnquiryCurrent", kHotspot}}) {
    newIcon();
    state.current().isCursor = true;
    click("mnuEditSub", kPaste);
    ASSERT_TRUE(state.mPendingPaint);
    click(row.control, row.index);
    EXPECT_TRUE(state.mPendingPaint) << objectNameOf(row.control, row.index);
    EXPECT_TRUE(state.mRegionExists) << objectNameOf(row.control, row.index);
  }
}

// The serial number of the Current Icon.

class IconSerial : public CommandDispatch {
 protected:
  // The number by which a command raises it.
  unsigned raisedBy(const char* control, int index) {
    const unsigned before = state.iconSerial;
    click(control, index);
    return state.iconSerial - before;
  }
};

TEST_F(IconSerial, IsRaisedByEveryIconThatArrives) {
  EXPECT_EQ(raisedBy("mnuFileSub", kNewIcon16), 1U);
  dialogs.paths = {folder.write("plain.ico", plainIconFile(16, 3))};
  EXPECT_EQ(raisedBy("mnuFileSub", 7), 1U) << "opened";
  boxes.expectAsked("Copy current icon to Container 3.  Proceed?\n", BoxAnswer::Yes);
  EXPECT_EQ(raisedBy("mnuEditSubCopyToContainer", 2), 0U) << "it stays where it is";
  boxes.expectAsked("Copy from Container 3 to current container.  Proceed?", BoxAnswer::Yes);
  EXPECT_EQ(raisedBy("mnuEditSubCopyFromContainer", 2), 1U);
  state.current().neverSaved = false;
  boxes.expectAsked("Clear current icon from container.  Proceed?\n", BoxAnswer::Yes);
  EXPECT_EQ(raisedBy("mnuEditSub", 13), 1U) << "no icon is another one too";
  clipboard.hold(Surface(16, 16, 0x0000FF));
  EXPECT_EQ(raisedBy("mnuEditSub", kPaste), 1U) << "a paste into the empty container";
  const unsigned before = state.iconSerial;
  state.current().modified = false;
  shell.document().iconsPanel.SwitchContainer(2);
  EXPECT_EQ(state.iconSerial, before + 1);
}

TEST_F(IconSerial, IsNotRaisedByPaintingAndWhatChangesTheIcon) {
  newIcon();
  const unsigned before = state.iconSerial;
  paint(1, 1);
  paint(2, 2);
  for (const Row& row : {Row{"mnuEditSub", kUndo},
                         {"mnuEditSub", kRedo},
                         {"mnuEditSub", kUndoAll},
                         {"mnuRotateSubmenu", 0},
                         {"mnuRotateSubmenu", 3},
                         {"mnuTools", kRegion},
                         {"mnuEditSub", kCopy},
                         {"mnuEditSub", kPaste},
                         {"mnuEditSub", kEraseRegion},
                         {"mnuTools", kShift},
                         {"mnuOptionsSubGrid", 3},
                         {"mnuOptionsSub", 3},
                         {"mnuPaletteSub", 1},
                         {"mnuEnquiryCurrent", kHeaders}})
    EXPECT_EQ(raisedBy(row.control, row.index), 0U) << objectNameOf(row.control, row.index);
  EXPECT_EQ(state.iconSerial, before);
}

TEST_F(IconSerial, IsNotRaisedBySaving) {
  newIcon();
  paint(1, 1);
  dialogs.paths = {folder.file("saved.ico")};
  EXPECT_EQ(raisedBy("mnuFileSub", 13), 0U);
  EXPECT_EQ(state.current().path.trimmed(), folder.file("saved.ico"));
  paint(2, 2);
  EXPECT_EQ(raisedBy("mnuFileSub", 12), 0U);
  EXPECT_FALSE(state.current().modified);
}

TEST_F(IconSerial, IsNotRaisedByAFileThatCannotBeOpened) {
  newIcon();
  const std::string path = folder.write("broken.ico", "no icon");
  dialogs.paths = {path};
  boxes.expectTold(path +
                       "\n\nInvalid icon file or icon not a size of 16x16, 24x24, 32x32 or 48x48.\nPlease try to use "
                       "Open Bitmap File menu instead.",
                   BoxIcon::Exclamation);
  EXPECT_EQ(raisedBy("mnuFileSub", 7), 0U);
}

}  // namespace
}  // namespace gp::test
