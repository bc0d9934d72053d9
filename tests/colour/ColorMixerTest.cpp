#include "colour/ColourFixture.h"

#include <array>
#include <utility>

namespace gp {
namespace {

using Triple = std::array<int, 3>;

class ColorMixerTest : public test::ColourFixture {
 protected:
  Triple sliders() const { return {mixer.HsrRGB(0), mixer.HsrRGB(1), mixer.HsrRGB(2)}; }
  void setInterval(int interval) { mixer.cboIntervalColor(interval - kFirstInterval); }
};

// The strip, computed again with exact fractions: `rows` steps of a difference over 26, ties to even.
int slowStep(int from, int to, int step) {
  const int numerator = from * 26 + step * (to - from);
  const int below = numerator / 26;
  const int rest = numerator % 26;
  if (rest != 13) return rest > 13 ? below + 1 : below;
  return below % 2 == 0 ? below : below + 1;
}

Color slowRow(const Triple& mixed, int row) {
  std::array<Triple, 5> stops{};
  for (std::size_t channel = 0; channel < 3; ++channel)
    stops[2 * channel][channel] = mixed[channel] < 16 ? 0 : mixed[channel];
  for (std::size_t channel = 0; channel < 3; ++channel) {
    stops[1][channel] = std::max(stops[0][channel], stops[2][channel]);
    stops[3][channel] = std::max(stops[2][channel], stops[4][channel]);
  }
  const auto value = [&](std::size_t channel) {
    if (row <= 25) return slowStep(stops[0][channel], stops[1][channel], row - 1);
    if (row <= 50) return slowStep(stops[1][channel], stops[2][channel], row - 25);
    if (row <= 75) return slowStep(stops[2][channel], stops[3][channel], row - 50);
    return slowStep(stops[3][channel], stops[4][channel], row - 75);
  };
  return rgb(value(0), value(1), value(2));
}

TEST_F(ColorMixerTest, StartsWithWhiteThatCannotGetLighterAStripAndAnIntervalOf17) {
  EXPECT_EQ(sliders(), (Triple{255, 255, 255}));
  EXPECT_EQ(mixer.PicRGBMix(), kWhite);
  EXPECT_FALSE(mixer.isEnabled(MixChange::Lighten));
  EXPECT_EQ(mixer.intervalIndex(), 12);
  EXPECT_EQ(mixer.picMixGradient().width(), 40);
  EXPECT_EQ(mixer.picMixGradient().height(), 200);
  for (int row = 1; row <= 100; ++row) EXPECT_EQ(stripRow(row), slowRow({255, 255, 255}, row)) << row;
  EXPECT_EQ(mixer.markerTop(), ColorMixer::kNoMarker);
  EXPECT_EQ(state.mCurrentColor, kWhite);
  EXPECT_EQ(pump.pumps, 0);
}

TEST_F(ColorMixerTest, MovingASliderMixesItsColourAndChangesNotTheCurrentOne) {
  state.mCurrentColor = 0x123456;
  mixer.moveSlider(0, 250);
  mixer.moveSlider(1, 10);
  EXPECT_EQ(sliders(), (Triple{250, 10, 255}));
  EXPECT_EQ(mixer.PicRGBMix(), rgb(250, 10, 255));
  EXPECT_EQ(mixer.PicRGB(0), rgb(250, 0, 0));
  EXPECT_EQ(mixer.PicRGB(1), rgb(0, 10, 0));
  EXPECT_EQ(mixer.PicRGB(2), rgb(0, 0, 255));
  EXPECT_EQ(mixer.lblRGB(0), "250 / FA");
  EXPECT_EQ(mixer.lblRGB(1), "10 / A");
  EXPECT_EQ(mixer.lblRGB(2), "255 / FF");
  EXPECT_EQ(state.mCurrentColor, 0x123456);
  EXPECT_TRUE(display.hasChanged(DisplayPart::ColorPanel));
  EXPECT_EQ(pump.pumps, 2);
}

TEST_F(ColorMixerTest, ValuesBeyondAChannelStopAtItsEnds) {
  mix(-5, 300, 255);
  EXPECT_EQ(sliders(), (Triple{0, 255, 255}));
}

TEST_F(ColorMixerTest, WhileTheFormIsBeingMadeSlidersDoNothing) {
  state.mInLoad = true;
  mixer.moveSlider(0, 250);
  EXPECT_EQ(sliders(), (Triple{255, 255, 255}));
  EXPECT_EQ(pump.pumps, 0);
}

TEST_F(ColorMixerTest, HandWorkedRowsOfAStrip) {
  mix(255, 100, 50);
  // Stops: (255, 0, 0), (255, 100, 0), (0, 100, 0), (0, 100, 50), (0, 0, 50).
  EXPECT_EQ(stripRow(1), rgb(255, 0, 0));
  EXPECT_EQ(stripRow(2), rgb(255, 4, 0));     // 100 / 26 = 3.8
  EXPECT_EQ(stripRow(14), rgb(255, 50, 0));   // 13 * 100 / 26
  EXPECT_EQ(stripRow(25), rgb(255, 92, 0));   // 24 * 100 / 26 = 92.3
  EXPECT_EQ(stripRow(26), rgb(245, 100, 0));  // 255 - 255 / 26 = 245.2
  EXPECT_EQ(stripRow(38), rgb(128, 100, 0));  // 255 - 127.5: a tie goes to the even number
  EXPECT_EQ(stripRow(50), rgb(10, 100, 0));   // 255 - 25 * 255 / 26 = 9.8
  EXPECT_EQ(stripRow(51), rgb(0, 100, 2));    // 50 / 26 = 1.9
  EXPECT_EQ(stripRow(75), rgb(0, 100, 48));   // 25 * 50 / 26 = 48.1
  EXPECT_EQ(stripRow(76), rgb(0, 96, 50));    // 100 - 3.8
  EXPECT_EQ(stripRow(100), rgb(0, 4, 50));    // 100 - 96.2: the last stop itself is not reached
}

TEST_F(ColorMixerTest, TiesInTheStripGoToTheEvenNumber) {
  mix(16, 17, 19);
  EXPECT_EQ(greenOf(stripRow(14)), 8);  // 13 * 17 / 26 = 8.5
  EXPECT_EQ(blueOf(stripRow(63)), 10);  // 13 * 19 / 26 = 9.5
  EXPECT_EQ(greenOf(stripRow(88)), 8);  // 17 - 8.5
}

TEST_F(ColorMixerTest, TheStripIsTheSlowFormulaForEveryKindOfMixture) {
  for (const Triple& mixed : {Triple{0, 0, 0},
                              {255, 255, 255},
                              {15, 16, 255},
                              {16, 15, 0},
                              {1, 200, 15},
                              {77, 3, 251},
                              {13, 26, 39},
                              {129, 130, 131}}) {
    mix(mixed[0], mixed[1], mixed[2]);
    for (int row = 1; row <= 100; ++row)
      ASSERT_EQ(stripRow(row), slowRow(mixed, row)) << mixed[0] << ' ' << mixed[1] << ' ' << mixed[2] << " row " << row;
  }
}

TEST_F(ColorMixerTest, EveryRowOfTheStripFillsItsTwoPixelsFromEdgeToEdge) {
  mix(200, 100, 50);
  for (int y = 0; y < kMixGradientHeight; ++y)
    for (int x = 0; x < kMixGradientWidth; ++x)
      ASSERT_EQ(mixer.picMixGradient().GetPixel(x, y), slowRow({200, 100, 50}, y / 2 + 1)) << x << ' ' << y;
}

TEST_F(ColorMixerTest, RedAt10ShowsADarkSwatchButStartsTheStripInBlack) {
  mix(10, 200, 200);
  EXPECT_EQ(mixer.PicRGB(0), rgb(10, 0, 0));
  EXPECT_EQ(mixer.PicRGBMix(), rgb(10, 200, 200));
  EXPECT_EQ(stripRow(1), kBlack);
  mixer.moveSlider(0, 16);
  EXPECT_EQ(stripRow(1), rgb(16, 0, 0));
}

TEST_F(ColorMixerTest, LightenAt250WithStep10StopsAt255) {
  mix(250, 100, 0);
  setInterval(10);
  mixer.cmdAdjMix(MixChange::Lighten);
  EXPECT_EQ(sliders(), (Triple{255, 110, 10}));
  EXPECT_EQ(state.mCurrentColor, rgb(255, 110, 10)) << "the lightened colour becomes the current one";
}

TEST_F(ColorMixerTest, DarkenAt9WithStep10StopsAt0) {
  mix(9, 10, 255);
  setInterval(10);
  mixer.cmdAdjMix(MixChange::Darken);
  EXPECT_EQ(sliders(), (Triple{0, 0, 245}));
  EXPECT_EQ(state.mCurrentColor, rgb(0, 0, 245));
  EXPECT_EQ(mixer.PicRGB(2), rgb(0, 0, 245));
  EXPECT_EQ(mixer.lblRGB(2), "245 / F5");
  EXPECT_EQ(stripRow(100), slowRow({0, 0, 245}, 100));
}

TEST_F(ColorMixerTest, TheStepIsTheNumberInTheList) {
  mix(100, 100, 100);
  mixer.cmdAdjMix(MixChange::Lighten);
  EXPECT_EQ(sliders(), (Triple{117, 117, 117}));
  mixer.cboIntervalColor(0);
  mixer.cmdAdjMix(MixChange::Darken);
  EXPECT_EQ(sliders(), (Triple{112, 112, 112}));
  mixer.cboIntervalColor(25);
  mixer.cmdAdjMix(MixChange::Darken);
  EXPECT_EQ(sliders(), (Triple{82, 82, 82}));
}

TEST_F(ColorMixerTest, LightenIsDisabledAtWhiteOnlyAndDarkenAtBlackOnly) {
  mix(255, 255, 254);
  EXPECT_TRUE(mixer.isEnabled(MixChange::Lighten));
  mixer.cmdAdjMix(MixChange::Lighten);
  EXPECT_EQ(sliders(), (Triple{255, 255, 255}));
  EXPECT_FALSE(mixer.isEnabled(MixChange::Lighten));
  EXPECT_TRUE(mixer.isEnabled(MixChange::Darken));
  mix(0, 0, 1);
  EXPECT_TRUE(mixer.isEnabled(MixChange::Darken));
  EXPECT_TRUE(mixer.isEnabled(MixChange::Lighten));
  mixer.cmdAdjMix(MixChange::Darken);
  EXPECT_FALSE(mixer.isEnabled(MixChange::Darken));
  EXPECT_TRUE(mixer.isEnabled(MixChange::Lighten));
  EXPECT_TRUE(mixer.isEnabled(MixChange::CopySelected));
}

TEST_F(ColorMixerTest, ADisabledLightenDoesNotTakeTheColour) {
  mix(255, 255, 255);
  state.mCurrentColor = 0x123456;
  mixer.cmdAdjMix(MixChange::Lighten);
  EXPECT_EQ(state.mCurrentColor, 0x123456);
}

TEST_F(ColorMixerTest, CopyingTheSelectedColourMovesTheSlidersAndTellsItsChannels) {
  state.mCurrentColor = rgb(1, 22, 233);
  mixer.cmdAdjMix(MixChange::CopySelected);
  EXPECT_EQ(sliders(), (Triple{1, 22, 233}));
  expectHovered("0116E9");
  EXPECT_EQ(mixer.PicRGBMix(), rgb(1, 22, 233));
  EXPECT_EQ(state.mCurrentColor, rgb(1, 22, 233));
  for (int row = 1; row <= 100; ++row) ASSERT_EQ(stripRow(row), slowRow({1, 22, 233}, row)) << row;
}

TEST_F(ColorMixerTest, TheMixedColourIsTakenByARelease) {
  mix(12, 34, 56);
  mixer.mixRelease();
  EXPECT_EQ(state.mCurrentColor, rgb(12, 34, 56));
}

TEST_F(ColorMixerTest, HoveringTheMixedColourTellsItInHexAndChannels) {
  mix(255, 128, 0);
  EXPECT_EQ(mixer.mixHover(), "80FFh  RGB(255, 128, 0)");
  expectHovered("FF8000");
}

TEST_F(ColorMixerTest, ASwatchIsTakenByARelease) {
  mix(12, 34, 56);
  for (const auto& [channel, color] : {std::pair{0, rgb(12, 0, 0)}, {1, rgb(0, 34, 0)}, {2, rgb(0, 0, 56)}}) {
    mixer.swatchRelease(channel);
    EXPECT_EQ(state.mCurrentColor, color);
  }
}

TEST_F(ColorMixerTest, APressOnTheStripTakesTheColourAndTellsItsChannels) {
  mix(255, 100, 50);
  mixer.gradientPress(0, 0);
  EXPECT_EQ(state.mCurrentColor, rgb(255, 0, 0));
  expectHovered("FF0000");
  mixer.gradientPress(39, 199);
  EXPECT_EQ(state.mCurrentColor, rgb(0, 4, 50));
}

TEST_F(ColorMixerTest, MovingOverTheStripSetsTheMarkerAndTellsTheColourButTakesItNot) {
  mix(255, 100, 50);
  mixer.gradientMove(5, 2);
  EXPECT_EQ(mixer.markerTop(), 0);
  EXPECT_EQ(mixer.lblMix(), "RGB: 255, 4, 0");
  expectHovered("FF0400");
  EXPECT_EQ(state.mCurrentColor, kWhite);
}

TEST_F(ColorMixerTest, AReleaseOnTheStripTakesTheColourWithoutTellingItsChannels) {
  mix(255, 100, 50);
  mixer.gradientRelease(39, 26);
  EXPECT_EQ(state.mCurrentColor, rgb(255, 50, 0));
  expectHovered("000000");
}

TEST_F(ColorMixerTest, OutsideTheStripNothingHappensButItsLowerBorderIsTheLastRow) {
  mix(255, 100, 50);
  for (const auto& [x, y] : {std::pair{-1, 5}, {40, 5}, {5, -1}, {5, 201}}) {
    mixer.gradientPress(x, y);
    mixer.gradientMove(x, y);
    mixer.gradientRelease(x, y);
  }
  EXPECT_EQ(state.mCurrentColor, kWhite);
  EXPECT_EQ(mixer.lblMix(), "");
  EXPECT_EQ(mixer.markerTop(), ColorMixer::kNoMarker);
  mixer.gradientMove(5, 200);
  EXPECT_EQ(mixer.lblMix(), "RGB: 0, 4, 50");
  mixer.gradientRelease(5, 200);
  EXPECT_EQ(state.mCurrentColor, rgb(0, 4, 50));
}

TEST_F(ColorMixerTest, TheTextOfTheStripGoesWithTheFrameASliderOrAButton) {
  const auto hoverThen = [this](auto action) {
    mixer.gradientMove(5, 5);
    EXPECT_NE(mixer.lblMix(), "");
    action();
    return mixer.lblMix();
  };
  EXPECT_EQ(hoverThen([this] { mixer.leaveControls(); }), "");
  EXPECT_EQ(hoverThen([this] { mixer.moveSlider(1, 4); }), "");
  EXPECT_EQ(hoverThen([this] { mixer.cmdAdjMix(MixChange::Lighten); }), "");
}

TEST_F(ColorMixerTest, ALoadedStripStandsUntilASliderMoves) {
  mixer.takeGradient(Surface(42, 202, rgb(9, 8, 7)));
  EXPECT_EQ(mixer.picMixGradient().width(), 40);
  EXPECT_EQ(mixer.picMixGradient().height(), 200);
  EXPECT_EQ(stripRow(1), rgb(9, 8, 7));
  EXPECT_EQ(sliders(), (Triple{255, 255, 255}));
  EXPECT_EQ(state.mCurrentColor, kWhite);
  mixer.gradientRelease(0, 0);
  EXPECT_EQ(state.mCurrentColor, rgb(9, 8, 7));
  mixer.moveSlider(0, 129);
  EXPECT_EQ(stripRow(1), rgb(129, 0, 0));
}

TEST_F(ColorMixerTest, ASliderMovedDuringLightenIsSentBack) {
  mix(100, 100, 100);
  pump.inside = [this] {
    display.parts.clear();
    mixer.moveSlider(0, 3);
    EXPECT_TRUE(display.hasChanged(DisplayPart::ColorPanel));
  };
  mixer.cmdAdjMix(MixChange::Lighten);
  EXPECT_EQ(sliders(), (Triple{117, 117, 117}));
  mixer.moveSlider(0, 3);
  EXPECT_EQ(mixer.HsrRGB(0), 3) << "afterwards sliders work again";
}

TEST_F(ColorMixerTest, AnotherCommandOfTheMixerDuringOneLeavesAllInAgreement) {
  mix(100, 100, 100);
  pump.inside = [this] { mixer.cmdAdjMix(MixChange::Darken); };
  mixer.cmdAdjMix(MixChange::Lighten);
  EXPECT_EQ(sliders(), (Triple{100, 100, 100}));
  EXPECT_EQ(state.mCurrentColor, mixer.PicRGBMix());
  pump.inside = [this] { mixer.moveSlider(1, 30); };
  mixer.moveSlider(0, 20);
  EXPECT_EQ(mixer.PicRGBMix(), rgb(20, 30, 100));
  for (int row = 1; row <= 100; ++row) ASSERT_EQ(stripRow(row), slowRow({20, 30, 100}, row)) << row;
}

}  // namespace
}  // namespace gp
