#include "effects/Blend.h"
#include "effects/EffectCases.h"
#include "effects/Pictures.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

Color mixedAt(Color own, Color other, int percent) {
  const auto onePixel = [](Color color) { return IconImage{Surface(1, 1, color), Surface(1, 1, kBlack), {}}; };
  return blended(onePixel(own), onePixel(other), percent).image.GetPixel(0, 0);
}

Rows blendedRows(const Rows& icon, const Rows& other, int percent) {
  return rowsOf(blended(iconOf(icon), iconOf(other), percent));
}

TEST(Blend, AtZeroPercentTheIconKeepsItsColorsWhereBothArePainted) {
  const Rows icon{"opb", "wgl"}, other{"wwo", "b.r"};
  EXPECT_EQ(blendedRows(icon, other, 0), icon);
}

TEST(Blend, AtAHundredPercentTheOtherIconIsTakenWhereBothArePainted) {
  EXPECT_EQ(blendedRows({"opb", "wgl"}, {"wwo", "b.r"}, 100), (Rows{"wwo", "bgr"}));
}

TEST(Blend, APixelThatIsTransparentInBothStaysTransparent) {
  for (const int percent : {0, 40, 100}) EXPECT_EQ(blendedRows({".", "."}, {".", "."}, percent), (Rows{".", "."}));
}

TEST(Blend, WhereOneOfThemIsPaintedTheResultIsThatOneWhateverThePercentage) {
  for (const int percent : {0, 40, 100}) {
    EXPECT_EQ(blendedRows({"o."}, {".w"}, percent), (Rows{"ow"}));
    // What the other icon has behind its Mask has no part in the result.
    EXPECT_EQ(blendedRows({"oo."}, {"^~^"}, percent), (Rows{"oo."}));
  }
}

TEST(Blend, APixelThatInvertsKeepsItsValueUnlessTheOtherIconIsPaintedThere) {
  EXPECT_EQ(blendedRows({"^~^~"}, {"..ww"}, 40), (Rows{"^~ww"}));
}

TEST(Blend, ThePartOfTheOtherIconGrowsWithThePercentageAndIsRounded) {
  EXPECT_EQ(mixedAt(rgb(100, 200, 0), rgb(200, 0, 255), 40), rgb(140, 120, 102));
  EXPECT_EQ(mixedAt(rgb(100, 200, 0), rgb(200, 0, 255), 5), rgb(105, 190, 13));  // 12.75
  EXPECT_EQ(mixedAt(rgb(10, 11, 12), rgb(11, 12, 13), 50), rgb(10, 12, 12)) << "halves go to the even number";
  EXPECT_EQ(mixedAt(kBlack, kWhite, 90), rgb(230, 230, 230));  // 229.5
  EXPECT_EQ(mixedAt(kWhite, kWhite, 35), kWhite);
}

TEST(Blend, TheFirstIconOfTheSameSizeIsBlendedIn) {
  const std::vector<IconImage> others{iconOf({"ww", "ww"}), iconOf({"r"}), iconOf({"b"})};
  EXPECT_EQ(rowsOf(applied("blend", iconOf({"o"}), withPictures({0, 100}, others))), (Rows{"r"}));
  EXPECT_EQ(rowsOf(applied("blend", iconOf({"oo", "oo"}), withPictures({0, 100}, others))), (Rows{"ww", "ww"}));
}

TEST(Blend, WithoutAnIconOfTheSameSizeItIsRefusedAndChangesNothing) {
  const IconImage icon = iconOf({"o^", ".p"});
  for (const auto& others : {std::vector<IconImage>{}, {iconOf({"w"}), iconOf({"www", "www", "www"})}}) {
    const EffectValues values = withPictures({0, 40}, others);
    EXPECT_STREQ(kBlend.refusal(icon, values).text, "No icon of same size from Icons Panel to blend in.");
    EXPECT_EQ(rowsOf(kBlend.apply(icon, values)), rowsOf(icon));
  }
  EXPECT_EQ(kBlend.refusal(icon, withPictures({0, 40}, {icon})).text, nullptr);
}

TEST(Blend, PicturesOfAnySizeAreTaken) {
  for (const OddSize& size : kOddSizes) {
    const IconImage icon{Surface(size.width, size.height, kBlack), Surface(size.width, size.height, kBlack), {}};
    const IconImage other{Surface(size.width, size.height, kWhite), Surface(size.width, size.height, kBlack), {}};
    const IconImage result = blended(icon, other, 100);
    EXPECT_TRUE(samePixels(result, other));
  }
}

TEST(Blend, IconsOfOneKindOfPixel) {
  const IconImage empty = transparentIcon(16), painted = generatedIcons(16)[1];
  const IconImage inverting{Surface(16, 16, kWhite), Surface(16, 16, kWhite), {}};
  EXPECT_TRUE(samePixels(blended(empty, empty, 40), empty));
  EXPECT_TRUE(samePixels(blended(empty, painted, 40), painted));
  EXPECT_TRUE(samePixels(blended(painted, empty, 40), painted));
  EXPECT_TRUE(samePixels(blended(inverting, empty, 40), inverting));
  EXPECT_TRUE(samePixels(blended(inverting, painted, 40), painted));
  EXPECT_TRUE(samePixels(blended(painted, inverting, 40), painted));
  EXPECT_TRUE(samePixels(blended(painted, painted, 40), painted));
}

}  // namespace
}  // namespace gp::test
