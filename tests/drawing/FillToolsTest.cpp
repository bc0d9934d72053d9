#include "drawing/DrawingFixture.h"

#include <functional>

namespace gp {
namespace {

using test::kRed;
using test::kYellow;
using test::Rows;

class FillingTest : public test::DrawingFixture {
 protected:
  explicit FillingTest(Tool tool) : tool_(tool) {}
  void put(const Rows& rows, int size = 16) {
    putIcon(0, size, rows);
    tools.selectTool(tool_);
  }

 private:
  const Tool tool_;
};

class FillToolTest : public FillingTest {
 protected:
  FillToolTest() : FillingTest(kFill) {}
};

class ReplaceToolTest : public FillingTest {
 protected:
  ReplaceToolTest() : FillingTest(kReplace) {}
};

const Rows kRing = {
    "rrrrr",  //
    "r...r",  //
    "r.b.r",  //
    "r...r",  //
    "rrrrr",
};

TEST_F(FillToolTest, PaintsTheTransparentAreaThatHangsTogetherOverSides) {
  put(kRing);
  click(1, 1);
  expectPicture({"rrrrr", "rgggr", "rgbgr", "rgggr", "rrrrr"});
  EXPECT_EQ(state.PicIcon.GetPixel(1, 1), test::kGreen);
  EXPECT_EQ(state.picDisp.GetPixel(12 + 5, 12 + 5), test::kGreen);
  expectAgreement();
}

TEST_F(FillToolTest, DoesNotCrossCorners) {
  put({"r.", ".r"});
  state.mCurrentColor = kYellow;
  click(0, 0);
  expectPicture({"y.", ".r"});
}

TEST_F(FillToolTest, PaintsAnOpaqueAreaOfExactlyOneColour) {
  put({"rrb", "rbr", "rrr"});
  state.picImage.SetPixelV(0, 2, kRed + 0x100);
  area.ComposeCurrentIcon();
  click(0, 0);
  expectPicture({"ggb", "gbr", "?rr"});
}

TEST_F(FillToolTest, ATransparentAreaTakesTheCurrentColourThatIsTheGrounds) {
  put(kRing);
  state.mCurrentColor = kGround;
  click(1, 1);
  expectPicture({"rrrrr", "rsssr", "rsbsr", "rsssr", "rrrrr"});
}

TEST_F(FillToolTest, ATransparentAreaTakesRedAndYellowLikeAnyColour) {
  put({"bbb", "b.b", "bbb"});
  state.mCurrentColor = kRed;
  click(1, 1);
  expectPicture({"bbb", "brb", "bbb"});
  put({"bbb", "b.b", "bbb"});
  state.mCurrentColor = kYellow;
  click(1, 1);
  expectPicture({"bbb", "byb", "bbb"});
}

TEST_F(FillToolTest, AnOpaqueAreaFilledWithItsOwnColourStaysAsItIs) {
  put({"rr^", "rb."});
  state.mCurrentColor = kRed;
  click(0, 0);
  expectPicture({"rr^", "rb."});
  EXPECT_EQ(history.undoCount(), 2);
}

TEST_F(FillToolTest, FromOpaqueSilverItSpreadsOverTheGroundAndChangesOnlyTheOpaquePixels) {
  put({
      "bbbbbb",  //
      "bs..sb",  //
      "bbbbbb",
  });
  click(1, 1);
  expectPicture({"bbbbbb", "bg..gb", "bbbbbb"});
}

TEST_F(FillToolTest, FromTheGroundItSpreadsOverOpaqueSilverAndChangesOnlyTheTransparentPixels) {
  put({
      "bbbbbb",  //
      "b.ss.b",  //
      "bbbbbb",
  });
  click(1, 1);
  expectPicture({"bbbbbb", "bgssgb", "bbbbbb"});
  put({"bbbbbb", "b.ss.b", "bbbbbb"});
  state.mCurrentColor = kGround;
  click(1, 1);
  expectPicture({"bbbbbb", "bssssb", "bbbbbb"});
}

TEST_F(FillToolTest, AnInvertingPixelIsOpaqueAndFoundByWhatItShows) {
  put({"^^b"});
  const Color shown = state.PicIcon.GetPixel(0, 0);
  EXPECT_EQ(shown, kGround ^ kWhite);
  click(0, 0);
  expectPicture({"ggb"});
}

TEST_F(FillToolTest, AnyModifierFillsTransparent) {
  for (int modifier : {kShiftKey, kCtrlKey, kAltKey, 8}) {
    put({"rrb", "rbr"});
    click(0, 0, modifier);
    expectPicture({"..b", ".br"});
    EXPECT_EQ(state.PicIcon.GetPixel(0, 0), kGround);
    expectAgreement();
  }
}

TEST_F(FillToolTest, FillingTransparentWorksWhateverTheCurrentColourIs) {
  put({"rrb"});
  state.mCurrentColor = kRed;
  click(0, 0, kShiftKey);
  expectPicture({"..b"});
  put({"yyb"});
  state.mCurrentColor = kYellow;
  click(0, 0, kShiftKey);
  expectPicture({"..b"});
  put({"bbr"});
  state.mCurrentColor = kYellow;
  click(0, 0, kShiftKey);
  expectPicture({"..r"});
}

TEST_F(FillToolTest, FillingAnAlreadyTransparentAreaTransparentChangesNothing) {
  put(kRing);
  click(1, 1, kShiftKey);
  expectPicture(kRing);
  EXPECT_EQ(history.undoCount(), 2);
}

TEST_F(FillToolTest, FillingTransparentFromOpaqueSilverLeavesWhatIsTransparent) {
  put({"bbbbb", "bs.sb", "bbbbb"});
  click(1, 1, kShiftKey);
  expectPicture({"bbbbb", "b...b", "bbbbb"});
}

TEST_F(FillToolTest, AnInvertingPixelThatShowsTheCurrentColourIsNotFilledTransparent) {
  // The stored colour, not the shown one, decides which area is filled.
  put({"^b"});
  state.mCurrentColor = state.PicIcon.GetPixel(0, 0);
  click(0, 0, kShiftKey);
  expectPicture({"^b"});
}

TEST_F(FillToolTest, AClickOutsideTheIconFindsNoArea) {
  put(kRing);
  for (int modifiers : {0, kShiftKey}) {
    click(16, 0, modifiers);
    click(0, 16, modifiers);
    click(-2, -2, modifiers);
    click(5000, 5000, modifiers);
  }
  expectPicture(kRing);
  expectAgreement();
}

TEST_F(FillToolTest, FillColoursAreAsTheyWereAfterwards) {
  put(kRing);
  state.picImage.fillColor = 1;
  state.picMask.fillColor = 2;
  state.PicIcon.fillColor = 3;
  click(1, 1);
  click(2, 2, kShiftKey);
  EXPECT_EQ(state.picImage.fillColor, 1);
  EXPECT_EQ(state.picMask.fillColor, 2);
  EXPECT_EQ(state.PicIcon.fillColor, 3);
}

TEST_F(FillToolTest, PressAndMovePaintNothingAndTheReleaseIsOneStep) {
  put(kRing);
  press(1, 1);
  move(2, 2);
  expectPicture(kRing);
  release(1, 1);
  EXPECT_EQ(history.undoCount(), 2);
  undo.doUndo();
  expectPicture(kRing);
}

TEST_F(FillToolTest, AWholeIconOf48IsFilled) {
  put({}, 48);
  click(47, 47);
  EXPECT_EQ(picture(48, 48), Rows(48, std::string(48, 'g')));
}

TEST_F(FillToolTest, WhatArrivesInThePumpOfAStepLeavesIconAndHistoryInAgreement) {
  const std::vector<std::function<void()>> events = {
      [this] { press(2, 2), release(2, 2); },
      [this] { release(2, 2, kShiftKey); },
      [this] { undo.doUndo(); },
      [this] { undo.doUndoAll(); },
      [this] { panel.SwitchContainer(1); },
      [this] { panel.SwitchContainer(0); },
      [this] { panel.showEmptyContainer(); },
      [this] { tools.clearAllTools(); },
  };
  for (const auto& event : events) {
    putIcon(1, 32, {"yy"});
    put(kRing);
    pump.inside = event;
    click(1, 1);
    expectAgreement();
  }
}

TEST_F(ReplaceToolTest, PaintsAllPixelsOfAColourWhereverTheyAre) {
  put({"r.r", ".b.", "r.r"});
  click(0, 0);
  expectPicture({"g.g", ".b.", "g.g"});
  expectAgreement();
}

TEST_F(ReplaceToolTest, AnyModifierReplacesByTransparent) {
  for (int modifier : {kShiftKey, kCtrlKey, kAltKey, 8}) {
    put({"r.r", ".b.", "r.r"});
    click(0, 0, modifier);
    expectPicture({"...", ".b.", "..."});
  }
}

TEST_F(ReplaceToolTest, OnTheGroundsColourItMeansTheOpaquePixelsOfAnIconWithATransparentTopLeftPixel) {
  put({".s.", "bsb"});
  click(2, 0);
  expectPicture({".g.", "bgb"});
  put({".s.", "bsb"});
  click(1, 0, kShiftKey);
  expectPicture({"...", "b.b"});
}

TEST_F(ReplaceToolTest, OnTheGroundsColourItMeansTheTransparentPixelsOfAnIconWithAnOpaqueTopLeftPixel) {
  put({"bs.", "bsb"});
  click(1, 0);
  const Rows result = picture(16, 16);
  EXPECT_EQ(result[0], "bsg" + std::string(13, 'g'));
  EXPECT_EQ(result[1], "bsb" + std::string(13, 'g'));
  EXPECT_EQ(result[15], std::string(16, 'g'));
}

TEST_F(ReplaceToolTest, AnInvertingPixelIsFoundByTheColourThatItShows) {
  put({"^.b"});
  state.picImage.SetPixelV(2, 0, kGround ^ kWhite);
  area.ComposeCurrentIcon();
  click(2, 0);
  expectPicture({"g.g"});
}

TEST_F(ReplaceToolTest, TheLastColumnAndRowTakePart) {
  put({"r"});
  putPixel(15, 15, 'r');
  area.ComposeCurrentIcon();
  click(0, 0);
  EXPECT_EQ(letterAt(0, 0), 'g');
  EXPECT_EQ(letterAt(15, 15), 'g');
}

TEST_F(ReplaceToolTest, AClickOutsideTheIconFindsNoMatch) {
  put(kRing);
  for (int modifiers : {0, kShiftKey}) {
    click(16, 16, modifiers);
    click(-2, 3, modifiers);
  }
  expectPicture(kRing);
}

TEST_F(ReplaceToolTest, WhatArrivesInThePumpOfAStepLeavesIconAndHistoryInAgreement) {
  const std::vector<std::function<void()>> events = {
      [this] { press(2, 2), release(2, 2); }, [this] { undo.doUndo(); },
      [this] { panel.SwitchContainer(1); },   [this] { panel.SwitchContainer(0); },
      [this] { panel.showEmptyContainer(); },
  };
  for (const auto& event : events) {
    putIcon(1, 32, {"yy"});
    put(kRing);
    pump.inside = event;
    click(0, 0);
    expectAgreement();
  }
}

}  // namespace
}  // namespace gp
