#include "colour/ColourFixture.h"

namespace gp {
namespace {

class ColorSelectionTest : public test::ColourFixture {};

TEST_F(ColorSelectionTest, AReleaseOnAChartSelectsItsColour) {
  colors.chartRelease(ChartKind::Chart16, 3.5, 0.5);
  EXPECT_EQ(state.mCurrentColor, 0x0000FF);
  colors.chartRelease(ChartKind::Chart256, 15.2, 2.9);
  EXPECT_EQ(state.mCurrentColor, 0x800000);
  EXPECT_TRUE(display.hasChanged(DisplayPart::ColorPanel));
}

TEST_F(ColorSelectionTest, AReleaseBeyondTheLastColumnIsIgnored) {
  state.mCurrentColor = 0x123456;
  colors.chartRelease(ChartKind::Chart16, 8.0, 0.5);
  colors.chartRelease(ChartKind::Chart16, -1, 0.5);
  EXPECT_EQ(state.mCurrentColor, 0x123456);
}

TEST_F(ColorSelectionTest, SwitchingToTheSmallChartResetsTheColourToWhite) {
  colors.imgGet256ColorChart();
  state.mCurrentColor = 0x123456;
  colors.imgGet16ColorChart();
  EXPECT_EQ(state.mCurrentColor, kWhite);
  EXPECT_EQ(state.screen.colorFrame, ColorFrame::Chart16);
  EXPECT_FALSE(state.screen.imgColorPickerVisible);
  EXPECT_FALSE(state.screen.fraColorMixerVisible);
}

TEST_F(ColorSelectionTest, SwitchingToTheLargeChartKeepsTheColour) {
  state.mCurrentColor = 0x123456;
  colors.imgGet256ColorChart();
  EXPECT_EQ(state.mCurrentColor, 0x123456);
  EXPECT_EQ(state.screen.colorFrame, ColorFrame::Chart256);
  EXPECT_TRUE(state.screen.imgColorPickerVisible);
  EXPECT_TRUE(state.screen.fraColorMixerVisible);
}

TEST_F(ColorSelectionTest, ASecondClickForTheSmallChartChangesNothing) {
  state.mCurrentColor = 0x123456;
  colors.imgGet16ColorChart();
  EXPECT_EQ(state.mCurrentColor, 0x123456);
}

TEST_F(ColorSelectionTest, TheSmallChartPutsThePickerAway) {
  state.current().present = true;
  colors.imgGet256ColorChart();
  colors.imgColorPicker();
  ASSERT_TRUE(colors.isPickerSelected());
  colors.imgGet16ColorChart();
  EXPECT_FALSE(colors.isPickerSelected());
}

TEST_F(ColorSelectionTest, DirectEntryEmptiesTheTextAndTakesTheFocus) {
  colors.setDirectEntryText("FF");
  colors.imgGetDirectEntryColor();
  EXPECT_EQ(colors.directEntry().text(), "");
  EXPECT_EQ(state.screen.colorFrame, ColorFrame::DirectEntry);
  EXPECT_EQ(display.colorValueFocuses, 1);
}

TEST_F(ColorSelectionTest, ATypedColourBecomesTheCurrentOne) {
  colors.setDirectEntryText("C0FF01");
  colors.cmdDirectEntryColorValue();
  EXPECT_EQ(state.mCurrentColor, 0xC0FF01);
  EXPECT_EQ(display.colorValueFocuses, 1);
}

TEST_F(ColorSelectionTest, TheColourDialogSelectsAndItsCancelLeavesTheColour) {
  dialogs.colors = {0x00ABCD, kNoColor};
  colors.imgPopColorChart();
  EXPECT_EQ(state.mCurrentColor, 0x00ABCD);
  colors.imgPopColorChart();
  EXPECT_EQ(state.mCurrentColor, 0x00ABCD);
}

TEST_F(ColorSelectionTest, ASecondClickOnThePickerTurnsItOff) {
  state.current().present = true;
  colors.imgColorPicker();
  EXPECT_TRUE(colors.isPickerSelected());
  EXPECT_EQ(editor.count("clearRegion"), 1);
  EXPECT_EQ(editor.count("clearAllTools"), 1);
  colors.imgColorPicker();
  EXPECT_FALSE(colors.isPickerSelected());
}

TEST_F(ColorSelectionTest, WithThePickerSelectedAClickOnTheChartChangesTheColourAndLeavesItSelected) {
  state.current().present = true;
  colors.imgGet256ColorChart();
  colors.imgColorPicker();
  colors.chartRelease(ChartKind::Chart256, 2.5, 0.5);
  EXPECT_EQ(state.mCurrentColor, 0xC0C0F0);
  EXPECT_TRUE(colors.isPickerSelected());
}

TEST_F(ColorSelectionTest, HoveringTheSmallChartNamesTheColour) {
  EXPECT_EQ(colors.chartHover(ChartKind::Chart16, 0.5, 1.5), "Silver");
}

TEST_F(ColorSelectionTest, HoveringTheLargeChartTellsValuesOnlyWithTheOption) {
  EXPECT_EQ(colors.chartHover(ChartKind::Chart256, 2.5, 2.5), "");
  expectHovered("000000");
  state.options.tooltip256ColorChart = true;
  EXPECT_EQ(colors.chartHover(ChartKind::Chart256, 2.5, 2.5), "FFh  RGB(255, 0, 0) ** ");
  expectHovered("FF0000");
}

TEST_F(ColorSelectionTest, TheBoxTellsOfTheSelectedColourButGivesTheHtmlFigureOfTheOneLastHovered) {
  state.mCurrentColor = 0x0080FF;
  state.options.tooltip256ColorChart = true;
  colors.chartHover(ChartKind::Chart256, 0.5, 1.5);
  boxes.expectTold("Currently selected color:      \n\n33023 / h80FF\n\nRGB(255, 128, 0) \n\nHTML #E0E0E0",
                   BoxIcon::Information);
  colors.showCurrentColor();
}

// The colour of the pixel with this number.
Color blackOrWhite(int i) { return i % 2 == 0 ? kBlack : kWhite; }
Color standard(int i) { return mChartColors16[static_cast<std::size_t>(i) % mChartColors16.size()].color; }
Color oneOther(int i) { return i == 500 ? 0x010101 : standard(i); }
Color eachItsOwn(int i) { return 0x100000 + i; }

struct ChartCase {
  int dirColors;
  Color (*colorOf)(int pixel);
  ColorFrame expected;
};

TEST_F(ColorSelectionTest, TheChartFollowsTheIconsColours) {
  for (const ChartCase& c : {ChartCase{16, standard, ColorFrame::Chart16},
                             {0, blackOrWhite, ColorFrame::Chart16},
                             {256, standard, ColorFrame::Chart16},
                             {256, oneOther, ColorFrame::Chart256},
                             {16, eachItsOwn, ColorFrame::Chart256},
                             {-1, blackOrWhite, ColorFrame::Chart256}}) {
    state.screen.colorFrame = ColorFrame::DirectEntry;
    state.current().dirColors = c.dirColors;
    for (int i = 0; i < 32 * 32; ++i) state.picImage.SetPixelV(i % 32, i / 32, c.colorOf(i));
    colors.chooseColorChart();
    EXPECT_EQ(state.screen.colorFrame, c.expected) << c.dirColors << " " << c.colorOf(1) << " " << c.colorOf(500);
  }
}

TEST_F(ColorSelectionTest, TheTooltipOfTheIconTellsWhetherOneIsLoaded) {
  EXPECT_EQ(colors.picIconTooltip(), "Current icon (not loaded)");
  state.current().present = true;
  EXPECT_EQ(colors.picIconTooltip(), "Current icon");
}

}  // namespace
}  // namespace gp
