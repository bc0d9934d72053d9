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
  EXPECT_TRUE(enabled("mnuFileSub", 8));
  EXPECT_FALSE(enabled("mnuFileSub", 10));
  EXPECT_TRUE(enabled("mnuFileSub", 0));
  EXPECT_TRUE(enabled("mnuOptionsSub", 0));
  for (const Command& row : commandTable()) {
    const bool live = row.run || isSubMenu(row);
    EXPECT_TRUE(live || !isEnabled(row, shell)) << row.control << row.index;
  }
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

TEST_F(CommandTable, AHandlerThatThrowsEndsInABoxWithItsName) {
  start();
  const auto always = [](const Shell&, int) -> const char* { return nullptr; };
  const auto fail = [](Shell&, int) { throw std::runtime_error("Subscript out of range"); };
  const Command broken{"mnuBroken", 1, "", "", "", "", always, Commits::No, nullptr, fail};
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
  shell.drawing().tools.press({kLeftButton, 0, 13, 13});
  shell.drawing().tools.move({0, 0, 61, 61});
  shell.drawing().tools.release({kLeftButton, 0, 61, 61});
  const Surface before = state.picDisp;
  shell.runToolbar(toolbarTable()[11]);
  EXPECT_TRUE(state.mRegionExists);
  EXPECT_TRUE(std::ranges::equal(state.picDisp.pixels(), before.pixels()));
}

}  // namespace
}  // namespace gp
