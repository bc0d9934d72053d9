// Effects in the whole program: what opens their Panels, what Proceed and Close do, and what a user may do while a
// Panel is up.
#include "document/ListTables.h"
#include "document/PanelNumbers.h"
#include "support/ShellFixture.h"

#include <algorithm>
#include <array>

namespace gp::test {
namespace {

constexpr int kNewIcon32 = 2, kNewIcon16 = 3, kUndo = 1, kButtonize = 3, kEmbossed = 11, kShadowed = 14, kDisabled = 21;
constexpr Color kGrey = rgb(128, 128, 128);
constexpr Color kRed = rgb(255, 0, 0);
constexpr const char* kAlphaText =
    "Current icon is with alpha, please run Convert 32 To 24 BPP\nto convert it to 24-BPP first.";
constexpr const char* kNoIcon = "No icon in Editing Area yet";

struct Opener {
  const char* control;
  int index;
  int panel;
};
constexpr std::array kOpeners{
    Opener{"mnuEffectsSub", 3, kButtonizePanel}, Opener{"mnuEffectsSub", 11, kShadesPanel},
    Opener{"mnuEffectsSub", 12, kShadesPanel},   Opener{"mnuEffectsSub", 13, kShadesPanel},
    Opener{"mnuEffectsSub", 14, kShadesPanel},   Opener{"mnuEffectsSub", 21, kDisabledImagePanel},
    Opener{"mnuEffectsSub3", 0, kConfinePanel},  Opener{"mnuEffectsSub3", 1, kConfinePanel},
    Opener{"mnuEffectsSub3", 2, kConfinePanel},
};

bool samePixels(const Surface& a, const Surface& b) {
  return a.width() == b.width() && a.height() == b.height() && std::ranges::equal(a.pixels(), b.pixels());
}

class EffectCommandsTest : public ShellFixture {
 protected:
  // A new icon, all transparent but for what a test sets.
  void startWithNew(int newIcon = kNewIcon32) {
    start();
    click("mnuFileSub", newIcon);
    state.current().neverSaved = false;
  }
  void set(int x, int y, Color color) {
    state.picImage.SetPixelV(x, y, color);
    state.picMask.SetPixelV(x, y, kBlack);
    shell.ComposeCurrentIcon();
    shell.UpdatePanelFromCurrent();
  }
  // More colours than a table of 256 takes: no run says that there are few.
  void paintManyColors() {
    for (int y = 0; y < state.picImage.height(); ++y)
      for (int x = 0; x < state.picImage.width(); ++x) set(x, y, rgb(x * 7, y * 7, x * y % 256));
    shell.clearUndoHistory();
    shell.recordUndo();
    state.current().modified = false;
  }
  // What stands at a pixel: its colour, kNoColor where the icon is transparent.
  Color at(int x, int y) const {
    return state.picMask.GetPixel(x, y) == kBlack ? state.picImage.GetPixel(x, y) : kNoColor;
  }
  int panel() const { return state.screen.mActivePanel; }
  ConfinePanel& confine() { return shell.effects().confine; }
};

// The frame of all Panels.

TEST_F(EffectCommandsTest, EachCommandBringsItsPanelUp) {
  startWithNew();
  paintManyColors();
  for (const Opener& opener : kOpeners) {
    EXPECT_TRUE(enabled(opener.control, opener.index)) << opener.index;
    click(opener.control, opener.index);
    EXPECT_EQ(panel(), opener.panel) << opener.control << opener.index;
    shell.cmdCancel();
    EXPECT_EQ(panel(), kColorPanel);
  }
}

TEST_F(EffectCommandsTest, WithoutAnIconTheCommandsAreDisabledAndSaySo) {
  start();
  for (const Opener& opener : kOpeners) {
    EXPECT_FALSE(enabled(opener.control, opener.index)) << opener.index;
    boxes.expectTold(kNoIcon, BoxIcon::None);
    click(opener.control, opener.index);
    EXPECT_EQ(panel(), kColorPanel);
  }
}

TEST_F(EffectCommandsTest, AnIconWithAlphaValuesIsRefused) {
  startWithNew();
  state.current().hasAlpha = true;
  for (const Opener& opener : kOpeners) {
    boxes.expectTold(kAlphaText, BoxIcon::None);
    click(opener.control, opener.index);
    EXPECT_EQ(panel(), kColorPanel);
  }
}

TEST_F(EffectCommandsTest, EffectsThatTheProgramDoesNotHaveYetAreDisabled) {
  startWithNew();
  for (const int index : {0, 2, 4, 6, 7, 8, 9, 16, 17, 18, 20, 23, 24}) {
    EXPECT_FALSE(enabled("mnuEffectsSub", index)) << index;
    shell.effects().mnuEffectsSub(index);
    EXPECT_EQ(panel(), kColorPanel);
  }
}

TEST_F(EffectCommandsTest, UntilProceedTheIconStaysAndCloseKeepsItSo) {
  startWithNew();
  paintManyColors();
  const Surface image = state.picImage, mask = state.picMask;
  for (const Opener& opener : kOpeners) {
    click(opener.control, opener.index);
    EXPECT_TRUE(samePixels(state.picImage, image) && samePixels(state.picMask, mask)) << opener.index;
    shell.cmdCancel();
    EXPECT_TRUE(samePixels(state.picImage, image) && samePixels(state.picMask, mask)) << opener.index;
  }
  EXPECT_FALSE(state.current().modified);
  EXPECT_FALSE(enabled("mnuEditSub", kUndo));
}

TEST_F(EffectCommandsTest, ProceedMakesTheIconWhatTheSampleShows) {
  for (const Opener& opener : kOpeners) {
    startWithNew();
    paintManyColors();
    click(opener.control, opener.index);
    const std::vector<const EffectPanel*> panels{&shell.effects().buttonize, &shell.effects().shades,
                                                 &shell.effects().disabledImage, &shell.effects().confine};
    const auto up = std::ranges::find_if(panels, [&](const EffectPanel* p) { return p->number() == panel(); });
    const IconPicture shown = (*up)->picture();
    const Surface look = (*up)->sample();
    shell.cmdProceed();
    EXPECT_TRUE(samePixels(state.picImage, shown.image)) << opener.index;
    EXPECT_TRUE(samePixels(state.picMask, shown.mask)) << opener.index;
    EXPECT_TRUE(samePixels(state.PicIcon, look)) << opener.index;
    EXPECT_TRUE(samePixels(state.picPanelImage[0], shown.image)) << opener.index;
    EXPECT_TRUE(state.current().modified);
    EXPECT_EQ(panel(), kColorPanel);
    // Nobody asks about it: the next round starts afresh.
    state.current().modified = false;
  }
}

TEST_F(EffectCommandsTest, OneStepOfUndoBringsTheIconBack) {
  startWithNew();
  set(5, 5, kRed);
  shell.clearUndoHistory();
  shell.recordUndo();
  const Surface image = state.picImage, mask = state.picMask;
  for (const int index : {3, 11, 12, 13, 14, 21}) {
    click("mnuEffectsSub", index);
    shell.cmdProceed();
    EXPECT_FALSE(samePixels(state.picImage, image) && samePixels(state.picMask, mask)) << index;
    click("mnuEditSub", kUndo);
    EXPECT_TRUE(samePixels(state.picImage, image) && samePixels(state.picMask, mask)) << index;
    EXPECT_FALSE(enabled("mnuEditSub", kUndo));
  }
}

TEST_F(EffectCommandsTest, ProceedOfPanelsThatHaveNoneDoesNothing) {
  startWithNew();
  set(5, 5, kRed);
  const Surface image = state.picImage;
  for (const int number : {kColorPanel, kIconsListPanel, 3, 21, 22, -1}) {
    shell.showPanel(number);
    shell.cmdProceed();
    EXPECT_EQ(panel(), number);
    EXPECT_TRUE(samePixels(state.picImage, image));
  }
  EXPECT_FALSE(enabled("mnuEditSub", kUndo));
}

TEST_F(EffectCommandsTest, CloseWithoutAnIconDoesNotShowOne) {
  start();
  shell.showPanel(kShadesPanel);
  display.repaints = 0;
  display.parts.clear();
  shell.cmdCancel();
  EXPECT_EQ(panel(), kColorPanel);
  EXPECT_EQ(display.repaints, 0);
  EXPECT_FALSE(display.told(DisplayPart::EditingArea));
}

// The icon under an open Panel.

TEST_F(EffectCommandsTest, AnIconThatIsDroppedClosesThePanel) {
  startWithNew();
  set(3, 3, kRed);
  click("mnuEffectsSub", kButtonize);
  shell.iconsPanel().PanelDrop(1, {folder.write("dropped.ico", plainIconFile(16, 3))});
  EXPECT_EQ(panel(), kColorPanel);
  const Surface image = state.picImage;
  shell.cmdProceed();
  EXPECT_TRUE(samePixels(state.picImage, image));
  EXPECT_EQ(image.width(), 16);
}

TEST_F(EffectCommandsTest, ProceedWorksOnTheIconThatIsThereThen) {
  startWithNew();
  set(3, 3, kRed);
  click("mnuEffectsSub", kEmbossed);
  bool ok = false;
  shell.doOpenIconFileQuietly(folder.write("other.ico", plainIconFile(16, 3)), ok);
  ASSERT_TRUE(ok);
  ASSERT_EQ(panel(), kShadesPanel);
  shell.effects().shades.preview();
  EXPECT_EQ(shell.effects().shades.sample().width(), 16);
  const Surface image = state.picImage;
  shell.cmdProceed();
  // All painted: no edge has room, and the picture lies on top.
  EXPECT_EQ(state.picImage.width(), 16);
  EXPECT_TRUE(samePixels(state.picImage, image));
  EXPECT_EQ(panel(), kColorPanel);
}

TEST_F(EffectCommandsTest, AnIconWithAlphaThatCameUpUnderThePanelIsRefusedAndThePanelStays) {
  startWithNew();
  set(3, 3, kRed);
  click("mnuEffectsSub", kDisabled);
  state.current().hasAlpha = true;
  const Surface image = state.picImage;
  boxes.expectTold(kAlphaText, BoxIcon::None);
  shell.cmdProceed();
  EXPECT_TRUE(samePixels(state.picImage, image));
  EXPECT_EQ(panel(), kDisabledImagePanel);
}

TEST_F(EffectCommandsTest, AnEmptyContainerUnderThePanelShowsAnEmptySampleAndIsRefused) {
  startWithNew();
  click("mnuEffectsSub", kDisabled);
  state.current().present = false;
  shell.effects().disabledImage.preview();
  EXPECT_EQ(shell.effects().disabledImage.sample().width(), 0);
  boxes.expectTold(kNoIcon, BoxIcon::None);
  shell.cmdProceed();
  EXPECT_EQ(panel(), kDisabledImagePanel);
}

TEST_F(EffectCommandsTest, ARegionThatStandsEndsWithProceed) {
  startWithNew();
  set(3, 3, kRed);
  shell.tools().selectTool(kRegion);
  shell.tools().press(ShellFixture::at(2, 2));
  shell.tools().move(ShellFixture::at(6, 6));
  shell.tools().release(ShellFixture::at(6, 6));
  ASSERT_TRUE(state.mRegionExists);
  click("mnuEffectsSub", kEmbossed);
  shell.cmdProceed();
  EXPECT_FALSE(state.mRegionExists);
  EXPECT_FALSE(state.mRegionActive);
  EXPECT_EQ(at(2, 2), kWhite);
  EXPECT_EQ(at(3, 3), kRed);
  EXPECT_EQ(at(4, 4), kGrey);
}

TEST_F(EffectCommandsTest, CommandsThatChangeTheIconOrShowAChartCloseThePanel) {
  struct Case {
    const char* control;
    int index;
  };
  for (const Case& one : {Case{"mnuRotateSubmenu", 0},
                          {"mnuRotateSubmenu", 1},
                          {"mnuRotateSubmenu", 2},
                          {"mnuRotateSubmenu", 3},
                          {"mnuEditSub", kUndo},
                          {"mnuEditSub", 13},
                          {"mnuFileSub", kNewIcon32},
                          {"mnuPaletteSub", 0},
                          {"mnuPaletteSub", 1},
                          {"mnuPaletteSub", 2}}) {
    startWithNew();
    set(3, 3, kRed);
    shell.clearUndoHistory();
    shell.recordUndo();
    shell.recordUndo();
    click("mnuEffectsSub", kEmbossed);
    if (one.index == 13) boxes.expectAsked("Clear current icon from container.  Proceed?\n", BoxAnswer::Yes);
    click(one.control, one.index);
    EXPECT_EQ(panel(), kColorPanel) << one.control << one.index;
    state.current().modified = state.current().neverSaved = false;
  }
}

TEST_F(EffectCommandsTest, AnotherContainerClosesThePanel) {
  startWithNew();
  click("mnuEffectsSub", kEmbossed);
  shell.SwitchContainer(3);
  EXPECT_EQ(panel(), kColorPanel);
}

TEST_F(EffectCommandsTest, APanelThatComesUpTakesTheAnimatedCursorsPlace) {
  startWithNew();
  state.screen.aniContainerVisible = true;
  state.screen.lblStatusPanel[static_cast<std::size_t>(StatusPanel::Path)] = "frames";
  display.parts.clear();
  shell.showPanel(kShadesPanel);
  EXPECT_FALSE(state.screen.aniContainerVisible);
  EXPECT_EQ(status(StatusPanel::Path), state.current().path.trimmed());
  EXPECT_TRUE(display.told(DisplayPart::Pointer));
  EXPECT_FALSE(state.screen.hourglass);
  // Only where none was up before.
  state.screen.aniContainerVisible = true;
  shell.showPanel(kColorPanel);
  EXPECT_TRUE(state.screen.aniContainerVisible);
}

// Relief.

TEST_F(EffectCommandsTest, ThePanelOfReliefIsNamedAfterItsEffect) {
  startWithNew();
  for (const auto& [index, name] : {std::pair{11, "Embossed"}, {12, "Engraved"}, {13, "Raised"}, {14, "Shadowed"}}) {
    click("mnuEffectsSub", index);
    EXPECT_STREQ(shell.effects().shades.lblEffectsSample(), name);
    EXPECT_EQ(shell.effects().shades.asksForColor(), index == kShadowed);
  }
}

TEST_F(EffectCommandsTest, AShadowIsBlackOrOfTheCurrentColor) {
  startWithNew();
  set(5, 5, kRed);
  state.mCurrentColor = rgb(1, 2, 3);
  click("mnuEffectsSub", kShadowed);
  EXPECT_EQ(shell.effects().shades.picture().image.GetPixel(6, 6), kBlack);
  EXPECT_EQ(shell.effects().shades.picture().mask.GetPixel(6, 6), kBlack);
  int changes = 0;
  shell.effects().shades.onChange = [&] { ++changes; };
  shell.effects().shades.setUseSelectedColor(true);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(shell.effects().shades.sample().GetPixel(6, 6), rgb(1, 2, 3));
  shell.cmdProceed();
  EXPECT_EQ(at(6, 6), rgb(1, 2, 3));
  EXPECT_EQ(at(5, 5), kRed);
}

TEST_F(EffectCommandsTest, OnlyAShadowTakesTheCurrentColor) {
  startWithNew();
  set(5, 5, kRed);
  state.mCurrentColor = rgb(1, 2, 3);
  shell.effects().shades.setUseSelectedColor(true);
  click("mnuEffectsSub", kEmbossed);
  shell.cmdProceed();
  EXPECT_EQ(at(4, 4), kWhite);
  EXPECT_EQ(at(6, 6), kGrey);
}

TEST_F(EffectCommandsTest, ReliefOfAnUnpaintedIconIsEmpty) {
  startWithNew();
  click("mnuEffectsSub", kEmbossed);
  shell.cmdProceed();
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x) ASSERT_EQ(at(x, y), kNoColor);
}

// Buttonize.

TEST_F(EffectCommandsTest, EachStyleOfTheButtonIsShownAndMade) {
  constexpr std::array<Color, kButtonPatterns> kTopEdge{kWhite, kBlack, kWhite};
  for (int pattern = 0; pattern < kButtonPatterns; ++pattern) {
    startWithNew(kNewIcon16);
    click("mnuEffectsSub", kButtonize);
    shell.effects().buttonize.pickPattern(pattern);
    EXPECT_EQ(shell.effects().buttonize.cboButtonizePattern(), pattern);
    EXPECT_EQ(shell.effects().buttonize.sample().GetPixel(5, 0), kTopEdge[static_cast<std::size_t>(pattern)]);
    shell.cmdProceed();
    EXPECT_EQ(at(5, 0), kTopEdge[static_cast<std::size_t>(pattern)]);
    EXPECT_EQ(at(0, 0), kNoColor);
    state.current().modified = false;
  }
}

TEST_F(EffectCommandsTest, AStyleOutsideTheListIsIgnored) {
  startWithNew();
  click("mnuEffectsSub", kButtonize);
  shell.effects().buttonize.pickPattern(2);
  for (const int index : {-1, kButtonPatterns, 1000}) shell.effects().buttonize.pickPattern(index);
  EXPECT_EQ(shell.effects().buttonize.cboButtonizePattern(), 2);
}

// Reducing colours.

TEST_F(EffectCommandsTest, AnIconOfFewColorsIsNotReduced) {
  struct Case {
    std::vector<Color> colors;
    std::vector<int> refusedRuns;
    const char* text;
  };
  const Case cases[] = {{{kBlack, kWhite}, {0, 1, 2}, "Current image is of 2-color depth.  "},
                        {{kBlack, kRed}, {0, 1}, "Current image is of 16-color depth.  "},
                        {{kBlack, rgb(1, 2, 3)}, {0}, "Current image is of 256-color depth.  "}};
  for (const Case& one : cases) {
    startWithNew();
    state.current().dirColors = 16;
    for (std::size_t i = 0; i < one.colors.size(); ++i) set(static_cast<int>(i) + 1, 1, one.colors[i]);
    for (int run = 0; run < kConfineRuns; ++run) {
      const bool refused = std::ranges::find(one.refusedRuns, run) != one.refusedRuns.end();
      if (refused) boxes.expectTold(one.text, BoxIcon::None);
      click("mnuEffectsSub3", run);
      EXPECT_EQ(panel(), refused ? kColorPanel : kConfinePanel) << one.text << run;
      shell.cmdCancel();
    }
    state.current().modified = false;
  }
}

TEST_F(EffectCommandsTest, TheRecordOfATrueColorIconOfFewColorsIsCorrectedOnYes) {
  struct Case {
    Color color;
    const char* question;
    const char* answer;
    int colors, bits;
  };
  const Case cases[] = {
      {kWhite,
       "The header entry of current icon is 24-BPP True Color,  but the actual  image is of 2-color.    Proceed to "
       "change header entry?",
       "Header entry has been changed to 1-BPP 2-Color.\nYou may proceed to save it to file.", 2, 1},
      {kRed,
       "The header entry of current icon is 24-BPP True Color,  but the actual  image is of 16-color.    Proceed to "
       "change header entry?",
       "Header entry has been changed to 4-BPP 16-Color.\nYou may proceed to save it to file.", 16, 4},
      {rgb(1, 2, 3),
       "The header entry of current icon is 24-BPP True Color,  but the actual  image is of 256-color.    Proceed to "
       "change header entry?",
       "Header entry has been changed to 8-BPP 256-Color.\nYou may proceed to save it to file.", 256, 8}};
  for (const Case& one : cases) {
    startWithNew();
    set(1, 1, one.color);
    IconContainerRec& record = state.current();
    record.dirColors = record.bihColors = kTrueColor;
    record.bitCount = record.bihBitCount = 24;
    record.modified = false;
    boxes.expectAsked(one.question, BoxAnswer::No);
    click("mnuEffectsSub3", 0);
    EXPECT_EQ(record.dirColors, kTrueColor);
    EXPECT_FALSE(record.modified);
    boxes.expectAsked(one.question, BoxAnswer::Yes);
    boxes.expectTold(one.answer, BoxIcon::None);
    click("mnuEffectsSub3", 0);
    EXPECT_EQ(record.dirColors, one.colors);
    EXPECT_EQ(record.bitCount, one.bits);
    EXPECT_FALSE(record.isDiscrepant());
    EXPECT_TRUE(record.modified);
    EXPECT_EQ(panel(), kColorPanel);
    record.modified = false;
  }
}

TEST_F(EffectCommandsTest, ReducingATrueColorIconLeavesItsRecordAndTheSecondVisitOffersToCorrectIt) {
  startWithNew();
  paintManyColors();
  IconContainerRec& record = state.current();
  record.dirColors = record.bihColors = kTrueColor;
  record.bitCount = record.bihBitCount = 24;
  click("mnuEffectsSub3", 1);
  shell.cmdProceed();
  EXPECT_EQ(record.dirColors, kTrueColor);
  EXPECT_EQ(shell.colorBitCountOfImage(), 16);
  boxes.expectAsked(
      "The header entry of current icon is 24-BPP True Color,  but the actual  image is of 16-color.    Proceed to "
      "change header entry?",
      BoxAnswer::Yes);
  boxes.expectTold("Header entry has been changed to 4-BPP 16-Color.\nYou may proceed to save it to file.",
                   BoxIcon::None);
  click("mnuEffectsSub3", 1);
  EXPECT_EQ(record.dirColors, 16);
}

TEST_F(EffectCommandsTest, UnsavedChangesOfAnIconOfAMultiIconFileAreAskedAboutFirst) {
  startWithNew();
  paintManyColors();
  state.current().modified = true;
  click("mnuEffectsSub3", 0);
  EXPECT_EQ(panel(), kConfinePanel);
  shell.cmdCancel();
  state.current().fromMultiIconFile = true;
  boxes.expect("Save current icon to file?", BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::Cancel);
  click("mnuEffectsSub3", 0);
  EXPECT_EQ(panel(), kColorPanel);
  boxes.expect("Save current icon to file?", BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::No);
  click("mnuEffectsSub3", 0);
  EXPECT_EQ(panel(), kConfinePanel);
}

TEST_F(EffectCommandsTest, AnsweringYesSavesFirstAndACancelledSaveKeepsThePanelAway) {
  startWithNew();
  paintManyColors();
  state.current().fromMultiIconFile = state.current().modified = true;
  const auto askToSave = [this](const std::string& path) {
    boxes.expect("Save current icon to file?", BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::Yes);
    boxes.expectTold(
        "Reminder:  The original icon file contains multiple icons.\n\n If you don't wish to overwrite it, save to a "
        "different name.",
        BoxIcon::Information);
    dialogs.paths = {path};
    click("mnuEffectsSub3", 0);
  };
  askToSave("");
  EXPECT_EQ(panel(), kColorPanel);
  EXPECT_TRUE(state.current().modified);
  askToSave(folder.file("saved.ico"));
  EXPECT_EQ(panel(), kConfinePanel);
  EXPECT_FALSE(state.current().modified);
}

TEST_F(EffectCommandsTest, AnIconOfFewColorsThatCameUpUnderThePanelIsNotReduced) {
  startWithNew();
  paintManyColors();
  click("mnuEffectsSub3", 2);
  bool ok = false;
  shell.doOpenIconFileQuietly(folder.write("other.ico", plainIconFile(16, 0)), ok);
  ASSERT_TRUE(ok);
  state.picImage.fill(kWhite);
  const Surface image = state.picImage, mask = state.picMask;
  boxes.expectTold("Current image is of 2-color depth.  ", BoxIcon::None);
  shell.cmdProceed();
  EXPECT_TRUE(samePixels(state.picImage, image) && samePixels(state.picMask, mask));
  EXPECT_EQ(panel(), kConfinePanel);
}

TEST_F(EffectCommandsTest, EachRunStartsWithItsFirstMethod) {
  constexpr std::array kCaptions{"Confine Colors To 256-Color Palette", "Confine Colors To 16-Color Palette",
                                 "Confine Colors To Mono"};
  startWithNew();
  paintManyColors();
  for (int run = 0; run < kConfineRuns; ++run) {
    for (int visit = 0; visit < 2; ++visit) {
      click("mnuEffectsSub3", run);
      EXPECT_EQ(confine().run(), run);
      EXPECT_STREQ(confine().caption(), kCaptions[static_cast<std::size_t>(run)]);
      EXPECT_EQ(confine().cboConfineColors(run), 0);
      confine().pickMethod(1);
      EXPECT_EQ(confine().cboConfineColors(run), 1);
      shell.cmdCancel();
    }
  }
}

TEST_F(EffectCommandsTest, TheThresholdIsThereForSelectCutoffAlone) {
  startWithNew();
  paintManyColors();
  for (const int run : {0, 1}) {
    click("mnuEffectsSub3", run);
    EXPECT_FALSE(confine().showsThreshold());
  }
  click("mnuEffectsSub3", 2);
  EXPECT_TRUE(confine().showsThreshold());
  EXPECT_EQ(confine().thresholdIndex(), 127);
  confine().pickMethod(1);
  EXPECT_FALSE(confine().showsThreshold());
  confine().pickMethod(2);
  EXPECT_FALSE(confine().showsThreshold());
  confine().pickMethod(0);
  EXPECT_TRUE(confine().showsThreshold());
}

TEST_F(EffectCommandsTest, TheThresholdOfTheListDecidesAndIsKept) {
  startWithNew();
  paintManyColors();
  set(0, 0, rgb(100, 100, 100));
  click("mnuEffectsSub3", 2);
  EXPECT_EQ(confine().picture().mask.GetPixel(0, 0), kBlack);
  // The list's item 99 is 100, which is not above 100.
  confine().pickThreshold(99);
  EXPECT_EQ(confine().picture().mask.GetPixel(0, 0), kWhite);
  confine().pickThreshold(100);
  EXPECT_EQ(confine().picture().mask.GetPixel(0, 0), kBlack);
  for (const int index : {-1, kThresholdCount}) confine().pickThreshold(index);
  EXPECT_EQ(confine().thresholdIndex(), 100);
  shell.cmdCancel();
  click("mnuEffectsSub3", 2);
  EXPECT_EQ(confine().thresholdIndex(), 100);
}

TEST_F(EffectCommandsTest, AMethodOutsideTheListOfTheRunIsIgnored) {
  startWithNew();
  paintManyColors();
  click("mnuEffectsSub3", 0);
  for (const int index : {-1, 2, 100}) confine().pickMethod(index);
  EXPECT_EQ(confine().cboConfineColors(0), 0);
}

TEST_F(EffectCommandsTest, ReducingFeedsNoStepToUndo) {
  startWithNew();
  paintManyColors();
  click("mnuEffectsSub3", 2);
  shell.cmdProceed();
  EXPECT_FALSE(enabled("mnuEditSub", kUndo));
  EXPECT_EQ(shell.drawing().history.undoCount(), 1);
  EXPECT_EQ(shell.colorBitCountOfImage(), 2);
  EXPECT_EQ(status(StatusPanel::Path), state.current().path.trimmed());
}

// The chain goes on where it was: what is taken back is the step before, and the reduction with it.
TEST_F(EffectCommandsTest, UndoAfterAReductionTakesTheStepBeforeItBackToo) {
  startWithNew();
  paintManyColors();
  const Surface image = state.picImage;
  click("mnuEffectsSub", kButtonize);
  shell.cmdProceed();
  const Surface button = state.picImage;
  click("mnuEffectsSub3", 1);
  shell.cmdProceed();
  EXPECT_EQ(shell.drawing().history.undoCount(), 2);
  click("mnuEditSub", kUndo);
  EXPECT_TRUE(samePixels(state.picImage, image));
  click("mnuEditSub", 2);
  EXPECT_TRUE(samePixels(state.picImage, button));
}

TEST_F(EffectCommandsTest, TheListsHoldWhatThePanelsKnow) {
  EXPECT_EQ(static_cast<int>(fillList("cboButtonizePattern").entries.size()), kButtonPatterns);
  EXPECT_EQ(fillList("cboButtonizePattern").first, shell.effects().buttonize.cboButtonizePattern());
  const FilledList thresholds = fillList("cboConfineColors(3)");
  EXPECT_EQ(static_cast<int>(thresholds.entries.size()), kThresholdCount);
  EXPECT_EQ(thresholds.first, confine().thresholdIndex());
  EXPECT_EQ(thresholds.entries.front(), std::to_string(kFirstThreshold));
  EXPECT_EQ(thresholds.entries.at(static_cast<std::size_t>(thresholds.first)),
            std::to_string(ReductionSettings{}.threshold));
  EXPECT_TRUE(fillList("cboNothing").entries.empty());
}

TEST_F(EffectCommandsTest, AClickOnTheListFromInsideThePumpOfAPreviewWins) {
  startWithNew();
  paintManyColors();
  click("mnuEffectsSub3", 1);
  pump.inside = [this] { confine().pickMethod(2); };
  confine().pickMethod(1);
  EXPECT_EQ(confine().cboConfineColors(1), 2);
  const IconPicture vga = reduceColors(state.picImage, state.picMask, {ReductionMethod::StandardVga});
  EXPECT_TRUE(samePixels(confine().picture().image, vga.image));
}

TEST_F(EffectCommandsTest, CloseDuringAPreviewClosesThePanel) {
  startWithNew();
  paintManyColors();
  click("mnuEffectsSub3", 1);
  int changes = 0;
  confine().onChange = [&] { ++changes; };
  pump.inside = [this] { shell.cmdCancel(); };
  confine().pickMethod(1);
  EXPECT_EQ(panel(), kColorPanel);
  EXPECT_EQ(changes, 0);
}

TEST_F(EffectCommandsTest, CloseAfterThePreviewIsDrawnClosesThePanelToo) {
  startWithNew();
  paintManyColors();
  pump.inside = [this] { shell.cmdCancel(); };
  click("mnuEffectsSub3", 1);
  EXPECT_EQ(panel(), kColorPanel);
  click("mnuEffectsSub3", 1);
  // At the second pump of the click, which comes when the samples are drawn.
  pump.inside = [this] { pump.inside = [this] { shell.cmdCancel(); }; };
  confine().pickMethod(1);
  EXPECT_EQ(panel(), kColorPanel);
  EXPECT_EQ(pump.inside, nullptr);
}

TEST_F(EffectCommandsTest, ProceedAndADropDuringAPreviewLeaveAWholeIcon) {
  startWithNew();
  paintManyColors();
  click("mnuEffectsSub3", 2);
  pump.inside = [this] { shell.cmdProceed(); };
  confine().pickMethod(2);
  EXPECT_EQ(panel(), kColorPanel);
  EXPECT_EQ(shell.colorBitCountOfImage(), 2);

  paintManyColors();
  click("mnuEffectsSub3", 2);
  pump.inside = [this] { shell.iconsPanel().PanelDrop(2, {folder.write("dropped.ico", plainIconFile(48, 3))}); };
  confine().pickThreshold(5);
  EXPECT_EQ(panel(), kColorPanel);
  EXPECT_EQ(state.picImage.width(), 48);
  EXPECT_EQ(state.picImage.GetPixel(10, 10), rgb(255 - 3, 3, 48));
}

}  // namespace
}  // namespace gp::test
