#include "drawing/RegionFixture.h"

namespace gp {
namespace {

using test::Rows;

class ShiftTest : public test::RegionFixture {
 protected:
  void turnOn(const Rows& rows) {
    makeIcon(16, rows);
    tools.selectTool(kShift);
  }
  void shiftTimes(ShiftCell cell, int times) {
    for (int i = 0; i < times; ++i) shift.shift(cell);
  }
};

TEST(ShiftPad, ACellIsAThirdOfThePadAndTheMiddleIsNone) {
  const ShiftCell cells[] = {ShiftCell::TopLeft,    ShiftCell::Top,    ShiftCell::TopRight,
                             ShiftCell::Left,       ShiftCell::Rest,   ShiftCell::Right,
                             ShiftCell::BottomLeft, ShiftCell::Bottom, ShiftCell::BottomRight};
  for (int i = 0; i < 9; ++i) {
    EXPECT_EQ(shiftCellAt(i % 3 * 20, i / 3 * 20, 60), cells[i]) << i;
    EXPECT_EQ(shiftCellAt(i % 3 * 20 + 19.9, i / 3 * 20 + 19.9, 60), cells[i]) << i;
  }
}

TEST(ShiftPad, OutsideThePadThereIsNoCell) {
  for (const auto& [x, y] : {std::pair{-1, 5}, {5, -1}, {60, 5}, {5, 60}, {60000, -60000}})
    EXPECT_EQ(shiftCellAt(x, y, 60), ShiftCell::Rest);
}

TEST_F(ShiftTest, TurningItOnStartsAHistoryOfTwoLikeEntries) {
  makeIcon(16, {"ab"});
  paintPixel(2, 0, 'c');
  history.recordUndo();
  tools.selectTool(kShift);
  EXPECT_EQ(history.undoCount(), 2);
  EXPECT_EQ(shift.mShiftX(), 0);
  EXPECT_EQ(shift.mShiftY(), 0);
  expectAgreement();
}

TEST_F(ShiftTest, EachCellMovesThePictureItsWay) {
  struct Case {
    ShiftCell cell;
    Rows rows;
  };
  for (const Case& c :
       {Case{ShiftCell::TopLeft, {"a"}}, Case{ShiftCell::Top, {".a"}}, Case{ShiftCell::TopRight, {"..a"}},
        Case{ShiftCell::Left, {"", "a"}}, Case{ShiftCell::Rest, {"", ".a"}}, Case{ShiftCell::Right, {"", "..a"}},
        Case{ShiftCell::BottomLeft, {"", "", "a"}}, Case{ShiftCell::Bottom, {"", "", ".a"}},
        Case{ShiftCell::BottomRight, {"", "", "..a"}}}) {
    turnOn({"", ".a"});
    shift.shift(c.cell);
    EXPECT_EQ(icon(), c.rows) << static_cast<int>(c.cell);
    tools.clearAllTools();
  }
}

TEST_F(ShiftTest, UpOneAndDownOneRestoreThePictureAlsoWhenARowWasPushedOff) {
  const Rows drawn = {"abkc", "ba", ".c"};
  turnOn(drawn);
  shift.shift(ShiftCell::Top);
  EXPECT_EQ(icon(), (Rows{"ba", ".c"}));
  shift.shift(ShiftCell::Bottom);
  EXPECT_EQ(icon(), drawn);
  EXPECT_TRUE(state.current().modified);
  expectAgreement();
}

TEST_F(ShiftTest, APictureThatCrossedTheIconComesInFromTheOtherSide) {
  turnOn({"abc"});
  shiftTimes(ShiftCell::Left, 15);
  EXPECT_EQ(icon(), Rows{});
  EXPECT_EQ(shift.mShiftX(), 15);
  shift.shift(ShiftCell::Left);
  EXPECT_EQ(shift.mShiftX(), -15);
  EXPECT_EQ(icon(), Rows{"...............a"});
  shift.shift(ShiftCell::Left);
  EXPECT_EQ(icon(), Rows{"..............ab"});
  shift.shift(ShiftCell::Right);
  EXPECT_EQ(shift.mShiftX(), -15);
  shift.shift(ShiftCell::Right);
  EXPECT_EQ(shift.mShiftX(), 15);
}

TEST_F(ShiftTest, NoNudgeIsRecordedAndUndoTakesBackTheWhole) {
  turnOn({"ab"});
  shiftTimes(ShiftCell::Bottom, 3);
  EXPECT_EQ(history.undoCount(), 2);
  undo.doUndo();
  EXPECT_EQ(icon(), Rows{"ab"});
  EXPECT_EQ(tools.selectedTool(), kNoTool);
  expectAgreement();
}

TEST_F(ShiftTest, BlackStaysOpaqueAndInvertingPixelsBecomePlainColours) {
  turnOn({"k!"});
  shift.shift(ShiftCell::Bottom);
  EXPECT_EQ(letterOf(state.picImage.GetPixel(0, 1), state.picMask.GetPixel(0, 1)), 'k');
  EXPECT_EQ(state.picImage.GetPixel(1, 1), test::kInverting);
  EXPECT_EQ(state.picMask.GetPixel(1, 1), kBlack);
  EXPECT_EQ(state.picMask.GetPixel(0, 0), kWhite);
}

TEST_F(ShiftTest, ThePadShowsThePressedCellUntilTheRelease) {
  turnOn({"a"});
  shift.padPress(ShiftCell::Right);
  EXPECT_EQ(shift.shownPicture(), 5);
  shift.padRelease(ShiftCell::Right);
  EXPECT_EQ(shift.shownPicture(), 0);
  EXPECT_EQ(icon(), Rows{".a"});
  shift.padRelease(ShiftCell::Rest);
  EXPECT_EQ(icon(), Rows{".a"});
}

TEST_F(ShiftTest, ThePadTellsWhatIsMissing) {
  makeIcon(16, {"a"});
  boxes.expectTold("Please select Shift first (middle square)", BoxIcon::None);
  shift.padPress(ShiftCell::Bottom);
  shift.padRelease(ShiftCell::Bottom);
  EXPECT_EQ(shift.shownPicture(), 0);
  EXPECT_EQ(icon(), Rows{"a"});
}

TEST_F(ShiftTest, AnIconOfAnotherSizeIsNotShiftedByTheKeptPicture) {
  turnOn({"a"});
  makeIcon(32, {"b"});
  shift.shift(ShiftCell::Right);
  EXPECT_EQ(icon(), Rows{"b"});
}

TEST_F(ShiftTest, AnotherIconOfItsSizeIsNotShiftedByTheKeptPicture) {
  turnOn({"a"});
  makeIcon(16, {"b"});
  shift.shift(ShiftCell::Right);
  EXPECT_EQ(icon(), Rows{"b"});
}

TEST_F(ShiftTest, WhatEndsShiftWhileItIsTurnedOnLeavesOneBaseline) {
  makeIcon(16, {"ab"});
  pump.inside = [this] { tools.selectTool(kPaint); };
  tools.selectTool(kShift);
  EXPECT_EQ(tools.selectedTool(), kPaint);
  EXPECT_EQ(history.undoCount(), 1);
  expectAgreement();
}

}  // namespace
}  // namespace gp
