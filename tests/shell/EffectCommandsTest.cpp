// Effects in the whole program: what opens their panels, what Proceed and Close do, and what a user can do while a
// panel is open.
#include "shell/EffectFixture.h"

#include <array>

namespace gp::test {
namespace {

constexpr int kShadowed = 14, kDisabled = 21, kClearContainer = 13, kCut = 4;
constexpr Color kGrey = rgb(128, 128, 128);
constexpr const char* kAlphaText =
    "Current icon is with alpha, please run Convert 32 To 24 BPP\nto convert it to 24-BPP first.";
constexpr const char* kNoIcon = "No icon in Editing Area yet";

struct Opener {
  const char* control;
  int index;
  int panel;
};
constexpr std::array kOpeners{
    Opener{"mnuEffectsSub", 3, kButtonizePanel},        Opener{"mnuEffectsSub", 11, kReliefPanel},
    Opener{"mnuEffectsSub", 12, kReliefPanel},          Opener{"mnuEffectsSub", 13, kReliefPanel},
    Opener{"mnuEffectsSub", 14, kReliefPanel},          Opener{"mnuEffectsSub", 21, kDisabledPanel},
    Opener{"mnuEffectsSub3", 0, ConfinePanel::kNumber}, Opener{"mnuEffectsSub3", 1, ConfinePanel::kNumber},
    Opener{"mnuEffectsSub3", 2, ConfinePanel::kNumber},
};

class EffectCommandsTest : public EffectFixture {};

// Behaviour common to all panels.

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
    const EffectPanel* up = shell.effects().settingsPanel(panel());
    if (!up) up = &shell.effects().panel<ConfinePanel>();
    ASSERT_EQ(up->number(), panel());
    const IconImage shown = up->picture();
    const Surface look = up->sample();
    shell.cmdProceed();
    EXPECT_TRUE(samePixels(state.picImage, shown.image)) << opener.index;
    EXPECT_TRUE(samePixels(state.picMask, shown.mask)) << opener.index;
    EXPECT_TRUE(samePixels(state.PicIcon, look)) << opener.index;
    EXPECT_TRUE(samePixels(state.picPanelImage[0], shown.image)) << opener.index;
    EXPECT_TRUE(state.current().modified);
    EXPECT_EQ(panel(), kColorPanel);
    // Avoids the question about saving; the next round starts with an unmodified icon.
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
  shell.showPanel(kReliefPanel);
  display.repaints = 0;
  display.parts.clear();
  shell.cmdCancel();
  EXPECT_EQ(panel(), kColorPanel);
  EXPECT_EQ(display.repaints, 0);
  EXPECT_FALSE(display.hasChanged(DisplayPart::EditingArea));
}

// Changes of the icon under an open panel.

TEST_F(EffectCommandsTest, AnIconThatIsDroppedClosesThePanel) {
  startWithNew();
  set(3, 3, kRed);
  click("mnuEffectsSub", kButtonize);
  shell.document().iconsPanel.PanelDrop(1, {folder.write("dropped.ico", plainIconFile(16, 3))});
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
  ASSERT_EQ(panel(), kReliefPanel);
  settings(kReliefPanel).preview();
  EXPECT_EQ(settings(kReliefPanel).sample().width(), 16);
  const Surface image = state.picImage;
  shell.cmdProceed();
  // A completely painted icon: no edge has room, and the picture covers them.
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
  EXPECT_EQ(panel(), kDisabledPanel);
}

TEST_F(EffectCommandsTest, AnEmptyContainerUnderThePanelShowsAnEmptySampleAndIsRefused) {
  startWithNew();
  click("mnuEffectsSub", kDisabled);
  state.current().present = false;
  settings(kDisabledPanel).preview();
  EXPECT_EQ(settings(kDisabledPanel).sample().width(), 0);
  boxes.expectTold(kNoIcon, BoxIcon::None);
  shell.cmdProceed();
  EXPECT_EQ(panel(), kDisabledPanel);
}

TEST_F(EffectCommandsTest, ARegionEndsWhereItIsWhenAPanelComesUp) {
  startWithNew();
  set(3, 3, kRed);
  shell.recordUndo();
  shell.drawing().tools.selectTool(kRegion);
  drag(2, 2, 6, 6);
  ASSERT_TRUE(state.mRegionExists);
  drag(3, 3, 13, 13);
  ASSERT_EQ(at(13, 13), kRed);
  const int steps = shell.drawing().history.undoCount();
  click("mnuEffectsSub", kEmbossed);
  EXPECT_FALSE(state.mRegionExists);
  EXPECT_FALSE(enabled("mnuEditSub", kCut));
  EXPECT_EQ(at(13, 13), kRed);
  EXPECT_EQ(shell.drawing().history.undoCount(), steps + 1);
  shell.cmdCancel();
  click("mnuEditSub", kUndo);
  EXPECT_EQ(at(3, 3), kRed);
  EXPECT_EQ(at(13, 13), kNoColor);
}

TEST_F(EffectCommandsTest, WhatStoodInARegionTakesTheEffect) {
  startWithNew();
  set(3, 3, kRed);
  shell.drawing().tools.selectTool(kRegion);
  drag(2, 2, 6, 6);
  click("mnuEffectsSub", kEmbossed);
  shell.cmdProceed();
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
                          {"mnuEditSub", kClearContainer},
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
    if (one.index == kClearContainer)
      boxes.expectAsked("Clear current icon from container.  Proceed?\n", BoxAnswer::Yes);
    click(one.control, one.index);
    EXPECT_EQ(panel(), kColorPanel) << one.control << one.index;
    state.current().modified = state.current().neverSaved = false;
  }
}

TEST_F(EffectCommandsTest, ThePanelPutsTheToolAwayAndAToolPutsThePanelAway) {
  startWithNew();
  shell.drawing().tools.selectTool(kPaint);
  click("mnuEffectsSub", kEmbossed);
  EXPECT_EQ(shell.selectedTool(), kNoTool);
  paint(4, 4);
  EXPECT_EQ(at(4, 4), kNoColor);
  shell.drawing().tools.selectTool(kPaint);
  EXPECT_EQ(panel(), kColorPanel);
}

TEST_F(EffectCommandsTest, AnotherContainerClosesThePanel) {
  startWithNew();
  click("mnuEffectsSub", kEmbossed);
  shell.document().iconsPanel.SwitchContainer(3);
  EXPECT_EQ(panel(), kColorPanel);
}

TEST_F(EffectCommandsTest, APanelThatComesUpTakesTheAnimatedCursorsPlace) {
  startWithNew();
  state.screen.aniContainerVisible = true;
  state.screen.lblStatusPanel[static_cast<std::size_t>(StatusPanel::Path)] = "frames";
  display.parts.clear();
  shell.showPanel(kReliefPanel);
  EXPECT_FALSE(state.screen.aniContainerVisible);
  EXPECT_EQ(status(StatusPanel::Path), state.current().path.trimmed());
  EXPECT_TRUE(display.hasChanged(DisplayPart::Pointer));
  EXPECT_FALSE(state.screen.hourglass);
  // Only if no panel was open before.
  state.screen.aniContainerVisible = true;
  shell.showPanel(kColorPanel);
  EXPECT_TRUE(state.screen.aniContainerVisible);
}

// Relief.

TEST_F(EffectCommandsTest, ThePanelOfReliefIsNamedAfterItsEffect) {
  startWithNew();
  for (const auto& [index, name] : {std::pair{11, "Embossed"}, {12, "Engraved"}, {13, "Raised"}, {14, "Shadowed"}}) {
    click("mnuEffectsSub", index);
    EXPECT_STREQ(settings(kReliefPanel).effect().title, name);
    EXPECT_EQ(settings(kReliefPanel).effect().settings.size(), index == kShadowed ? 1U : 0U);
  }
}

TEST_F(EffectCommandsTest, AShadowIsBlackOrOfTheCurrentColor) {
  startWithNew();
  set(5, 5, kRed);
  state.mCurrentColor = rgb(1, 2, 3);
  click("mnuEffectsSub", kShadowed);
  EXPECT_EQ(settings(kReliefPanel).picture().image.GetPixel(6, 6), kBlack);
  EXPECT_EQ(settings(kReliefPanel).picture().mask.GetPixel(6, 6), kBlack);
  const int changes = display.count(DisplayPart::SidePanel);
  choose(kReliefPanel, 1);
  EXPECT_EQ(display.count(DisplayPart::SidePanel), changes + 1);
  EXPECT_EQ(settings(kReliefPanel).sample().GetPixel(6, 6), rgb(1, 2, 3));
  shell.cmdProceed();
  EXPECT_EQ(at(6, 6), rgb(1, 2, 3));
  EXPECT_EQ(at(5, 5), kRed);
}

TEST_F(EffectCommandsTest, OnlyAShadowTakesTheCurrentColor) {
  startWithNew();
  set(5, 5, kRed);
  state.mCurrentColor = rgb(1, 2, 3);
  click("mnuEffectsSub", kShadowed);
  choose(kReliefPanel, 1);
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
  constexpr std::array<Color, 3> kTopEdge{kWhite, kBlack, kWhite};
  for (int pattern = 0; pattern < 3; ++pattern) {
    startWithNew(kNewIcon16);
    click("mnuEffectsSub", kButtonize);
    choose(kButtonizePanel, pattern);
    EXPECT_EQ(choice(kButtonizePanel), pattern);
    EXPECT_EQ(settings(kButtonizePanel).sample().GetPixel(5, 0), kTopEdge[static_cast<std::size_t>(pattern)]);
    shell.cmdProceed();
    EXPECT_EQ(at(5, 0), kTopEdge[static_cast<std::size_t>(pattern)]);
    EXPECT_EQ(at(0, 0), kNoColor);
    state.current().modified = false;
  }
}

TEST_F(EffectCommandsTest, AStyleOutsideTheListIsIgnored) {
  startWithNew();
  click("mnuEffectsSub", kButtonize);
  choose(kButtonizePanel, 2);
  for (const int index : {-1, 3, 1000}) choose(kButtonizePanel, index);
  EXPECT_EQ(choice(kButtonizePanel), 2);
}

}  // namespace
}  // namespace gp::test
