#include "animation/FilmBytes.h"
#include "animation/format/FrameDrawing.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

DrawnFrame drawnOf(const Bytes& file) { return drawFrame(file).value_or(DrawnFrame()); }

Color firstColor(const std::vector<Entry>& images) { return drawnOf(cursorFile(images)).picture.image.GetPixel(0, 0); }

constexpr Rgb kRed{255, 0, 0, 255}, kGreen{0, 255, 0, 255};

TEST(FrameDrawing, TheImageNearestTo32IsDrawn) {
  for (const int other : {1, 16, 24, 48, 64, 256}) {
    EXPECT_EQ(firstColor({plainEntry(other, kRed), plainEntry(32, kGreen)}), rgb(0, 255, 0)) << other;
    EXPECT_EQ(firstColor({plainEntry(32, kGreen), plainEntry(other, kRed)}), rgb(0, 255, 0)) << other;
  }
  EXPECT_EQ(firstColor({plainEntry(16, kRed), plainEntry(40, kGreen), plainEntry(64, kRed)}), rgb(0, 255, 0));
  // 6 + 4 pixels are nearer than 8 + 8.
  Picture wide = plainPicture(38, kGreen);
  wide.height = 28;
  EXPECT_EQ(firstColor({plainEntry(24, kRed), entryOf(wide, 0, 24)}), rgb(0, 255, 0));
}

TEST(FrameDrawing, OfSeveralOfASizeTheDeepestIsDrawnThenTheFirst) {
  EXPECT_EQ(firstColor({plainEntry(32, kRed), plainEntry(32, kGreen, 32)}), rgb(0, 255, 0));
  EXPECT_EQ(firstColor({plainEntry(32, kGreen, 32), plainEntry(32, kRed)}), rgb(0, 255, 0));
  EXPECT_EQ(firstColor({plainEntry(32, kGreen), plainEntry(32, kRed)}), rgb(0, 255, 0));
  EXPECT_EQ(firstColor({plainEntry(48, kRed), plainEntry(16, kGreen, 32)}), rgb(0, 255, 0));
}

// The source pixel of each target pixel, by the positions of pixel centres. Reduced columns keep their last pixel,
// reduced rows their first one.
int keptPixel(int target, int size, bool keepsLast) {
  if (size <= 32) return ((2 * target + 1) * size + 63) / 64 - 1;
  int first = -1, last = -1;
  for (int i = 0; i < size; ++i)
    if (((2 * i + 1) * 32 + 2 * size - 1) / (2 * size) - 1 == target) {
      if (first < 0) first = i;
      last = i;
    }
  return keepsLast ? last : first;
}

TEST(FrameDrawing, OtherSizesKeepOrDropPixels) {
  for (const int size : {1, 7, 16, 24, 33, 48, 64, 100, 256}) {
    Picture p = plainPicture(size, kRed);
    p.color = [](int x, int y) { return Rgb{x % 256, y % 256, 7, 255}; };
    p.transparent = [](int x, int y) { return (x * 3 + y) % 5 == 0; };
    const FramePicture picture = drawnOf(cursorFile({entryOf(p, 0, 24)})).picture;
    for (int y = 0; y < 32; ++y)
      for (int x = 0; x < 32; ++x) {
        const int fromX = keptPixel(x, size, true), fromY = keptPixel(y, size, false);
        const bool transparent = p.transparent(fromX, fromY);
        const int inverted = transparent ? 255 : 0;
        ASSERT_EQ(picture.image.GetPixel(x, y), rgb(fromX ^ inverted, fromY ^ inverted, 7 ^ inverted)) << size;
        ASSERT_EQ(picture.mask.GetPixel(x, y), transparent ? kWhite : kBlack) << size;
      }
  }
}

TEST(FrameDrawing, WithoutAlphaTheMaskLeavesWhiteAndColorsInvertIt) {
  Picture p = plainPicture(32, kRed, 32);
  p.color = [](int x, int) { return x < 16 ? Rgb{0, 0, 0, 0} : Rgb{10, 20, 30, 0}; };
  p.transparent = [](int, int y) { return y < 16; };
  const FramePicture picture = drawnOf(cursorFile({entryOf(p, 0, 32)})).picture;
  EXPECT_EQ(picture.image.GetPixel(0, 0), kWhite);
  EXPECT_EQ(picture.image.GetPixel(16, 0), rgb(245, 235, 225));
  EXPECT_EQ(picture.image.GetPixel(0, 16), kBlack);
  EXPECT_EQ(picture.image.GetPixel(16, 16), rgb(10, 20, 30));
  EXPECT_EQ(picture.mask.GetPixel(0, 0), kWhite);
  EXPECT_EQ(picture.mask.GetPixel(0, 16), kBlack);
}

int onWhite(int channel, int alpha) { return (channel * alpha + 255 * (255 - alpha) + 127) / 255; }

TEST(FrameDrawing, AlphaIsBlendedOnWhiteWithoutTheMaskWhichStays) {
  Picture p = plainPicture(32, kRed, 32);
  const auto alpha = [](int x, int y) { return (x + 32 * y) % 256; };
  p.color = [&](int x, int y) { return Rgb{y * 8, 255 - y, 77, alpha(x, y)}; };
  p.transparent = [](int x, int) { return x % 2 == 0; };
  const FramePicture picture = drawnOf(cursorFile({entryOf(p, 0, 32)})).picture;
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x) {
      const int a = alpha(x, y);
      ASSERT_EQ(picture.image.GetPixel(x, y), rgb(onWhite(y * 8, a), onWhite(255 - y, a), onWhite(77, a)));
      ASSERT_EQ(picture.mask.GetPixel(x, y), x % 2 == 0 ? kWhite : kBlack);
    }
}

bool losesAlpha(int alpha, bool transparent, int otherAlpha = 255) {
  Picture p = plainPicture(32, kRed, 32);
  p.color = [&](int x, int) { return Rgb{255, 0, 0, x == 0 ? alpha : otherAlpha}; };
  p.transparent = [&](int x, int) { return x == 0 && transparent; };
  return drawnOf(cursorFile({entryOf(p, 0, 32)})).hasAlpha;
}

TEST(FrameDrawing, OnlyOpaqueAndTransparentPixelsAreKeptWithoutAlpha) {
  EXPECT_FALSE(losesAlpha(255, false));
  EXPECT_FALSE(losesAlpha(0, true));
  EXPECT_TRUE(losesAlpha(254, false));
  EXPECT_TRUE(losesAlpha(1, true));
  // Transparent by alpha alone: an opaque white pixel.
  EXPECT_TRUE(losesAlpha(0, false));
  // No alpha at all: the Mask counts.
  EXPECT_FALSE(drawnOf(cursorFile({plainEntry(32, {1, 2, 3, 0}, 32)})).hasAlpha);
}

TEST(FrameDrawing, TheHotSpotIsScaledWithTheImage) {
  struct Case {
    int size;
    Hotspot stored, drawn;
  };
  for (const Case& c : {Case{32, {31, 0}, {31, 0}}, Case{32, {300, 65535}, {300, 65535}}, Case{48, {47, 24}, {31, 16}},
                        Case{48, {1, 2}, {0, 1}}, Case{16, {7, 15}, {14, 30}}, Case{256, {255, 8}, {31, 1}}}) {
    const DrawnFrame frame = drawnOf(cursorFile({plainEntry(c.size, kRed)}, {c.stored}));
    EXPECT_EQ(frame.hotspotX, c.drawn.x) << c.size;
    EXPECT_EQ(frame.hotspotY, c.drawn.y) << c.size;
  }
  const DrawnFrame second = drawnOf(cursorFile({plainEntry(64, kRed), plainEntry(30, kRed)}, {{60, 60}, {15, 30}}));
  EXPECT_EQ(second.hotspotX, 16);
  EXPECT_EQ(second.hotspotY, 32);
}

TEST(FrameDrawing, OneImageOf32PixelsIsDistinguished) {
  EXPECT_TRUE(drawnOf(cursorFile({plainEntry(32, kRed)})).isOneOfSize);
  EXPECT_FALSE(drawnOf(cursorFile({plainEntry(48, kRed)})).isOneOfSize);
  EXPECT_FALSE(drawnOf(cursorFile({plainEntry(32, kRed), plainEntry(16, kRed)})).isOneOfSize);
}

Entry damagedPicture(std::uint32_t side = 32) {
  PngFile file{.width = side, .height = side};
  file.hasRightDataCrc = false;
  return pngEntry(file);
}

TEST(FrameDrawing, AnotherImageIsDrawnWhenTheBestCannotBeDecoded) {
  EXPECT_EQ(firstColor({damagedPicture(), plainEntry(16, kGreen)}), rgb(0, 255, 0));
  EXPECT_FALSE(drawFrame(cursorFile({damagedPicture()})));
  EXPECT_FALSE(drawFrame(Bytes()));
}

TEST(FrameDrawing, OfManyDamagedImagesOnlySomeAreTried) {
  std::vector<Entry> images(15, damagedPicture());
  images.push_back(plainEntry(16, kGreen));
  EXPECT_TRUE(drawFrame(cursorFile(images)));
  images.insert(images.begin(), damagedPicture());
  EXPECT_FALSE(drawFrame(cursorFile(images)));
}

TEST(FrameDrawing, EntriesThatShareADamagedImageCountOnce) {
  std::vector<Entry> images(100, damagedPicture());
  for (std::size_t i = 1; i < images.size(); ++i) {
    images[i].offset = 6 + 16 * 101;
    images[i].image.clear();
  }
  images.push_back(plainEntry(16, kGreen));
  EXPECT_EQ(firstColor(images), rgb(0, 255, 0));
}

}  // namespace
}  // namespace gp::test
