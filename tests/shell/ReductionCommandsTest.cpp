// Reducing colours in the whole program: the commands and their methods, icons of few colours, and what a user can do
// while a preview lets events in.
#include "document/ListTables.h"
#include "shell/EffectFixture.h"

#include <array>

namespace gp::test {
namespace {

class ReductionCommandsTest : public EffectFixture {
 protected:
  ConfinePanel& confine() { return shell.effects().panel<ConfinePanel>(); }
};

TEST_F(ReductionCommandsTest, AnIconOfFewColorsIsNotReduced) {
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
      EXPECT_EQ(panel(), refused ? kColorPanel : ConfinePanel::kNumber) << one.text << run;
      shell.cmdCancel();
    }
    state.current().modified = false;
  }
}

TEST_F(ReductionCommandsTest, TheRecordOfATrueColorIconOfFewColorsIsCorrectedOnYes) {
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

TEST_F(ReductionCommandsTest, ReducingATrueColorIconLeavesItsRecordAndTheSecondVisitOffersToCorrectIt) {
  startWithNew();
  paintManyColors();
  IconContainerRec& record = state.current();
  record.dirColors = record.bihColors = kTrueColor;
  record.bitCount = record.bihBitCount = 24;
  click("mnuEffectsSub3", 1);
  shell.cmdProceed();
  EXPECT_EQ(record.dirColors, kTrueColor);
  EXPECT_EQ(imageColors(), 16);
  boxes.expectAsked(
      "The header entry of current icon is 24-BPP True Color,  but the actual  image is of 16-color.    Proceed to "
      "change header entry?",
      BoxAnswer::Yes);
  boxes.expectTold("Header entry has been changed to 4-BPP 16-Color.\nYou may proceed to save it to file.",
                   BoxIcon::None);
  click("mnuEffectsSub3", 1);
  EXPECT_EQ(record.dirColors, 16);
}

TEST_F(ReductionCommandsTest, UnsavedChangesOfAnIconOfAMultiIconFileAreAskedAboutFirst) {
  startWithNew();
  paintManyColors();
  state.current().modified = true;
  click("mnuEffectsSub3", 0);
  EXPECT_EQ(panel(), ConfinePanel::kNumber);
  shell.cmdCancel();
  state.current().fromMultiIconFile = true;
  boxes.expect("Save current icon to file?", BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::Cancel);
  click("mnuEffectsSub3", 0);
  EXPECT_EQ(panel(), kColorPanel);
  boxes.expect("Save current icon to file?", BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::No);
  click("mnuEffectsSub3", 0);
  EXPECT_EQ(panel(), ConfinePanel::kNumber);
}

TEST_F(ReductionCommandsTest, AnsweringYesSavesFirstAndACancelledSaveKeepsThePanelAway) {
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
  EXPECT_EQ(panel(), ConfinePanel::kNumber);
  EXPECT_FALSE(state.current().modified);
}

TEST_F(ReductionCommandsTest, AnIconOfFewColorsThatCameUpUnderThePanelIsNotReduced) {
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
  EXPECT_EQ(panel(), ConfinePanel::kNumber);
}

TEST_F(ReductionCommandsTest, EachRunStartsWithItsFirstMethod) {
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

TEST_F(ReductionCommandsTest, TheThresholdIsThereForSelectCutoffAlone) {
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

TEST_F(ReductionCommandsTest, TheThresholdOfTheListDecidesAndIsKept) {
  startWithNew();
  paintManyColors();
  set(0, 0, rgb(100, 100, 100));
  click("mnuEffectsSub3", 2);
  EXPECT_EQ(confine().picture().mask.GetPixel(0, 0), kBlack);
  // Item 99 of the list is 100, which is not above 100.
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

TEST_F(ReductionCommandsTest, AMethodOutsideTheListOfTheRunIsIgnored) {
  startWithNew();
  paintManyColors();
  click("mnuEffectsSub3", 0);
  for (const int index : {-1, 2, 100}) confine().pickMethod(index);
  EXPECT_EQ(confine().cboConfineColors(0), 0);
}

TEST_F(ReductionCommandsTest, ReducingFeedsNoStepToUndo) {
  startWithNew();
  paintManyColors();
  click("mnuEffectsSub3", 2);
  shell.cmdProceed();
  EXPECT_FALSE(enabled("mnuEditSub", kUndo));
  EXPECT_EQ(shell.drawing().history.undoCount(), 1);
  EXPECT_EQ(imageColors(), 2);
  EXPECT_EQ(status(StatusPanel::Path), state.current().path.trimmed());
}

TEST_F(ReductionCommandsTest, AfterAReductionNothingCanBeUndoneOrRedone) {
  startWithNew();
  paintManyColors();
  for (int step = 0; step < 2; ++step) {
    click("mnuEffectsSub", kButtonize);
    shell.cmdProceed();
  }
  click("mnuEditSub", kUndo);
  ASSERT_TRUE(enabled("mnuEditSub", kUndo) && enabled("mnuEditSub", kRedo));
  click("mnuEffectsSub3", 1);
  shell.cmdProceed();
  const Surface image = state.picImage;
  for (const int command : {kUndoAll, kUndo, kRedo}) {
    EXPECT_FALSE(enabled("mnuEditSub", command)) << command;
    click("mnuEditSub", command);
    EXPECT_TRUE(samePixels(state.picImage, image)) << command;
  }
}

TEST_F(ReductionCommandsTest, AStepAfterAReductionGoesBackToIt) {
  startWithNew();
  paintManyColors();
  click("mnuEffectsSub3", 1);
  shell.cmdProceed();
  const Surface image = state.picImage;
  click("mnuEffectsSub", kButtonize);
  shell.cmdProceed();
  ASSERT_FALSE(samePixels(state.picImage, image));
  click("mnuEditSub", kUndo);
  EXPECT_TRUE(samePixels(state.picImage, image));
  EXPECT_FALSE(enabled("mnuEditSub", kUndo));
}

TEST_F(ReductionCommandsTest, TheListsHoldWhatThePanelsKnow) {
  const FilledList thresholds = fillList("cboConfineColors(3)");
  EXPECT_EQ(static_cast<int>(thresholds.entries.size()), kThresholdCount);
  EXPECT_EQ(thresholds.first, confine().thresholdIndex());
  EXPECT_EQ(thresholds.entries.front(), std::to_string(kFirstThreshold));
  EXPECT_EQ(thresholds.entries.at(static_cast<std::size_t>(thresholds.first)),
            std::to_string(ReductionSettings{}.threshold));
  EXPECT_TRUE(fillList("cboNothing").entries.empty());
}

TEST_F(ReductionCommandsTest, AClickOnTheListFromInsideThePumpOfAPreviewWins) {
  startWithNew();
  paintManyColors();
  click("mnuEffectsSub3", 1);
  pump.inside = [this] { confine().pickMethod(2); };
  confine().pickMethod(1);
  EXPECT_EQ(confine().cboConfineColors(1), 2);
  const IconImage vga = reduceColors(state.picImage, state.picMask, {ReductionMethod::StandardVga});
  EXPECT_TRUE(samePixels(confine().picture().image, vga.image));
}

TEST_F(ReductionCommandsTest, CloseDuringAPreviewClosesThePanel) {
  startWithNew();
  paintManyColors();
  click("mnuEffectsSub3", 1);
  const int changes = display.count(DisplayPart::SidePanel);
  pump.inside = [this] { shell.cmdCancel(); };
  confine().pickMethod(1);
  EXPECT_EQ(panel(), kColorPanel);
  EXPECT_EQ(display.count(DisplayPart::SidePanel), changes);
}

TEST_F(ReductionCommandsTest, CloseAfterThePreviewIsDrawnClosesThePanelToo) {
  startWithNew();
  paintManyColors();
  pump.inside = [this] { shell.cmdCancel(); };
  click("mnuEffectsSub3", 1);
  EXPECT_EQ(panel(), kColorPanel);
  click("mnuEffectsSub3", 1);
  // At the second pump of the click, which happens when the samples are drawn.
  pump.inside = [this] { pump.inside = [this] { shell.cmdCancel(); }; };
  confine().pickMethod(1);
  EXPECT_EQ(panel(), kColorPanel);
  EXPECT_EQ(pump.inside, nullptr);
}

TEST_F(ReductionCommandsTest, ProceedAndADropDuringAPreviewLeaveAWholeIcon) {
  startWithNew();
  paintManyColors();
  click("mnuEffectsSub3", 2);
  pump.inside = [this] { shell.cmdProceed(); };
  confine().pickMethod(2);
  EXPECT_EQ(panel(), kColorPanel);
  EXPECT_EQ(imageColors(), 2);

  paintManyColors();
  click("mnuEffectsSub3", 2);
  pump.inside = [this] {
    shell.document().iconsPanel.PanelDrop(2, {folder.write("dropped.ico", plainIconFile(48, 3))});
  };
  confine().pickThreshold(5);
  EXPECT_EQ(panel(), kColorPanel);
  EXPECT_EQ(state.picImage.width(), 48);
  EXPECT_EQ(state.picImage.GetPixel(10, 10), rgb(255 - 3, 3, 48));
}

}  // namespace
}  // namespace gp::test
