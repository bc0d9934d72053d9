// Every command of the program: one row per menu entry, from which menus, keys, toolbar, enabling and tests come.
// Adding a command is one row in CommandRows.cpp.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace gp {

class Shell;

// Whether what is open on the Editing Area is committed before the command runs.
enum class Commits : bool { No, Yes };

struct Command {
  const char* control;  // "mnuFileSub"
  int index;            // its index, kNoIndex for a control that is no array
  const char* parent;   // objectName of the menu it stands in: "mnuFile", "mnuFileSub(0)"
  const char* caption;  // with "&"; empty for history entries, whose captions come at run time
  const char* key;      // "Ctrl+N", empty for none
  const char* picture;  // name of its picture, empty for none
  // Why the command cannot run: null when it can, a text for a box, or an empty text where nothing is said.
  const char* (*unmet)(const Shell& shell, int index);
  Commits commits;
  bool (*checked)(const Shell& shell, int index);  // null for an entry that bears no tick
  void (*run)(Shell& shell, int index);            // null for a sub-menu, and for what the program cannot do yet
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
  const char* control;  // the command it calls
  int commandIndex;
  bool separatorBefore;
};

std::span<const TopMenu> topMenus();
std::span<const Command> commandTable();
std::span<const ToolbarButton> toolbarTable();

// "mnuFileSub(2)", or the bare control for kNoIndex.
std::string objectNameOf(std::string_view control, int index);
// The row of a command; null when there is none.
const Command* findCommand(std::string_view control, int index);
// True when rows stand under this one.
bool isSubMenu(const Command& command);

// The state of a row now. A sub-menu is enabled with any of its entries; a row without a handler never is.
bool isEnabled(const Command& command, const Shell& shell);
bool isChecked(const Command& command, const Shell& shell);
bool isVisible(const Command& command, const Shell& shell);
std::string captionOf(const Command& command, const Shell& shell);

}  // namespace gp
