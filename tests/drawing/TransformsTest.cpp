#include "drawing/RegionFixture.h"

#include <functional>

namespace gp {
namespace {

using test::Rows;

class TransformsTest : public test::RegionFixture {
 protected:
  // The rows of a 16-pixel icon with a picture in each corner.
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
  EXPECT_EQ(history.undoCount(), 2);
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
  EXPECT_EQ(history.undoCount(), 4);
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
    EXPECT_EQ(history.undoCount(), 1) << "the step is recorded when the region is merged";
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

TEST_F(TransformsTest, ATurnedRegionMayLeaveTheEditingAreaByItsNewShape) {
  for (const bool option : {false, true}) {
    state.options.updateOnlyEditingArea = option;
    makeIcon(32, Rows(4, "aaaaaaaaaa"));
    mark(0, 0, 9, 3);
    transforms.RotateRight();
    press(cells(2), cells(9));
    for (int step = 8; step >= 0; --step) move(cells(2), cells(step));
    EXPECT_EQ(draw.region.y1, -84) << "the box is now 120 high";
    release(cells(2), cells(0));
    EXPECT_EQ(icon(), Rows(3, "aaaa"));
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

TEST_F(TransformsTest, EachCommandWorksOnARegionOfOneRow) {
  struct Case {
    void (Transforms::*command)();
    Rows drawn, turned;
  };
  for (const Case& c : {Case{&Transforms::RotateFlipHoriz, {"ab"}, {"ba"}},
                        {&Transforms::RotateFlipVertical, {"ba"}, {"ba"}},
                        {&Transforms::RotateLeft, {"ba"}, {"a", "b"}},
                        {&Transforms::RotateRight, {"ba"}, {"b", "a"}}}) {
    makeIcon(16, c.drawn);
    mark(0, 0, 1, 0);
    std::invoke(c.command, transforms);
    EXPECT_EQ(icon(), c.turned);
  }
  transforms.rotateAtAnyAngle();
  EXPECT_EQ(state.screen.mActivePanel, kRotatePanel);
}

TEST_F(TransformsTest, AFlipKeepsTheBoxOfTheRegion) {
  makeIcon(16, {"", ".abc", ".cba"});
  mark(1, 1, 3, 2);
  for (void (Transforms::*command)() : {&Transforms::RotateFlipHoriz, &Transforms::RotateFlipVertical}) {
    std::invoke(command, transforms);
    EXPECT_EQ(boxInPixels(), (Rows{"1,1", "3,2"}));
    EXPECT_EQ(label(), "Region: Start [2, 2]   W=3 H=2");
  }
  EXPECT_EQ(icon(), (Rows{"", ".abc", ".cba"}));
  expectAgreement();
}

TEST_F(TransformsTest, AShiftIsEndedOnlyAfterAsking) {
  constexpr const char* kQuestion = "Terminate Shift operation and accept the current image?\n";
  makeIcon(16, {"ab"});
  tools.selectTool(kShift);
  shift.shift(ShiftCell::Right);
  boxes.expectAsked(kQuestion, BoxAnswer::No);
  transforms.RotateFlipVertical();
  EXPECT_EQ(icon(), Rows{".ab"});
  EXPECT_EQ(tools.selectedTool(), kShift);
  boxes.expectAsked(kQuestion, BoxAnswer::Yes);
  transforms.RotateFlipHoriz();
  EXPECT_EQ(icon(), Rows{".............ba"});
  EXPECT_EQ(tools.selectedTool(), kNoTool);
  expectAgreement();
}

TEST_F(TransformsTest, EveryCommandAsksToEndAShiftAndDoesNothingWhenTheUserKeepsIt) {
  makeIcon(16, {"ab"});
  tools.selectTool(kShift);
  shift.shift(ShiftCell::Right);
  for (void (Transforms::*command)() :
       {&Transforms::RotateFlipHoriz, &Transforms::RotateFlipVertical, &Transforms::RotateLeft,
        &Transforms::RotateRight, &Transforms::rotateAtAnyAngle}) {
    boxes.expectAsked("Terminate Shift operation and accept the current image?\n", BoxAnswer::No);
    std::invoke(command, transforms);
    EXPECT_EQ(icon(), Rows{".ab"});
    EXPECT_EQ(tools.selectedTool(), kShift);
    EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
  }
}

TEST_F(TransformsTest, AFlipBringsTheColourPanelForward) {
  makeIcon(16, {"ab"});
  state.screen.mActivePanel = 7;
  transforms.RotateFlipVertical();
  EXPECT_EQ(state.screen.mActivePanel, 0);
}

}  // namespace
}  // namespace gp
