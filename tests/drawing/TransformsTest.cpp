#include "drawing/RegionFixture.h"

namespace gp {
namespace {

using test::Rows;

class TransformsTest : public test::RegionFixture {
 protected:
  // The rows of a 16-pixel icon with a picture in each corner of it.
  static Rows fullIcon() {
    Rows rows(16, std::string(16, '.'));
    rows[0] = "ab.............c";
    rows[1] = "k...............";
    rows[15] = "b..............k";
    return rows;
  }
};

TEST_F(TransformsTest, AnIconIsFlippedHorizontally) {
  makeIcon(16, fullIcon());
  transforms.RotateFlipHoriz();
  Rows expected(16, "");
  expected[0] = "c.............ba";
  expected[1] = "...............k";
  expected[15] = "k..............b";
  EXPECT_EQ(icon(), expected);
  EXPECT_EQ(undo.undoCount(), 2);
  EXPECT_TRUE(state.current().modified);
  transforms.RotateFlipHoriz();
  EXPECT_EQ(icon(), trimmed(fullIcon()));
  expectAgreement();
}

TEST_F(TransformsTest, AnIconIsFlippedVertically) {
  makeIcon(16, fullIcon());
  transforms.RotateFlipVertical();
  Rows expected(16, "");
  expected[0] = "b..............k";
  expected[14] = "k";
  expected[15] = "ab.............c";
  EXPECT_EQ(icon(), expected);
  undo.doUndo();
  EXPECT_EQ(icon(), trimmed(fullIcon()));
  expectAgreement();
}

TEST_F(TransformsTest, AnIconIsTurnedLeftAndRight) {
  makeIcon(16, fullIcon());
  transforms.RotateLeft();
  Rows expected(16, "");
  expected[0] = "c..............k";
  expected[14] = "b";
  expected[15] = "ak.............b";
  EXPECT_EQ(icon(), expected);
  transforms.RotateRight();
  EXPECT_EQ(icon(), trimmed(fullIcon()));
  transforms.RotateRight();
  expected = Rows(16, "");
  expected[0] = "b.............ka";
  expected[1] = "...............b";
  expected[15] = "k..............c";
  EXPECT_EQ(icon(), expected);
  EXPECT_EQ(undo.undoCount(), 4);
  expectAgreement();
}

TEST_F(TransformsTest, FourTurnsAreNone) {
  makeIcon(16, fullIcon());
  for (int i = 0; i < 4; ++i) transforms.RotateLeft();
  EXPECT_EQ(icon(), trimmed(fullIcon()));
}

TEST_F(TransformsTest, OnlyTheRegionIsFlippedAndItFloats) {
  for (const bool option : {false, true}) {
    state.options.updateOnlyEditingArea = option;
    makeIcon(16, {"abc.", "a...", "cccc"});
    mark(0, 0, 2, 1);
    transforms.RotateFlipHoriz();
    EXPECT_EQ(icon(), (Rows{"cba", "..a", "cccc"}));
    EXPECT_TRUE(regions.isFloating());
    EXPECT_EQ(undo.undoCount(), 1) << "the step is recorded when the region is merged";
    transforms.RotateFlipVertical();
    EXPECT_EQ(icon(), (Rows{"..a", "cba", "cccc"}));
    expectAgreement();
  }
}

TEST_F(TransformsTest, RotateLeftOfARegionOf3x5GivesOneOf5x3WithTheSameTopLeftCorner) {
  for (const bool option : {false, true}) {
    state.options.updateOnlyEditingArea = option;
    makeIcon(16, {"", "", "..abc", "..a", "..b", "..a", "..kkk"});
    mark(2, 2, 4, 6);
    transforms.RotateLeft();
    EXPECT_EQ(content(), (Rows{"c...k", "b...k", "aabak"}));
    EXPECT_EQ(boxInPixels(), (Rows{"2,2", "6,4"}));
    EXPECT_EQ(label(), "Region: Start [3, 3]   W=5 H=3");
    EXPECT_EQ(icon(), (Rows{"", "", "..c...k", "..b...k", "..aabak"}));
    expectAgreement();
  }
}

TEST_F(TransformsTest, ATurnedRegionIsDraggedInItsNewShape) {
  for (const bool option : {false, true}) {
    state.options.updateOnlyEditingArea = option;
    makeIcon(16, Rows(6, "abbb"));
    mark(0, 0, 3, 5);
    transforms.RotateRight();
    EXPECT_EQ(icon(), (Rows{"aaaaaa", "bbbbbb", "bbbbbb", "bbbbbb"}));
    moveRegion(2, 3);
    EXPECT_EQ(icon(), (Rows{"", "", "", "..aaaaaa", "..bbbbbb", "..bbbbbb", "..bbbbbb"}));
    expectAgreement();
  }
}

TEST_F(TransformsTest, FlippingInTheMiddleOfADragTakesTheRegionWhereItIs) {
  for (const bool option : {false, true}) {
    state.options.updateOnlyEditingArea = option;
    makeIcon(16, Rows(4, "abbb"));
    mark(0, 0, 3, 3);
    press(inside(0), inside(0));
    move(inside(0) + cells(4), inside(0));
    transforms.RotateFlipHoriz();
    release(inside(0) + cells(4), inside(0));
    EXPECT_EQ(icon(), Rows(4, "....bbba"));
    expectAgreement();
  }
}

TEST_F(TransformsTest, TheMenuRunsEachRoutineByItsIndex) {
  const Rows flipped[] = {{"ba"}, {"ba"}, {"a", "b"}, {"b", "a"}};
  const Rows drawn[] = {{"ab"}, {"ba"}, {"ba"}, {"ba"}};
  for (int index = 0; index < 4; ++index) {
    makeIcon(16, drawn[index]);
    mark(0, 0, 1, 0);
    transforms.mnuRotateSubmenu(index);
    EXPECT_EQ(icon(), flipped[index]) << index;
  }
  transforms.mnuRotateSubmenu(4);
  EXPECT_EQ(state.screen.mActivePanel, kRotatePanel);
}

TEST_F(TransformsTest, TheMenuTellsWhenThereIsNoIcon) {
  boxes.expectTold("No icon in Editing Area yet", BoxIcon::None);
  transforms.mnuRotateSubmenu(0);
}

TEST_F(TransformsTest, AShiftIsEndedOnlyAfterAsking) {
  constexpr const char* kQuestion = "Terminate Shift operation and accept the current image?\n";
  makeIcon(16, {"ab"});
  editor.selectTool(kShift);
  shift.shift(ShiftCell::Right);
  boxes.expectAsked(kQuestion, BoxAnswer::No);
  transforms.mnuRotateSubmenu(1);
  EXPECT_EQ(icon(), Rows{".ab"});
  EXPECT_EQ(editor.tool, kShift);
  boxes.expectAsked(kQuestion, BoxAnswer::Yes);
  transforms.mnuRotateSubmenu(0);
  EXPECT_EQ(icon(), Rows{".............ba"});
  EXPECT_EQ(editor.tool, kNoTool);
  expectAgreement();
}

TEST_F(TransformsTest, AFlipBringsTheColourPanelForward) {
  makeIcon(16, {"ab"});
  state.screen.mActivePanel = 7;
  transforms.RotateFlipVertical();
  EXPECT_EQ(state.screen.mActivePanel, 0);
}

}  // namespace
}  // namespace gp
