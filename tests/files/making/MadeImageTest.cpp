// Images made from pictures: their depth, Mask, palette and bytes, checked by the decoder of bitmaps and byte by byte.
#include "files/making/MadeFile.h"
#include "files/making/MadeImage.h"
#include "files/making/PictureColors.h"
#include "platform/codec/BitmapPicture.h"
#include "support/SamplePictures.h"

#include <gtest/gtest.h>
#include <set>

namespace gp::test {
namespace {

using Bytes = std::vector<std::uint8_t>;

PngPicture shown(const MadeImage& image) {
  if (image.isPng) return decodePng(image.bytes, kPngInIconFile).picture;
  return decodeIconBitmap(image.bytes, image.bytes.size(), kPngInIconFile).picture;
}

// `count` colours that are neither black nor white.
PngPicture colorsPicture(int count, int alphaOfFirst = 255) {
  return drawn(20, 20, alphaOfFirst != 255, [=](int x, int y) {
    const int i = (y * 20 + x) % count;
    return Rgba{10 + i % 7 * 30, 10 + i / 7 % 7 * 30, 10 + i / 49 * 20, i == 0 ? alphaOfFirst : 255};
  });
}

std::size_t colorsOf(const PngPicture& picture) {
  std::set<std::array<int, 3>> colors;
  for (std::size_t at = 0; at < picture.rgba.size(); at += 4)
    if (picture.rgba[at + 3] != 0) colors.insert({picture.rgba[at], picture.rgba[at + 1], picture.rgba[at + 2]});
  return colors.size();
}

TEST(MadeImage, TheDepthIsWhatColorsAndAlphaNeed) {
  for (const auto& [colors, bits] :
       std::vector<std::pair<int, int>>{{1, 1}, {2, 1}, {3, 4}, {16, 4}, {17, 8}, {256, 8}, {257, 24}})
    EXPECT_EQ(bitsNeeded(colorsPicture(colors)), bits) << colors;
  // Transparent pixels are black, which is a colour too.
  for (const auto& [colors, bits] : std::vector<std::pair<int, int>>{{2, 1}, {3, 4}, {16, 4}, {17, 8}, {257, 24}})
    EXPECT_EQ(bitsNeeded(colorsPicture(colors, 0)), bits) << colors;
  EXPECT_EQ(bitsNeeded(colorsPicture(3, 1)), 32);
  EXPECT_EQ(bitsNeeded(colorsPicture(3, 254)), 32);
  EXPECT_EQ(bitsNeeded(logoPicture(32)), 32);
  EXPECT_EQ(bitsNeeded(photoPicture(32, 32)), 24);
  EXPECT_EQ(bitsNeeded(linePicture(32)), 1);
}

TEST(MadeImage, NoDepthThatIsNeededLosesAPixel) {
  for (const PngPicture& picture : {colorsPicture(2), colorsPicture(16), colorsPicture(256), colorsPicture(300),
                                    logoPicture(48), photoPicture(33, 21), linePicture(17)}) {
    const MadeImage image = makeImage(picture, {});
    EXPECT_EQ(image.width, picture.width);
    EXPECT_EQ(image.height, picture.height);
    EXPECT_EQ(image.bits, bitsNeeded(picture));
    EXPECT_EQ(shown(image).rgba, picture.rgba);
    EXPECT_EQ(shown(makeImage(picture, {.pngAbove = 0})).rgba, picture.rgba);
  }
}

TEST(MadeImage, PixelsWithAnAlphaBelow128AreMaskedAndWithFewerThan32BitsBlack) {
  const PngPicture ramp = drawn(256, 1, true, [](int x, int) { return Rgba{200, 100, x, x}; });
  const MadeImage image = makeImage(ramp, {.bits = 24, .pngAbove = 256});
  const PngPicture picture = shown(image);
  for (int x = 0; x < 256; ++x) {
    const Bytes pixel(picture.rgba.begin() + x * 4, picture.rgba.begin() + x * 4 + 4);
    EXPECT_EQ(pixel, x < 128 ? (Bytes{0, 0, 0, 0}) : (Bytes{200, 100, static_cast<std::uint8_t>(x), 255})) << x;
  }
  const MadeImage deep = makeImage(ramp, {.bits = 32, .pngAbove = 256});
  // The Mask is the last row: 16 bytes of 1, 16 of 0.
  EXPECT_EQ(Bytes(deep.bytes.end() - 32, deep.bytes.end() - 16), Bytes(16, 0xFF));
  EXPECT_EQ(Bytes(deep.bytes.end() - 16, deep.bytes.end()), Bytes(16, 0));
  const PngPicture kept = shown(deep);
  EXPECT_EQ(Bytes(kept.rgba.begin() + 4, kept.rgba.begin() + 8), (Bytes{200, 100, 1, 1}));
  EXPECT_EQ(Bytes(kept.rgba.begin(), kept.rgba.begin() + 4), (Bytes{0, 0, 0, 0}));
}

TEST(MadeImage, ABitmapHasAHeaderAPaletteTheRowsAndTheMask) {
  const PngPicture two = drawn(2, 2, true, [](int x, int y) {
    return y == 0 ? Rgba{255, 0, 0, 255} : Rgba{0, 0, 0, x == 0 ? 0 : 255};
  });
  EXPECT_EQ(makeImage(two, {}).bytes, (Bytes{40,   0, 0, 0, 2,    0, 0,   0, 4, 0, 0, 0, 1, 0, 1, 0, 0, 0, 0, 0, 0,
                                             0,    0, 0, 0, 0,    0, 0,   0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,  // header
                                             0,    0, 0, 0, 0,    0, 255, 0,     // palette: black, red
                                             0,    0, 0, 0, 0xC0, 0, 0,   0,     // rows, the bottom one first
                                             0x80, 0, 0, 0, 0,    0, 0,   0}));  // Mask
}

TEST(MadeImage, ColorsThatFitAPaletteAreKeptInIt) {
  for (const auto& [colors, bits] : std::vector<std::pair<int, int>>{{2, 1}, {2, 4}, {16, 4}, {16, 8}, {256, 8}}) {
    const PngPicture picture = colorsPicture(colors);
    const MadeImage image = makeImage(picture, {.bits = bits});
    EXPECT_EQ(image.bits, bits);
    EXPECT_EQ(shown(image).rgba, picture.rgba) << colors;
    EXPECT_EQ(image.bytes.size(), 40 + (4U << bits) + 20 * ((20U * bits + 31) / 32 * 4) + 20 * 4);
  }
}

TEST(MadeImage, MoreColorsAreReducedToThePaletteOfTheDepth) {
  PngPicture faded = photoPicture(48, 48);
  faded.hasAlpha = true;
  for (std::size_t at = 3; at < faded.rgba.size(); at += 4) faded.rgba[at] = static_cast<std::uint8_t>(at % 256);
  for (const bool dithers : {false, true})
    for (const PngPicture& picture : {photoPicture(48, 48), faded}) {
      const PngPicture of8 = shown(makeImage(picture, {.bits = 8, .dithers = dithers})),
                       of4 = shown(makeImage(picture, {.bits = 4, .dithers = dithers})),
                       of1 = shown(makeImage(picture, {.bits = 1, .dithers = dithers}));
      EXPECT_LE(colorsOf(of8), 256U);
      EXPECT_GT(colorsOf(of8), 2U);
      for (const PngPicture* reduced : {&of4, &of1})
        for (std::size_t at = 0; at < reduced->rgba.size(); at += 4) {
          const std::set<int> allowed = reduced == &of1 ? std::set{0, 255} : std::set{0, 128, 192, 255};
          for (std::size_t i = 0; i < 3; ++i) ASSERT_TRUE(allowed.count(reduced->rgba[at + i]));
        }
      for (std::size_t at = 3; at < picture.rgba.size(); at += 4)
        for (const PngPicture* reduced : {&of8, &of4, &of1})
          ASSERT_EQ(reduced->rgba[at], picture.rgba[at] < 128 ? 0 : 255);
    }
}

TEST(MadeImage, WithoutDitheringEachPixelBecomesTheNearestColor) {
  const PngPicture ramp = drawn(256, 1, false, [](int x, int) { return Rgba{x, x, x, 255}; });
  const PngPicture of4 = shown(makeImage(ramp, {.bits = 4, .pngAbove = 256}));
  const PngPicture of1 = shown(makeImage(ramp, {.bits = 1, .pngAbove = 256}));
  for (int x = 0; x < 256; ++x) {
    EXPECT_EQ(of1.rgba[static_cast<std::size_t>(x) * 4], x < 128 ? 0 : 255) << x;
    EXPECT_EQ(of4.rgba[static_cast<std::size_t>(x) * 4], x <= 64 ? 0 : x < 160 ? 128 : x <= 223 ? 192 : 255) << x;
  }
}

TEST(MadeImage, DitheringKeepsTheBrightnessOfAGreyWithTransparentGround) {
  const PngPicture disc = drawn(32, 32, true, [](int x, int y) {
    const bool isInside = x >= 8 && x < 24 && y >= 8 && y < 24;
    return isInside ? Rgba{120 + x % 3, 120 + y % 5, 120, 255} : Rgba{0, 0, 0, 0};
  });
  const PngPicture mono = shown(makeImage(disc, {.bits = 1, .dithers = true}));
  int white = 0;
  for (std::size_t at = 0; at < mono.rgba.size(); at += 4) white += mono.rgba[at + 3] == 255 && mono.rgba[at] == 255;
  EXPECT_GT(white, 256 / 4);
  EXPECT_LT(white, 256 * 3 / 4);
}

TEST(MadeImage, TransparentPixelsLeaveRoomForTheirBlackInAPaletteOf256) {
  const PngPicture picture = drawn(64, 64, true, [](int x, int y) {
    return Rgba{100 + x * 2, 100 + y * 2, 200, (x + y) % 5 == 0 ? 0 : 255};
  });
  for (const bool dithers : {false, true}) {
    const MadeImage image = makeImage(picture, {.bits = 8, .dithers = dithers});
    EXPECT_EQ(image.bits, 8);
    EXPECT_EQ(image.bytes.size(), 40U + 1024 + 64 * 64 + 64 * 8);
    const PngPicture reduced = shown(image);
    for (std::size_t at = 0; at < reduced.rgba.size(); at += 4)
      if (reduced.rgba[at + 3] == 0) {
        ASSERT_EQ(Bytes(&reduced.rgba[at], &reduced.rgba[at] + 3), (Bytes{0, 0, 0}));
      }
  }
}

TEST(MadeImage, ImagesAboveTheBoundArePngPictures) {
  EXPECT_FALSE(makeImage(linePicture(64), {}).isPng);
  const MadeImage large = makeImage(linePicture(65), {});
  EXPECT_TRUE(large.isPng);
  EXPECT_EQ(large.bits, 24);
  EXPECT_TRUE(isPng(large.bytes));
  EXPECT_EQ(makeImage(logoPicture(65), {}).bits, 32);
  EXPECT_FALSE(makeImage(linePicture(256), {.pngAbove = 256}).isPng);
  EXPECT_TRUE(makeImage(linePicture(16), {.pngAbove = 15}).isPng);
}

TEST(MadeFile, TheDirectoryDescribesEachImageInItsOrder) {
  const std::vector<MadeImage> images{makeImage(linePicture(16), {}), makeImage(colorsPicture(16), {}),
                                      makeImage(logoPicture(256), {})};
  const Bytes icon = composeIconFile(images);
  EXPECT_EQ(Bytes(icon.begin(), icon.begin() + 6), (Bytes{0, 0, 1, 0, 3, 0}));
  EXPECT_EQ(Bytes(icon.begin() + 6, icon.begin() + 14), (Bytes{16, 16, 2, 0, 1, 0, 1, 0}));
  EXPECT_EQ(Bytes(icon.begin() + 22, icon.begin() + 30), (Bytes{20, 20, 16, 0, 1, 0, 4, 0}));
  EXPECT_EQ(Bytes(icon.begin() + 38, icon.begin() + 46), (Bytes{0, 0, 0, 0, 1, 0, 32, 0}));
  std::size_t at = 6 + 3 * 16;
  for (std::size_t i = 0; i < images.size(); ++i) {
    const std::size_t entry = 6 + i * 16;
    const auto value = [&](std::size_t place) {
      return std::size_t{icon[place]} | std::size_t{icon[place + 1]} << 8 | std::size_t{icon[place + 2]} << 16;
    };
    EXPECT_EQ(value(entry + 8), images[i].bytes.size());
    EXPECT_EQ(value(entry + 12), at);
    EXPECT_TRUE(
        std::equal(images[i].bytes.begin(), images[i].bytes.end(), icon.begin() + static_cast<std::ptrdiff_t>(at)));
    at += images[i].bytes.size();
  }
  EXPECT_EQ(icon.size(), at);
}

TEST(MadeFile, TheHotSpotsOfACursorAreInPlaceOfPlanesAndBits) {
  const std::vector<MadeImage> images{makeImage(linePicture(16), {}), makeImage(linePicture(32), {})};
  const Bytes cursor = composeCursorFile(images, std::vector<Hotspot>{{3, 4}, {7, 9}});
  EXPECT_EQ(Bytes(cursor.begin(), cursor.begin() + 6), (Bytes{0, 0, 2, 0, 2, 0}));
  EXPECT_EQ(Bytes(cursor.begin() + 10, cursor.begin() + 14), (Bytes{3, 0, 4, 0}));
  EXPECT_EQ(Bytes(cursor.begin() + 26, cursor.begin() + 30), (Bytes{7, 0, 9, 0}));
}

}  // namespace
}  // namespace gp::test
