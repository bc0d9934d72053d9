#include "document/Containers.h"
#include "document/PanelNumbers.h"
#include "effects/EffectCases.h"
#include "effects/MadeUpEffect.h"
#include "effects/SettingsPanel.h"
#include "support/Rooms.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

class SettingsPanelTest : public testing::Test, protected Rooms {
 protected:
  EffectFrame frame{context, document, drawing.history};
  SettingsPanel panel{frame, {&kMadeUp, &kPainted}};
  int changes = 0;

  SettingsPanelTest() {
    display.onChanged = [this](DisplayPart part) { changes += part == DisplayPart::SidePanel; };
  }
  void arrive() { document.arrival.arrive(generatedIcons(16).back(), NewRecord()); }
  int isUp() const { return state.screen.mActivePanel; }
};

TEST_F(SettingsPanelTest, ItHasTheNumberOfItsEffectsAndStartsWithTheirFirstValues) {
  EXPECT_EQ(panel.number(), kMadeUpPanel.number);
  EXPECT_EQ(&panel.effect(), &kMadeUp);
  EXPECT_EQ(panel.values(), firstValues(kMadeUpSettings));
}

TEST_F(SettingsPanelTest, EachChoiceOfEachSettingIsAValueAndIsSeenInTheSample) {
  arrive();
  panel.open(kMadeUp);
  state.mCurrentColor = rgb(200, 100, 50);
  for (std::size_t i = 0; i < std::size(kMadeUpSettings); ++i) {
    const Setting& setting = kMadeUpSettings[i];
    for (int choice = choiceCount(setting) - 1; choice >= 0; --choice) {
      changes = 0;
      panel.choose(setting, choice);
      EXPECT_EQ(changes, 1);
      EXPECT_EQ(panel.choiceOf(setting), choice);
      EXPECT_EQ(panel.values().number(i), valueOfChoice(setting, choice, state.mCurrentColor)) << setting.option;
      EXPECT_TRUE(samePixels(panel.picture(), madeUp(frame.currentIcon(), panel.values()))) << setting.option;
    }
  }
}

TEST_F(SettingsPanelTest, AChoiceThatTheControlDoesNotHaveIsIgnored) {
  arrive();
  panel.open(kMadeUp);
  changes = 0;
  for (const Setting& setting : kMadeUpSettings) {
    const int before = panel.choiceOf(setting);
    for (const int choice : {-1, choiceCount(setting), 1000}) panel.choose(setting, choice);
    EXPECT_EQ(panel.choiceOf(setting), before) << setting.option;
  }
  panel.choose(Setting{.option = "red"}, 0);
  EXPECT_EQ(changes, 0);
  EXPECT_EQ(panel.values(), firstValues(kMadeUpSettings));
}

TEST_F(SettingsPanelTest, ItShowsTheSettingsOfOneEffectAtATimeAndKeepsTheChoices) {
  arrive();
  panel.open(kMadeUp);
  panel.choose(kMadeUpSettings[2], 2);
  panel.open(kPainted);
  EXPECT_EQ(&panel.effect(), &kPainted);
  for (const Setting& setting : kMadeUpSettings) EXPECT_FALSE(panel.shows(setting));
  EXPECT_EQ(panel.values(), EffectValues());
  EXPECT_TRUE(samePixels(panel.picture(), painted(frame.currentIcon(), {})));
  panel.open(kMadeUp);
  for (const Setting& setting : kMadeUpSettings) EXPECT_TRUE(panel.shows(setting));
  EXPECT_EQ(panel.values().number(2), 2);
}

TEST_F(SettingsPanelTest, ProceedCommitsWhatTheSampleShows) {
  arrive();
  panel.open(kMadeUp);
  panel.choose(kMadeUpSettings[4], 1);
  const IconImage shown = panel.picture();
  const int steps = drawing.history.undoCount();
  panel.proceed();
  EXPECT_TRUE(samePixels(frame.currentIcon(), shown));
  EXPECT_EQ(drawing.history.undoCount(), steps + 1);
  EXPECT_EQ(isUp(), kColorPanel);
}

TEST_F(SettingsPanelTest, WithoutAnIconItDoesNotOpenAndKeepsItsEffect) {
  boxes.expectTold("No icon in Editing Area yet", BoxIcon::None);
  panel.open(kPainted);
  EXPECT_EQ(isUp(), kColorPanel);
  EXPECT_EQ(&panel.effect(), &kMadeUp);
  EXPECT_EQ(changes, 0);
}

}  // namespace
}  // namespace gp::test
