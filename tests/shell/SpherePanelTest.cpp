// The panel of the sphere in the whole program.
#include "document/Compositing.h"
#include "document/Containers.h"
#include "effects/SpherePanel.h"
#include "shell/EffectFixture.h"

namespace gp::test {
namespace {

constexpr int kSphere = 2, kSpherePanel = 6;
constexpr int kNormal = 0, kSmall = 1, kTiny = 2;
constexpr const char* kQuestion = "Sphere creation will replace the current image on icon, if any.\n\nProceed?";
constexpr const char* kLess32 = "Current icon is less then 32x 32.";
constexpr const char* kLess24 = "Current icon is less then 24x24.";
constexpr const char* kClick = "Please click a point on sphere";

class SpherePanelTest : public EffectFixture {
 protected:
  SpherePanel& sphere() { return shell.effects().panel<SpherePanel>(); }
  void startWith(const IconImage& icon) {
    shell.document().arrival.arrive(icon, NewRecord());
    click("mnuEffectsSub", kSphere);
  }
  void startWithSize(int size) { startWith(generatedIcons(size).back()); }
  IconImage current() const { return {state.picImage, state.picMask, {}}; }
  // What the panel's first settings make of an icon of that size.
  static IconImage firstSphere(int size, int ball = kNormal) {
    EffectValues values = firstValues(findEffect(kSphere)->settings);
    values.set(2, ball);
    return findEffect("sphere")->apply(transparentIcon(size), values);
  }
  void expectSample(const IconImage& icon) {
    EXPECT_TRUE(samePixels(sphere().PicSphere(), composedIcon(icon.image, icon.mask)));
  }
};

TEST_F(SpherePanelTest, ItShowsTheSampleAndLeavesTheIconAsItIs) {
  start();
  startWithSize(48);
  EXPECT_EQ(panel(), kSpherePanel);
  EXPECT_EQ(sphere().factorIndex(), 5);
  EXPECT_EQ(sphere().sizeIndex(), kNormal);
  EXPECT_EQ(sphere().color(), rgb(0, 0, 255));
  expectSample(firstSphere(32));
  EXPECT_TRUE(samePixels(current(), generatedIcons(48).back()));
  shell.cmdCancel();
  EXPECT_EQ(panel(), kColorPanel);
  EXPECT_TRUE(samePixels(current(), generatedIcons(48).back()));
  EXPECT_FALSE(enabled("mnuEditSub", kUndo));
}

TEST_F(SpherePanelTest, ProceedAsksAndOneStepOfUndoBringsTheIconBack) {
  start();
  startWithSize(48);
  boxes.expectAsked(kQuestion, BoxAnswer::No);
  shell.cmdProceed();
  EXPECT_EQ(panel(), kSpherePanel);
  EXPECT_TRUE(samePixels(current(), generatedIcons(48).back()));
  boxes.expectAsked(kQuestion, BoxAnswer::Yes);
  shell.cmdProceed();
  EXPECT_EQ(panel(), kColorPanel);
  EXPECT_TRUE(samePixels(current(), firstSphere(48)));
  EXPECT_TRUE(samePixels(state.picPanelImage[0], firstSphere(48).image));
  EXPECT_TRUE(state.current().modified);
  click("mnuEditSub", kUndo);
  EXPECT_TRUE(samePixels(current(), generatedIcons(48).back()));
  click("mnuEditSub", kRedo);
  EXPECT_TRUE(samePixels(current(), firstSphere(48)));
}

TEST_F(SpherePanelTest, ABallThatTheIconDoesNotTakeIsRefusedAndTheChoiceStays) {
  start();
  startWithSize(16);
  EXPECT_EQ(sphere().sizeIndex(), kTiny) << "the largest that fits";
  const Surface before = sphere().PicSphere();
  for (const auto& [ball, text] : {std::pair{kNormal, kLess32}, {kSmall, kLess24}}) {
    boxes.expectTold(text, BoxIcon::None);
    sphere().pickSize(ball);
    EXPECT_EQ(sphere().sizeIndex(), kTiny);
    EXPECT_TRUE(samePixels(sphere().PicSphere(), before));
  }
  boxes.expectAsked(kQuestion, BoxAnswer::Yes);
  shell.cmdProceed();
  EXPECT_TRUE(samePixels(current(), firstSphere(16, kTiny)));
}

TEST_F(SpherePanelTest, AnIconOf24PixelsTakesSmallAndTiny) {
  start();
  startWithSize(24);
  EXPECT_EQ(sphere().sizeIndex(), kSmall);
  sphere().pickSize(kTiny);
  EXPECT_EQ(sphere().sizeIndex(), kTiny);
  sphere().pickSize(kSmall);
  boxes.expectTold(kLess32, BoxIcon::None);
  sphere().pickSize(kNormal);
  EXPECT_EQ(sphere().sizeIndex(), kSmall);
}

TEST_F(SpherePanelTest, AnotherIconUnderThePanelIsCheckedAtProceed) {
  start();
  startWithSize(48);
  shell.document().arrival.arrive(generatedIcons(16).back(), NewRecord());
  EXPECT_EQ(panel(), kSpherePanel);
  boxes.expectTold(kLess32, BoxIcon::None);
  shell.cmdProceed();
  EXPECT_EQ(panel(), kSpherePanel);
  EXPECT_TRUE(samePixels(current(), generatedIcons(16).back()));
  state.current().hasAlpha = true;
  boxes.expectTold("Current icon is with alpha, please run Convert 32 To 24 BPP\nto convert it to 24-BPP first.",
                   BoxIcon::None);
  shell.cmdProceed();
  EXPECT_EQ(panel(), kSpherePanel);
}

TEST_F(SpherePanelTest, AClickOnTheBallMovesTheLightAndNothingCompounds) {
  start();
  startWithSize(32);
  for (const auto& [x, y] : {std::pair{20, 25}, {5, 12}, {20, 25}, {20, 25}}) {
    sphere().clickSample(x, y);
    expectSample(findEffect("sphere")->apply(transparentIcon(32), {rgb(0, 0, 255), pointValue(x, y), kNormal, 5}));
  }
  sphere().pickFactor(10);
  expectSample(findEffect("sphere")->apply(transparentIcon(32), {rgb(0, 0, 255), pointValue(20, 25), kNormal, 10}));
}

TEST_F(SpherePanelTest, AClickOutsideTheBallLeavesTheLightAsItWas) {
  start();
  startWithSize(32);
  const Surface before = sphere().PicSphere();
  for (const auto& [x, y] : {std::pair{0, 0}, {31, 0}, {16, 0}, {0, 16}, {-1, 40}}) {
    boxes.expectTold(kClick, BoxIcon::None);
    sphere().clickSample(x, y);
    EXPECT_TRUE(samePixels(sphere().PicSphere(), before));
  }
  // The ball of this size is smaller.
  sphere().pickSize(kTiny);
  boxes.expectTold(kClick, BoxIcon::None);
  sphere().clickSample(16, 9);
  sphere().clickSample(16, 10);
}

TEST_F(SpherePanelTest, TheLightOfASmallBallComesWhereItWasClickedAndReturnsToNormalUnchanged) {
  start();
  startWithSize(32);
  sphere().pickSize(kSmall);
  sphere().clickSample(13, 10);
  EXPECT_EQ(sphere().PicSphere().GetPixel(13, 10), rgb(243, 243, 255));
  sphere().pickSize(kNormal);
  // 16 - 3 * 4 / 3 and 16 - 6 * 4 / 3.
  expectSample(findEffect("sphere")->apply(transparentIcon(32), {rgb(0, 0, 255), pointValue(12, 8), kNormal, 5}));
}

TEST_F(SpherePanelTest, TheFactorIsForTheNormalBall) {
  start();
  startWithSize(32);
  EXPECT_TRUE(sphere().usesFactor());
  for (const int ball : {kSmall, kTiny}) {
    sphere().pickSize(ball);
    EXPECT_FALSE(sphere().usesFactor());
    const Surface before = sphere().PicSphere();
    sphere().pickFactor(9);
    EXPECT_TRUE(samePixels(sphere().PicSphere(), before));
    sphere().pickFactor(0);
  }
}

TEST_F(SpherePanelTest, TheColorComesFromTheDialog) {
  start();
  startWithSize(32);
  dialogs.colors = {kNoColor, rgb(9, 200, 30)};
  sphere().chooseColor();
  EXPECT_EQ(sphere().color(), rgb(0, 0, 255));
  sphere().chooseColor();
  EXPECT_EQ(sphere().color(), rgb(9, 200, 30));
  expectSample(findEffect("sphere")->apply(transparentIcon(32), {rgb(9, 200, 30), pointValue(11, 11), kNormal, 5}));
}

TEST_F(SpherePanelTest, AnIndexOutsideAListIsIgnored) {
  start();
  startWithSize(32);
  for (const int index : {-1, 11, 1000}) sphere().pickFactor(index);
  for (const int index : {-1, 3, 1000}) sphere().pickSize(index);
  EXPECT_EQ(sphere().factorIndex(), 5);
  EXPECT_EQ(sphere().sizeIndex(), kNormal);
}

}  // namespace
}  // namespace gp::test
