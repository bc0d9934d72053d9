// The panel of Text in the whole program, with a font whose every pixel is known.
#include "document/Compositing.h"
#include "document/Containers.h"
#include "effects/TextPanel.h"
#include "effects/WriteText.h"
#include "shell/EffectFixture.h"

namespace gp::test {
namespace {

constexpr int kTextEntry = 0, kTextPanel = 5;
constexpr int kHollow = 1, kEmbossed = 2, kEngraved = 3, kShadowed = 4;
constexpr Color kGrey = 0x808080, kLight = 0xFFEEFF;
constexpr const char* kNoText = "No text entered yet";
constexpr const char* kRelief =
    "Cannot use this color for text of Embossed/Engraved style,\nplease choose another color (e.g. one near it).";
constexpr const char* kShadow =
    "Cannot use this color for text of Shadowed style,\nplease choose another color (e.g. one near it).";
constexpr const char* kAlpha =
    "Current icon is with alpha, please run Convert 32 To 24 BPP\nto convert it to 24-BPP first.";

class TextPanelTest : public EffectFixture {
 protected:
  TextPanel& side() { return shell.effects().panel<TextPanel>(); }
  void startWith(const IconImage& icon) {
    shell.document().arrival.arrive(icon, NewRecord());
    click("mnuEffectsSub", kTextEntry);
  }
  void startWithSize(int size) {
    start();
    startWith(generatedIcons(size).back());
  }
  IconImage current() const { return {state.picImage, state.picMask, {}}; }
  Regions& regions() { return shell.drawing().regions; }
  // The text as the panel's choices write it on an icon of that size.
  IconImage expectedText(const std::string& words, int size, int capital) {
    const TextFont font{.family = side().families().at(static_cast<std::size_t>(side().familyIndex())),
                        .pixels = fontPixels(textDrawing, {}, capital),
                        .bold = side().hasFontStyle(0),
                        .italic = side().hasFontStyle(1),
                        .underline = side().hasFontStyle(2),
                        .strikeout = side().hasFontStyle(3)};
    const auto style = static_cast<TextStyle>(side().styleIndex());
    const auto look = style == TextStyle::Hollow ? TextLook::Outline : TextLook::Filled;
    return writtenText(FakeTextDrawing::pictureOf(words, font, look, 3 * size), {style, side().color(), side().angle()},
                       size, size);
  }
  static IconImage merged(IconImage icon, const IconImage& content) {
    for (int y = 0; y < icon.height(); ++y)
      for (int x = 0; x < icon.width(); ++x)
        if (content.mask.GetPixel(x, y) == kBlack) {
          icon.image.SetPixelV(x, y, content.image.GetPixel(x, y));
          icon.mask.SetPixelV(x, y, kBlack);
        }
    return icon;
  }
  void expectSample(const IconImage& icon) {
    EXPECT_TRUE(samePixels(side().picture(), icon));
    EXPECT_TRUE(samePixels(side().sample(), composedIcon(icon.image, icon.mask)));
  }
  // Proceed shows the text; panel and icon stay.
  void expectRefused(const std::string& refusal) {
    const IconImage before = current();
    boxes.expectTold(refusal, BoxIcon::None);
    shell.cmdProceed();
    EXPECT_EQ(panel(), kTextPanel);
    EXPECT_TRUE(samePixels(current(), before));
    EXPECT_FALSE(state.mRegionExists);
  }
};

TEST_F(TextPanelTest, ItOpensWithTheAngleZeroTheFirstChoicesAndTheIconAsItsSample) {
  startWithSize(48);
  EXPECT_EQ(panel(), kTextPanel);
  EXPECT_EQ(side().angle(), 0);
  EXPECT_EQ(side().text(), "");
  EXPECT_EQ(side().families(), textDrawing.families);
  EXPECT_EQ(side().familyIndex(), 0);
  EXPECT_EQ(side().sizeIndex(), 0);
  EXPECT_EQ(side().styleIndex(), 0);
  EXPECT_EQ(side().color(), kBlack);
  for (int i = 0; i < TextPanel::kFontStyles; ++i) EXPECT_FALSE(side().hasFontStyle(i));
  expectSample(generatedIcons(48).back());
}

TEST_F(TextPanelTest, ArialIsTheFirstFamilyWhereItIsListed) {
  textDrawing.families = {"Agency", "Arial", "Courier"};
  startWithSize(16);
  EXPECT_EQ(side().familyIndex(), 1);
}

TEST_F(TextPanelTest, TheAngleIsZeroAtEachOpeningAndTheOtherChoicesStay) {
  startWithSize(32);
  side().setText("Hi");
  side().setAngle(77);
  side().pickFamily(2);
  side().pickSize(1);
  side().pickStyle(kShadowed);
  side().toggleFontStyle(1);
  shell.cmdCancel();
  click("mnuEffectsSub", kTextEntry);
  EXPECT_EQ(side().angle(), 0);
  EXPECT_EQ(side().text(), "Hi");
  EXPECT_EQ(side().familyIndex(), 2);
  EXPECT_EQ(side().sizeIndex(), 1);
  EXPECT_EQ(side().styleIndex(), kShadowed);
  EXPECT_TRUE(side().hasFontStyle(1));
  expectSample(merged(generatedIcons(32).back(), expectedText("Hi", 32, 16)));
}

TEST_F(TextPanelTest, TheSampleShowsTheTextWhileItIsTyped) {
  startWithSize(48);
  for (const char* typed : {"A", "Ab", "Abc", "Ab", ""}) {
    side().setText(typed);
    expectSample(merged(generatedIcons(48).back(), *typed ? expectedText(typed, 48, 36) : IconImage()));
    EXPECT_TRUE(samePixels(current(), generatedIcons(48).back()));
  }
}

TEST_F(TextPanelTest, EachChoiceReachesTheSampleAndTheRegion) {
  start();
  for (const int size : kIconSides)
    for (int style = 0; style < kTextStyles; ++style) {
      startWith(generatedIcons(size).back());
      side().setText("Bx");
      side().pickFamily(1);
      side().pickSize(style % kTextSizes);
      side().pickStyle(style);
      side().setAngle(style * 17 - 20);
      side().toggleFontStyle(style % TextPanel::kFontStyles);
      const int capitals[] = {size * 3 / 4, size / 2, capitalHeightOf(TextSize::Tiny, size)};
      const IconImage expected = expectedText("Bx", size, capitals[style % kTextSizes]);
      EXPECT_EQ(textDrawing.lastLook, style == kHollow ? TextLook::Outline : TextLook::Filled);
      const IconImage sample = side().picture();
      EXPECT_TRUE(samePixels(sample, merged(generatedIcons(size).back(), expected)));
      shell.cmdProceed();
      EXPECT_TRUE(samePixels(regions().content(), expected)) << size << " " << style;
      EXPECT_TRUE(samePixels(current(), sample)) << "the icon shows what the sample showed";
      click("mnuEffectsSub", kTextEntry);
      side().toggleFontStyle(style % TextPanel::kFontStyles);
    }
}

TEST_F(TextPanelTest, TheAngleSampleIsTurned) {
  startWithSize(16);
  EXPECT_EQ(side().picTextWriteAngleSample().width(), 48);
  const Surface straight = side().picTextWriteAngleSample();
  side().setAngle(90);
  const Surface turned = side().picTextWriteAngleSample();
  EXPECT_FALSE(samePixels(straight, turned));
  int straightPixels = 0, turnedPixels = 0;
  for (int y = 0; y < 48; ++y)
    for (int x = 0; x < 48; ++x) {
      straightPixels += straight.GetPixel(x, y) == kBlack ? 1 : 0;
      turnedPixels += turned.GetPixel(x, y) == kBlack ? 1 : 0;
    }
  EXPECT_GT(straightPixels, 0);
  EXPECT_EQ(straightPixels, turnedPixels);
  side().setText("does not matter");
  EXPECT_TRUE(samePixels(side().picTextWriteAngleSample(), turned));
  side().pickStyle(kEmbossed);
  EXPECT_FALSE(samePixels(side().picTextWriteAngleSample(), turned));
}

TEST_F(TextPanelTest, ProceedMakesAFloatingRegionAtTheTopLeftAndTheIconTakesItOnlyWhenItEnds) {
  startWithSize(32);
  side().setText("T");
  const IconImage before = current();
  const IconImage expected = expectedText("T", 32, 24);
  state.current().modified = false;
  shell.cmdProceed();
  EXPECT_EQ(panel(), kColorPanel);
  EXPECT_TRUE(state.mRegionExists);
  EXPECT_TRUE(regions().isFloating());
  EXPECT_TRUE(regions().isPasted());
  EXPECT_FALSE(regions().isPasteOpaque());
  EXPECT_TRUE(state.current().modified);
  EXPECT_EQ(shell.drawing().tools.selectedTool(), kRegion);
  EXPECT_EQ(regions().pixels().x1, 0);
  EXPECT_EQ(regions().pixels().y1, 0);
  EXPECT_EQ(display.announced.back(),
            "Region " + std::to_string(expected.width()) + " x " + std::to_string(expected.height()));
  // It is dragged by 5 to the right and 2 down, and what was beneath it comes back.
  drag(4, 4, 9, 6);
  IconImage moved = before;
  for (int y = 0; y < expected.height(); ++y)
    for (int x = 0; x < expected.width(); ++x)
      if (expected.mask.GetPixel(x, y) == kBlack) {
        moved.image.SetPixelV(x + 5, y + 2, expected.image.GetPixel(x, y));
        moved.mask.SetPixelV(x + 5, y + 2, kBlack);
      }
  EXPECT_TRUE(samePixels(current(), moved));
  shell.clearAllTools();
  shell.clearRegion();
  EXPECT_FALSE(state.mRegionExists);
  EXPECT_TRUE(samePixels(current(), moved));
  click("mnuEditSub", kUndo);
  EXPECT_TRUE(samePixels(current(), before));
  click("mnuEditSub", kRedo);
  EXPECT_TRUE(samePixels(current(), moved));
}

TEST_F(TextPanelTest, UndoTakesTheFloatingTextBackAndKeepsTheStepsBeforeIt) {
  startWithNew();
  shell.chooseTool(kPaint);
  paint(3, 3);
  const IconImage painted = current();
  click("mnuEffectsSub", kTextEntry);
  side().setText("T");
  shell.cmdProceed();
  EXPECT_FALSE(samePixels(current(), painted));
  click("mnuEditSub", kUndo);
  EXPECT_FALSE(state.mRegionExists);
  EXPECT_TRUE(samePixels(current(), painted));
  click("mnuEditSub", kUndo);
  EXPECT_TRUE(samePixels(current(), transparentIcon(32)));
}

TEST_F(TextPanelTest, ACutOfTheFloatingTextRestoresTheIcon) {
  startWithSize(24);
  const IconImage before = current();
  side().setText("T");
  shell.cmdProceed();
  click("mnuEditSub", 5);
  EXPECT_TRUE(samePixels(current(), before));
  EXPECT_FALSE(state.mRegionExists);
}

TEST_F(TextPanelTest, ATextInPureWhiteComesOutWhiteAndOneInTheColorOfTheGroundIsPainted) {
  start();
  for (const Color color : {kWhite, kGround}) {
    startWith(transparentIcon(32));
    dialogs.colors = {color};
    side().chooseColor();
    side().setText("W");
    shell.cmdProceed();
    int painted = 0;
    for (int y = 0; y < 32; ++y)
      for (int x = 0; x < 32; ++x)
        if (state.picMask.GetPixel(x, y) == kBlack) {
          ASSERT_EQ(state.picImage.GetPixel(x, y), color);
          ++painted;
        }
    EXPECT_GT(painted, 20);
  }
}

TEST_F(TextPanelTest, TheColorsOfAStyleAreRefusedAtTheDialogAndTheFormerOneStays) {
  startWithSize(32);
  struct Case {
    int style;
    Color color;
    const char* refusal;
  };
  for (const Case& row : {Case{kEmbossed, kGrey, kRelief},
                          {kEmbossed, kLight, kRelief},
                          {kEngraved, kGrey, kRelief},
                          {kEngraved, kLight, kRelief},
                          {kShadowed, kGrey, kShadow}}) {
    side().pickStyle(row.style);
    dialogs.colors = {row.color};
    boxes.expectTold(row.refusal, BoxIcon::None);
    side().chooseColor();
    EXPECT_EQ(side().color(), kBlack);
  }
  dialogs.colors = {kLight, kNoColor};
  side().chooseColor();
  EXPECT_EQ(side().color(), kLight) << "Shadowed does not draw it";
  side().chooseColor();
  EXPECT_EQ(side().color(), kLight) << "after Cancel";
}

TEST_F(TextPanelTest, AColorPickedBeforeTheStyleIsRefusedOnTheNextChoiceOnly) {
  startWithSize(32);
  dialogs.colors = {kGrey, kGrey};
  side().chooseColor();
  EXPECT_EQ(side().color(), kGrey);
  side().pickStyle(kShadowed);
  EXPECT_EQ(side().color(), kGrey);
  side().setText("T");
  expectSample(merged(generatedIcons(32).back(), expectedText("T", 32, 24)));
  boxes.expectTold(kShadow, BoxIcon::None);
  side().chooseColor();
  EXPECT_EQ(side().color(), kGrey);
}

TEST_F(TextPanelTest, WithoutATextOrWithOneThatShowsNothingProceedSaysSo) {
  startWithSize(32);
  expectRefused(kNoText);
  for (const char* blank : {" ", "     "}) {
    side().setText(blank);
    expectSample(generatedIcons(32).back());
    expectRefused(kNoText);
  }
  EXPECT_FALSE(enabled("mnuEditSub", kUndo));
}

TEST_F(TextPanelTest, AFamilyThatTheSystemDoesNotHaveIsRefusedAndTheFormerOneStays) {
  startWithSize(32);
  textDrawing.gone = {"Dot"};
  boxes.expectTold("Dot not available in system.", BoxIcon::None);
  side().pickFamily(2);
  EXPECT_EQ(side().familyIndex(), 0);
}

TEST_F(TextPanelTest, AFamilyThatVanishesUnderThePanelIsRefusedAtProceed) {
  startWithSize(32);
  side().setText("T");
  textDrawing.gone = {"Block"};
  side().pickSize(1);
  expectSample(generatedIcons(32).back());
  expectRefused("Block not available in system.");
  textDrawing.gone.clear();
  shell.cmdProceed();
  EXPECT_TRUE(state.mRegionExists);
}

TEST_F(TextPanelTest, AFamilyThatIsGoneAtTheNextOpeningIsReplaced) {
  startWithSize(32);
  side().pickFamily(2);
  shell.cmdCancel();
  textDrawing.families = {"Block", "Chalk"};
  click("mnuEffectsSub", kTextEntry);
  EXPECT_EQ(side().familyIndex(), 0);
  EXPECT_EQ(side().families().size(), 2u);
}

TEST_F(TextPanelTest, WithoutAnyFontNothingIsWritten) {
  textDrawing.families.clear();
  startWithSize(32);
  EXPECT_EQ(panel(), kTextPanel);
  EXPECT_EQ(side().familyIndex(), -1);
  side().pickFamily(0);
  side().setText("T");
  expectSample(generatedIcons(32).back());
  expectRefused("Font not available in system.");
}

TEST_F(TextPanelTest, AnIconWithAlphaIsRefusedAtTheOpeningAndAtProceed) {
  start();
  shell.document().arrival.arrive(generatedIcons(32).back(), NewRecord());
  state.current().hasAlpha = true;
  boxes.expectTold(kAlpha, BoxIcon::None);
  click("mnuEffectsSub", kTextEntry);
  EXPECT_EQ(panel(), kColorPanel);
  state.current().hasAlpha = false;
  click("mnuEffectsSub", kTextEntry);
  side().setText("T");
  state.current().hasAlpha = true;
  expectRefused(kAlpha);
}

TEST_F(TextPanelTest, WithoutAnIconTheReasonIsShown) {
  start();
  boxes.expectTold("No icon in Editing Area yet", BoxIcon::None);
  click("mnuEffectsSub", kTextEntry);
  EXPECT_EQ(panel(), kColorPanel);
}

TEST_F(TextPanelTest, AnIconReplacedUnderThePanelGetsTheTextInItsSize) {
  startWithSize(48);
  side().setText("T");
  startWith(generatedIcons(16).back());
  side().preview();
  expectSample(merged(generatedIcons(16).back(), expectedText("T", 16, 12)));
  shell.cmdProceed();
  EXPECT_TRUE(samePixels(regions().content(), expectedText("T", 16, 12)));
}

TEST_F(TextPanelTest, AnIconEmptiedUnderThePanelIsRefused) {
  startWithSize(48);
  side().setText("T");
  ClearContainer(state);
  side().preview();
  EXPECT_TRUE(side().picture().isEmpty());
  EXPECT_EQ(side().sample().width(), 0);
  boxes.expectTold("No icon in Editing Area yet", BoxIcon::None);
  shell.cmdProceed();
  EXPECT_EQ(panel(), kTextPanel);
  EXPECT_FALSE(state.mRegionExists);
}

TEST_F(TextPanelTest, ATextLargerThanTheIconIsARegionLargerThanTheIcon) {
  startWithSize(16);
  side().setText("Wide");
  shell.cmdProceed();
  EXPECT_GT(regions().content().width(), 16);
  EXPECT_EQ(regions().pixels().x2 + 1, regions().content().width());
  drag(8, 8, 0, 8);
  EXPECT_EQ(regions().pixels().x1, -8);
}

TEST_F(TextPanelTest, ATextOfTenThousandLettersIsAtMostThreeIconsWideAndCanBeDraggedFromEndToEnd) {
  startWithSize(16);
  side().setText(std::string(10000, 'M'));
  for (const int angle : {0, 45, 180}) {
    side().setAngle(angle);
    shell.cmdProceed();
    EXPECT_LE(regions().content().width(), 3 * 16 + 2) << angle;
    EXPECT_LE(regions().content().height(), 3 * 16 + 2) << angle;
    click("mnuEditSub", kUndo);
    click("mnuEffectsSub", kTextEntry);
  }
  side().setText("MMMMMMMMMMMMM");
  shell.cmdProceed();
  EXPECT_GT(regions().content().width(), 45);
  for (int i = 0; i < 40; ++i) drag(8, 8, 7, 8);
  EXPECT_LT(regions().pixels().x2, 16) << "its end is on the icon";
  for (int i = 0; i < 60; ++i) drag(1, 8, 2, 8);
  EXPECT_GE(regions().pixels().x1, 0) << "and its start again";
}

TEST_F(TextPanelTest, ASizeInPointsIsTheSameOnEveryIconUntilOneThatFitsIsChosen) {
  for (const int size : {16, 48}) {
    startWithSize(size);
    side().setText("Hi");
    // 24 points are 32 pixels, with capitals of 24; 9 points are 12 pixels, with capitals of 9.
    for (const auto& [index, capital] : {std::pair{17, 24}, {2, 9}}) {
      side().pickPoints(index);
      EXPECT_EQ(side().pointsIndex(), index);
      EXPECT_EQ(side().sizeIndex(), -1);
      expectSample(merged(generatedIcons(size).back(), expectedText("Hi", size, capital)));
    }
    side().pickSize(0);
    EXPECT_EQ(side().pointsIndex(), -1);
    EXPECT_EQ(side().sizeIndex(), 0);
    expectSample(merged(generatedIcons(size).back(), expectedText("Hi", size, size * 3 / 4)));
  }
}

TEST_F(TextPanelTest, ChoicesOutOfRangeAreIgnoredOrLimited) {
  startWithSize(32);
  for (const int index : {-1, 3, 1000}) side().pickFamily(index);
  for (const int index : {-1, kTextSizes, 1000}) side().pickSize(index);
  for (const int index : {-1, 18, 1000}) side().pickPoints(index);
  EXPECT_EQ(side().pointsIndex(), -1);
  for (const int index : {-1, kTextStyles, 1000}) side().pickStyle(index);
  for (const int index : {-1, TextPanel::kFontStyles, 1000}) side().toggleFontStyle(index);
  EXPECT_EQ(side().familyIndex(), 0);
  EXPECT_EQ(side().sizeIndex(), 0);
  EXPECT_EQ(side().styleIndex(), 0);
  side().setText("T");
  for (const auto& [asked, taken] : {std::pair{-180, -180}, {180, 180}, {-1000, -180}, {1000, 180}}) {
    side().setAngle(asked);
    EXPECT_EQ(side().angle(), taken);
    expectSample(merged(generatedIcons(32).back(), expectedText("T", 32, 24)));
  }
}

TEST_F(TextPanelTest, IconsOfOneColorAllTransparentAndAllInvertingTakeAText) {
  start();
  IconImage inverting = transparentIcon(32), red = transparentIcon(32);
  inverting.image.fill(kWhite);
  red.image.fill(kRed);
  red.mask.fill(kBlack);
  for (const IconImage& icon : {inverting, red, transparentIcon(32)}) {
    startWith(icon);
    side().setText("T");
    shell.cmdProceed();
    EXPECT_TRUE(samePixels(current(), merged(icon, expectedText("T", 32, 24))));
  }
}

TEST_F(TextPanelTest, ARegionThatFloatsWhenThePanelOpensIsMergedFirst) {
  startWithSize(32);
  side().setText("T");
  shell.cmdProceed();
  const IconImage first = current();
  click("mnuEffectsSub", kTextEntry);
  EXPECT_FALSE(state.mRegionExists);
  side().setText("X");
  shell.cmdProceed();
  EXPECT_TRUE(samePixels(current(), merged(first, expectedText("X", 32, 24))));
  click("mnuEditSub", kUndo);
  EXPECT_TRUE(samePixels(current(), first));
}

}  // namespace
}  // namespace gp::test
