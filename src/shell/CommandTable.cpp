#include "shell/CommandTable.h"

#include "shell/Shell.h"

#include <algorithm>

namespace gp {

namespace {

// Returns the history that a history menu's entries show; null for other commands.
const History* historyOf(const Command& command, const Shell& shell) {
  const std::string_view control = command.control;
  if (control == "mnuFileHistory") return &shell.fileHistory();
  if (control == "mnuANIFileHistory") return &shell.aniHistory();
  return nullptr;
}

}  // namespace

std::string objectNameOf(std::string_view control, int index) {
  std::string name(control);
  if (index != kNoIndex) name += "(" + std::to_string(index) + ")";
  return name;
}

const Command* findCommand(std::string_view control, int index) {
  const std::span<const Command> rows = commandTable();
  const auto found =
      std::ranges::find_if(rows, [=](const Command& row) { return row.index == index && row.control == control; });
  return found == rows.end() ? nullptr : &*found;
}

bool isSubMenu(const Command& command) {
  const std::string name = objectNameOf(command.control, command.index);
  return std::ranges::any_of(commandTable(), [&name](const Command& row) { return name == row.parent; });
}

bool isEnabled(const Command& command, const Shell& shell) {
  if (command.run) return command.unmet(shell, command.index) == nullptr;
  const std::string name = objectNameOf(command.control, command.index);
  return std::ranges::any_of(commandTable(),
                             [&](const Command& row) { return name == row.parent && isEnabled(row, shell); });
}

bool isChecked(const Command& command, const Shell& shell) {
  return command.checked && command.checked(shell, command.index);
}

bool isVisible(const Command& command, const Shell& shell) {
  const History* history = historyOf(command, shell);
  if (!history) return true;
  return history->isVisible(command.index);
}

std::string captionOf(const Command& command, const Shell& shell) {
  const History* history = historyOf(command, shell);
  if (!history) return command.caption;
  return history->caption(command.index);
}

std::string historyPathOf(const Command& command, const Shell& shell) {
  const History* history = historyOf(command, shell);
  return history ? history->path(command.index) : std::string();
}

}  // namespace gp
