// The panels of brightness, theme, sharpening and swap in the whole program: their messages, what is applied, and Undo.
#include "document/Containers.h"
#include "effects/BrightnessPanel.h"
#include "effects/ThemePanel.h"
#include "shell/EffectFixture.h"

namespace gp::test {
namespace {

constexpr int kBrightnessEntry = 6, kSharpenEntry = 7, kThemeEntry = 9, kCastEntry = 16, kSwapEntry = 20;
constexpr int kSharpenPanel = 10, kSwapPanel = 14;
constexpr int kZero = 18, kMinus50 = 8, kPlus90 = 36;  // entries of the lists of brightness

class ToneCommands : public EffectFixture {
 protected:
  void startWithPixel(Color color) {
    startWithNew();
    set(5, 5, color);
    shell.clearUndoHistory();
    shell.recordUndo();
    state.current().modified = false;
  }
  BrightnessPanel& brightness() { return shell.effects().panel<BrightnessPanel>(); }
  ThemePanel& theme() { return shell.effects().panel<ThemePanel>(); }
  Color shown(const EffectPanel& side) const { return side.picture().image.GetPixel(5, 5); }
  void expectUnchanged(const char* message, BoxIcon icon, int number) {
    boxes.expectTold(message, icon);
    shell.cmdProceed();
    EXPECT_EQ(panel(), number);
    EXPECT_FALSE(state.current().modified);
    EXPECT_FALSE(enabled("mnuEditSub", kUndo));
  }
  void expectApplied(Color before, Color after) {
    shell.cmdProceed();
    EXPECT_EQ(panel(), kColorPanel);
    EXPECT_TRUE(state.current().modified);
    EXPECT_EQ(at(5, 5), after);
    click("mnuEditSub", kUndo);
    EXPECT_EQ(at(5, 5), before);
    click("mnuEditSub", kRedo);
    EXPECT_EQ(at(5, 5), after);
  }
};

TEST_F(ToneCommands, BrightnessUntouchedIsNoChangeAndThePanelStays) {
  startWithPixel(rgb(200, 101, 8));
  click("mnuEffectsSub", kBrightnessEntry);
  ASSERT_EQ(panel(), BrightnessPanel::kNumber);
  EXPECT_EQ(shown(brightness()), rgb(200, 101, 8));
  expectUnchanged("No change actually made", BoxIcon::Exclamation, BrightnessPanel::kNumber);
}

TEST_F(ToneCommands, ChangesOfBrightnessCompoundUntilProceed) {
  startWithPixel(rgb(200, 101, 8));
  click("mnuEffectsSub", kBrightnessEntry);
  brightness().adjust(BrightnessOf::Green, kMinus50);
  EXPECT_EQ(shown(brightness()), rgb(200, 50, 8));
  brightness().adjust(BrightnessOf::Green, kMinus50);
  EXPECT_EQ(shown(brightness()), rgb(200, 25, 8));
  brightness().adjust(BrightnessOf::Red, kPlus90);
  brightness().adjust(BrightnessOf::Overall, kMinus50);
  EXPECT_EQ(at(5, 5), rgb(200, 101, 8));
  EXPECT_EQ(shown(brightness()), rgb(127, 12, 4));
  expectApplied(rgb(200, 101, 8), rgb(127, 12, 4));
}

TEST_F(ToneCommands, RestoreTakesTheIconAgainAndForgetsTheChanges) {
  startWithPixel(rgb(200, 101, 8));
  click("mnuEffectsSub", kBrightnessEntry);
  brightness().adjust(BrightnessOf::Overall, kPlus90);
  brightness().cmdBrightnessRestore();
  EXPECT_EQ(shown(brightness()), rgb(200, 101, 8));
  expectUnchanged("No change actually made", BoxIcon::Exclamation, BrightnessPanel::kNumber);
  brightness().adjust(BrightnessOf::Blue, kMinus50);
  expectApplied(rgb(200, 101, 8), rgb(200, 101, 4));
}

TEST_F(ToneCommands, AChangeByZeroIsAChange) {
  startWithPixel(rgb(200, 101, 8));
  click("mnuEffectsSub", kBrightnessEntry);
  brightness().adjust(BrightnessOf::Red, kZero);
  shell.cmdProceed();
  EXPECT_EQ(panel(), kColorPanel);
  EXPECT_TRUE(state.current().modified);
}

TEST_F(ToneCommands, AnEntryThatTheListDoesNotHaveIsIgnored) {
  startWithPixel(rgb(200, 101, 8));
  click("mnuEffectsSub", kBrightnessEntry);
  for (const int choice : {-1, kPlus90 + 1, 1000}) brightness().adjust(BrightnessOf::Overall, choice);
  EXPECT_FALSE(brightness().gChangedBrightness());
  EXPECT_EQ(shown(brightness()), rgb(200, 101, 8));
}

TEST_F(ToneCommands, OpeningThePanelAgainStartsWithoutChanges) {
  startWithPixel(rgb(200, 101, 8));
  click("mnuEffectsSub", kBrightnessEntry);
  brightness().adjust(BrightnessOf::Overall, kPlus90);
  shell.cmdCancel();
  click("mnuEffectsSub", kBrightnessEntry);
  EXPECT_EQ(shown(brightness()), rgb(200, 101, 8));
  EXPECT_FALSE(brightness().gChangedBrightness());
}

TEST_F(ToneCommands, AnotherIconUnderThePanelForgetsTheChanges) {
  startWithPixel(rgb(200, 101, 8));
  click("mnuEffectsSub", kBrightnessEntry);
  brightness().adjust(BrightnessOf::Overall, kPlus90);
  IconImage other = transparentIcon(16);
  other.image.SetPixelV(5, 5, rgb(10, 20, 30));
  other.mask.SetPixelV(5, 5, kBlack);
  shell.document().arrival.arrive(other, NewRecord());
  brightness().preview();
  EXPECT_EQ(shown(brightness()), rgb(10, 20, 30));
  expectUnchanged("No change actually made", BoxIcon::Exclamation, BrightnessPanel::kNumber);
  brightness().adjust(BrightnessOf::Red, kMinus50);
  EXPECT_EQ(shown(brightness()), rgb(5, 20, 30));
  shell.cmdProceed();
  EXPECT_EQ(at(5, 5), rgb(5, 20, 30));
}

TEST_F(ToneCommands, AThemeNeedsAColor) {
  startWithPixel(rgb(200, 100, 50));
  click("mnuEffectsSub", kThemeEntry);
  ASSERT_EQ(panel(), ThemePanel::kNumber);
  EXPECT_EQ(shown(theme()), rgb(200, 100, 50));
  EXPECT_FALSE(theme().usesPercent());
  expectUnchanged("No selection of color yet", BoxIcon::None, ThemePanel::kNumber);
  dialogs.colors = {kNoColor};
  theme().pickColor();
  expectUnchanged("No selection of color yet", BoxIcon::None, ThemePanel::kNumber);
  dialogs.colors = {rgb(0, 10, 0), kNoColor};
  theme().pickColor();
  theme().pickColor();
  EXPECT_EQ(theme().color(), rgb(0, 10, 0)) << "a cancel keeps the colour";
  EXPECT_EQ(shown(theme()), rgb(50, 200, 50));
  expectApplied(rgb(200, 100, 50), rgb(50, 200, 50));
}

TEST_F(ToneCommands, ThePercentageOfAThemeActsWithHueZeroOnly) {
  startWithPixel(rgb(0, 200, 0));
  click("mnuEffectsSub", kThemeEntry);
  dialogs.colors = {rgb(9, 9, 9), rgb(0, 0, 9)};
  theme().pickColor();
  EXPECT_TRUE(theme().usesPercent());
  EXPECT_EQ(shown(theme()), rgb(200, 0, 0));
  theme().pickPercent(5);
  EXPECT_EQ(shown(theme()), rgb(150, 50, 50));
  for (const int choice : {-1, 11}) theme().pickPercent(choice);
  EXPECT_EQ(theme().cboColorTheme(), 5);
  theme().pickColor();
  EXPECT_FALSE(theme().usesPercent());
  EXPECT_EQ(shown(theme()), rgb(0, 0, 200));
}

TEST_F(ToneCommands, TheOriginalEntryIsNoChangeAndAnotherOneIsApplied) {
  struct Case {
    int entry, panel, original;
    const char* refusal;
    BoxIcon icon;
    Color after;
  };
  const Case cases[] = {
      {kSharpenEntry, kSharpenPanel, 2, "No change actually made", BoxIcon::Exclamation, rgb(255, 152, 12)},
      {kSwapEntry, kSwapPanel, 0, "No swap selected yet.", BoxIcon::None, rgb(8, 101, 200)}};
  for (const Case& one : cases) {
    startWithPixel(rgb(200, 101, 8));
    click("mnuEffectsSub", one.entry);
    ASSERT_EQ(panel(), one.panel);
    EXPECT_EQ(choice(one.panel), one.original);
    expectUnchanged(one.refusal, one.icon, one.panel);
    choose(one.panel, 1);
    expectApplied(rgb(200, 101, 8), one.after);
    state.current().modified = false;
  }
}

TEST_F(ToneCommands, CastStartsInTheMiddleAndIsAppliedAsItIs) {
  startWithPixel(rgb(100, 50, 20));
  click("mnuEffectsSub", kCastEntry);
  ASSERT_EQ(panel(), kReliefPanel);
  EXPECT_EQ(choice(kReliefPanel), rgb(127, 127, 127));
  choose(kReliefPanel, rgb(10, 60, 255));
  expectApplied(rgb(100, 50, 20), rgb(90, 10, 235));
}

TEST_F(ToneCommands, AnIconThatIsGoneIsRefused) {
  startWithPixel(rgb(200, 101, 8));
  for (const int entry : {kBrightnessEntry, kThemeEntry, kSharpenEntry, kSwapEntry, kCastEntry}) {
    click("mnuEffectsSub", entry);
    const int open = panel();
    ASSERT_NE(open, kColorPanel);
    state.current().present = false;
    boxes.expectTold("No icon in Editing Area yet", BoxIcon::None);
    shell.cmdProceed();
    EXPECT_EQ(panel(), open);
    state.current().present = true;
    shell.cmdCancel();
  }
}

}  // namespace
}  // namespace gp::test
