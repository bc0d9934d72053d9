// What a user can do while the region pumps messages, triggered at each place that pumps.
#include "drawing/RegionFixture.h"

#include <functional>
#include <tuple>

namespace gp {
namespace {

using test::Rows;

class NestingFixture : public test::RegionFixture {
 public:
  void begin() {
    makeIcon(16, {"aaaaaa", "abbbba", "ab.cba", "abccba", "abbbba", "aaaaaa"});
    clipboard.hold(picture(Rows(16, "ccssssssssssssca")));
  }
  void at(int pumpNumber, const std::function<void()>& event) {
    pump.inside = [this, pumpNumber, event] {
      if (pumpNumber == 1)
        event();
      else
        at(pumpNumber - 1, event);
    };
  }

  void clearAllContainers() {
    for (int container = kContainerCount - 1; container >= 0; --container) {
      state.mCurContainer = container;
      ClearContainer(state);
      panel.SwitchContainer(container);
    }
  }

  // Work that pumps: each function runs to the pump in question, and then to its end.
  void drawBox() {
    press(cells(0), cells(0));
    at(1, action);
    move(cells(5), cells(5));
    release(cells(5), cells(5));
  }
  void dragRegion() {
    mark(0, 0, 5, 5);
    press(inside(0), inside(0));
    move(inside(0) + cells(2), inside(0));
    at(1, action);
    move(inside(0) + cells(4), inside(0));
    release(inside(0) + cells(4), inside(0));
  }
  void pressOnSide() {
    mark(0, 0, 5, 5);
    at(1, action);
    press(cells(6), cells(3));
    move(cells(4), cells(3));
    release(cells(4), cells(3));
  }
  void pullSide() {
    mark(0, 0, 5, 5);
    press(cells(6), cells(3));
    at(2, action);
    move(cells(4) + 3, cells(3));
    release(cells(4) + 3, cells(3));
  }
  void releaseSide() {
    mark(0, 0, 5, 5);
    press(cells(6), cells(3));
    move(cells(4) + 3, cells(3));
    at(1, action);
    release(cells(4) + 3, cells(3));
  }
  void pressOutside() {
    mark(0, 0, 5, 5);
    moveRegion(3, 3);
    at(1, action);
    press(cells(14), cells(1));
    release(cells(14), cells(1));
  }
  void cut() {
    mark(0, 0, 5, 5);
    at(1, action);
    commands.doCutRegion(true);
  }
  void paste() {
    at(1, action);
    commands.doPaste(false);
  }
  void flipIcon() {
    at(1, action);
    transforms.RotateFlipHoriz();
  }
  void turnIcon() {
    at(1, action);
    transforms.RotateLeft();
  }
  void rotateIcon() {
    rotatePanel.open();
    rotatePanel.setSlider(33);
    at(1, action);
    rotatePanel.doRotateProceed();
  }
  void shiftOn() {
    at(1, action);
    tools.selectTool(kShift);
  }
  void pasteIntoEmpty() {
    panel.SwitchContainer(3);
    at(1, action);
    commands.doPaste(false);
  }
  void showNewIcon() {
    panel.SwitchContainer(3);
    at(2, action);
    commands.doPaste(false);
  }

  // Events that arrive during a pump.
  void pressAgain() { press(cells(3), cells(3)); }
  void pressFarAway() { press(cells(13), cells(13)); }
  void releaseNow() { release(cells(3), cells(3)); }
  void undoNow() { undo.doUndo(); }
  void undoAllNow() { undo.doUndoAll(); }
  void redoNow() { undo.doRedo(); }
  void cutNow() {
    if (state.mRegionExists) commands.doCutRegion(false);
  }
  void copyNow() {
    if (state.current().used) commands.doCopyRegion();
  }
  void pasteNow() { commands.doPaste(true); }
  void flipNow() { turnBy(&Transforms::RotateFlipVertical); }
  void turnNow() { turnBy(&Transforms::RotateRight); }
  void turnBy(void (Transforms::*command)()) {
    if (!state.current().present) return;
    if (tools.selectedTool() == kShift)
      boxes.expectAsked("Terminate Shift operation and accept the current image?\n", BoxAnswer::Yes);
    std::invoke(command, transforms);
  }
  void otherContainer() { panel.SwitchContainer(1); }
  void sameContainer() { panel.SwitchContainer(state.mCurContainer); }
  void otherTool() { tools.selectTool(kPaint); }
  void clearTools() { tools.imgClearAllTools(); }
  void clearContainer() {
    if (!state.current().used) return;
    boxes.expectAsked("Clear current icon from container.  Proceed?\n", BoxAnswer::Yes);
    copies.doClearContainer();
  }
  void otherGrid() { options.SetGrid(4); }
  void anotherPanel() { editor.showPanel(5); }

  std::function<void()> action;
};

using Step = void (NestingFixture::*)();
struct Named {
  const char* name;
  Step run;
};
std::ostream& operator<<(std::ostream& out, const Named& named) { return out << named.name; }

const Named kWork[] = {{"drawBox", &NestingFixture::drawBox},
                       {"dragRegion", &NestingFixture::dragRegion},
                       {"pressOnSide", &NestingFixture::pressOnSide},
                       {"pullSide", &NestingFixture::pullSide},
                       {"releaseSide", &NestingFixture::releaseSide},
                       {"pressOutside", &NestingFixture::pressOutside},
                       {"cut", &NestingFixture::cut},
                       {"paste", &NestingFixture::paste},
                       {"flipIcon", &NestingFixture::flipIcon},
                       {"turnIcon", &NestingFixture::turnIcon},
                       {"rotateIcon", &NestingFixture::rotateIcon},
                       {"shiftOn", &NestingFixture::shiftOn},
                       {"pasteIntoEmpty", &NestingFixture::pasteIntoEmpty},
                       {"showNewIcon", &NestingFixture::showNewIcon}};
const Named kEvents[] = {{"pressAgain", &NestingFixture::pressAgain},
                         {"pressFarAway", &NestingFixture::pressFarAway},
                         {"releaseNow", &NestingFixture::releaseNow},
                         {"undoNow", &NestingFixture::undoNow},
                         {"undoAllNow", &NestingFixture::undoAllNow},
                         {"redoNow", &NestingFixture::redoNow},
                         {"cutNow", &NestingFixture::cutNow},
                         {"copyNow", &NestingFixture::copyNow},
                         {"pasteNow", &NestingFixture::pasteNow},
                         {"flipNow", &NestingFixture::flipNow},
                         {"turnNow", &NestingFixture::turnNow},
                         {"otherContainer", &NestingFixture::otherContainer},
                         {"sameContainer", &NestingFixture::sameContainer},
                         {"otherTool", &NestingFixture::otherTool},
                         {"clearTools", &NestingFixture::clearTools},
                         {"clearContainer", &NestingFixture::clearContainer},
                         {"otherGrid", &NestingFixture::otherGrid},
                         {"anotherPanel", &NestingFixture::anotherPanel}};

class RegionNesting : public NestingFixture, public testing::WithParamInterface<std::tuple<bool, Named>> {};

INSTANTIATE_TEST_SUITE_P(EveryPump, RegionNesting, testing::Combine(testing::Bool(), testing::ValuesIn(kWork)),
                         [](const auto& parameter) {
                           return std::string(std::get<1>(parameter.param).name) +
                                  (std::get<0>(parameter.param) ? "EditingAreaOnly" : "Everything");
                         });

TEST_P(RegionNesting, AnEventDuringTheWorkLeavesIconMaskHistoryAndRegionInAgreement) {
  for (const Named& event : kEvents) {
    SCOPED_TRACE(event.name);
    clearAllContainers();
    state.options.updateOnlyEditingArea = std::get<0>(GetParam());
    begin();
    bool arrived = false;
    action = [&] {
      arrived = true;
      (this->*event.run)();
    };
    (this->*std::get<1>(GetParam()).run)();
    EXPECT_TRUE(arrived);
    // The button is released at the end, whatever the work did.
    release(cells(3), cells(3));
    EXPECT_FALSE(regions.isDragged());
    expectAgreement();
    state.screen.mActivePanel = 0;
    tools.clearAllTools();
    regions.clearRegion();
  }
}

class RegionNestingOutcome : public NestingFixture {};

TEST_F(RegionNestingOutcome, AnUndoDuringADragTakesBackTheDragAlone) {
  for (const bool option : {false, true}) {
    state.options.updateOnlyEditingArea = option;
    begin();
    paintPixel(15, 15, 'c');
    const Rows before = icon();
    action = [this] { undo.doUndo(); };
    dragRegion();
    EXPECT_EQ(icon(), before);
    EXPECT_FALSE(state.mRegionExists);
    undo.doRedo();
    EXPECT_EQ(icon().front(), "..aaaaaa");
  }
}

TEST_F(RegionNestingOutcome, AReleaseDuringAMoveFinishesTheDragWhereItWas) {
  for (const bool option : {false, true}) {
    state.options.updateOnlyEditingArea = option;
    begin();
    action = [this] { release(inside(0) + cells(2), inside(0)); };
    dragRegion();
    EXPECT_EQ(icon().front(), "..aaaaaa");
    EXPECT_TRUE(state.mRegionExists);
  }
}

TEST_F(RegionNestingOutcome, AContainerClickDuringADragKeepsTheIconInItsContainer) {
  begin();
  action = [this] { panel.SwitchContainer(1); };
  dragRegion();
  EXPECT_EQ(state.mCurContainer, 1);
  panel.SwitchContainer(0);
  EXPECT_EQ(icon().front(), "..aaaaaa");
  EXPECT_EQ(icon()[3], "..abccba");
}

TEST_F(RegionNestingOutcome, ClosingDuringADragFindsTheIconChangedAndWhole) {
  begin();
  bool changed = false;
  Rows seen;
  action = [&] {
    changed = state.IsIconChanged();
    seen = icon();
  };
  dragRegion();
  EXPECT_TRUE(changed);
  EXPECT_EQ(seen.front(), "..aaaaaa");
}

}  // namespace
}  // namespace gp
