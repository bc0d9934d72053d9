#include "files/Decoding.h"
#include "files/browser/EntryPreview.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

class EntryPreviewTest : public testing::Test {
 protected:
  EntryPreview preview;
  IconArrays arrays;

  void hold(const Bytes& file) {
    ASSERT_EQ(takeIconArrays(iconFileOf(file), ReservedField::Any, arrays), ArraysDefect::None);
  }
  bool show(const Picture& picture, SizeRule rule = SizeRule::IconSizes, bool showAlpha = false) {
    hold(build(entryOf(picture)));
    return preview.show(arrays, arrays.entries.front(), rule, showAlpha);
  }
  Color shownAt(int x, int y) const { return preview.picIconInFile().GetPixel(x, y); }
};

// One pixel of each kind at the top: opaque, transparent, inverting.
Picture threeKinds() {
  Picture p = anyPicture(16, 24);
  p.color = [](int x, int) { return x == 0 ? Rgb{10, 20, 30} : x == 1 ? Rgb{0, 0, 0} : Rgb{255, 255, 255}; };
  p.transparent = [](int x, int) { return x > 0; };
  return p;
}

TEST_F(EntryPreviewTest, LaysTheMaskOverTheGroundAndInvertsByThePicture) {
  ASSERT_TRUE(show(threeKinds()));
  EXPECT_EQ(shownAt(0, 0), rgb(10, 20, 30));
  EXPECT_EQ(shownAt(1, 0), kGround);
  EXPECT_EQ(shownAt(2, 0), kGround ^ kWhite);
}

TEST_F(EntryPreviewTest, HoldsPictureAndMaskAsTheFileHasThem) {
  for (const int bits : {1, 4, 8, 24, 32}) {
    const Picture picture = anyPicture(48, bits);
    ASSERT_TRUE(show(picture));
    const Decoded expected = decode(build(entryOf(picture)));
    EXPECT_TRUE(samePixels(preview.icon().image, expected.image)) << bits;
    EXPECT_TRUE(samePixels(preview.icon().mask, expected.mask)) << bits;
    EXPECT_TRUE(preview.picIconInFile().hasPicture());
  }
}

TEST_F(EntryPreviewTest, AlphaBlendsOverTheGroundByWholePercents) {
  Picture p = anyPicture(16, 32);
  p.color = [](int x, int) { return Rgb{255, 100, 0, x == 0 ? 255 : x == 1 ? 128 : x == 2 ? 1 : 0}; };
  p.transparent = [](int x, int) { return x == 4; };
  ASSERT_TRUE(show(p, SizeRule::IconSizes, true));
  EXPECT_EQ(shownAt(0, 0), rgb(255, 100, 0));
  EXPECT_EQ(shownAt(1, 0), rgb(223, 146, 96));  // 50 percent
  EXPECT_EQ(shownAt(2, 0), kGround);            // 0 percent
  EXPECT_EQ(shownAt(3, 0), rgb(255, 100, 0));   // an alpha of 0 counts as opaque
  EXPECT_EQ(shownAt(4, 0), kGround);            // nothing is inverted under the Mask
}

TEST_F(EntryPreviewTest, WithoutAlphaAskedForTheSamePictureIsComposedPlainly) {
  Picture p = anyPicture(16, 32);
  p.color = [](int, int) { return Rgb{255, 100, 0, 128}; };
  p.transparent = [](int, int) { return false; };
  ASSERT_TRUE(show(p));
  EXPECT_EQ(shownAt(1, 0), rgb(255, 100, 0));
}

TEST_F(EntryPreviewTest, AlphaValuesStayForWhoeverLoadsTheIcon) {
  Picture p = anyPicture(24, 32);
  p.color = [](int x, int y) { return Rgb{0, 0, 0, x + y}; };
  ASSERT_TRUE(show(p, SizeRule::IconSizes, true));
  ASSERT_TRUE(preview.icon().alpha.isOfSize(24));
  EXPECT_EQ(preview.icon().alpha.at(3, 4), 7);
  EXPECT_EQ(preview.icon().alpha.at(0, 0), 255);
}

// Alpha values of the previous icon must not change this one, even if the directory states 32 bits.
TEST_F(EntryPreviewTest, AnIconWithPaletteIsNeverShownWithAlpha) {
  Picture tinted = anyPicture(16, 32);
  tinted.color = [](int, int) { return Rgb{0, 0, 0, 1}; };
  ASSERT_TRUE(show(tinted, SizeRule::IconSizes, true));
  const Picture p = anyPicture(16, 4);
  const Decoded expected = decode(build(entryOf(p)));
  hold(build(entryOf(p, 16, 32)));
  ASSERT_TRUE(preview.show(arrays, arrays.entries.front(), SizeRule::IconSizes, true));
  EXPECT_TRUE(samePixels(preview.icon().image, expected.image));
  EXPECT_EQ(shownAt(1, 1), (kGround & expected.mask.GetPixel(1, 1)) ^ expected.image.GetPixel(1, 1));
  EXPECT_EQ(preview.icon().alpha, AlphaMatrix());
}

TEST_F(EntryPreviewTest, StaysAsItWasWhenAnEntryIsRefused) {
  ASSERT_TRUE(show(threeKinds()));
  const Surface before = preview.picIconInFile();
  const IconImage iconBefore = preview.icon();
  hold(build(IcoFile{{entryOf(anyPicture(64, 32)), entryOf(anyPicture(16, 8), 0, 3)}, 0, 1, {}}));
  for (const IconEntry& entry : arrays.entries) EXPECT_FALSE(preview.show(arrays, entry, SizeRule::IconSizes, true));
  EXPECT_TRUE(samePixels(preview.picIconInFile(), before));
  EXPECT_TRUE(samePixels(preview.icon().image, iconBefore.image));
  EXPECT_TRUE(samePixels(preview.icon().mask, iconBefore.mask));
  EXPECT_EQ(preview.icon().alpha, iconBefore.alpha);
}

TEST_F(EntryPreviewTest, OtherSizesAreShownWhereTheyAreAskedFor) {
  Picture wide = anyPicture(64, 4);
  wide.height = 10;
  EXPECT_FALSE(show(wide, SizeRule::IconSizes));
  EXPECT_TRUE(show(wide, SizeRule::Any));
  EXPECT_EQ(preview.picIconInFile().width(), 64);
  EXPECT_EQ(preview.picIconInFile().height(), 10);
}

TEST_F(EntryPreviewTest, AnEntryWithoutSizeIsRefused) {
  hold(build(entryOf(anyPicture(32, 4))));
  for (const auto& [width, height] : {std::pair(0, 0), std::pair(0, 32), std::pair(32, 0)}) {
    IconEntry entry = arrays.entries.front();
    entry.width = width;
    entry.height = height;
    EXPECT_FALSE(preview.show(arrays, entry, SizeRule::Any, false));
    EXPECT_FALSE(preview.show(arrays, entry, SizeRule::IconSizes, false));
  }
}

TEST_F(EntryPreviewTest, ClearingLeavesNothingToShow) {
  ASSERT_TRUE(show(threeKinds()));
  preview.clear();
  EXPECT_EQ(preview.picIconInFile().width(), 0);
  EXPECT_EQ(preview.icon().image.width(), 0);
  EXPECT_EQ(preview.icon().mask.height(), 0);
}

}  // namespace
}  // namespace gp::test
