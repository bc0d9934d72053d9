// Every command in every state: whether it is enabled, what is said when it cannot run, and that menu, toolbar and
// pop-up menu do the same.
#include "shell/LoggedProgram.h"
#include "support/FakeEditor.h"

#include <gtest/gtest.h>
#include <set>

namespace gp::test {
namespace {

// The program in one of the states.
class World : public LoggedProgram<RecordingDisplay> {
 public:
  explicit World(const CommandState& state) : name_(state.name) {
    shell.attach(&forms_, &forms_, &forms_);
    shell.formLoad();
    shell.formActivate("");
    make(state);
    log.clear();
  }
  const std::string& name() const { return name_; }

 private:
  const std::string name_;
};

TEST(CommandWalk, TheNeedsOfEveryCommandAreListedOnce) {
  std::multiset<std::string> listed, there;
  for (const CommandNeed& need : kCommandNeeds)
    for (const int index : need.indices) listed.insert(objectNameOf(need.control, index));
  for (const Command& row : commandTable())
    if (row.run) there.insert(nameOf(row));
  EXPECT_EQ(listed, there);
}

TEST(CommandWalk, EachStateIsWhatItsFactsTell) {
  for (const CommandState& state : kCommandStates) {
    World world(state);
    const EditState& now = world.shell.state();
    const Facts& facts = state.facts;
    EXPECT_EQ(now.current().present, facts.icon) << state.name;
    EXPECT_EQ(now.current().fromMultiIconFile, facts.multiIconFile) << state.name;
    EXPECT_EQ(now.current().hasAlpha, facts.alpha) << state.name;
    EXPECT_EQ(now.current().isCursor, facts.cursor) << state.name;
    EXPECT_EQ(now.mRegionExists, facts.region) << state.name;
    EXPECT_EQ(now.mCurContainer, facts.current) << state.name;
    for (int i = 0; i < kContainerCount; ++i)
      EXPECT_EQ(now.mIconRecs.at(static_cast<std::size_t>(i)).used, facts.used.contains(i)) << state.name << i;
  }
}

TEST(CommandWalk, ACommandIsEnabledWhereItsNeedsAreMet) {
  for (const CommandState& state : kCommandStates) {
    World world(state);
    for (const Command& row : commandTable())
      if (row.run) {
        EXPECT_EQ(isEnabled(row, world.shell), refusalOf(row, state.facts) == nullptr)
            << nameOf(row) << " with " << state.name;
      }
  }
}

TEST(CommandWalk, ASubMenuIsEnabledWithAnyOfItsCommandsAndAnythingElseWithoutABodyIsNot) {
  for (const CommandState& state : kCommandStates) {
    World world(state);
    const auto isLive = [&](const Command& row) { return row.run && !refusalOf(row, state.facts); };
    for (const Command& row : commandTable()) {
      if (row.run) continue;
      const bool hasLive = std::ranges::any_of(
          commandTable(), [&](const Command& entry) { return nameOf(row) == entry.parent && isLive(entry); });
      EXPECT_EQ(isEnabled(row, world.shell), hasLive) << nameOf(row) << " with " << state.name;
    }
  }
}

TEST(CommandWalk, WhereItsNeedsAreNotMetACommandSaysWhyAndChangesNothing) {
  for (const CommandState& state : kCommandStates) {
    World world(state);
    const Snapshot before = world.snapshot();
    for (const Command& row : commandTable()) {
      const char* refusal = row.run ? refusalOf(row, state.facts) : nullptr;
      if (!refusal) continue;
      world.log.clear();
      world.shell.run(row);
      EXPECT_EQ(world.log, logOf(refusal)) << nameOf(row) << " with " << state.name;
      ASSERT_EQ(differences(before, world.snapshot()), Log{}) << nameOf(row) << " with " << state.name;
    }
  }
}

TEST(CommandWalk, WhatHasNoBodyDoesNothing) {
  for (const CommandState& state : kCommandStates) {
    World world(state);
    const Snapshot before = world.snapshot();
    for (const Command& row : commandTable())
      if (!row.run) world.shell.run(row);
    EXPECT_EQ(world.log, Log{}) << state.name;
    EXPECT_EQ(differences(before, world.snapshot()), Log{}) << state.name;
  }
}

// The result of running a command in one way, in a new program.
struct Outcome {
  Log log;
  Snapshot snapshot;
};
template <class Road>
Outcome outcomeOf(const CommandState& state, Road road) {
  World world(state);
  road(world.shell);
  return {world.logWithoutFolder(), world.snapshot()};
}
void expectSame(const Outcome& menu, const Outcome& other, const std::string& what) {
  EXPECT_EQ(menu.log, other.log) << what;
  EXPECT_EQ(differences(menu.snapshot, other.snapshot), Log{}) << what;
}

TEST(CommandWalk, AToolbarButtonIsItsCommand) {
  for (const CommandState& state : kCommandStates)
    for (const ToolbarButton& button : toolbarTable()) {
      const Command& row = *findCommand(button.control, button.commandIndex);
      if (!row.run) continue;
      expectSame(outcomeOf(state, [&](Shell& shell) { shell.run(row); }),
                 outcomeOf(state, [&](Shell& shell) { shell.runToolbar(button); }),
                 nameOf(row) + " with " + state.name);
    }
}

TEST(CommandWalk, AnEntryOfThePopUpMenuIsItsCommand) {
  for (const CommandState& state : kCommandStates)
    for (const PopUpEntry& entry : kPopUpEntries) {
      const Command& popUp = *findCommand("mnuPopUpSub", entry.index);
      const Command& row = *findCommand(entry.control, entry.commandIndex);
      expectSame(outcomeOf(state, [&](Shell& shell) { shell.run(row); }),
                 outcomeOf(state, [&](Shell& shell) { shell.run(popUp); }), nameOf(popUp) + " with " + state.name);
    }
}

}  // namespace
}  // namespace gp::test
