// The states of the program that decide which commands can run, each with the facts that hold in it, and what every
// command needs of them. Both are written here in the tests' own words; only the indices of the effects come from the
// program's table of effects.
#pragma once

#include "document/EditState.h"
#include "document/PanelNumbers.h"
#include "effects/EffectTable.h"
#include "files/CursorBuilder.h"
#include "shell/Shell.h"
#include "support/FakeClipboard.h"
#include "support/TempFolder.h"

#include <algorithm>
#include <array>
#include <ostream>
#include <set>
#include <string>
#include <vector>

namespace gp::test {

struct Facts {
  bool icon = false;
  bool size32 = false;
  bool multiIconFile = false;
  bool alpha = false;
  bool cursor = false;
  bool discrepant = false;
  bool region = false;
  bool undoStep = false;
  bool redoStep = false;
  bool clipboardPicture = false;
  bool largeChart = false;  // the 256-colour chart is visible, and no side panel is open
  bool iconsList = false;
  int current = 0;  // container
  std::set<int> used{};
};

// Brings the program into a state, by actions of a user.
struct StateMaker {
  Shell& shell;
  FakeClipboard& clipboard;
  const TempFolder& folder;

  void click(const char* control, int index) { shell.run(*findCommand(control, index)); }
  MouseInput at(int x, int y) const {
    const auto m = static_cast<float>(shell.state().gMagnification);
    return {kLeftButton, 0, (static_cast<float>(x) + 0.5F) * m, (static_cast<float>(y) + 0.5F) * m};
  }
  void drag(int fromX, int fromY, int toX, int toY) {
    Tools& tools = shell.drawing().tools;
    tools.press(at(fromX, fromY));
    tools.move(at(toX, toY));
    tools.release(at(toX, toY));
  }
  std::string write(const std::string& name, const Bytes& bytes) {
    return folder.write(name, std::string(bytes.begin(), bytes.end()));
  }
  void newIcon32() { click("mnuFileSub", 2); }
  void open(const Bytes& file) {
    shell.state().options.flagMessageIfAlpha = shell.state().options.alertIfBadHeader = false;
    bool ok = false;
    shell.files().iconFiles.doOpenIconFile(write("given.ico", file), false, ok);
  }
  void openCursor(const Bytes& file) {
    bool ok = false;
    shell.files().cursorFiles.doOpenCursorFile(write("given.cur", file), ok);
  }
  void paint() {
    newIcon32();
    drag(3, 3, 3, 3);
  }
  void holdPicture() {
    clipboard.hold(Surface(8, 8, kWhite));
    shell.UpdateCommands();  // the desktop's clipboard calls this on a change
  }
};

struct CommandState {
  const char* name;
  void (*make)(StateMaker& maker);
  Facts facts;
};

// For the names of tests.
inline void PrintTo(const CommandState& state, std::ostream* out) { *out << state.name; }

inline const std::vector<CommandState> kCommandStates{
    {"no icon", [](StateMaker&) {}, {}},
    {"a new icon of 32x32", [](StateMaker& m) { m.newIcon32(); }, {.icon = true, .size32 = true, .used = {0}}},
    {"a new icon of 16x16", [](StateMaker& m) { m.click("mnuFileSub", 3); }, {.icon = true, .used = {0}}},
    {"an entry of a multi-icon file",
     [](StateMaker& m) {
       m.open(build(IcoFile{{anyEntry(32, 4), anyEntry(16, 4)}, 0, 1, {}}));
     },
     {.icon = true, .size32 = true, .multiIconFile = true, .largeChart = true, .used = {0}}},
    {"a cursor",
     [](StateMaker& m) { m.openCursor(build(cursorOf(anyPicture(32, 4), 3, 4))); },
     {.icon = true, .size32 = true, .cursor = true, .largeChart = true, .used = {0}}},
    {"an icon with alpha",
     [](StateMaker& m) { m.open(build(anyEntry(32, 32))); },
     {.icon = true, .size32 = true, .alpha = true, .largeChart = true, .used = {0}}},
    {"an icon with discrepant headers",
     [](StateMaker& m) { m.open(build(entryOf(anyPicture(32, 24), 0, 0))); },
     {.icon = true, .size32 = true, .discrepant = true, .largeChart = true, .used = {0}}},
    {"a region",
     [](StateMaker& m) {
       m.newIcon32();
       m.click("mnuTools", kRegion);
       m.drag(2, 2, 9, 9);
     },
     {.icon = true, .size32 = true, .region = true, .used = {0}}},
    {"a floating region with pending paint",
     [](StateMaker& m) {
       m.newIcon32();
       m.holdPicture();
       m.click("mnuEditSub", 7);
     },
     {.icon = true, .size32 = true, .region = true, .undoStep = true, .clipboardPicture = true, .used = {0}}},
    {"a step to undo", [](StateMaker& m) { m.paint(); }, {.icon = true, .size32 = true, .undoStep = true, .used = {0}}},
    {"a step to redo",
     [](StateMaker& m) {
       m.paint();
       m.click("mnuEditSub", 1);
     },
     {.icon = true, .size32 = true, .redoStep = true, .used = {0}}},
    {"a picture in the clipboard, and no icon", [](StateMaker& m) { m.holdPicture(); }, {.clipboardPicture = true}},
    {"a side panel before the 256-colour chart",
     [](StateMaker& m) {
       m.newIcon32();
       m.click("mnuPaletteSub", 1);
       m.click("mnuRotateSubmenu", 4);
     },
     {.icon = true, .size32 = true, .used = {0}}},
    {"the 256-colour chart",
     [](StateMaker& m) {
       m.newIcon32();
       m.click("mnuPaletteSub", 1);
     },
     {.icon = true, .size32 = true, .largeChart = true, .used = {0}}},
    {"the Icons List with a picture in the clipboard",
     [](StateMaker& m) {
       m.newIcon32();
       m.holdPicture();
       m.shell.showPanel(kIconsListPanel);
     },
     {.icon = true, .size32 = true, .clipboardPicture = true, .iconsList = true, .used = {0}}},
    {"two icons, the second of them current",
     [](StateMaker& m) {
       m.newIcon32();
       m.shell.document().iconsPanel.SwitchContainer(1);
       m.newIcon32();
     },
     {.icon = true, .size32 = true, .current = 1, .used = {0, 1}}},
    {"an empty container beside an icon",
     [](StateMaker& m) {
       m.newIcon32();
       m.shell.document().iconsPanel.SwitchContainer(1);
     },
     {.current = 1, .used = {0}}},
};

// One need of a command, and the text of the box if it is not met; an empty text means no box.
struct Need {
  bool (*isMet)(const Facts& facts, int index);
  const char* text;
};
inline constexpr Need kNeedsIconToResize{[](const Facts& f, int) { return f.icon; },
                                         "No icon in Editing Area yet or not of suitable size."};
inline constexpr Need kNeedsIcon{[](const Facts& f, int) { return f.icon; }, "No icon in Editing Area yet"};

// The needs of the commands of a control, in the order in which they are checked.
struct CommandNeed {
  std::string_view control;
  std::vector<int> indices;
  std::vector<Need> needs;
};

// The indices of mnuEffectsSub that open an effect.
inline std::vector<int> effectIndices() {
  std::vector<int> indices;
  for (const EffectRow* effect : effectTable()) indices.push_back(effect->menu.index);
  return indices;
}

inline const std::vector<CommandNeed> kCommandNeeds{
    {"mnuFileSubCustomSize", {kNoIndex}, {}},
    {"mnuFileSub", {2, 3, 4, 5, 7, 8, 9}, {}},
    {"mnuFileSub", {12, 13, 19, 20}, {kNeedsIcon}},
    {"mnuFileSub", {15}, {kNeedsIcon, {[](const Facts& f, int) { return f.multiIconFile; }, ""}}},
    {"mnuFileSub", {16}, {kNeedsIcon, {[](const Facts& f, int) { return !f.multiIconFile; }, ""}}},
    {"mnuFileSub", {18}, {kNeedsIcon, {[](const Facts& f, int) { return f.size32; }, "For cursor of 32x32 only"}}},
    {"mnuFileHistory", {1, 2, 3, 4, 5, 6}, {}},
    {"mnuFileExit", {kNoIndex}, {}},
    {"mnuANIFileCreateOrEdit", {kNoIndex}, {}},
    {"mnuANIFileHistory", {1, 2, 3}, {}},
    {"mnuPopUpSub", {0, 1}, {}},
    {"mnuPopUpSub", {3}, {kNeedsIcon, {[](const Facts& f, int) { return f.multiIconFile; }, ""}}},
    {"mnuPopUpSub", {5}, {kNeedsIcon, {[](const Facts& f, int) { return f.alpha; }, ""}}},
    {"mnuPopUpSub", {7}, {kNeedsIcon, {[](const Facts& f, int) { return f.cursor; }, ""}}},
    {"mnuTools", {0}, {{[](const Facts& f, int) { return f.icon; }, ""}}},
    {"mnuTools", {2}, {kNeedsIcon, {[](const Facts& f, int) { return f.largeChart; }, ""}}},
    {"mnuTools", {4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}, {kNeedsIcon}},
    {"mnuEditSub", {0, 1}, {kNeedsIcon, {[](const Facts& f, int) { return f.undoStep; }, ""}}},
    {"mnuEditSub", {2}, {kNeedsIcon, {[](const Facts& f, int) { return f.redoStep; }, ""}}},
    {"mnuEditSub", {4, 5}, {{[](const Facts& f, int) { return f.region; }, ""}}},
    {"mnuEditSub", {6, 13}, {kNeedsIcon}},
    {"mnuEditSub",
     {7, 8},
     {{[](const Facts& f, int) { return !f.iconsList; }, ""},
      {[](const Facts& f, int) { return f.clipboardPicture; }, "No image in clipboard yet"}}},
    {"mnuEditSub", {9}, {}},
    {"mnuEditSubCopyToContainer",
     {0, 1, 2, 3, 4, 5},
     {kNeedsIcon,
      {[](const Facts& f, int index) { return index != f.current; }, "Cannot copy to current container itself"}}},
    {"mnuEditSubCopyFromContainer",
     {0, 1, 2, 3, 4, 5},
     {{[](const Facts& f, int index) { return f.used.contains(index); }, "Cannot copy from empty container"},
      {[](const Facts& f, int index) { return index != f.current; }, ""}}},
    {"mnuRotateSubmenu", {0, 1, 2, 3, 4}, {kNeedsIcon}},
    {"mnuEffectsSub", effectIndices(), {kNeedsIcon}},
    {"mnuEffectsSub1", {0, 1, 2}, {kNeedsIconToResize}},
    {"mnuEffectsSub2", {0, 1, 2}, {kNeedsIconToResize}},
    {"mnuEffectsSub3", {0, 1, 2}, {kNeedsIcon}},
    {"mnuBrushSize", {0, 1, 2, 3, 4, 5}, {}},
    {"mnuPaletteSub", {0, 1, 2, 4, 5}, {}},
    {"mnuEnquiryCurrent", {0, 2, 3, 7}, {kNeedsIcon}},
    {"mnuEnquiryCurrent", {5}, {kNeedsIcon, {[](const Facts& f, int) { return f.discrepant; }, ""}}},
    {"mnuEnquiryCurrent", {9}, {kNeedsIcon, {[](const Facts& f, int) { return f.multiIconFile; }, ""}}},
    {"mnuEnquiryCurrent", {10}, {kNeedsIcon, {[](const Facts& f, int) { return f.alpha; }, ""}}},
    {"mnuEnquiryCurrent", {11}, {kNeedsIcon, {[](const Facts& f, int) { return f.cursor; }, ""}}},
    {"mnuAlphaSub", {0, 1}, {kNeedsIcon}},
    {"mnuOptionsSubGrid", {0, 1, 2, 3, 4, 5, 6}, {}},
    {"mnuOptionsStartScreenSub", {0, 1, 2}, {}},
    {"mnuOptionsSub", {3, 5, 7, 11, 12, 13, 14, 16}, {}},
    {"mnuOptionsSub", {9}, {{[](const Facts& f, int) { return !f.region; }, ""}}},
    {"mnuExtractSub", {0, 1, 2, 3, 4, 5, 7}, {}},
    {"mnuHelpSub", {0, 1}, {}},
};

// The entries of the pop-up menu that can run, with the equal commands of the menu bar.
struct PopUpEntry {
  int index;  // of mnuPopUpSub
  const char* control;
  int commandIndex;
};
inline constexpr std::array<PopUpEntry, 5> kPopUpEntries{{{0, "mnuFileSub", 7},
                                                          {1, "mnuFileSub", 8},
                                                          {3, "mnuEnquiryCurrent", 9},
                                                          {5, "mnuEnquiryCurrent", 10},
                                                          {7, "mnuEnquiryCurrent", 11}}};

inline const CommandNeed* findNeed(const Command& row) {
  const auto found = std::ranges::find_if(kCommandNeeds, [&row](const CommandNeed& need) {
    return need.control == row.control && std::ranges::find(need.indices, row.index) != need.indices.end();
  });
  return found == kCommandNeeds.end() ? nullptr : &*found;
}

// Why a command cannot run; null when it can. Its needs must be listed above.
inline const char* refusalOf(const Command& row, const Facts& facts) {
  for (const Need& need : findNeed(row)->needs)
    if (!need.isMet(facts, row.index)) return need.text;
  return nullptr;
}

}  // namespace gp::test
