#include "document/PanelNumbers.h"
#include "effects/EffectFrame.h"
#include "support/FakeEditor.h"
#include "support/ScriptedPorts.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

class EffectFrameTest : public testing::Test {
 protected:
  EditState state;
  FakeEditor editor;
  RecordingDisplay display;
  ScriptedBoxes boxes;
  ScriptedPump pump;
  EffectFrame frame{state, editor, display, boxes, pump};
};

TEST_F(EffectFrameTest, AMaskOfOneColorAndOneOfTwoAreToldApart) {
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
  EXPECT_TRUE(display.told(DisplayPart::Pointer));
  EXPECT_FALSE(state.screen.hourglass);
}

TEST_F(EffectFrameTest, AResultIsShownOnceThePanelIsClosed) {
  frame.applyTemps({Surface(32, 32, 0x112233), Surface(32, 32, kBlack)});
  EXPECT_EQ(editor.calls, (std::vector<std::string>{"showPanel 0", "ComposeCurrentIcon", "UpdatePanelFromCurrent",
                                                    "RefreshStatusBar", "MagnifyIcon"}));
  EXPECT_TRUE(state.current().modified);
  EXPECT_EQ(state.picImage.GetPixel(31, 31), 0x112233);
  EXPECT_EQ(state.picMask.GetPixel(0, 0), kBlack);
}

}  // namespace
}  // namespace gp::test
