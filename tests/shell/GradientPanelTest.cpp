// The panel of the gradients in the whole program.
#include "document/Containers.h"
#include "effects/GradientPanel.h"
#include "shell/EffectFixture.h"

namespace gp::test {
namespace {

constexpr int kGradient = 4, kGradientPanel = 8;
constexpr Color kFirst = rgb(0, 0, 255), kSecond = kWhite;
constexpr const char* kNoUnpainted = "No unpainted area in current icon.";

class GradientPanelTest : public EffectFixture {
 protected:
  GradientPanel& gradient() { return shell.effects().panel<GradientPanel>(); }
  void startWith(const IconImage& icon) {
    shell.document().arrival.arrive(icon, NewRecord());
    click("mnuEffectsSub", kGradient);
  }
  void startWithSize(int size) { startWith(generatedIcons(size).back()); }
  IconImage current() const { return {state.picImage, state.picMask, {}}; }
  void expectGradient(int kind, int size, const EffectValues& values) {
    EXPECT_TRUE(samePixels(gradient().PicGradient(kind), gradientPicture(size, size, values))) << kind;
  }
};

TEST_F(GradientPanelTest, EachKindHasItsSample) {
  start();
  startWithSize(24);
  ASSERT_EQ(panel(), kGradientPanel);
  EXPECT_EQ(gradient().kind(), GradientKind::Linear);
  for (int kind = 0; kind < kGradientKinds; ++kind)
    expectGradient(kind, 24, {kind, kFirst, kSecond, 0, pointValue(12, 12)});
}

TEST_F(GradientPanelTest, ProceedPaintsTheChosenKindAndOneStepOfUndoBringsTheIconBack) {
  start();
  for (const int size : kIconSides)
    for (const IconImage& icon : generatedIcons(size))
      for (int kind = 0; kind < kGradientKinds; ++kind) {
        if (!hasUnpaintedArea(icon.mask)) continue;
        startWith(icon);
        gradient().pickKind(kind);
        const IconImage shown = gradient().picture();
        EXPECT_TRUE(samePixels(current(), icon));
        shell.cmdProceed();
        EXPECT_EQ(panel(), kColorPanel);
        for (int y = 0; y < size; ++y)
          for (int x = 0; x < size; ++x) {
            const Surface& from = icon.mask.GetPixel(x, y) == kWhite ? gradient().PicGradient(kind) : icon.image;
            ASSERT_EQ(state.picImage.GetPixel(x, y), from.GetPixel(x, y));
            ASSERT_EQ(state.picMask.GetPixel(x, y), kBlack);
          }
        EXPECT_TRUE(samePixels(current(), shown));
        EXPECT_TRUE(state.current().modified);
        click("mnuEditSub", kUndo);
        EXPECT_TRUE(samePixels(current(), icon));
        EXPECT_FALSE(enabled("mnuEditSub", kUndo));
      }
}

TEST_F(GradientPanelTest, AnIconThatIsPaintedEverywhereIsRefused) {
  start();
  IconImage full = generatedIcons(16)[1];
  boxes.expectTold(kNoUnpainted, BoxIcon::None);
  startWith(full);
  EXPECT_EQ(panel(), kColorPanel);
  full.mask.SetPixelV(3, 3, kWhite);
  startWith(full);
  EXPECT_EQ(panel(), kGradientPanel);
  // It may come up under the panel.
  shell.document().arrival.arrive(generatedIcons(16)[1], NewRecord());
  boxes.expectTold(kNoUnpainted, BoxIcon::None);
  shell.cmdProceed();
  EXPECT_EQ(panel(), kGradientPanel);
}

TEST_F(GradientPanelTest, AnIconWithoutAPaintedPixelIsNotRefused) {
  start();
  startWith(transparentIcon(16));
  EXPECT_EQ(panel(), kGradientPanel);
  shell.cmdProceed();
  EXPECT_TRUE(samePixels(state.picImage, gradient().PicGradient(0)));
}

TEST_F(GradientPanelTest, EachAngleTurnsItsOwnSample) {
  start();
  startWithSize(32);
  gradient().pickAngle(0, 45);
  gradient().pickAngle(1, 360);
  EXPECT_EQ(gradient().angle(0), 45);
  EXPECT_EQ(gradient().angle(1), 360);
  expectGradient(0, 32, {0, kFirst, kSecond, 45, kMiddlePoint});
  expectGradient(1, 32, {1, kFirst, kSecond, 0, kMiddlePoint});
  for (const int index : {-1, 361, 5000}) gradient().pickAngle(0, index);
  gradient().pickAngle(2, 5);
  gradient().pickAngle(-1, 5);
  EXPECT_EQ(gradient().angle(0), 45);
}

TEST_F(GradientPanelTest, AClickMovesTheCenterOfTheSphericalSampleOnly) {
  start();
  startWithSize(16);
  const Surface linear = gradient().PicGradient(0);
  gradient().clickCenter(3, 15);
  expectGradient(3, 16, {3, kFirst, kSecond, 0, pointValue(3, 15)});
  EXPECT_TRUE(samePixels(gradient().PicGradient(0), linear));
  EXPECT_EQ(gradient().kind(), GradientKind::Linear);
  for (const auto& [x, y] : {std::pair{16, 3}, {3, 16}, {-1, 3}, {3, -1}}) gradient().clickCenter(x, y);
  expectGradient(3, 16, {3, kFirst, kSecond, 0, pointValue(3, 15)});
}

TEST_F(GradientPanelTest, AnIconOfAnotherSizeHasItsSamplesAroundItsMiddle) {
  start();
  startWithSize(48);
  gradient().clickCenter(40, 40);
  gradient().pickKind(3);
  shell.document().arrival.arrive(generatedIcons(16).back(), NewRecord());
  gradient().preview();
  expectGradient(3, 16, {3, kFirst, kSecond, 0, pointValue(8, 8)});
  shell.cmdProceed();
  EXPECT_EQ(panel(), kColorPanel);
}

TEST_F(GradientPanelTest, TheColorsComeFromTheDialogAndSwapExchangesThemInAllSamples) {
  start();
  startWithSize(32);
  dialogs.colors = {rgb(1, 2, 3), kNoColor, rgb(200, 100, 0)};
  gradient().chooseColor(0);
  gradient().chooseColor(1);
  EXPECT_EQ(gradient().color(1), kSecond);
  gradient().chooseColor(1);
  gradient().chooseColor(2);
  gradient().chooseColor(-1);
  for (int kind = 0; kind < kGradientKinds; ++kind)
    expectGradient(kind, 32, {kind, rgb(1, 2, 3), rgb(200, 100, 0), 0, kMiddlePoint});
  gradient().swapColors();
  EXPECT_EQ(gradient().color(0), rgb(200, 100, 0));
  EXPECT_EQ(gradient().color(1), rgb(1, 2, 3));
  for (int kind = 0; kind < kGradientKinds; ++kind)
    expectGradient(kind, 32, {kind, rgb(200, 100, 0), rgb(1, 2, 3), 0, kMiddlePoint});
}

TEST_F(GradientPanelTest, WithoutAnIconTheSamplesAreEmptyAndProceedSaysSo) {
  start();
  startWithSize(32);
  state.current().present = false;
  gradient().preview();
  for (int kind = 0; kind < kGradientKinds; ++kind) EXPECT_EQ(gradient().PicGradient(kind).width(), 0);
  gradient().clickCenter(1, 1);
  boxes.expectTold("No icon in Editing Area yet", BoxIcon::None);
  shell.cmdProceed();
  EXPECT_EQ(panel(), kGradientPanel);
}

TEST_F(GradientPanelTest, AKindThatIsNotThereIsIgnored) {
  start();
  startWithSize(32);
  for (const int kind : {-1, 4, 99}) gradient().pickKind(kind);
  EXPECT_EQ(gradient().kind(), GradientKind::Linear);
}

}  // namespace
}  // namespace gp::test
