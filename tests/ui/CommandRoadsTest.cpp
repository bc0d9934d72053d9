// Menus, keys, pop-up menu and toolbar of the main form in every state of the program: what they show of a command
// follows its needs, and all of them run the same command.
#include "document/ui/QtDisplay.h"
#include "platform/qt/PathText.h"
#include "platform/qt/widgets/PictureButton.h"
#include "shell/LoggedProgram.h"
#include "shell/ui/frmGPEdit.h"

#include <QAction>
#include <QKeySequence>
#include <QTest>

#include <gtest/gtest.h>
#include <memory>

namespace gp::test {
namespace {

// The program with its main form, in one of the states.
class FormWorld : public LoggedProgram<QtDisplay> {
 public:
  explicit FormWorld(const CommandState& state) {
    shell.formLoad();
    form_->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    settle();
    shell.attach(form_.get(), &forms_, &forms_);
    make(state);
    settle();
    log.clear();
  }
  void settle() { QTest::qWait(1); }

  QAction* action(const Command& row) { return found<QAction>(toText(objectNameOf(row.control, row.index))); }
  PictureButton* button(const ToolbarButton& row) { return found<PictureButton>(QString("cmdTB(%1)").arg(row.index)); }
  // A text field with the focus would take some of the keys.
  void pressKey(const Command& row) {
    form_->setFocus();
    QTest::keySequence(form_.get(), QKeySequence(row.key));
    settle();
  }

 private:
  template <class Object>
  Object* found(const QString& name) {
    auto* object = form_->findChild<Object*>(name);
    if (!object) ADD_FAILURE() << "no " << name.toStdString();
    return object;
  }

  std::unique_ptr<frmGPEdit> form_ = std::make_unique<frmGPEdit>(shell, display_, "");
};

bool canRun(const Command& row, const Facts& facts) { return row.run && !refusalOf(row, facts); }

class CommandRoads : public testing::TestWithParam<CommandState> {
 protected:
  const Facts& facts = GetParam().facts;
  FormWorld world{GetParam()};

  bool isEntryLive(const Command& row) const {
    if (row.run) return canRun(row, facts);
    return std::ranges::any_of(
        commandTable(), [&](const Command& entry) { return nameOf(row) == entry.parent && canRun(entry, facts); });
  }
};

TEST_P(CommandRoads, MenusPopUpMenuAndToolbarShowWhatCanRun) {
  for (const Command& row : commandTable()) {
    const QAction* action = world.action(row);
    if (action->isSeparator() || !action->isVisible()) continue;
    EXPECT_EQ(action->isEnabled(), isEntryLive(row)) << nameOf(row);
  }
  for (const ToolbarButton& button : toolbarTable())
    EXPECT_EQ(world.button(button)->isEnabled(), canRun(*findCommand(button.control, button.commandIndex), facts))
        << button.tooltip;
}

TEST_P(CommandRoads, TheKeyOfACommandThatCannotRunSaysWhyAndChangesNothing) {
  const Snapshot before = world.snapshot();
  for (const Command& row : commandTable()) {
    if (!*row.key || canRun(row, facts)) continue;
    world.log.clear();
    world.pressKey(row);
    EXPECT_EQ(world.log, row.run ? logOf(refusalOf(row, facts)) : Log{}) << row.key;
    ASSERT_EQ(differences(before, world.snapshot()), Log{}) << row.key;
  }
}

std::string stateNameOf(const testing::TestParamInfo<CommandState>& info) {
  std::string name;
  for (const char* at = info.param.name; *at; ++at)
    if (std::isalnum(static_cast<unsigned char>(*at))) name += *at;
  return name;
}
INSTANTIATE_TEST_SUITE_P(With, CommandRoads, testing::ValuesIn(kCommandStates), stateNameOf);

// The result of running a command in one way, in a new program.
struct Outcome {
  Log log;
  Snapshot snapshot;
};
template <class Road>
Outcome outcomeOf(const CommandState& state, Road road) {
  FormWorld world(state);
  road(world);
  world.settle();
  return {world.logWithoutFolder(), world.snapshot()};
}

// In the first state in which it can run.
class OneCommand : public testing::TestWithParam<const Command*> {
 protected:
  const Command& row = *GetParam();
  const CommandState& state = *std::ranges::find_if(
      kCommandStates, [this](const CommandState& candidate) { return canRun(row, candidate.facts); });
  const Outcome menu = outcomeOf(state, [this](FormWorld& world) { world.action(row)->trigger(); });

  void expectSame(const Outcome& other, const std::string& road) {
    EXPECT_EQ(menu.log, other.log) << road;
    EXPECT_EQ(differences(menu.snapshot, other.snapshot), Log{}) << road;
  }
};

TEST_P(OneCommand, IsReachedByItsEntryKeyAndButtonAlike) {
  if (*row.key) expectSame(outcomeOf(state, [this](FormWorld& world) { world.pressKey(row); }), row.key);
  for (const ToolbarButton& button : toolbarTable())
    if (findCommand(button.control, button.commandIndex) == &row)
      expectSame(outcomeOf(state, [&](FormWorld& world) { QTest::mouseClick(world.button(button), Qt::LeftButton); }),
                 button.tooltip);
  for (const PopUpEntry& entry : kPopUpEntries)
    if (findCommand(entry.control, entry.commandIndex) == &row)
      expectSame(
          outcomeOf(state,
                    [&](FormWorld& world) { world.action(*findCommand("mnuPopUpSub", entry.index))->trigger(); }),
          "pop-up menu");
}

// The commands that can be run in more than one way.
std::vector<const Command*> commandsOfManyRoads() {
  std::vector<const Command*> rows;
  for (const Command& row : commandTable()) {
    if (std::ranges::none_of(kCommandStates, [&](const CommandState& s) { return canRun(row, s.facts); })) continue;
    const bool hasButton = std::ranges::any_of(toolbarTable(), [&](const ToolbarButton& button) {
      return findCommand(button.control, button.commandIndex) == &row;
    });
    const bool isInPopUp = std::ranges::any_of(
        kPopUpEntries, [&](const PopUpEntry& entry) { return findCommand(entry.control, entry.commandIndex) == &row; });
    if (*row.key || hasButton || isInPopUp) rows.push_back(&row);
  }
  return rows;
}
std::string commandNameOf(const testing::TestParamInfo<const Command*>& info) {
  const int index = info.param->index;
  return info.param->control + (index == kNoIndex ? std::string() : std::to_string(index));
}
INSTANTIATE_TEST_SUITE_P(All, OneCommand, testing::ValuesIn(commandsOfManyRoads()), commandNameOf);

}  // namespace
}  // namespace gp::test
