// The commands that preview the icon on screen colours: what they need, what they end, and what closes the panel.
#include "document/Containers.h"
#include "document/PanelNumbers.h"
#include "support/ShellFixture.h"

namespace gp::test {
namespace {

constexpr int kColors = 7, kAlphaEffects = 10, kPopUpAlphaEffects = 5;

class PreviewCommands : public ShellFixture {
 protected:
  PreviewPanel& preview = shell.output().previewPanel;

  PreviewCommands() { start(); }
  int panel() const { return state.screen.mActivePanel; }
  void newIcon() {
    click("mnuFileSub", 3);
    state.current().neverSaved = false;
  }
  // A painted pixel of half transparency on an icon of 16x16.
  void bringUpAlpha() {
    IconImage icon = transparentIcon(16);
    icon.image.SetPixelV(4, 4, rgb(200, 100, 0));
    icon.mask.SetPixelV(4, 4, kBlack);
    icon.alpha = AlphaMatrix(16, 16, 128);
    IconContainerRec record = NewRecord();
    record.setDepth({kTrueColor, 32});
    record.setHeaderDepth({kTrueColor, 32});
    record.hasAlpha = true;
    record.neverSaved = false;
    shell.document().arrival.arrive(icon, record);
  }
  void pasteSquare() {
    clipboard.hold(Surface(4, 4, kWhite));
    shell.UpdateCommands();
    click("mnuEditSub", 7);
    ASSERT_TRUE(state.mRegionExists && state.mPendingPaint);
  }
};

TEST_F(PreviewCommands, EachEntryOpensThePanelInItsForm) {
  bringUpAlpha();
  struct Entry {
    const char* control;
    int index;
    PreviewForm form;
  };
  for (const Entry& entry : {Entry{"mnuEnquiryCurrent", kColors, PreviewForm::ScreenColors},
                             {"mnuEnquiryCurrent", kAlphaEffects, PreviewForm::AlphaEffects},
                             {"mnuEnquiryCurrent", kColors, PreviewForm::ScreenColors},
                             {"mnuPopUpSub", kPopUpAlphaEffects, PreviewForm::AlphaEffects}}) {
    ASSERT_TRUE(enabled(entry.control, entry.index));
    click(entry.control, entry.index);
    EXPECT_EQ(panel(), 21);
    EXPECT_EQ(preview.form(), entry.form);
    EXPECT_EQ(preview.picture(0).GetPixel(4, 4),
              entry.form == PreviewForm::AlphaEffects ? rgb(227, 177, 127) : rgb(200, 100, 0));
  }
}

TEST_F(PreviewCommands, TheirKeysAreCtrlPAndCtrlA) {
  EXPECT_STREQ(findCommand("mnuEnquiryCurrent", kColors)->key, "Ctrl+P");
  EXPECT_STREQ(findCommand("mnuEnquiryCurrent", kAlphaEffects)->key, "Ctrl+A");
  EXPECT_STREQ(findCommand("mnuPopUpSub", kPopUpAlphaEffects)->key, "");
}

TEST_F(PreviewCommands, WithoutAnIconTheySaySoAndNothingOpens) {
  pump.pumps = 0;
  for (const auto& [control, index] : {std::pair{"mnuEnquiryCurrent", kColors},
                                       {"mnuEnquiryCurrent", kAlphaEffects},
                                       {"mnuPopUpSub", kPopUpAlphaEffects}}) {
    EXPECT_FALSE(enabled(control, index));
    boxes.expectTold("No icon in Editing Area yet", BoxIcon::None);
    click(control, index);
    EXPECT_TRUE(boxes.done());
  }
  EXPECT_EQ(panel(), kColorPanel);
  EXPECT_EQ(pump.pumps, 0);
}

TEST_F(PreviewCommands, AlphaEffectsNeedAnIconWithAlpha) {
  newIcon();
  for (const auto& [control, index] :
       {std::pair{"mnuEnquiryCurrent", kAlphaEffects}, {"mnuPopUpSub", kPopUpAlphaEffects}}) {
    EXPECT_FALSE(enabled(control, index));
    click(control, index);
    EXPECT_EQ(display.announced.back(), "Icon has no alpha channel");
  }
  EXPECT_EQ(panel(), kColorPanel);
}

TEST_F(PreviewCommands, TheToolEndsAndAFloatingRegionIsMergedAsAStepOfUndo) {
  newIcon();
  pasteSquare();
  click("mnuEnquiryCurrent", kColors);
  EXPECT_FALSE(state.mRegionExists || state.mPendingPaint);
  EXPECT_EQ(shell.drawing().tools.selectedTool(), kNoTool);
  EXPECT_EQ(state.picImage.GetPixel(0, 0), kWhite) << "the paste is part of the icon";
  EXPECT_EQ(preview.picture(2).GetPixel(0, 0), kWhite);
  EXPECT_TRUE(state.IsIconChanged());
  click("mnuEditSub", 1);
  EXPECT_EQ(state.picMask.GetPixel(0, 0), kWhite) << "Undo takes the paste back";
}

TEST_F(PreviewCommands, TheStepsOfUndoAreStillThere) {
  newIcon();
  paint(3, 3);
  paint(5, 5);
  click("mnuEnquiryCurrent", kColors);
  EXPECT_EQ(shell.drawing().tools.selectedTool(), kNoTool);
  click("mnuEditSub", 1);
  EXPECT_EQ(panel(), kColorPanel);
  EXPECT_EQ(state.picMask.GetPixel(5, 5), kWhite);
  EXPECT_EQ(state.picMask.GetPixel(3, 3), kBlack);
}

TEST_F(PreviewCommands, AnotherOpenPanelCloses) {
  click("mnuFileSub", 2);
  for (const auto& [control, index, number] :
       {std::tuple{"mnuRotateSubmenu", 4, kRotatePanel}, {"mnuFileSub", 18, kCursorPanel}, {"mnuEffectsSub", 3, 7}}) {
    click(control, index);
    ASSERT_EQ(panel(), number);
    click("mnuEnquiryCurrent", kColors);
    EXPECT_EQ(panel(), 21);
  }
}

TEST_F(PreviewCommands, ProceedDoesNothingAndCloseAndEscLeaveTheIconAsItIs) {
  newIcon();
  paint(3, 3);
  for (const auto& close : {&Shell::cmdCancel, &Shell::escapeKey}) {
    click("mnuEnquiryCurrent", kColors);
    const Surface image = state.picImage;
    shell.cmdProceed();
    EXPECT_EQ(panel(), 21);
    (shell.*close)();
    EXPECT_EQ(panel(), kColorPanel);
    EXPECT_TRUE(std::ranges::equal(state.picImage.pixels(), image.pixels()));
    EXPECT_TRUE(state.current().modified);
  }
}

TEST_F(PreviewCommands, TheButtonClosesThePanelAndShowsTheAlphaScreenWithTheIcon) {
  bringUpAlpha();
  click("mnuEnquiryCurrent", kAlphaEffects);
  int screens = 0;
  form.onAlpha = [&](const IconImage& icon, AlphaMode mode) {
    ++screens;
    EXPECT_EQ(mode, AlphaMode::Edit);
    EXPECT_EQ(icon.image.GetPixel(4, 4), rgb(200, 100, 0));
    EXPECT_EQ(icon.alpha.at(4, 4), 128);
    EXPECT_EQ(panel(), kColorPanel);
    return AlphaOutcome();
  };
  preview.editAlphaChannel();
  EXPECT_EQ(screens, 1);
  EXPECT_FALSE(state.IsIconChanged());
}

TEST_F(PreviewCommands, AnotherContainerClosesThePanel) {
  bringUpAlpha();
  click("mnuEnquiryCurrent", kAlphaEffects);
  shell.document().iconsPanel.SwitchContainer(1);
  EXPECT_EQ(panel(), kColorPanel);
  shell.document().iconsPanel.SwitchContainer(0);
  EXPECT_EQ(panel(), kColorPanel);
  click("mnuEnquiryCurrent", kAlphaEffects);
  EXPECT_EQ(preview.picture(0).GetPixel(4, 4), rgb(227, 177, 127));
}

TEST_F(PreviewCommands, ItOpensWhileMessagesAreProcessedByAnotherCommand) {
  bringUpAlpha();
  pump.inside = [this] { click("mnuEnquiryCurrent", kColors); };
  click("mnuEnquiryCurrent", kAlphaEffects);
  EXPECT_EQ(panel(), 21);
  EXPECT_EQ(preview.form(), PreviewForm::AlphaEffects) << "the outer command comes last";
  EXPECT_EQ(preview.picture(0).GetPixel(4, 4), rgb(227, 177, 127));
}

}  // namespace
}  // namespace gp::test
