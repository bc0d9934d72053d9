#include "document/Containers.h"
#include "document/PanelNumbers.h"
#include "effects/EffectFrame.h"
#include "support/Rooms.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

class EffectFrameTest : public testing::Test, protected Rooms {
 protected:
  EffectFrame frame{context, document, drawing.history};
};

TEST_F(EffectFrameTest, AMaskOfOneColorAndOneOfTwoAreDistinguished) {
  Surface mask(4, 3, kWhite);
  EXPECT_EQ(frame.countMaskColors(mask), 1);
  mask.SetPixelV(3, 2, kBlack);
  EXPECT_EQ(frame.countMaskColors(mask), 2);
  mask.fill(kBlack);
  EXPECT_EQ(frame.countMaskColors(mask), 1);
}

TEST_F(EffectFrameTest, EachColorCountsOnce) {
  Surface picture(20, 20, kBlack);
  for (int i = 0; i < 400; ++i) picture.SetPixelV(i % 20, i / 20, i % 100);
  EXPECT_EQ(frame.countMaskColors(picture), 100);
  EXPECT_EQ(frame.countMaskColors(Surface(1, 1)), 1);
  EXPECT_EQ(frame.countMaskColors(Surface()), 0);
}

TEST_F(EffectFrameTest, CountingShowsTheHourglassAndTakesItAwayAgain) {
  frame.countMaskColors(Surface(2, 2));
  EXPECT_TRUE(display.hasChanged(DisplayPart::Pointer));
  EXPECT_FALSE(state.screen.hourglass);
}

TEST_F(EffectFrameTest, AResultIsShownOnceThePanelIsClosed) {
  document.arrival.arrive(transparentIcon(32), NewRecord());
  editor.showPanel(13);
  state.screen.lblStatusPanel.fill("out of date");
  const int steps = drawing.history.undoCount();
  bool closesFirst = false;
  editor.atCall("showPanel 0", [&] {
    closesFirst = state.PicIcon.GetPixel(31, 31) == kGround && state.picPanelImage[0].GetPixel(31, 31) == kBlack &&
                  state.picDisp.GetPixel(5, 5) == kGround && !state.current().modified;
  });
  frame.applyTemps({Surface(32, 32, 0x112233), Surface(32, 32, kBlack), {}});
  EXPECT_TRUE(closesFirst);
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
  EXPECT_TRUE(state.current().modified);
  EXPECT_EQ(state.picImage.GetPixel(31, 31), 0x112233);
  EXPECT_EQ(state.picMask.GetPixel(0, 0), kBlack);
  EXPECT_EQ(state.PicIcon.GetPixel(31, 31), 0x112233);
  EXPECT_EQ(state.picPanelImage[0].GetPixel(31, 31), 0x112233);
  EXPECT_EQ(state.picPanelMask[0].GetPixel(0, 0), kBlack);
  EXPECT_EQ(state.picPanelIcon[0].GetPixel(31, 31), 0x112233);
  EXPECT_EQ(state.picDisp.GetPixel(5, 5), 0x112233);
  EXPECT_EQ(state.screen.lblStatusPanel[static_cast<std::size_t>(StatusPanel::Size)], "32 x 32");
  EXPECT_EQ(drawing.history.undoCount(), steps) << "the step is the caller's to record";
}

TEST_F(EffectFrameTest, WithoutAnIconNoEffectIsAppliedAndTheUserIsToldWhy) {
  boxes.expectTold("No icon in Editing Area yet", BoxIcon::None);
  EXPECT_FALSE(frame.mayApply());
}

TEST_F(EffectFrameTest, AnIconWithAlphaTakesNoEffectAndTheUserIsToldWhy) {
  document.arrival.arrive(transparentIcon(32), NewRecord());
  EXPECT_TRUE(frame.mayApply());
  state.current().hasAlpha = true;
  boxes.expectTold("Current icon is with alpha, please run Convert 32 To 24 BPP\nto convert it to 24-BPP first.",
                   BoxIcon::None);
  EXPECT_FALSE(frame.mayApply());
}

}  // namespace
}  // namespace gp::test
