#include "drawing/RegionFixture.h"
#include "drawing/RotateSurface.h"

#include <cmath>

namespace gp {
namespace {

using test::Rows;

class RotatePanelTest : public test::RegionFixture {
 protected:
  void rotateBy(const std::string& angle) {
    rotatePanel.open();
    rotatePanel.setAngleText(angle);
    rotatePanel.doRotateProceed();
  }
};

TEST_F(RotatePanelTest, AWholeTurnClosesThePanelChangesNothingAndRecordsNothing) {
  for (const char* angle : {"0", "360", "-360", "", "no angle"}) {
    makeIcon(16, {"ab"});
    rotateBy(angle);
    EXPECT_EQ(icon(), Rows{"ab"});
    EXPECT_EQ(history.undoCount(), 1);
    EXPECT_EQ(state.screen.mActivePanel, 0);
    EXPECT_FALSE(state.current().modified);
  }
}

TEST_F(RotatePanelTest, ARotationBySmallAnglesDoesNotMoveThePicture) {
  for (const int size : {16, 24, 32, 48}) {
    Rows drawn(static_cast<std::size_t>(size / 2 + 2));
    drawn[static_cast<std::size_t>(size / 2)] = std::string(static_cast<std::size_t>(size / 2), '.') + "ab";
    drawn[static_cast<std::size_t>(size / 2 + 1)] = std::string(static_cast<std::size_t>(size / 2), '.') + "kc";
    makeIcon(size, drawn);
    rotateBy("1");
    EXPECT_EQ(icon(), drawn) << size;
    rotateBy("-1");
    EXPECT_EQ(icon(), drawn) << size;
  }
}

TEST_F(RotatePanelTest, ARotationBy45DegreesOf32LosesTheCornersAndWhatIsVacatedIsTransparent) {
  makeIcon(32, Rows(32, std::string(32, 'a')));
  rotateBy("45");
  const Rows rows = rowsOf(state.picImage, state.picMask);
  // The square is turned by 45 degrees around pixel 16, 16 and cut by the frame, which leaves an octagon.
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x) {
      const double u = 16 + (x - 16 - (y - 16)) * std::sqrt(0.5);
      const double v = 16 + (x - 16 + (y - 16)) * std::sqrt(0.5);
      const bool inside = u > -0.5 && u < 31.5 && v > -0.5 && v < 31.5;
      EXPECT_EQ(rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)], inside ? 'a' : '.') << x << ", " << y;
    }
  EXPECT_EQ(rows[0][0], '.');
  EXPECT_EQ(rows[31][31], '.');
  EXPECT_TRUE(state.current().modified);
  EXPECT_EQ(history.undoCount(), 2);
  EXPECT_EQ(state.screen.mActivePanel, 0);
  expectAgreement();
}

TEST_F(RotatePanelTest, AnOpaqueBlackPixelKeepsBlackAndItsMask) {
  Rows drawn(12);
  drawn[4] = "........k";
  drawn[8] = "......aaaaa";
  makeIcon(16, drawn);
  rotateBy("90");
  Rows expected(11);
  expected[6] = expected[7] = expected[9] = expected[10] = "........a";
  expected[8] = "....k...a";
  EXPECT_EQ(icon(), expected);
  expectAgreement();
}

TEST_F(RotatePanelTest, TheIconIsNeverSmoothedOnlyTheSample) {
  makeIcon(16, Rows(16, "abababababababab"));
  rotatePanel.open();
  rotatePanel.setSlider(30);
  const Surface rough = rotatePanel.picRotateImageSample();
  rotatePanel.setAntialias(true);
  EXPECT_FALSE(same(rough, rotatePanel.picRotateImageSample()));
  rotatePanel.doRotateProceed();
  for (const std::string& row : icon()) EXPECT_EQ(row.find('?'), std::string::npos) << row;
}

TEST_F(RotatePanelTest, ListAndSliderFollowEachOther) {
  makeIcon(16, {"a"});
  rotatePanel.pickAngle(0);
  EXPECT_EQ(rotatePanel.hsrRotateImageAngle(), -360);
  EXPECT_EQ(rotatePanel.cboRotateImageAngle(), "-360");
  rotatePanel.pickAngle(405);
  EXPECT_EQ(rotatePanel.hsrRotateImageAngle(), 45);
  rotatePanel.setSlider(-33);
  EXPECT_EQ(rotatePanel.cboRotateImageAngle(), "-33");
  rotatePanel.setAngleText("12.5");
  EXPECT_EQ(rotatePanel.hsrRotateImageAngle(), 12);
  EXPECT_EQ(rotatePanel.cboRotateImageAngle(), "12.5");
  rotatePanel.setSlider(9999);
  EXPECT_EQ(rotatePanel.hsrRotateImageAngle(), 360);
  rotatePanel.pickAngle(721);
  rotatePanel.pickAngle(-1);
  EXPECT_EQ(rotatePanel.hsrRotateImageAngle(), 360);
  EXPECT_EQ(RotatePanel::angleText(0), "-360");
  EXPECT_EQ(RotatePanel::angleText(kAngleCount - 1), "360");
}

TEST_F(RotatePanelTest, TheSampleShowsTheTurnedIconInItsMiddleOnTheGround) {
  makeIcon(16, {"", "", "", "", "", "", "", "", "........ab", "........kc"});
  rotatePanel.open();
  const Surface& sample = rotatePanel.picRotateImageSample();
  EXPECT_EQ(sample.width(), kRotateSampleSide);
  EXPECT_EQ(sample.GetPixel(0, 0), kGround);
  // A picture of 25 in a sample of 70: its centre, 12, is drawn at an offset of 22 pixels.
  EXPECT_EQ(sample.GetPixel(34, 34), test::kColorA);
  EXPECT_EQ(sample.GetPixel(35, 34), test::kColorB);
  EXPECT_EQ(sample.GetPixel(34, 35), kGround) << "black is background to the sample";
  EXPECT_EQ(sample.GetPixel(35, 35), test::kColorC);
  rotatePanel.setSlider(90);
  EXPECT_EQ(sample.GetPixel(34, 33), test::kColorB);
  EXPECT_EQ(sample.GetPixel(35, 33), test::kColorC);
}

// The part of the sample where the rotated icon is, as the icon looks after Proceed.
TEST_F(RotatePanelTest, TheSampleShowsATypedAngleAsProceedRotatesByIt) {
  const Rows drawn(48, std::string(20, 'a') + std::string(20, 'b'));
  Surface at12{};
  for (const char* angle : {"12", "12.4", "-33.5", "400", "-725", " 7x"}) {
    makeIcon(48, drawn);
    rotatePanel.open();
    rotatePanel.setAngleText(angle);
    const Surface sample = rotatePanel.picRotateImageSample();
    if (angle == std::string("12")) at12 = sample;
    EXPECT_EQ(same(sample, at12), angle == std::string("12")) << angle;
    rotatePanel.doRotateProceed();
    for (int y = 16; y < 32; ++y)
      for (int x = 16; x < 32; ++x)
        EXPECT_EQ(sample.GetPixel(x + 11, y + 11), state.PicIcon.GetPixel(x, y)) << angle << " " << x << ", " << y;
  }
}

TEST_F(RotatePanelTest, AnotherIconThatComesUpIsShownByTheSample) {
  const Surface& sample = rotatePanel.picRotateImageSample();
  display.onChanged = [this](DisplayPart part) {
    if (part == DisplayPart::IconsPanel) rotatePanel.follow();
  };
  makeIcon(16, Rows(16, std::string(16, 'a')));
  rotatePanel.open();
  rotatePanel.setAngleText("10");
  EXPECT_EQ(sample.GetPixel(35, 35), test::kColorA);
  arrive(0, {Surface(32, 32, test::kColorB), Surface(32, 32, kBlack), {}});
  EXPECT_EQ(sample.GetPixel(35, 35), test::kColorB);
  EXPECT_EQ(rotatePanel.cboRotateImageAngle(), "10");
  panel.showEmptyContainer();
  EXPECT_EQ(sample.GetPixel(35, 35), kGround);
}

TEST_F(RotatePanelTest, ASampleThatIsNotShownIsNotDrawn) {
  makeIcon(16, Rows(16, std::string(16, 'a')));
  rotatePanel.open();
  editor.showPanel(kColorPanel);
  const int refreshes = display.count(DisplayPart::SidePanel);
  rotatePanel.follow();
  EXPECT_EQ(display.count(DisplayPart::SidePanel), refreshes);
}

TEST_F(RotatePanelTest, TheLargestIconIsShownWholeAtEveryAngle) {
  makeIcon(48, Rows(48, std::string(48, 'a')));
  rotatePanel.open();
  for (int angle = 0; angle < 90; angle += 15) {
    rotatePanel.setSlider(angle);
    const Surface& sample = rotatePanel.picRotateImageSample();
    int shown = 0;
    for (int y = 0; y < sample.height(); ++y)
      for (int x = 0; x < sample.width(); ++x) shown += sample.GetPixel(x, y) == test::kColorA;
    EXPECT_NEAR(shown, 48 * 48, 60) << angle;
  }
}

TEST_F(RotatePanelTest, WhileTheFormLoadsNoSampleIsDrawn) {
  state.mInLoad = true;
  rotatePanel.setSlider(10);
  EXPECT_EQ(display.count(DisplayPart::SidePanel), 0);
  state.mInLoad = false;
  rotatePanel.setSlider(11);
  EXPECT_EQ(display.count(DisplayPart::SidePanel), 1);
}

TEST_F(RotatePanelTest, ARegionIsMergedWhereItIsAndEnds) {
  makeIcon(32, Rows(4, "aaaa"));
  mark(0, 0, 3, 3);
  moveRegion(14, 14);
  rotateBy("180");
  EXPECT_FALSE(state.mRegionExists);
  EXPECT_EQ(icon()[16], "...............aaaa");
  expectAgreement();
}

TEST_F(RotatePanelTest, ASecondProceedFromInsideTheFirstFindsThePanelClosed) {
  makeIcon(16, {"ab"});
  rotatePanel.open();
  rotatePanel.setAngleText("90");
  int panelThen = -1;
  pump.inside = [&] { panelThen = state.screen.mActivePanel; };
  rotatePanel.doRotateProceed();
  EXPECT_EQ(panelThen, 0);
  EXPECT_FALSE(state.screen.hourglass);
}

TEST_F(RotatePanelTest, WithoutAnIconProceedOnlyCloses) {
  rotateBy("45");
  EXPECT_EQ(state.screen.mActivePanel, 0);
  EXPECT_EQ(history.undoCount(), 0);
}

}  // namespace
}  // namespace gp
