// What holds for every effect of the table, in the whole program.
#include "document/Containers.h"
#include "shell/EffectFixture.h"

namespace gp::test {
namespace {

class EffectTableCommandsTest : public EffectFixture {
 protected:
  void startWith(const IconImage& icon) {
    shell.document().arrival.arrive(icon, NewRecord());
    state.mCurrentColor = rgb(200, 100, 50);
  }
  void open(const EffectRow& effect) { click("mnuEffectsSub", effect.menu.index); }
  SettingsPanel& panelOf(const EffectRow& effect) { return settings(effect.panel.number); }
  IconImage current() const { return {state.picImage, state.picMask, {}}; }

  // Proceed shows the text, and the panel stays open.
  void expectRefused(const EffectRow& effect, const Refusal& refusal, const IconImage& icon) {
    boxes.expectTold(refusal.text, refusal.icon);
    shell.cmdProceed();
    EXPECT_EQ(panel(), effect.panel.number);
    EXPECT_TRUE(samePixels(current(), icon)) << effect.title;
    EXPECT_FALSE(enabled("mnuEditSub", kUndo));
    shell.cmdCancel();
  }

  // The sample and the icon after Proceed are what the effect's function returns; one step of Undo brings back `icon`.
  void expectMade(const EffectRow& effect, const IconImage& icon) {
    SettingsPanel& side = panelOf(effect);
    const IconImage expected = effect.apply(icon, side.values());
    EXPECT_TRUE(samePixels(side.picture(), expected)) << effect.name;
    EXPECT_TRUE(samePixels(current(), icon)) << effect.name;
    const Refusal refusal = refusalOf(effect, icon, side.values());
    if (refusal.text) return expectRefused(effect, refusal, icon);
    shell.cmdProceed();
    EXPECT_EQ(panel(), kColorPanel);
    EXPECT_TRUE(samePixels(current(), expected)) << effect.name;
    EXPECT_TRUE(state.current().modified);
    click("mnuEditSub", kUndo);
    EXPECT_TRUE(samePixels(current(), icon)) << effect.name;
    EXPECT_FALSE(enabled("mnuEditSub", kUndo));
  }
};

TEST_F(EffectTableCommandsTest, EachEffectHasItsMenuEntry) {
  for (const EffectRow* effect : effectTable()) {
    const Command* command = findCommand("mnuEffectsSub", effect->menu.index);
    ASSERT_NE(command, nullptr) << effect->menu.caption;
    EXPECT_STREQ(command->caption, effect->menu.caption);
    EXPECT_STREQ(command->key, effect->menu.key);
    EXPECT_STREQ(command->picture, effect->menu.picture);
    EXPECT_STREQ(command->parent, "mnuEffects");
    EXPECT_NE(command->run, nullptr) << effect->menu.caption;
  }
}

TEST_F(EffectTableCommandsTest, TheEntriesOfTheMenuAreInTheOrderOfTheirIndices) {
  std::vector<int> indices;
  for (const Command& command : commandTable())
    if (command.parent == std::string_view("mnuEffects")) indices.push_back(command.index);
  EXPECT_TRUE(std::ranges::is_sorted(indices));
  const std::vector<int> expected{0, 2, 3, 4, 6, 7, 8, 9, 11, 12, 13, 14, 16, 17, 18, 20, 21, 23, 24, 26, 27, 29};
  EXPECT_TRUE(std::ranges::includes(indices, expected));
}

TEST_F(EffectTableCommandsTest, SampleResultAndUndoFollowTheFunctionForEveryChoiceOfEverySetting) {
  start();
  for (const EffectRow* effect : effectsOfGeneratedPanels())
    for (const int size : kIconSides)
      for (const IconImage& icon : generatedIcons(size)) {
        startWith(icon);
        open(*effect);
        ASSERT_EQ(panel(), effect->panel.number) << effect->name;
        expectMade(*effect, icon);
        for (const Setting& setting : effect->settings)
          for (const int choice : {choiceCount(setting) - 1, choiceCount(setting) / 2, 0, firstChoice(setting)}) {
            startWith(icon);
            open(*effect);
            panelOf(*effect).choose(setting, choice);
            ASSERT_EQ(panelOf(*effect).choiceOf(setting), choice) << effect->name;
            expectMade(*effect, icon);
          }
      }
}

TEST_F(EffectTableCommandsTest, CloseChangesNothing) {
  start();
  for (const EffectRow* effect : effectsOfGeneratedPanels())
    for (const IconImage& icon : generatedIcons(24)) {
      startWith(icon);
      const bool wasModified = state.current().modified;
      open(*effect);
      for (const Setting& setting : effect->settings) panelOf(*effect).choose(setting, choiceCount(setting) - 1);
      shell.cmdCancel();
      EXPECT_EQ(panel(), kColorPanel);
      EXPECT_TRUE(samePixels(current(), icon)) << effect->name;
      EXPECT_EQ(state.current().modified, wasModified);
      EXPECT_FALSE(enabled("mnuEditSub", kUndo)) << effect->name;
    }
}

TEST_F(EffectTableCommandsTest, AnIconWithAlphaIsRefused) {
  start();
  for (const EffectRow* effect : pixelEffects()) {
    startWith(transparentIcon(16));
    state.current().hasAlpha = true;
    boxes.expectTold("Current icon is with alpha, please run Convert 32 To 24 BPP\nto convert it to 24-BPP first.",
                     BoxIcon::None);
    open(*effect);
    EXPECT_EQ(panel(), kColorPanel) << effect->name;
  }
}

}  // namespace
}  // namespace gp::test
