#include "shell/CommandTable.h"
#include "support/ShellFixture.h"

#include <gtest/gtest.h>
#include <map>
#include <set>

namespace gp {
namespace {

using CommandTable = test::ShellFixture;

TEST_F(CommandTable, EveryEntryStandsUnderATopMenuOrAnotherEntry) {
  std::set<std::string> names;
  for (const TopMenu& menu : topMenus()) names.insert(menu.control);
  for (const Command& row : commandTable()) {
    EXPECT_TRUE(names.count(row.parent)) << row.control << " " << row.index << " under " << row.parent;
    EXPECT_TRUE(names.insert(objectNameOf(row.control, row.index)).second) << "twice: " << row.control << row.index;
  }
}

TEST_F(CommandTable, NoTwoEntriesShareAKey) {
  std::map<std::string, std::string> keys;
  for (const Command& row : commandTable()) {
    if (!*row.key) continue;
    EXPECT_TRUE(keys.emplace(row.key, row.caption).second) << row.key << ": " << row.caption;
  }
  EXPECT_EQ(keys.size(), 44U);
}

TEST_F(CommandTable, TheTopMenusStandInTheirOrder) {
  std::string captions;
  for (const TopMenu& menu : topMenus())
    if (menu.inMenuBar) captions += std::string(menu.caption) + "|";
  EXPECT_EQ(captions,
            "&File|&Toolbox|&Edit|&Rotate|Effe&cts|&Brush|&Palette|I&nquiry|&Options|E&xtract|Ani&mation|&Alpha|"
            "&Help|");
}

TEST_F(CommandTable, EachToolbarButtonCallsAnEntryThatIsThere) {
  int index = 0;
  for (const ToolbarButton& button : toolbarTable()) {
    EXPECT_EQ(button.index, index++);
    const Command* command = findCommand(button.control, button.commandIndex);
    ASSERT_NE(command, nullptr) << button.tooltip;
    EXPECT_STRNE(command->picture, "") << button.tooltip << " has no picture";
  }
  EXPECT_EQ(index, 27);
}

TEST_F(CommandTable, WithoutAHandlerAnEntryIsDisabledUnlessItIsAMenuWithLiveEntries) {
  start();
  EXPECT_FALSE(enabled("mnuFileSub", 8));
  EXPECT_FALSE(enabled("mnuFileSub", 10));
  EXPECT_TRUE(enabled("mnuFileSub", 0));
  EXPECT_TRUE(enabled("mnuOptionsSub", 0));
  for (const Command& row : commandTable()) {
    const bool live = row.run || isSubMenu(row);
    EXPECT_TRUE(live || !isEnabled(row, shell)) << row.control << row.index;
  }
}

// What is enabled in which state. A column is a state; "x" is enabled.
struct EnablingCase {
  const char* control;
  int index;
  bool empty, single, multi, small;
};

TEST_F(CommandTable, EntriesFollowTheRecord) {
  const EnablingCase cases[] = {
      {"mnuFileSub", 2, true, true, true, true},          {"mnuFileSub", 7, true, true, true, true},
      {"mnuFileSub", 12, false, true, true, true},        {"mnuFileSub", 13, false, true, true, true},
      {"mnuFileSub", 19, false, true, true, true},        {"mnuFileSub", 20, false, true, true, true},
      {"mnuTools", 0, false, true, true, true},           {"mnuTools", 4, false, true, true, true},
      {"mnuTools", 8, false, true, true, true},           {"mnuTools", 6, false, true, true, true},
      {"mnuBrushSize", 0, true, true, true, true},        {"mnuPaletteSub", 1, true, true, true, true},
      {"mnuOptionsSub", 16, true, true, true, true},      {"mnuHelpSub", 0, true, true, true, true},
      {"mnuPopUpSub", 0, true, true, true, true},         {"mnuPopUpSub", 3, false, false, true, true},
      {"mnuFileSub", 9, true, true, true, true},          {"mnuFileSub", 15, false, false, true, true},
      {"mnuFileSub", 16, false, true, false, false},      {"mnuFileSub", 18, false, true, true, false},
      {"mnuPopUpSub", 7, false, false, false, false},     {"mnuEnquiryCurrent", 5, false, false, false, false},
      {"mnuEnquiryCurrent", 9, false, false, true, true}, {"mnuEnquiryCurrent", 11, false, false, false, false},
  };
  start();
  auto check = [&](const char* name, bool EnablingCase::*column) {
    for (const EnablingCase& c : cases)
      EXPECT_EQ(enabled(c.control, c.index), c.*column) << name << c.control << c.index;
  };
  check("empty ", &EnablingCase::empty);
  click("mnuFileSub", 2);
  check("single ", &EnablingCase::single);
  state.current().fromMultiIconFile = true;
  check("multi ", &EnablingCase::multi);
  state.current().size = 16;
  check("small ", &EnablingCase::small);
}

// The rules that stand in rows whose subsystems are not part of the program yet.
TEST_F(CommandTable, TheRulesOfTheFileMenuAndThePopUpMenuFollowTheRecord) {
  start();
  auto rule = [&](const char* control, int index) {
    const Command* row = findCommand(control, index);
    return row->enabled(shell, row->index);
  };
  EXPECT_FALSE(rule("mnuFileSub", 15));
  EXPECT_FALSE(rule("mnuFileSub", 16));
  click("mnuFileSub", 2);
  EXPECT_FALSE(rule("mnuFileSub", 15));
  EXPECT_TRUE(rule("mnuFileSub", 16));
  EXPECT_TRUE(rule("mnuFileSub", 18));
  state.current().fromMultiIconFile = true;
  EXPECT_TRUE(rule("mnuFileSub", 15));
  EXPECT_FALSE(rule("mnuFileSub", 16));
  EXPECT_TRUE(rule("mnuPopUpSub", 3));
  EXPECT_FALSE(rule("mnuPopUpSub", 5));
  EXPECT_FALSE(rule("mnuPopUpSub", 7));
  state.current().hasAlpha = state.current().isCursor = true;
  EXPECT_TRUE(rule("mnuPopUpSub", 5));
  EXPECT_TRUE(rule("mnuPopUpSub", 7));
  state.current().size = 16;
  EXPECT_FALSE(rule("mnuFileSub", 18)) << "a cursor is 32x32";
}

TEST_F(CommandTable, ThePickerIsEnabledOnlyWithTheLargeChart) {
  start();
  click("mnuFileSub", 2);
  EXPECT_FALSE(enabled("mnuTools", 2));
  click("mnuPaletteSub", 1);
  EXPECT_TRUE(enabled("mnuTools", 2));
  state.screen.mActivePanel = 4;
  EXPECT_FALSE(enabled("mnuTools", 2));
}

TEST_F(CommandTable, UpdateOnlyEditingAreaIsDisabledWhileARegionIsActive) {
  start();
  EXPECT_TRUE(enabled("mnuOptionsSub", 9));
  state.mRegionActive = true;
  EXPECT_FALSE(enabled("mnuOptionsSub", 9));
  click("mnuOptionsSub", 9);
  EXPECT_TRUE(state.options.updateOnlyEditingArea) << "a key does not flip it either";
}

TEST_F(CommandTable, TicksFollowTheirStates) {
  start();
  click("mnuFileSub", 2);
  EXPECT_TRUE(checked("mnuTools", 4)) << "a new icon starts with Paint";
  click("mnuTools", 5);
  EXPECT_FALSE(checked("mnuTools", 4));
  EXPECT_TRUE(checked("mnuTools", 5));
  click("mnuBrushSize", 3);
  EXPECT_TRUE(checked("mnuBrushSize", 3));
  EXPECT_FALSE(checked("mnuBrushSize", 0));
  click("mnuPaletteSub", 2);
  EXPECT_TRUE(checked("mnuPaletteSub", 2));
  EXPECT_FALSE(checked("mnuPaletteSub", 0));
  click("mnuOptionsSubGrid", 5);
  EXPECT_TRUE(checked("mnuOptionsSubGrid", 5));
  click("mnuOptionsStartScreenSub", 2);
  EXPECT_TRUE(checked("mnuOptionsStartScreenSub", 2));
  EXPECT_FALSE(checked("mnuOptionsStartScreenSub", 0));
}

TEST_F(CommandTable, EachOptionFlipsItsOwnTickOnly) {
  start();
  for (int index : {3, 5, 7, 9, 11, 12, 13, 14}) {
    const bool before = checked("mnuOptionsSub", index);
    click("mnuOptionsSub", index);
    EXPECT_EQ(checked("mnuOptionsSub", index), !before) << index;
    click("mnuOptionsSub", index);
    EXPECT_EQ(checked("mnuOptionsSub", index), before) << index;
  }
}

TEST_F(CommandTable, SavingWithoutAnIconTellsSo) {
  start();
  for (int index : {12, 13, 19, 20}) {
    boxes.expectTold("No icon in Editing Area yet", BoxIcon::None);
    click("mnuFileSub", index);
  }
}

TEST_F(CommandTable, AHandlerThatThrowsEndsInABoxWithItsName) {
  start();
  const Command broken{"mnuBroken", 1,       "",
                       "",          "",      "",
                       nullptr,     nullptr, [](Shell&, int) { throw std::runtime_error("Subscript out of range"); }};
  boxes.expectTold("mnuBroken_Click\n5     Subscript out of range", BoxIcon::Exclamation);
  shell.run(broken);
}

TEST_F(CommandTable, AToolbarButtonClearsTheOverlayBeforeItsCommand) {
  start();
  click("mnuFileSub", 2);
  state.picDisp.SetPixelV(3, 3, 0x00FF00);
  shell.runToolbar(toolbarTable()[8]);
  EXPECT_NE(state.picDisp.GetPixel(3, 3), 0x00FF00);
}

TEST_F(CommandTable, ARegionThatAToolbarCommandLeavesStandingIsSeenAgain) {
  start();
  click("mnuFileSub", 2);
  click("mnuTools", 14);
  shell.tools().press({kLeftButton, 0, 13, 13});
  shell.tools().move({0, 0, 61, 61});
  shell.tools().release({kLeftButton, 0, 61, 61});
  const Surface before = state.picDisp;
  shell.runToolbar(toolbarTable()[11]);
  EXPECT_TRUE(state.mRegionExists);
  EXPECT_TRUE(std::ranges::equal(state.picDisp.pixels(), before.pixels()));
}

}  // namespace
}  // namespace gp
