// What is announced after commands, and that nothing is after a refusal or a failure.
#include "document/Announcements.h"
#include "effects/SettingsPanel.h"
#include "support/ShellFixture.h"

#include <gmock/gmock.h>

namespace gp {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Announcements : public test::ShellFixture {
 protected:
  void startWithIcon(int size = 32) { start(folder.write("tools.ico", test::plainIconFile(size, 3))); }
  // What was announced since the last call.
  std::vector<std::string> heard() { return std::exchange(display.announced, {}); }
  void drag(int fromX, int fromY, int toX, int toY) {
    Tools& tools = shell.drawing().tools;
    tools.press(at(fromX, fromY));
    tools.move(at(toX, toY));
    tools.release(at(toX, toY));
  }
  void selectRegion() {
    click("mnuTools", kRegion);
    drag(2, 3, 14, 11);
  }
};

TEST_F(Announcements, AnOpenedFileAndANewIconAreNamed) {
  startWithIcon();
  EXPECT_THAT(heard(), ElementsAre("Opened tools.ico"));
  click("mnuFileSub", 3);
  EXPECT_THAT(heard(), ElementsAre("New icon 16 x 16"));
}

TEST_F(Announcements, ANewIconThatThePersonGivesUpIsNotAnnounced) {
  startWithIcon();
  paint(1, 1);
  click("mnuTools", kPaint);
  paint(1, 1);
  heard();
  boxes.expect("Save current icon to file?", BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::Cancel);
  click("mnuFileSub", 2);
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_F(Announcements, AToolChosenByKeyOrMenuIsNamedAndSoIsItsEnd) {
  startWithIcon();
  heard();
  click("mnuTools", kPaint);
  click("mnuTools", kErase);
  click("mnuTools", kErase);
  click("mnuTools", kRegion);
  click("mnuTools", 0);
  EXPECT_THAT(heard(), ElementsAre("Paint", "Erase", "No tool", "Region", "No tool"));
}

TEST_F(Announcements, TheColorPickerIsNamedOrTheReasonWhyItCannotBeUsed) {
  startWithIcon();
  click("mnuPaletteSub", 0);
  heard();
  click("mnuTools", 2);
  EXPECT_THAT(heard(), ElementsAre("Only with the 256-color palette"));
  click("mnuPaletteSub", 1);
  click("mnuTools", 2);
  click("mnuTools", 2);
  EXPECT_THAT(heard(), ElementsAre("Color Picker", "No tool"));
}

TEST_F(Announcements, AToolChosenWithTheMouseIsNot) {
  startWithIcon();
  heard();
  shell.chooseTool(kPaint);
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_F(Announcements, ARegionIsAnnouncedWithItsSizeInIconPixels) {
  startWithIcon();
  heard();
  selectRegion();
  EXPECT_THAT(heard(),
              ElementsAre("Region", "Region " + std::to_string(shell.drawing().regions.content().image.width()) +
                                        " x " + std::to_string(shell.drawing().regions.content().image.height())));
  EXPECT_EQ(news::region(12, 8), "Region 12 x 8");
}

TEST_F(Announcements, ABoxWithoutSidesIsNoRegion) {
  startWithIcon();
  click("mnuTools", kRegion);
  heard();
  drag(2, 2, 2, 2);
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_F(Announcements, UndoRedoAndUndoAllSayWhatTheyDidOrThatThereIsNothing) {
  startWithIcon();
  click("mnuTools", kPaint);
  paint(1, 1);
  paint(2, 2);
  heard();
  click("mnuEditSub", 1);
  click("mnuEditSub", 2);
  click("mnuEditSub", 2);
  click("mnuEditSub", 0);
  click("mnuEditSub", 1);
  EXPECT_THAT(heard(), ElementsAre("Undone", "Redone", "Nothing to redo", "All undone", "Nothing to undo"));
}

TEST_F(Announcements, TheClipboardsCommandsAreAnnouncedOnceEach) {
  startWithIcon();
  heard();
  click("mnuEditSub", 6);
  EXPECT_THAT(heard(), ElementsAre("Copied"));
  click("mnuEditSub", 4);
  EXPECT_THAT(heard(), ElementsAre("No region"));
  selectRegion();
  heard();
  click("mnuEditSub", 4);
  EXPECT_THAT(heard(), ElementsAre("Cut and copied"));
  click("mnuEditSub", 7);
  EXPECT_THAT(heard(), ElementsAre("Pasted"));
  click("mnuEditSub", 5);
  EXPECT_THAT(heard(), ElementsAre("Erased"));
  click("mnuEditSub", 9);
  EXPECT_THAT(heard(), ElementsAre("Clipboard cleared"));
}

TEST_F(Announcements, ARefusalWithABoxIsNotAnnouncedToo) {
  start();
  heard();
  boxes.expectTold("No icon in Editing Area yet", BoxIcon::None);
  click("mnuFileSub", 12);
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_F(Announcements, SavedIsSaidAfterTheFileIsWritten) {
  startWithIcon();
  click("mnuTools", kPaint);
  paint(1, 1);
  heard();
  click("mnuFileSub", 12);
  EXPECT_THAT(heard(), ElementsAre("Saved"));
  EXPECT_FALSE(state.current().modified);
  dialogs.paths = {folder.file("other.ico")};
  click("mnuFileSub", 13);
  EXPECT_THAT(heard(), ElementsAre("Saved"));
  EXPECT_TRUE(std::filesystem::exists(folder.file("other.ico")));
}

TEST_F(Announcements, ASaveThatIsGivenUpOrFailsIsNotAnnounced) {
  startWithIcon();
  heard();
  dialogs.paths = {""};
  click("mnuFileSub", 13);
  EXPECT_THAT(heard(), IsEmpty());
  const std::string gone = folder.file("no such folder/a.ico");
  dialogs.paths = {gone};
  boxes.expectTold("Failed to save this icon", BoxIcon::Exclamation);
  click("mnuFileSub", 13);
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_F(Announcements, AnotherContainerIsNamedWithItsIcon) {
  startWithIcon();
  heard();
  shell.document().iconsPanel.SwitchContainer(2);
  shell.document().iconsPanel.SwitchContainer(0);
  EXPECT_THAT(heard(), ElementsAre("Container 3, empty", "Container 1, tools.ico"));
  click("mnuFileSub", 3);
  heard();
  shell.document().iconsPanel.SwitchContainer(0);
  EXPECT_THAT(heard(), ElementsAre("Container 1, Untitled"));
}

TEST_F(Announcements, AContainerThatThePersonDoesNotLeaveIsNot) {
  startWithIcon();
  click("mnuTools", kPaint);
  paint(1, 1);
  state.options.promptToSave = true;
  heard();
  boxes.expect("Save current icon to file?\n\n(To remove Reminder, untick the related Option submenu)\n",
               BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::Cancel);
  shell.document().iconsPanel.SwitchContainer(2);
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_F(Announcements, AnEffectIsAppliedOnlyByProceed) {
  startWithIcon();
  for (const EffectRow* effect : effectTable())
    if (effect->apply && shell.effects().settingsPanel(effect->panel.number)) {
      click("mnuEffectsSub", effect->menu.index);
      break;
    }
  ASSERT_NE(state.screen.mActivePanel, kColorPanel);
  heard();
  shell.cmdCancel();
  EXPECT_THAT(heard(), IsEmpty());
  click("mnuRotateSubmenu", 4);
  heard();
  shell.cmdProceed();
  EXPECT_THAT(heard(), IsEmpty()) << "a turn by 0 degrees changes nothing";
  click("mnuRotateSubmenu", 4);
  shell.drawing().rotatePanel.setSlider(45);
  heard();
  shell.cmdProceed();
  EXPECT_THAT(heard(), ElementsAre("Applied"));
}

TEST_F(Announcements, EveryNeedThatCanRefuseWithoutABoxHasAReason) {
  startWithIcon();
  heard();
  for (const Command& command : commandTable()) {
    const char* refusal = command.unmet(shell, command.index);
    if (!command.run || !refusal || *refusal) continue;
    shell.run(command);
    const std::vector<std::string> reasons = heard();
    ASSERT_EQ(reasons.size(), 1U) << command.caption;
    EXPECT_NE(reasons.front(), "Not available") << command.caption;
  }
}

}  // namespace
}  // namespace gp
