#include "document/Containers.h"
#include "document/CurrentIcon.h"
#include "document/DocumentFixture.h"

#include <algorithm>

namespace gp {
namespace {

constexpr Color kRed = 0x0000FF;
constexpr Color kBlue = 0xFF0000;

bool same(const Surface& a, const Surface& b) {
  return a.width() == b.width() && a.height() == b.height() && std::ranges::equal(a.pixels(), b.pixels());
}

class IconArrivalTest : public test::DocumentFixture {
 protected:
  IconArrivalTest() {
    for (int i = 0; i < kContainerCount; ++i) state.mIconRecs[static_cast<std::size_t>(i)].seq = static_cast<short>(i);
    state.gGridColor = kNoGrid;
  }
  // An icon of 16 with an opaque red pixel, an opaque black one and an inverting one; the rest is transparent.
  static IconImage drawnIcon() {
    IconImage icon = transparentIcon(16);
    icon.image.SetPixelV(0, 0, kRed);
    icon.mask.SetPixelV(0, 0, kBlack);
    icon.mask.SetPixelV(15, 0, kBlack);
    icon.image.SetPixelV(0, 15, kWhite);
    return icon;
  }
  // Every field differs from that of an empty record.
  static IconContainerRec fullRecord() {
    IconContainerRec record;
    record.seq = 77;
    record.used = true;
    record.sourceLabel = "ICO file";
    record.dirColors = kTrueColor;
    record.bitCount = kBitsWithAlpha;
    record.hasAlpha = true;
    record.bihColors = 16;
    record.bihBitCount = 4;
    record.present = true;
    record.size = 48;
    record.path = "/a/b.ico";
    record.fromMultiIconFile = true;
    record.multiIconIndex = 3;
    record.isCursor = true;
    record.hotspotX = 4;
    record.hotspotY = 5;
    record.neverSaved = true;
    record.modified = true;
    return record;
  }
  static IconImage alphaIcon(int size, std::uint8_t value) {
    IconImage icon = plainIcon(size, kRed);
    icon.alpha = AlphaMatrix(size, size, value);
    return icon;
  }
  static IconContainerRec alphaRecord() {
    IconContainerRec record = NewRecord();
    record.dirColors = kTrueColor;
    record.bitCount = kBitsWithAlpha;
    record.hasAlpha = true;
    return record;
  }
  void expectShown(const IconImage& icon) {
    EXPECT_TRUE(same(state.picImage, icon.image));
    EXPECT_TRUE(same(state.picMask, icon.mask));
    EXPECT_EQ(state.picDisp.width(), icon.width() * state.gMagnification);
    EXPECT_EQ(state.picDisp.height(), icon.width() * state.gMagnification);
  }
};

TEST_F(IconArrivalTest, TheRecordIsTakenOverButItsNumberAndSizeAreThoseOfContainerAndIcon) {
  state.mCurContainer = 2;
  arrival.arrive(alphaIcon(16, 9), fullRecord());
  const IconContainerRec& record = state.mIconRecs[2];
  EXPECT_EQ(record.seq, 2);
  EXPECT_TRUE(record.used);
  EXPECT_EQ(record.sourceLabel.trimmed(), "ICO file");
  EXPECT_EQ(record.dirColors, kTrueColor);
  EXPECT_EQ(record.bitCount, kBitsWithAlpha);
  EXPECT_TRUE(record.hasAlpha);
  EXPECT_EQ(record.bihColors, 16);
  EXPECT_EQ(record.bihBitCount, 4);
  EXPECT_TRUE(record.present);
  EXPECT_EQ(record.size, 16);
  EXPECT_EQ(record.path.trimmed(), "/a/b.ico");
  EXPECT_TRUE(record.fromMultiIconFile);
  EXPECT_EQ(record.multiIconIndex, 3);
  EXPECT_TRUE(record.isCursor);
  EXPECT_EQ(record.hotspotX, 4);
  EXPECT_EQ(record.hotspotY, 5);
  EXPECT_TRUE(record.neverSaved);
  EXPECT_TRUE(record.modified);
  EXPECT_EQ(state.mCurContainer, 2);
}

TEST_F(IconArrivalTest, NothingButTheNumberOfTheFormerRecordIsLeft) {
  state.mCurContainer = 4;
  arrival.arrive(alphaIcon(48, 9), fullRecord());
  arrival.arrive(drawnIcon(), NewRecord());
  const IconContainerRec& record = state.mIconRecs[4];
  EXPECT_EQ(record.seq, 4);
  EXPECT_EQ(record.sourceLabel.trimmed(), "New icon");
  EXPECT_EQ(record.dirColors, 0);
  EXPECT_EQ(record.bitCount, 0);
  EXPECT_FALSE(record.hasAlpha);
  EXPECT_EQ(record.bihColors, 0);
  EXPECT_EQ(record.bihBitCount, 0);
  EXPECT_EQ(record.size, 16);
  EXPECT_EQ(record.path.trimmed(), "Untitled");
  EXPECT_FALSE(record.fromMultiIconFile);
  EXPECT_EQ(record.multiIconIndex, 0);
  EXPECT_FALSE(record.isCursor);
  EXPECT_EQ(record.hotspotX, 0);
  EXPECT_EQ(record.hotspotY, 0);
  EXPECT_FALSE(record.neverSaved);
  EXPECT_FALSE(record.modified);
}

TEST_F(IconArrivalTest, AnIconIsUsedAndPresentWhateverItsRecordSays) {
  arrival.arrive(drawnIcon(), IconContainerRec());
  EXPECT_TRUE(state.current().used);
  EXPECT_TRUE(state.current().present);
}

TEST_F(IconArrivalTest, TheOtherContainersStayAsTheyAre) {
  arrival.arrive(plainIcon(24, kBlue), NewRecord());
  const Surface image = state.picPanelImage[0];
  state.mCurContainer = 1;
  arrival.arrive(drawnIcon(), NewRecord());
  EXPECT_TRUE(same(state.picPanelImage[0], image));
  EXPECT_EQ(state.mIconRecs[0].size, 24);
  EXPECT_FALSE(state.mIconRecs[2].used);
  EXPECT_EQ(state.picPanelImage[2].width(), 0);
}

TEST_F(IconArrivalTest, TheSurfacesShowTheIconPixelByPixel) {
  arrival.arrive(plainIcon(48, kBlue), NewRecord());
  arrival.arrive(drawnIcon(), NewRecord());
  expectShown(drawnIcon());
  EXPECT_EQ(state.PicIcon.width(), 16);
  EXPECT_EQ(state.PicIcon.GetPixel(0, 0), kRed);
  EXPECT_EQ(state.PicIcon.GetPixel(15, 0), kBlack);
  EXPECT_EQ(state.PicIcon.GetPixel(0, 15), kWhite ^ kGround);
  EXPECT_EQ(state.PicIcon.GetPixel(8, 8), kGround);
  const int m = state.gMagnification;
  EXPECT_EQ(m, 12);
  EXPECT_EQ(state.picDisp.GetPixel(m / 2, m / 2), kRed);
  EXPECT_EQ(state.picDisp.GetPixel(15 * m + m / 2, m / 2), kBlack);
  EXPECT_EQ(state.picDisp.GetPixel(m / 2, 15 * m + m / 2), kWhite ^ kGround);
  EXPECT_EQ(state.picDisp.GetPixel(8 * m, 8 * m), kGround);
  EXPECT_TRUE(display.hasChanged(DisplayPart::EditingArea));
}

TEST_F(IconArrivalTest, EverySizeIsShownAtItsOwnMagnification) {
  for (const int size : kIconSides) {
    arrival.arrive(plainIcon(size, kRed), NewRecord());
    EXPECT_EQ(state.current().size, size);
    EXPECT_EQ(state.gMagnification, size == 48 ? 8 : 12);
    expectShown(plainIcon(size, kRed));
    EXPECT_EQ(status(StatusPanel::Size), std::to_string(size) + " x " + std::to_string(size));
  }
}

TEST_F(IconArrivalTest, TheContainerGetsItsOwnCopy) {
  state.mCurContainer = 5;
  arrival.arrive(drawnIcon(), NewRecord());
  EXPECT_TRUE(same(state.picPanelImage[5], drawnIcon().image));
  EXPECT_TRUE(same(state.picPanelMask[5], drawnIcon().mask));
  EXPECT_TRUE(same(state.picPanelIcon[5], state.PicIcon));
  EXPECT_TRUE(display.hasChanged(DisplayPart::IconsPanel));
  state.picImage.fill(kBlue);
  EXPECT_EQ(state.picPanelImage[5].GetPixel(0, 0), kRed);
}

TEST_F(IconArrivalTest, ToolsStatusBarAndCommandsFollow) {
  state.screen.progressPercent = 40;
  arrival.arrive(drawnIcon(), NewRecord());
  EXPECT_GE(editor.count("clearAllTools"), 1);
  EXPECT_GE(editor.count("UpdateCommands"), 1);
  EXPECT_TRUE(state.screen.fraTools[1]);
  EXPECT_EQ(status(StatusPanel::Path), "Untitled");
  EXPECT_EQ(state.screen.progressPercent, -1);
  EXPECT_TRUE(display.hasChanged(DisplayPart::StatusBar));
}

TEST_F(IconArrivalTest, ViewsThatFollowTheCurrentIconAreNotifiedOnceItIsTheNewOne) {
  arrival.arrive(plainIcon(16, kBlue), NewRecord());
  const unsigned before = state.iconSerial;
  bool isNew = false;
  display.onChanged = [&](DisplayPart part) {
    if (part != DisplayPart::IconsPanel) return;
    isNew = state.iconSerial == before + 1 && state.PicIcon.GetPixel(0, 0) == kRed;
  };
  arrival.arrive(drawnIcon(), NewRecord());
  EXPECT_TRUE(isNew);
}

TEST_F(IconArrivalTest, AnIconWithAlphaKeepsAValueForEachPixel) {
  IconImage icon = alphaIcon(24, 200);
  icon.alpha.at(23, 5) = 7;
  arrival.arrive(icon, alphaRecord());
  EXPECT_EQ(currentIcon(state).alpha, icon.alpha);
  EXPECT_EQ(state.mAlphaRecs[0], icon.alpha);
  EXPECT_TRUE(AlphaRecIsReady(state));
  EXPECT_TRUE(state.current().hasAlpha);
  EXPECT_EQ(state.current().bitCount, kBitsWithAlpha);
  EXPECT_TRUE(state.screen.imgAlphaOnStatusPanel);
}

TEST_F(IconArrivalTest, AnIconThatLacksItsAlphaValuesBecomesOneOf24Bits) {
  for (const AlphaMatrix& alpha : {AlphaMatrix(), AlphaMatrix(16, 16), AlphaMatrix(24, 16), AlphaMatrix(32, 32)}) {
    IconImage icon = plainIcon(24, kRed);
    icon.alpha = alpha;
    arrival.arrive(icon, alphaRecord());
    EXPECT_FALSE(state.current().hasAlpha);
    EXPECT_EQ(state.current().bitCount, kBitsWithoutAlpha);
    EXPECT_EQ(state.current().dirColors, kTrueColor);
    EXPECT_EQ(currentIcon(state).alpha, AlphaMatrix());
    EXPECT_EQ(state.mAlphaRecs[0], AlphaMatrix());
    EXPECT_FALSE(state.screen.imgAlphaOnStatusPanel);
  }
}

TEST_F(IconArrivalTest, OnlyATrueColorIconOf32BitsKeepsAlphaValues) {
  IconContainerRec record = alphaRecord();
  record.dirColors = 256;
  arrival.arrive(alphaIcon(16, 200), record);
  EXPECT_FALSE(state.current().hasAlpha);
  EXPECT_EQ(currentIcon(state).alpha, AlphaMatrix());
  record = alphaRecord();
  record.bitCount = kBitsWithoutAlpha;
  arrival.arrive(alphaIcon(16, 200), record);
  EXPECT_FALSE(state.current().hasAlpha);
  EXPECT_EQ(currentIcon(state).alpha, AlphaMatrix());
}

TEST_F(IconArrivalTest, AlphaValuesOfAnIconWithoutAlphaAreDroppedAndItsDepthStays) {
  IconContainerRec record = alphaRecord();
  record.hasAlpha = false;
  arrival.arrive(alphaIcon(16, 200), record);
  EXPECT_EQ(state.current().bitCount, kBitsWithAlpha);
  EXPECT_EQ(currentIcon(state).alpha, AlphaMatrix());
  EXPECT_EQ(state.mAlphaRecs[0], AlphaMatrix());
}

TEST_F(IconArrivalTest, AnIconWithoutAlphaLeavesNoValuesOfTheFormerOne) {
  arrival.arrive(alphaIcon(16, 200), alphaRecord());
  arrival.arrive(drawnIcon(), NewRecord());
  EXPECT_EQ(currentIcon(state).alpha, AlphaMatrix());
  EXPECT_EQ(state.mAlphaRecs[0], AlphaMatrix());
}

TEST_F(IconArrivalTest, ARegionOfTheFormerIconEndsBeforeTheSurfacesChange) {
  arrival.arrive(plainIcon(32, kBlue), NewRecord());
  std::vector<int> widths;
  Color pixel = kNoColor;
  const unsigned before = state.iconSerial;
  unsigned serialThen = 0;
  editor.atCall("clearRegion", [&] {
    widths.push_back(state.picImage.width());
    pixel = state.picImage.GetPixel(0, 0);
    serialThen = state.iconSerial;
  });
  arrival.arrive(drawnIcon(), NewRecord());
  EXPECT_EQ(widths, std::vector<int>{32});
  EXPECT_EQ(pixel, kBlue);
  EXPECT_EQ(serialThen, before) << "it ends as that of the icon that it belongs to";
}

TEST_F(IconArrivalTest, TheChartIsChosenByTheNewIconBeforeTheHistoryStarts) {
  Color chosenBy = kNoColor;
  editor.atCall("chooseColorChart", [&] { chosenBy = state.picImage.GetPixel(0, 0); });
  arrival.arrive(drawnIcon(), NewRecord());
  EXPECT_EQ(chosenBy, kRed);
  const auto& calls = editor.calls;
  const auto chart = std::ranges::find(calls, "chooseColorChart");
  const auto cleared = std::ranges::find(calls, "clearUndoHistory");
  const auto recorded = std::ranges::find(calls, "recordUndo");
  EXPECT_LT(chart, cleared);
  EXPECT_LT(cleared, recorded);
  EXPECT_EQ(recorded, calls.end() - 1) << "recording comes last";
  EXPECT_EQ(editor.count("chooseColorChart"), 1);
  EXPECT_EQ(editor.count("clearUndoHistory"), 1);
  EXPECT_EQ(editor.count("recordUndo"), 1);
}

TEST_F(IconArrivalTest, TheHistoryBeginsWithTheIconAsItArrived) {
  Surface image, mask;
  editor.atCall("recordUndo", [&] {
    image = state.picImage;
    mask = state.picMask;
  });
  arrival.arrive(drawnIcon(), NewRecord());
  EXPECT_TRUE(same(image, drawnIcon().image));
  EXPECT_TRUE(same(mask, drawnIcon().mask));
}

TEST_F(IconArrivalTest, AnOpenToolActionEndsWithTheFormerIcon) {
  arrival.arrive(plainIcon(32, kBlue), NewRecord());
  state.mPendingPaint = true;
  arrival.arrive(drawnIcon(), NewRecord());
  EXPECT_FALSE(state.mPendingPaint);
  expectShown(drawnIcon());
}

TEST_F(IconArrivalTest, FillingAnotherContainerLeavesTheEditingAreaAlone) {
  arrival.arrive(plainIcon(32, kBlue), NewRecord());
  const Surface disp = state.picDisp;
  const unsigned before = state.iconSerial;
  const int shown = display.count(DisplayPart::EditingArea);
  const int panels = display.count(DisplayPart::IconsPanel);
  editor.calls.clear();
  arrival.fillContainer(3, alphaIcon(16, 9), alphaRecord());
  EXPECT_TRUE(editor.calls.empty());
  EXPECT_EQ(state.iconSerial, before);
  EXPECT_EQ(display.count(DisplayPart::EditingArea), shown);
  EXPECT_TRUE(same(state.picDisp, disp));
  expectShown(plainIcon(32, kBlue));
  EXPECT_EQ(state.mCurContainer, 0);
  EXPECT_EQ(currentIcon(state).alpha, AlphaMatrix());
  EXPECT_EQ(state.mIconRecs[0].size, 32);

  EXPECT_EQ(display.count(DisplayPart::IconsPanel), panels + 1);
  EXPECT_EQ(state.mIconRecs[3].seq, 3);
  EXPECT_TRUE(state.mIconRecs[3].used);
  EXPECT_TRUE(state.mIconRecs[3].hasAlpha);
  EXPECT_EQ(state.mIconRecs[3].size, 16);
  EXPECT_EQ(state.mAlphaRecs[3], AlphaMatrix(16, 16, 9));
  EXPECT_TRUE(same(state.picPanelImage[3], plainIcon(16, kRed).image));
  EXPECT_TRUE(same(state.picPanelMask[3], plainIcon(16, kRed).mask));
  EXPECT_EQ(state.picPanelIcon[3].GetPixel(15, 15), kRed);
}

TEST_F(IconArrivalTest, AFilledContainerIsAsPresentAsItsRecordSays) {
  arrival.fillContainer(3, drawnIcon(), NewRecord());
  EXPECT_TRUE(state.mIconRecs[3].present);
  IconContainerRec held = NewRecord();
  held.present = false;
  arrival.fillContainer(3, drawnIcon(), held);
  EXPECT_TRUE(state.mIconRecs[3].used);
  EXPECT_FALSE(state.mIconRecs[3].present);
}

TEST_F(IconArrivalTest, AFilledContainerIsShownAsItWasStored) {
  arrival.arrive(plainIcon(48, kBlue), NewRecord());
  IconContainerRec held = alphaRecord();
  held.present = false;
  arrival.fillContainer(3, alphaIcon(16, 9), held);
  const unsigned before = state.iconSerial;
  editor.calls.clear();
  state.mCurContainer = 3;
  arrival.showCurrentContainer();
  expectShown(plainIcon(16, kRed));
  EXPECT_TRUE(state.current().present);
  EXPECT_EQ(currentIcon(state).alpha, AlphaMatrix(16, 16, 9));
  EXPECT_EQ(state.iconSerial, before + 1);
  EXPECT_EQ(editor.count("clearRegion"), 1);
  EXPECT_EQ(editor.count("chooseColorChart"), 1);
  EXPECT_EQ(editor.count("clearUndoHistory"), 1);
  EXPECT_EQ(editor.count("recordUndo"), 1);
}

TEST_F(IconArrivalTest, ShowingTheCurrentContainerAgainBringsBackWhatItHolds) {
  arrival.arrive(drawnIcon(), NewRecord());
  state.picImage.fill(kBlue);
  state.picMask.fill(kBlack);
  arrival.showCurrentContainer();
  expectShown(drawnIcon());
  EXPECT_EQ(state.PicIcon.GetPixel(8, 8), kGround);
}

// The serial number of the Current Icon.

TEST_F(IconArrivalTest, EachArrivalRaisesTheSerialNumberByOne) {
  for (unsigned i = 1; i <= 3; ++i) {
    arrival.arrive(drawnIcon(), NewRecord());
    EXPECT_EQ(state.iconSerial, i) << "a like icon is another one";
  }
  panel.SwitchContainer(0);
  EXPECT_EQ(state.iconSerial, 4U) << "the container shows its own copy again";
}

TEST_F(IconArrivalTest, TheSerialNumberIsNewWhenTheSurfacesChange) {
  arrival.arrive(plainIcon(32, kBlue), NewRecord());
  const unsigned before = state.iconSerial;
  unsigned seen = before;
  editor.atCall("chooseColorChart", [&] { seen = state.iconSerial; });
  arrival.arrive(drawnIcon(), NewRecord());
  EXPECT_EQ(seen, before + 1);
}

TEST_F(IconArrivalTest, TheEmptyContainerRaisesTheSerialNumber) {
  arrival.arrive(drawnIcon(), NewRecord());
  const unsigned before = state.iconSerial;
  panel.SwitchContainer(2);
  EXPECT_EQ(state.iconSerial, before + 1);
  panel.showEmptyContainer();
  EXPECT_EQ(state.iconSerial, before + 2);
}

TEST_F(IconArrivalTest, PaintingAndShowingAgainLeaveTheSerialNumber) {
  arrival.arrive(drawnIcon(), NewRecord());
  const unsigned before = state.iconSerial;
  state.picImage.SetPixelV(3, 3, kRed);
  state.picMask.SetPixelV(3, 3, kBlack);
  area.showChangedIcon();
  area.UpdatePanelFromCurrent();
  area.RefreshStatusBar();
  panel.updateFromCurrent();
  panel.EndToolAction();
  panel.CommitPendingPaint();
  options.SetGrid(2);
  options.setRoom(600, 600);
  EXPECT_EQ(state.iconSerial, before);
}

TEST_F(IconArrivalTest, ARefusedSwitchLeavesTheSerialNumber) {
  arrival.arrive(drawnIcon(), NewRecord());
  state.current().modified = true;
  state.options.promptToSave = true;
  editor.askSaveProceeds = false;
  const unsigned before = state.iconSerial;
  panel.SwitchContainer(1);
  EXPECT_EQ(state.iconSerial, before);
}

TEST_F(IconArrivalTest, AnIconOnlyChosenInTheIconsListLeavesTheSerialNumber) {
  arrival.arrive(drawnIcon(), NewRecord());
  arrival.fillContainer(1, drawnIcon(), NewRecord());
  const unsigned before = state.iconSerial;
  state.screen.mActivePanel = 1;
  panel.SwitchContainer(1);
  EXPECT_EQ(state.iconSerial, before) << "the Editing Area still shows the former one";
}

}  // namespace
}  // namespace gp
