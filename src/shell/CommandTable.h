// The command table: one row per menu entry. Menus, keys, toolbar, enabling and tests are generated from it. To add a
// command, add a row in CommandRows.cpp.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace gp {

class Shell;

// Whether an open tool action is committed before the command runs.
enum class Commits : bool { No, Yes };

struct Command {
  const char* control;  // such as "mnuFileSub"
  int index;            // index of the control, kNoIndex for a control that is not an array
  const char* parent;   // objectName of its menu, such as "mnuFile" or "mnuFileSub(0)"
  const char* caption;  // with "&"; empty for history entries, whose captions are set at run time
  const char* key;      // such as "Ctrl+N", empty for none
  const char* picture;  // name of its picture, empty for none
  // Returns null when the command can run; otherwise the message that explains why not, empty for no message.
  const char* (*unmet)(const Shell& shell, int index);
  Commits commits;
  bool (*checked)(const Shell& shell, int index);  // null for an entry without a tick
  void (*run)(Shell& shell, int index);            // null for a sub-menu and for a command that is not implemented
};

inline constexpr int kNoIndex = -1;

struct TopMenu {
  const char* control;
  const char* caption;
  bool inMenuBar;  // false for the pop-up menu
};

struct ToolbarButton {
  int index;  // of cmdTB
  const char* tooltip;
  const char* control;  // the control of the command that it runs
  int commandIndex;
  bool separatorBefore;
};

std::span<const TopMenu> topMenus();
std::span<const Command> commandTable();
std::span<const ToolbarButton> toolbarTable();

// Returns "mnuFileSub(2)", or the control alone for kNoIndex.
std::string objectNameOf(std::string_view control, int index);
// Returns the row of a command; null when there is none.
const Command* findCommand(std::string_view control, int index);
// Returns true when other rows have this one as parent.
bool isSubMenu(const Command& command);

// The current state of a row. A sub-menu is enabled if one of its entries is.
bool isEnabled(const Command& command, const Shell& shell);
bool isChecked(const Command& command, const Shell& shell);
bool isVisible(const Command& command, const Shell& shell);
std::string captionOf(const Command& command, const Shell& shell);
// Returns the path of a history entry; empty for other commands.
std::string historyPathOf(const Command& command, const Shell& shell);

}  // namespace gp
