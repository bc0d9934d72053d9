// What must hold for every panel of the effects, whatever happens while it is open: another icon comes up or goes, a
// second click arrives while the program processes events, a control is at the end of its range.
#include "document/Announcements.h"
#include "document/Containers.h"
#include "document/Messages.h"
#include "document/PanelNumbers.h"
#include "effects/BlendPanel.h"
#include "effects/BrightnessPanel.h"
#include "effects/ConfinePanel.h"
#include "effects/EffectCases.h"
#include "effects/EffectTexts.h"
#include "effects/GradientPanel.h"
#include "effects/ModelIcons.h"
#include "effects/SettingsPanel.h"
#include "effects/SpherePanel.h"
#include "effects/TexturePanel.h"
#include "effects/ThemePanel.h"
#include "support/ShellFixture.h"

namespace gp::test {
namespace {

// A command that opens a panel.
struct PanelCommand {
  std::string name;
  const char* control;
  int index;
  int number;  // of fraPanel
};

std::vector<PanelCommand> panelCommands() {
  std::vector<PanelCommand> commands;
  for (const EffectRow* effect : pixelEffects())
    commands.push_back({effect->title, "mnuEffectsSub", effect->menu.index, effect->panel.number});
  for (int run = 0; run < kConfineRuns; ++run)
    commands.push_back({"Reduction " + std::to_string(run), "mnuEffectsSub3", run, ConfinePanel::kNumber});
  return commands;
}

class PanelsUnderChanges : public ProgramFixture<AgreeingBoxes> {
 protected:
  static constexpr int kAnswers = 100;

  PanelsUnderChanges() {
    start();
    dialogs.colors.assign(kAnswers, rgb(10, 200, 90));
    // An icon of each size to blend in.
    int container = 1;
    for (const int size : kIconSides)
      shell.document().arrival.fillContainer(container++, generatedIcons(size)[1], NewRecord());
  }
  IconImage current() const { return {state.picImage, state.picMask, {}}; }
  int panel() const { return state.screen.mActivePanel; }
  void bringUp(const IconImage& icon) { shell.document().arrival.arrive(icon, NewRecord()); }
  // Whether the command opens the panel; it may refuse the icon.
  bool opens(const PanelCommand& command) {
    click(command.control, command.index);
    return panel() == command.number;
  }
  bool opensWith(const PanelCommand& command, const IconImage& icon) {
    bringUp(icon);
    return opens(command);
  }

  EffectPanel& sideOf(int number) { return *shell.effects().find(number); }
  // What the views do when another icon comes up.
  void follow(const PanelCommand& command) { sideOf(command.number).preview(); }

  // Puts each control to one end of its range.
  void turnAll(int number, bool high) {
    dialogs.colors.assign(kAnswers, high ? kWhite : kBlack);
    Effects& effects = shell.effects();
    if (SettingsPanel* side = effects.settingsPanel(number))
      for (const Setting& setting : side->effect().settings) side->choose(setting, high ? choiceCount(setting) - 1 : 0);
    if (number == BrightnessPanel::kNumber) turn(effects.panel<BrightnessPanel>(), high);
    if (number == ThemePanel::kNumber) turn(effects.panel<ThemePanel>(), high);
    if (number == SpherePanel::kNumber) turn(effects.panel<SpherePanel>(), high);
    if (number == GradientPanel::kNumber) turn(effects.panel<GradientPanel>(), high);
    if (number == ConfinePanel::kNumber) turn(effects.panel<ConfinePanel>(), high);
    if (number == BlendPanel::kNumber) turn(effects.panel<BlendPanel>(), high);
    if (number == TexturePanel::kNumber) turn(effects.panel<TexturePanel>(), high);
  }
  static int endOf(const char* list, bool high) {
    return high ? static_cast<int>(fillList(list).entries.size()) - 1 : 0;
  }
  static void turn(BrightnessPanel& side, bool high) {
    for (const auto channel : {BrightnessOf::Red, BrightnessOf::Green, BrightnessOf::Blue, BrightnessOf::Overall})
      side.adjust(channel, endOf("cboBrightnessOverall", high));
  }
  static void turn(ThemePanel& side, bool high) {
    side.pickColor();
    side.pickPercent(endOf("cboColorTheme", high));
  }
  // The first and the last pixel of a ball of any size.
  static void turn(SpherePanel& side, bool high) {
    side.pickFactor(endOf("cboSphere(0)", high));
    side.pickSize(endOf("cboSphere(1)", !high));
    for (int x = 0; x < kSphereSampleSide; ++x) side.clickSample(high ? kSphereSampleSide - 1 - x : x, 16);
    side.chooseColor();
  }
  void turn(GradientPanel& side, bool high) {
    side.pickKind(high ? kGradientKinds - 1 : 0);
    for (int i = 0; i < GradientPanel::kAngles; ++i) side.pickAngle(i, high ? 360 : 0);
    const int corner = high ? state.picImage.width() - 1 : 0;
    side.clickCenter(corner, corner);
    for (int i = 0; i < GradientPanel::kColors; ++i) side.chooseColor(i);
    side.swapColors();
  }
  static void turn(BlendPanel& side, bool high) {
    side.pickContainer(high ? static_cast<int>(side.containerEntries().size()) - 1 : 1);
    side.pickPercent(endOf("cboBlendIn(1)", high));
  }
  static void turn(TexturePanel& side, bool high) {
    for (const TextureList list : {TextureList::Depth, TextureList::Pattern, TextureList::Style})
      side.pick(list, high ? static_cast<int>(side.listOf(list).entries.size()) - 1 : 0);
  }
  static void turn(ConfinePanel& side, bool high) {
    const int methods[] = {2, 3, 3};
    side.pickMethod(high ? methods[side.run()] - 1 : 0);
    side.pickThreshold(high ? kThresholdCount - 1 : 0);
  }

  void expectSound(const PanelCommand& command) {
    EXPECT_FALSE(state.screen.hourglass) << command.name;
    EXPECT_EQ(state.picImage.width(), state.picMask.width()) << command.name;
    EXPECT_EQ(state.picImage.height(), state.picMask.height()) << command.name;
    if (state.current().present) {
      EXPECT_EQ(state.picImage.width(), state.current().size) << command.name;
    }
  }
  // Proceed makes the icon what the sample shows, or gives a reason and changes nothing.
  void expectProceed(const PanelCommand& command) {
    const IconImage before = current(), shown = sideOf(command.number).picture();
    boxes.texts.clear();
    shell.cmdProceed();
    expectSound(command);
    if (panel() != command.number) {
      EXPECT_EQ(panel(), kColorPanel) << command.name;
      EXPECT_TRUE(samePixels(current(), shown)) << command.name;
      return;
    }
    EXPECT_FALSE(boxes.texts.empty()) << command.name;
    EXPECT_TRUE(samePixels(current(), before)) << command.name;
    shell.cmdCancel();
    EXPECT_EQ(panel(), kColorPanel) << command.name;
    EXPECT_TRUE(samePixels(current(), before)) << command.name;
  }
  void expectRefused(const PanelCommand& command, const char* reason) {
    const IconImage before = current();
    boxes.texts.clear();
    shell.cmdProceed();
    EXPECT_EQ(boxes.texts, std::vector<std::string>{reason}) << command.name;
    EXPECT_EQ(panel(), command.number) << command.name;
    EXPECT_TRUE(samePixels(current(), before)) << command.name;
    shell.cmdCancel();
  }

  // An icon that every panel takes.
  static IconImage takenByAll(int size) { return iconsOfSize(size)[7]; }
  // Icons of one kind of pixel, and a mixture.
  static std::vector<IconImage> extremeIcons(int size) {
    std::vector<IconImage> icons = iconsOfSize(size);
    icons.erase(icons.begin() + 4, icons.end() - 2);
    return icons;
  }
};

TEST_F(PanelsUnderChanges, EveryPanelOpensWithTheIconOfTheseTests) {
  for (const PanelCommand& command : panelCommands())
    for (const int size : {32, 48}) EXPECT_TRUE(opensWith(command, takenByAll(size))) << command.name;
}

TEST_F(PanelsUnderChanges, EveryControlAtBothEndsShowsWhatProceedMakesOfEveryIcon) {
  int opened = 0;
  for (const PanelCommand& command : panelCommands())
    for (const int size : kIconSides)
      for (const IconImage& icon : extremeIcons(size))
        for (const bool high : {false, true}) {
          boxes.texts.clear();
          if (!opensWith(command, icon)) {
            EXPECT_FALSE(boxes.texts.empty()) << command.name;
            EXPECT_EQ(panel(), kColorPanel) << command.name;
            continue;
          }
          turnAll(command.number, high);
          EXPECT_TRUE(samePixels(current(), icon)) << command.name;
          expectProceed(command);
          ++opened;
        }
  EXPECT_GT(opened, 700);
}

TEST_F(PanelsUnderChanges, AnIconOfAnotherSizeUnderThePanelIsShownAndTakesTheEffect) {
  for (const PanelCommand& command : panelCommands())
    for (const int size : kIconSides)
      for (const IconImage& icon : extremeIcons(size)) {
        ASSERT_TRUE(opensWith(command, takenByAll(size == 32 ? 48 : 32))) << command.name;
        turnAll(command.number, true);
        bringUp(icon);
        follow(command);
        ASSERT_EQ(panel(), command.number);
        EXPECT_EQ(sideOf(command.number).picture().width(), size) << command.name;
        EXPECT_TRUE(samePixels(current(), icon)) << command.name;
        expectProceed(command);
      }
}

TEST_F(PanelsUnderChanges, AControlShowsTheIconThatCameUpUnderThePanel) {
  for (const PanelCommand& command : panelCommands()) {
    ASSERT_TRUE(opensWith(command, takenByAll(48))) << command.name;
    const SettingsPanel* side = shell.effects().settingsPanel(command.number);
    if (side && side->effect().settings.empty()) continue;
    bringUp(takenByAll(32));
    turnAll(command.number, true);
    turnAll(command.number, false);
    EXPECT_EQ(sideOf(command.number).picture().width(), 32) << command.name;
    expectProceed(command);
  }
}

TEST_F(PanelsUnderChanges, AnEmptyContainerUnderThePanelShowsNothingAndIsRefused) {
  for (const PanelCommand& command : panelCommands()) {
    ASSERT_TRUE(opensWith(command, takenByAll(32))) << command.name;
    shell.document().iconsPanel.showEmptyContainer();
    state.current().present = false;
    follow(command);
    EXPECT_EQ(sideOf(command.number).picture().width(), 0) << command.name;
    turnAll(command.number, true);
    turnAll(command.number, false);
    EXPECT_EQ(sideOf(command.number).sample().width(), 0) << command.name;
    expectRefused(command, kNoIconYet);
  }
}

TEST_F(PanelsUnderChanges, AlphaThatComesUpUnderThePanelIsRefused) {
  for (const PanelCommand& command : panelCommands()) {
    ASSERT_TRUE(opensWith(command, takenByAll(32))) << command.name;
    turnAll(command.number, true);
    state.current().hasAlpha = true;
    expectRefused(command, kIconIsWithAlpha);
  }
}

// What the user does while the program processes events.
struct Interruption {
  const char* name;
  std::function<void()> action;
};

TEST_F(PanelsUnderChanges, AClickWhileEventsAreProcessedLeavesAWholeIcon) {
  PanelCommand command;
  const Interruption interruptions[] = {
      {"Close", [this] { shell.cmdCancel(); }},
      {"Proceed", [this] { shell.cmdProceed(); }},
      {"controls", [&] { turnAll(command.number, true); }},
      {"the command again", [&] { click(command.control, command.index); }},
      {"another icon", [this] { bringUp(takenByAll(24)); }},
      {"Undo", [this] { click("mnuEditSub", 1); }},
  };
  for (const PanelCommand& next : panelCommands())
    for (const Interruption& interruption : interruptions) {
      SCOPED_TRACE(next.name + ": " + interruption.name);
      command = next;
      const IconImage icon = takenByAll(32);
      bringUp(icon);
      pump.inside = interruption.action;
      click(command.control, command.index);
      expectSound(command);
      pump.inside = nullptr;

      ASSERT_TRUE(opensWith(command, icon));
      pump.inside = interruption.action;
      turnAll(command.number, false);
      expectSound(command);
      pump.inside = nullptr;

      ASSERT_TRUE(opensWith(command, icon));
      turnAll(command.number, false);
      const IconImage shown = sideOf(command.number).picture();
      pump.inside = interruption.action;
      shell.cmdProceed();
      expectSound(command);
      EXPECT_TRUE(pump.inside == nullptr || panel() == command.number) << "Proceed processes events when it records";
      const bool isReplaced = current().width() == 24;
      EXPECT_TRUE(isReplaced || samePixels(current(), icon) || samePixels(current(), shown));
      pump.inside = nullptr;
      shell.closePanels();
    }
}

TEST_F(PanelsUnderChanges, ASecondProceedFindsThePanelClosed) {
  for (const PanelCommand& command : panelCommands()) {
    ASSERT_TRUE(opensWith(command, takenByAll(32))) << command.name;
    turnAll(command.number, false);
    const IconImage shown = sideOf(command.number).picture();
    pump.inside = [this] { shell.cmdProceed(); };
    shell.cmdProceed();
    if (panel() == command.number) continue;  // refused
    EXPECT_TRUE(samePixels(current(), shown)) << command.name;
    EXPECT_EQ(pump.inside, nullptr) << command.name;
    click("mnuEditSub", 1);
    EXPECT_FALSE(enabled("mnuEditSub", 1)) << command.name << ": one step";
  }
}

}  // namespace
}  // namespace gp::test
