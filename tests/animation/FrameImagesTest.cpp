#include "animation/FilmBytes.h"
#include "animation/format/FrameImages.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

IconImage decodedFirst(const Bytes& file) {
  const auto images = frameImages(file);
  if (images.empty()) return {};
  return decodeFrameImage(file, images.front()).value_or(IconImage());
}

Color colorOf(Rgb c) { return rgb(c.r % 256, c.g % 256, c.b % 256); }

Rgb storedColor(const Picture& p, int x, int y) {
  if (p.bits > 8) return p.color(x, y);
  const int i = p.index(x, y);
  return {i, 2 * i % 256, 255 - i};
}

void expectPicture(const IconImage& icon, const Picture& p) {
  ASSERT_EQ(icon.width(), p.width);
  ASSERT_EQ(icon.height(), p.height);
  for (int y = 0; y < p.height; ++y)
    for (int x = 0; x < p.width; ++x) {
      ASSERT_EQ(icon.image.GetPixel(x, y), colorOf(storedColor(p, x, y))) << x << "," << y;
      ASSERT_EQ(icon.mask.GetPixel(x, y), p.transparent(x, y) ? kWhite : kBlack) << x << "," << y;
    }
}

TEST(FrameImages, PicturesOfAllDepthsAndSizesAreDecodedWithColorsUnderTheMask) {
  for (const int bits : {1, 4, 8, 24, 32})
    for (const int size : {1, 16, 31, 32, 48, 64, 256}) {
      Picture p = anyPicture(size, bits);
      if (bits == 32) p.color = [](int x, int y) { return Rgb{x, y, x ^ y, 0}; };
      const IconImage icon = decodedFirst(cursorFile({entryOf(p)}));
      expectPicture(icon, p);
      EXPECT_FALSE(icon.hasAlphaValues()) << bits;
    }
}

TEST(FrameImages, PicturesNeedNotBeSquare) {
  Picture p = anyPicture(20, 8);
  p.height = 7;
  expectPicture(decodedFirst(cursorFile({entryOf(p)})), p);
}

TEST(FrameImages, AlphaIsKeptApartFromTheMaskIfOneValueIsAbove0) {
  Picture p = anyPicture(32, 32);
  p.color = [](int x, int y) { return Rgb{x, y, 9, x == 3 && y == 4 ? 1 : 0}; };
  const IconImage icon = decodedFirst(cursorFile({entryOf(p)}));
  expectPicture(icon, p);
  ASSERT_TRUE(icon.hasAlphaValues());
  EXPECT_EQ(icon.alpha.at(3, 4), 1);
  EXPECT_EQ(icon.alpha.at(4, 3), 0);
}

// A row of a picture, as rows of 16 bits are stored: five bits each of red, green and blue.
Bytes imageOf16Bits(const std::vector<int>& pixels) {
  Picture p;
  p.width = static_cast<int>(pixels.size());
  p.height = 1;
  p.bits = 16;
  Bytes image = bitmapHeader(p);
  for (const int pixel : pixels) put16(image, static_cast<std::uint32_t>(pixel));
  put32(image, 0x40);  // the Mask of the second pixel
  return image;
}

TEST(FrameImages, PicturesOf16BitsHaveFivePerChannel) {
  const Bytes file = cursorFile({{2, 1, 0, 16, imageOf16Bits({0x7C00 | 16 << 5, 0x001F}), {}, {}}});
  const IconImage icon = decodedFirst(file);
  ASSERT_EQ(icon.width(), 2);
  EXPECT_EQ(frameImages(file).front().bits, 16);
  EXPECT_EQ(icon.image.GetPixel(0, 0), rgb(255, 132, 0));
  EXPECT_EQ(icon.image.GetPixel(1, 0), rgb(0, 0, 255));
  EXPECT_EQ(icon.mask.GetPixel(0, 0), kBlack);
  EXPECT_EQ(icon.mask.GetPixel(1, 0), kWhite);
}

TEST(FrameImages, OldHeadersHave12BytesAndPalettesOf3) {
  Bytes image;
  put32(image, 12);
  for (const std::uint32_t field : {8U, 2U, 1U, 1U}) put16(image, field);
  append(image, {1, 2, 3, 4, 5, 6});
  put32(image, 0xF0);
  put32(image, 0x80);
  const IconImage icon = decodedFirst(cursorFile({{8, 1, 0, 1, image, {}, {}}}));
  ASSERT_EQ(icon.width(), 8);
  ASSERT_EQ(icon.height(), 1);
  EXPECT_EQ(icon.image.GetPixel(3, 0), rgb(6, 5, 4));
  EXPECT_EQ(icon.image.GetPixel(4, 0), rgb(3, 2, 1));
  EXPECT_EQ(icon.mask.GetPixel(0, 0), kWhite);
  EXPECT_EQ(icon.mask.GetPixel(1, 0), kBlack);
}

TEST(FrameImages, RowsCanBeStoredFromTheTop) {
  Picture p = anyPicture(16, 8);
  const Picture stored = p;
  p.headerHeight = -32;
  p.index = [&](int x, int y) { return stored.index(x, 15 - y); };
  p.transparent = [&](int x, int y) { return stored.transparent(x, 15 - y); };
  expectPicture(decodedFirst(cursorFile({entryOf(p)})), stored);
}

TEST(FrameImages, HeadersAreBelievedRatherThanTheDirectory) {
  const Picture p = anyPicture(24, 8);
  Entry entry = entryOf(p, 2, 1);
  entry.width = 16;
  entry.height = 0;
  const Bytes file = cursorFile({entry, pngEntry({.width = 20, .height = 10})});
  const auto images = frameImages(file);
  ASSERT_EQ(images.size(), 2U);
  EXPECT_EQ(images[0].width, 24);
  EXPECT_EQ(images[0].height, 24);
  EXPECT_EQ(images[0].bits, 8);
  EXPECT_FALSE(images[0].isPng);
  EXPECT_EQ(images[1].width, 20);
  EXPECT_EQ(images[1].height, 10);
  EXPECT_EQ(images[1].bits, 32);
  EXPECT_TRUE(images[1].isPng);
  expectPicture(decodedFirst(file), p);
}

TEST(FrameImages, TheirBytesAreStatedInTheOrderOfTheDirectory) {
  const std::vector<Entry> entries{anyEntry(16, 4), anyEntry(32, 1)};
  const auto images = frameImages(cursorFile(entries));
  ASSERT_EQ(images.size(), 2U);
  EXPECT_EQ(images[0].offset, 38U);
  EXPECT_EQ(images[0].size, entries[0].image.size());
  EXPECT_EQ(images[1].offset, 38U + entries[0].image.size());
  EXPECT_EQ(images[1].size, entries[1].image.size());
}

TEST(FrameImages, OnlyCursorsHaveHotSpots) {
  const std::vector<Entry> entries{anyEntry(16, 4), anyEntry(32, 4)};
  const auto ofCursor = frameImages(cursorFile(entries, {{3, 4}, {500, 7}}));
  ASSERT_EQ(ofCursor.size(), 2U);
  EXPECT_EQ(ofCursor[0].hotspotX, 3);
  EXPECT_EQ(ofCursor[0].hotspotY, 4);
  EXPECT_EQ(ofCursor[1].hotspotX, 500);
  EXPECT_EQ(ofCursor[1].hotspotY, 7);
  for (const FrameImageFacts& image : frameImages(build({entries, 0, 1, {}}))) {
    EXPECT_EQ(image.hotspotX, 0);
    EXPECT_EQ(image.hotspotY, 0);
  }
}

PngFile pngOfAlpha(const std::function<int(int, int)>& alpha) {
  return {.samples = [alpha](int x, int y) { return std::vector<int>{x, y, 200, alpha(x, y)}; }};
}

TEST(FrameImages, APngPictureIsTransparentBelowAnAlphaOf128) {
  const IconImage icon =
      decodedFirst(cursorFile({pngEntry(pngOfAlpha([](int x, int y) { return x + 32 * (y % 8); }))}));
  ASSERT_TRUE(icon.hasAlphaValues());
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x) {
      const int alpha = x + 32 * (y % 8);
      ASSERT_EQ(icon.image.GetPixel(x, y), rgb(x, y, 200));
      ASSERT_EQ(icon.alpha.at(x, y), alpha);
      ASSERT_EQ(icon.mask.GetPixel(x, y), alpha < 128 ? kWhite : kBlack);
    }
}

TEST(FrameImages, APngPictureWithoutAlphaIsOpaqueAndAnInvisibleOneBlack) {
  const PngFile opaque{.colorType = png::kRgb, .samples = [](int x, int y) { return std::vector<int>{x, y, 1}; }};
  const Bytes file = cursorFile({pngEntry(opaque)});
  EXPECT_EQ(frameImages(file).front().bits, 24);
  const IconImage icon = decodedFirst(file);
  EXPECT_FALSE(icon.hasAlphaValues());
  EXPECT_EQ(icon.image.GetPixel(5, 6), rgb(5, 6, 1));
  EXPECT_EQ(icon.mask.GetPixel(5, 6), kBlack);
  const IconImage invisible = decodedFirst(cursorFile({pngEntry(pngOfAlpha([](int, int) { return 0; }))}));
  EXPECT_FALSE(invisible.hasAlphaValues());
  EXPECT_EQ(invisible.image.GetPixel(5, 6), kBlack);
  EXPECT_EQ(invisible.mask.GetPixel(5, 6), kWhite);
}

// An image without its Mask, followed by another image.
IconImage decodedWithoutMask(const Picture& p) {
  Entry entry = entryOf(p);
  entry.image.resize(entry.image.size() - maskRows(p).size());
  return decodedFirst(cursorFile({entry, plainEntry(32, {255, 255, 255, 255})}));
}

TEST(FrameImages, AlphaStandsInForAMaskThatIsMissing) {
  Picture p = plainPicture(32, {1, 2, 3, 255}, 32);
  p.color = [](int x, int) { return Rgb{1, 2, 3, 120 + x}; };
  const IconImage icon = decodedWithoutMask(p);
  ASSERT_TRUE(icon.hasAlphaValues());
  EXPECT_EQ(icon.mask.GetPixel(7, 0), kWhite);
  EXPECT_EQ(icon.mask.GetPixel(8, 0), kBlack);
}

TEST(FrameImages, APictureWithoutAlphaAndMaskIsOpaque) {
  const Picture p = plainPicture(32, {1, 2, 3, 255});
  Entry entry = entryOf(p);
  entry.image.resize(entry.image.size() - maskRows(p).size());
  expectPicture(decodedFirst(cursorFile({entry})), p);
}

TEST(FrameImages, ASizeThatIsTooSmallDoesNotCount) {
  const Picture p = anyPicture(32, 8);
  for (const std::uint32_t size : {0U, 1U, 40U, 0xFFFFFFFFU}) {
    Entry entry = entryOf(p);
    entry.bytesInRes = size;
    expectPicture(decodedFirst(cursorFile({entry})), p);
  }
  for (const std::uint32_t size : {0U, 40U}) {
    Entry picture = pngEntry(pngOfAlpha([](int, int) { return 255; }));
    picture.bytesInRes = size;
    EXPECT_EQ(decodedFirst(cursorFile({picture})).image.GetPixel(4, 2), rgb(4, 2, 200));
  }
}

Entry entryWith(const std::function<void(Picture& p)>& change) {
  Picture p = anyPicture(32, 4);
  change(p);
  return entryOf(p);
}

TEST(FrameImages, ImagesWithoutPixelsArePassedOver) {
  Entry behindTheEnd = anyEntry(32, 4), cut = anyEntry(32, 4);
  behindTheEnd.offset = 0xFFFFFFFF;
  cut.image.resize(40 + 64 + 511);
  const std::vector<Entry> entries{behindTheEnd,
                                   entryWith([](Picture& p) { p.headerWidth = 0; }),
                                   entryWith([](Picture& p) { p.headerHeight = 1; }),
                                   entryWith([](Picture& p) { p.headerWidth = 513; }),
                                   entryWith([](Picture& p) { p.headerHeight = 0x7FFFFFFF; }),
                                   entryWith([](Picture& p) { p.headerBits = 5; }),
                                   entryWith([](Picture& p) { p.compression = 2; }),
                                   pngEntry({.width = 0, .height = 4}),
                                   pngEntry({.statedWidth = 1000}),
                                   anyEntry(16, 4),
                                   cut};
  const auto images = frameImages(cursorFile(entries));
  ASSERT_EQ(images.size(), 1U);
  EXPECT_EQ(images[0].width, 16);
}

TEST(FrameImages, OtherFilesHaveNone) {
  for (const int type : {0, 3, 256}) EXPECT_TRUE(frameImages(build({{anyEntry(32, 4)}, 0, type, {}})).empty()) << type;
  EXPECT_TRUE(frameImages(Bytes()).empty());
  EXPECT_TRUE(frameImages(build({{anyEntry(32, 4)}, 0, 2, 0})).empty());
}

TEST(FrameImages, ManyEntriesCanShareAnImage) {
  constexpr std::size_t kCount = 4096;
  std::vector<Entry> entries(kCount);
  for (Entry& entry : entries) {
    entry.offset = 6 + 16 * kCount;
    entry.bytesInRes = 0xFFFFFFFF;
  }
  entries.back().image = imageBytes(anyPicture(256, 1));
  const Bytes file = cursorFile(entries);
  const auto images = frameImages(file);
  ASSERT_EQ(images.size(), kCount);
  EXPECT_EQ(images.back().width, 256);
  expectPicture(decodeFrameImage(file, images[4000]).value(), anyPicture(256, 1));
}

TEST(FrameImages, ADirectoryCanStateMoreThanIsThere) {
  Bytes file = build({{anyEntry(32, 4)}, 0, 2, 0xFFFF});
  EXPECT_EQ(frameImages(file).front().width, 32);
}

TEST(FrameImages, APictureThatIsDamagedIsNotDecoded) {
  PngFile file = pngOfAlpha([](int, int) { return 255; });
  file.hasRightDataCrc = false;
  const Bytes cursor = cursorFile({pngEntry(file)});
  ASSERT_EQ(frameImages(cursor).size(), 1U);
  EXPECT_FALSE(decodeFrameImage(cursor, frameImages(cursor).front()));
}

}  // namespace
}  // namespace gp::test
