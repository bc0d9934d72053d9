// What a region, a paste or a shift has changed is one step of Undo, whatever ends it.
#include "drawing/RegionFixture.h"

#include <functional>
#include <tuple>

namespace gp {
namespace {

using test::Rows;

class OpenStepsFixture : public test::RegionFixture {
 public:
  // An icon with one step of Paint.
  void begin(bool editingAreaOnly = false) {
    state.options.updateOnlyEditingArea = editingAreaOnly;
    makeIcon(16, {"aaaaab", "abbbba", "ab!kba", "abccba", "abbbba", "caaaaa"});
    paintPixel(15, 0, 'c');
    clipboard.hold(picture({"ccs", "csc"}));
  }

  // What opens a step.
  void moved() {
    mark(0, 0, 5, 5);
    moveRegion(2, 3);
  }
  void movedTwice() {
    moved();
    moveRegion(1, 1);
  }
  void movedOnEditingAreaOnly() {
    state.options.updateOnlyEditingArea = true;
    moved();
  }
  void sized() {
    moved();
    drag(2, 6, 4, 6);
  }
  void flipped() {
    mark(0, 0, 5, 5);
    transforms.RotateFlipHoriz();
  }
  void turnedAndMoved() {
    mark(0, 0, 5, 3);
    transforms.RotateLeft();
    moveRegion(4, 4);
  }
  void pasted() { commands.doPaste(false); }
  void pastedOpaqueAndTurned() {
    commands.doPaste(true);
    transforms.RotateRight();
  }
  void shifted() {
    tools.selectTool(kShift);
    shift.shift(ShiftCell::Right);
    shift.shift(ShiftCell::TopLeft);
  }

  // What ends it and leaves the icon as it is.
  void anotherTool() { tools.selectTool(kPaint); }
  void theSameTool() { tools.selectTool(tools.selectedTool()); }
  void toolsCleared() { tools.imgClearAllTools(); }
  void colorPicker() { colors.imgColorPicker(); }
  void sidePanel() { editor.showPanel(kIconsListPanel); }
  void rotateAtAnyAngle() {
    if (tools.selectedTool() == kShift)
      boxes.expectAsked("Terminate Shift operation and accept the current image?\n", BoxAnswer::Yes);
    transforms.rotateAtAnyAngle();
  }
  void endOfToolAction() { panel.EndToolAction(); }
  void commitBeforeACommand() {
    panel.CommitPendingPaint();
    panel.EndToolAction();
  }
  void anotherGrid() {
    options.SetGrid(4);
    panel.EndToolAction();
  }
  void statusBar() {
    area.RefreshStatusBar();
    panel.EndToolAction();
  }
  void refusedSwitch() {
    state.options.promptToSave = true;
    editor.askSaveProceeds = false;
    panel.SwitchContainer(1);
    ASSERT_EQ(state.mCurContainer, 0);
  }

  // Image and Mask exactly.
  void expectIcon(const IconImage& icon) const {
    EXPECT_TRUE(same(state.picImage, icon.image));
    EXPECT_TRUE(same(state.picMask, icon.mask));
    EXPECT_TRUE(same(state.PicIcon, composed(icon)));
  }
  static Surface composed(const IconImage& icon) {
    Surface shown(icon.width(), icon.height(), kGround);
    for (int y = 0; y < icon.height(); ++y)
      for (int x = 0; x < icon.width(); ++x) {
        const Color ground = icon.mask.GetPixel(x, y) == kBlack ? kBlack : kGround;
        shown.SetPixelV(x, y, ground ^ icon.image.GetPixel(x, y));
      }
    return shown;
  }
  IconImage now() const { return {state.picImage, state.picMask, {}}; }
};

using Action = void (OpenStepsFixture::*)();
struct Named {
  const char* name;
  Action run;
};
std::ostream& operator<<(std::ostream& out, const Named& named) { return out << named.name; }

const Named kStanding[] = {{"moved", &OpenStepsFixture::moved},
                           {"movedTwice", &OpenStepsFixture::movedTwice},
                           {"movedOnEditingAreaOnly", &OpenStepsFixture::movedOnEditingAreaOnly},
                           {"sized", &OpenStepsFixture::sized},
                           {"flipped", &OpenStepsFixture::flipped},
                           {"turnedAndMoved", &OpenStepsFixture::turnedAndMoved},
                           {"pasted", &OpenStepsFixture::pasted},
                           {"pastedOpaqueAndTurned", &OpenStepsFixture::pastedOpaqueAndTurned},
                           {"shifted", &OpenStepsFixture::shifted}};
constexpr std::size_t kRegionsOfTheIcon = 6;  // the first rows
const Named kEnding[] = {{"anotherTool", &OpenStepsFixture::anotherTool},
                         {"theSameTool", &OpenStepsFixture::theSameTool},
                         {"toolsCleared", &OpenStepsFixture::toolsCleared},
                         {"colorPicker", &OpenStepsFixture::colorPicker},
                         {"sidePanel", &OpenStepsFixture::sidePanel},
                         {"rotateAtAnyAngle", &OpenStepsFixture::rotateAtAnyAngle},
                         {"endOfToolAction", &OpenStepsFixture::endOfToolAction},
                         {"commitBeforeACommand", &OpenStepsFixture::commitBeforeACommand},
                         {"anotherGrid", &OpenStepsFixture::anotherGrid},
                         {"statusBar", &OpenStepsFixture::statusBar},
                         {"refusedSwitch", &OpenStepsFixture::refusedSwitch}};

class OpenSteps : public OpenStepsFixture, public testing::WithParamInterface<std::tuple<Named, Named>> {
 protected:
  const Named& standing() const { return std::get<0>(GetParam()); }
  const Named& ending() const { return std::get<1>(GetParam()); }
  bool isShift() const { return standing().run == &OpenStepsFixture::shifted; }
};
INSTANTIATE_TEST_SUITE_P(Every, OpenSteps, testing::Combine(testing::ValuesIn(kStanding), testing::ValuesIn(kEnding)),
                         [](const auto& parameter) {
                           return std::string(std::get<0>(parameter.param).name) + "_" +
                                  std::get<1>(parameter.param).name;
                         });

TEST_P(OpenSteps, AreRecordedAsOneWhenTheyEnd) {
  begin();
  const IconImage before = now();
  (this->*standing().run)();
  const IconImage changed = now();
  ASSERT_FALSE(same(before.image, changed.image));
  const int steps = history.undoCount();
  (this->*ending().run)();
  expectIcon(changed);
  EXPECT_EQ(history.undoCount(), steps + 1);
  EXPECT_FALSE(state.mRegionExists);

  state.current().modified = false;
  // During Shift an Undo takes back the whole of it, without a Redo.
  const bool isStillOn = tools.selectedTool() == kShift;
  undo.doUndo();
  expectIcon(before);
  EXPECT_TRUE(state.current().modified);
  EXPECT_EQ(history.redoCount(), isStillOn ? 0 : 1);
  if (isStillOn) return;
  state.current().modified = false;
  undo.doRedo();
  expectIcon(changed);
  EXPECT_TRUE(state.current().modified);
  EXPECT_EQ(history.undoCount(), steps + 1);
  EXPECT_FALSE(history.canRedo());
}

TEST_P(OpenSteps, AreAStepBeforeTheOneThatFollows) {
  begin();
  const IconImage before = now();
  (this->*standing().run)();
  const IconImage changed = now();
  const int steps = history.undoCount();
  (this->*ending().run)();
  if (tools.selectedTool() == kShift) tools.clearAllTools();
  paintPixel(9, 12, 'c');
  EXPECT_EQ(history.undoCount(), steps + 2);
  undo.doUndo();
  expectIcon(changed);
  undo.doUndo();
  expectIcon(before);
}

// An open step is undone and redone by itself.
class StandingSteps : public OpenStepsFixture, public testing::WithParamInterface<Named> {
 protected:
  bool is(Action run) const { return GetParam().run == run; }
  bool restartsTheHistory() const {
    return is(&OpenStepsFixture::pasted) || is(&OpenStepsFixture::pastedOpaqueAndTurned) ||
           is(&OpenStepsFixture::shifted);
  }
};
INSTANTIATE_TEST_SUITE_P(Every, StandingSteps, testing::ValuesIn(kStanding),
                         [](const auto& parameter) { return std::string(parameter.param.name); });

TEST_P(StandingSteps, UndoTakesBackThemAlone) {
  begin();
  const IconImage before = now();
  (this->*GetParam().run)();
  const IconImage changed = now();
  EXPECT_TRUE(history.canUndo());
  undo.doUndo();
  expectIcon(before);
  EXPECT_FALSE(state.mRegionExists);
  if (is(&OpenStepsFixture::shifted)) {
    EXPECT_FALSE(history.canRedo());
    EXPECT_EQ(tools.selectedTool(), kNoTool);
    return;
  }
  undo.doRedo();
  expectIcon(changed);
}

TEST_P(StandingSteps, AnotherUndoTakesBackTheStepBefore) {
  begin();
  const IconImage before = now();
  (this->*GetParam().run)();
  const IconImage changed = now();
  undo.doUndo();
  expectIcon(before);
  EXPECT_EQ(history.canUndo(), !restartsTheHistory());
  if (restartsTheHistory()) return;
  undo.doUndo();
  EXPECT_EQ(icon().front(), "aaaaab");
  undo.doRedo();
  undo.doRedo();
  expectIcon(changed);
}

TEST_P(StandingSteps, UndoAllGoesToTheBaselineAndEndsThem) {
  begin();
  const IconImage before = now();
  (this->*GetParam().run)();
  undo.doUndoAll();
  if (restartsTheHistory())
    expectIcon(before);
  else
    EXPECT_EQ(icon().front(), "aaaaab");
  EXPECT_EQ(history.undoCount(), 1);
  EXPECT_FALSE(history.canUndo());
  EXPECT_FALSE(history.canRedo());
  EXPECT_FALSE(state.mRegionExists);
  EXPECT_NE(tools.selectedTool(), kShift);
}

TEST_P(StandingSteps, AContainerClickKeepsThemAndStartsTheHistoryWithThem) {
  begin();
  (this->*GetParam().run)();
  const IconImage changed = now();
  panel.SwitchContainer(1);
  panel.SwitchContainer(0);
  expectIcon(changed);
  EXPECT_EQ(history.undoCount(), 1);
  EXPECT_FALSE(history.canUndo());
}

// Regions of the icon itself, which keep the history.
class RegionSteps : public OpenStepsFixture, public testing::WithParamInterface<Named> {};
INSTANTIATE_TEST_SUITE_P(Every, RegionSteps, testing::ValuesIn(kStanding, kStanding + kRegionsOfTheIcon),
                         [](const auto& parameter) { return std::string(parameter.param.name); });

TEST_P(RegionSteps, LeaveNothingToRedoThatWasUndoneBefore) {
  begin();
  paintPixel(14, 0, 'c');
  undo.doUndo();
  ASSERT_TRUE(history.canRedo());
  ASSERT_EQ(tools.selectedTool(), kRegion);
  (this->*GetParam().run)();
  const IconImage changed = now();
  EXPECT_EQ(history.redoCount(), 1) << "nothing is recorded yet";
  EXPECT_FALSE(history.canRedo());
  undo.doRedo();
  expectIcon(changed);
  tools.selectTool(kPaint);
  EXPECT_EQ(history.redoCount(), 0);
}

// The commands of regions themselves.
class OpenStepOutcome : public OpenStepsFixture {};

TEST_F(OpenStepOutcome, ARegionThatWasOnlyMarkedIsNoStep) {
  begin();
  undo.doUndo();
  tools.selectTool(kRegion);
  mark(0, 0, 5, 5);
  EXPECT_TRUE(history.canRedo());
  tools.selectTool(kPaint);
  EXPECT_EQ(history.undoCount(), 1);
  EXPECT_EQ(history.redoCount(), 1);
}

TEST_F(OpenStepOutcome, ARegionMovedAwayAndBackIsNoStep) {
  for (const bool editingAreaOnly : {false, true}) {
    begin(editingAreaOnly);
    setPixel(2, 2, 'a');  // an inverting pixel would not come along
    history.recordUndo();
    const int steps = history.undoCount();
    moved();
    EXPECT_TRUE(history.canUndo());
    moveRegion(-2, -3);
    tools.selectTool(kPaint);
    EXPECT_EQ(history.undoCount(), steps);
  }
}

TEST_F(OpenStepOutcome, ADragOnAFreshIconCanBeUndone) {
  for (const bool editingAreaOnly : {false, true}) {
    begin(editingAreaOnly);
    makeIcon(16, Rows(4, "aaaa"));
    mark(0, 0, 3, 3);
    EXPECT_FALSE(history.canUndo());
    moveRegion(4, 0);
    EXPECT_TRUE(history.canUndo());
    undo.doUndo();
    EXPECT_EQ(icon(), Rows(4, "aaaa"));
    EXPECT_FALSE(history.canUndo());
    undo.doRedo();
    EXPECT_EQ(icon(), Rows(4, "....aaaa"));
  }
}

TEST_F(OpenStepOutcome, CuttingAMovedRegionIsASecondStep) {
  begin();
  const IconImage before = now();
  moved();
  const IconImage changed = now();
  commands.doCutRegion(false);
  const IconImage cut = now();
  EXPECT_EQ(history.undoCount(), 4);
  undo.doUndo();
  expectIcon(changed);
  undo.doUndo();
  expectIcon(before);
  undo.doRedo();
  undo.doRedo();
  expectIcon(cut);
}

TEST_F(OpenStepOutcome, CuttingAFlippedRegionIsAStepThatCanBeUndone) {
  begin();
  const IconImage before = now();
  flipped();
  const IconImage changed = now();
  commands.doCutRegion(false);
  EXPECT_EQ(icon(), Rows{"...............c"});
  EXPECT_EQ(history.undoCount(), 4);
  undo.doUndo();
  expectIcon(changed);
  undo.doUndo();
  expectIcon(before);
}

TEST_F(OpenStepOutcome, CuttingAPastedPictureThatTheBaselineHasIsAStep) {
  begin();
  const IconImage before = now();
  pasted();
  const IconImage changed = now();
  panel.updateFromCurrent();
  commands.doCutRegion(false);
  expectIcon(before);
  EXPECT_EQ(history.undoCount(), 2);
  undo.doUndo();
  expectIcon(changed);
}

TEST_F(OpenStepOutcome, ARefusedPasteLeavesTheHistoryAsItWas) {
  begin();
  paintPixel(14, 0, 'c');
  undo.doUndo();
  clipboard.hold(picture(Rows(20, std::string(20, 'c'))));
  const std::string question = "Image size is of 20x20; too large for current icon.\n\nChange to fit in?";
  boxes.expectAsked(question, BoxAnswer::No);
  commands.doPaste(false);
  EXPECT_EQ(history.undoCount(), 2);
  EXPECT_EQ(history.redoCount(), 1);
  moved();
  const IconImage changed = now();
  boxes.expectAsked(question, BoxAnswer::No);
  commands.doPaste(true);
  expectIcon(changed);
  EXPECT_TRUE(state.mRegionExists);
  EXPECT_EQ(history.undoCount(), 2);
  undo.doUndo();
  EXPECT_EQ(icon().front(), "aaaaab.........c");
}

TEST_F(OpenStepOutcome, ARefusedPasteIntoAnEmptyContainerRecordsNothing) {
  clipboard.hold(picture(Rows(20, std::string(20, 'c'))));
  boxes.expectAsked("Image size is of 20x20, not of 16x16, 24x24, 32x32 or 48x48.\n\nCreate to fit in?", BoxAnswer::No);
  commands.doPaste(false);
  EXPECT_EQ(history.undoCount(), 0);
}

TEST_F(OpenStepOutcome, AnAcceptedPasteStartsTheHistoryWithAMovedRegion) {
  begin();
  moved();
  const IconImage changed = now();
  pasted();
  EXPECT_EQ(history.undoCount(), 1);
  undo.doUndo();
  expectIcon(changed);
  EXPECT_FALSE(history.canUndo());
}

TEST_F(OpenStepOutcome, FlippingAfterAnAcceptedShiftIsAStepOfItsOwn) {
  begin();
  const IconImage before = now();
  shifted();
  const IconImage changed = now();
  const int steps = history.undoCount();
  boxes.expectAsked("Terminate Shift operation and accept the current image?\n", BoxAnswer::Yes);
  transforms.RotateFlipVertical();
  EXPECT_EQ(history.undoCount(), steps + 2);
  undo.doUndo();
  expectIcon(changed);
  undo.doUndo();
  expectIcon(before);
}

TEST_F(OpenStepOutcome, ShiftBeginsAgainAfterEachEnd) {
  for (const Action ending : {&OpenStepsFixture::anotherTool, &OpenStepsFixture::theSameTool,
                              &OpenStepsFixture::sidePanel, &OpenStepsFixture::toolsCleared}) {
    begin();
    shifted();
    ASSERT_NE(shift.mShiftY(), 0);
    (this->*ending)();
    EXPECT_EQ(shift.mShiftX(), 0);
    EXPECT_EQ(shift.mShiftY(), 0);
    EXPECT_NE(tools.selectedTool(), kShift);
  }
  for (void (UndoCommands::*command)() : {&UndoCommands::doUndo, &UndoCommands::doUndoAll}) {
    begin();
    shifted();
    std::invoke(command, undo);
    EXPECT_EQ(shift.mShiftX(), 0);
    EXPECT_EQ(shift.mShiftY(), 0);
    EXPECT_EQ(tools.selectedTool(), kNoTool);
  }
}

TEST_F(OpenStepOutcome, AShiftUpAndDownAgainIsNoStepOfItsOwn) {
  begin();
  setPixel(2, 2, 'a');  // an inverting pixel would become a plain colour
  tools.selectTool(kShift);
  shift.shift(ShiftCell::Top);
  shift.shift(ShiftCell::Bottom);
  tools.selectTool(kPaint);
  EXPECT_EQ(history.undoCount(), 2) << "the two entries with which Shift begins";
}

TEST_F(OpenStepOutcome, AShiftAfterTheContainerWasUpdatedIsUndoneToThatState) {
  begin();
  shifted();
  panel.updateFromCurrent();
  const IconImage updated = now();
  EXPECT_FALSE(history.canUndo());
  shift.shift(ShiftCell::Left);
  EXPECT_TRUE(history.canUndo());
  undo.doUndo();
  expectIcon(updated);
}

TEST_F(OpenStepOutcome, SelectingShiftKeepsAMovedRegionInItsBaseline) {
  begin();
  moved();
  const IconImage changed = now();
  tools.selectTool(kShift);
  EXPECT_EQ(history.undoCount(), 2);
  shift.shift(ShiftCell::Left);
  undo.doUndo();
  expectIcon(changed);
}

// A Restore stroke is not recorded, and a region that was only marked does not change that.
TEST_F(OpenStepOutcome, AMarkedRegionDoesNotRecordARestoreStroke) {
  begin();
  setPixel(9, 9, 'b');
  area.showChangedIcon();
  mark(0, 0, 5, 5);
  tools.selectTool(kPaint);
  EXPECT_EQ(history.undoCount(), 2);
  undo.doUndo();
  EXPECT_EQ(icon().front(), "aaaaab");
}

TEST_F(OpenStepOutcome, TheOpenStepOfAFormerIconIsNotRecorded) {
  begin();
  moved();
  makeIcon(16, {"c"});
  EXPECT_EQ(history.undoCount(), 1);
  EXPECT_FALSE(history.canUndo());
  moved();
  panel.showEmptyContainer();
  EXPECT_EQ(history.undoCount(), 0);
  EXPECT_FALSE(history.canUndo());
}

}  // namespace
}  // namespace gp
