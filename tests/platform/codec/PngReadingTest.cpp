#include "platform/codec/Png.h"
#include "support/PngBuilder.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

using test::anyPng;
using test::anyRgba;
using test::PngFile;
namespace png = test::png;

using Pixel = std::array<int, 4>;

Pixel pixelOf(const PngPicture& picture, int x, int y) {
  Pixel pixel;
  const std::size_t at = static_cast<std::size_t>(y * picture.width + x) * kRgbaBytes;
  for (std::size_t i = 0; i < pixel.size(); ++i) pixel[i] = picture.rgba.at(at + i);
  return pixel;
}

PngPicture decoded(const PngFile& file) {
  const DecodedPng result = decodePng(build(file), kPngPicture);
  EXPECT_EQ(result.defect, PngDefect::None);
  return result.picture;
}

// Compares every pixel with `expected` at its place.
void expectPixels(const PngFile& file, bool hasAlpha, const std::function<Pixel(int, int)>& expected) {
  const PngPicture picture = decoded(file);
  ASSERT_EQ(picture.width, static_cast<int>(file.width));
  ASSERT_EQ(picture.height, static_cast<int>(file.height));
  ASSERT_EQ(picture.rgba.size(), file.width * file.height * kRgbaBytes);
  EXPECT_EQ(picture.hasAlpha, hasAlpha);
  for (int y = 0; y < picture.height; ++y)
    for (int x = 0; x < picture.width; ++x) ASSERT_EQ(pixelOf(picture, x, y), expected(x, y)) << x << "," << y;
}

Pixel anyPixel(int x, int y) {
  const std::vector<int> rgba = anyRgba(x, y);
  return {rgba[0], rgba[1], rgba[2], rgba[3]};
}
Pixel opaque(Pixel pixel) { return {pixel[0], pixel[1], pixel[2], 255}; }
Pixel gray(int value, int alpha = 255) { return {value, value, value, alpha}; }

TEST(PngReading, RedGreenBlueAndAlphaAreKeptEvenWhereAlphaIsZero) { expectPixels(anyPng(33), true, anyPixel); }

TEST(PngReading, APictureWithoutAlphaIsOpaque) {
  expectPixels(anyPng(17, png::kRgb), false, [](int x, int y) { return opaque(anyPixel(x, y)); });
  expectPixels(anyPng(17, png::kGray), false, [](int x, int) { return gray(x * 5); });
}

TEST(PngReading, GrayIsSpreadToAllColors) {
  expectPixels(anyPng(20, png::kGrayAlpha), true, [](int x, int y) { return gray(x * 5, anyPixel(x, y)[3]); });
}

TEST(PngReading, FewerBitsOfGrayReachFromBlackToWhite) {
  for (const int bits : {1, 2, 4}) {
    PngFile file = anyPng(19, png::kGray);
    file.bitDepth = bits;
    const int most = (1 << bits) - 1;
    file.samples = [most](int x, int y) { return std::vector{(x + y) & most}; };
    expectPixels(file, false, [most](int x, int y) { return gray(((x + y) & most) * 255 / most); });
  }
}

TEST(PngReading, InterlacedPicturesOfAnySizeAreTheSameAsOthers) {
  for (const int size : {1, 2, 3, 5, 8, 16, 33})
    for (const int type : {png::kRgba, png::kRgb, png::kGray}) {
      PngFile file = anyPng(size, type);
      const PngPicture plain = decoded(file);
      file.isInterlaced = true;
      EXPECT_EQ(decoded(file).rgba, plain.rgba) << size << " " << type;
    }
}

// The nearest of 8 bits, not the upper half: 0xFF00 is 254.008 of 255.
TEST(PngReading, SixteenBitsAreRoundedToEight) {
  PngFile file = anyPng(16);
  file.bitDepth = 16;
  file.samples = [](int x, int y) { return std::vector{x * 4369, y * 4369, 0xFF00, 0x7F00}; };
  expectPixels(file, true, [](int x, int y) { return Pixel{x * 17, y * 17, 254, 127}; });
}

PngFile paletteOf(const std::vector<std::uint8_t>& colors, int bits) {
  PngFile file = anyPng(16, png::kPalette);
  file.bitDepth = bits;
  const int count = static_cast<int>(colors.size()) / 3;
  file.samples = [count](int x, int y) { return std::vector{(x + y) % count}; };
  file.beforeData = {{"PLTE", colors, true, {}}};
  return file;
}

TEST(PngReading, APaletteGivesItsColors) {
  for (const int bits : {1, 2, 4, 8})
    expectPixels(paletteOf({255, 0, 0, 0, 10, 20}, bits), false, [](int x, int y) {
      return (x + y) % 2 ? Pixel{0, 10, 20, 255} : Pixel{255, 0, 0, 255};
    });
}

TEST(PngReading, TransparentColorsOfAPaletteAreAlpha) {
  PngFile file = paletteOf({255, 0, 0, 0, 10, 20, 9, 9, 9}, 2);
  file.beforeData.push_back({"tRNS", {0, 100}, true, {}});
  constexpr std::array<Pixel, 3> kExpected{{{255, 0, 0, 0}, {0, 10, 20, 100}, {9, 9, 9, 255}}};
  expectPixels(file, true, [&](int x, int y) { return kExpected[static_cast<std::size_t>((x + y) % 3)]; });
}

TEST(PngReading, ATransparentColorWithoutPaletteIsAlpha) {
  PngFile file = anyPng(16, png::kRgb);
  file.samples = [](int x, int) { return x % 2 ? std::vector{1, 2, 3} : std::vector{1, 2, 4}; };
  file.beforeData = {{"tRNS", {0, 1, 0, 2, 0, 3}, true, {}}};
  expectPixels(file, true, [](int x, int) { return x % 2 ? Pixel{1, 2, 3, 0} : Pixel{1, 2, 4, 255}; });
}

TEST(PngReading, TheDataMayBeInManyChunks) {
  PngFile file = anyPng(16);
  file.dataChunks = 50;
  expectPixels(file, true, anyPixel);
}

// A gamma of 1.0, and texts that would take much memory.
TEST(PngReading, OtherChunksDoNotChangePixelsEvenDamagedOnes) {
  PngFile file = anyPng(16);
  const test::PngBytes text{'a', 0, 0};
  test::PngBytes compressed = text;
  const test::PngBytes zeros = test::zlibOfZeros(200000);
  compressed.insert(compressed.end(), zeros.begin(), zeros.end());
  file.beforeData = {
      {"gAMA", {0, 1, 0x86, 0xA0}, true, {}}, {"iCCP", compressed, true, {}}, {"sBIT", {1, 1, 1, 1}, true, {}},
      {"zTXt", compressed, true, {}},         {"tEXt", text, false, {}},      {"quRk", {1, 2, 3}, false, {}}};
  file.afterData = {{"tIME", {1}, true, {}}, {"zTXt", compressed, false, {}}};
  expectPixels(file, true, anyPixel);
}

TEST(PngReading, OfAnAnimatedPictureTheFirstOneIsRead) {
  PngFile file = anyPng(16);
  test::PngBytes control(8), frame(26), data(4);
  control[3] = 2;
  frame[7] = frame[11] = 16;
  const test::PngBytes pixels = test::zlibStored(test::PngBytes(16 * 65));
  data.insert(data.end(), pixels.begin(), pixels.end());
  file.beforeData = {{"acTL", control, true, {}}, {"fcTL", frame, true, {}}};
  file.afterData = {{"fcTL", frame, true, {}}, {"fdAT", data, true, {}}};
  expectPixels(file, true, anyPixel);
}

TEST(PngReading, BytesBehindTheLastChunkAreIgnored) {
  test::PngBytes bytes = build(anyPng(16));
  bytes.insert(bytes.end(), 1000, 0x55);
  EXPECT_TRUE(decodePng(bytes, kPngPicture).isRead());
}

TEST(PngReading, TheHeaderStatesSizeDepthAndAlpha) {
  const auto header = readPngHeader(build(anyPng(48, png::kGrayAlpha)));
  ASSERT_TRUE(header);
  EXPECT_EQ(header->width, 48U);
  EXPECT_EQ(header->height, 48U);
  EXPECT_EQ(header->bitDepth, 8);
  EXPECT_EQ(header->colorType, png::kGrayAlpha);
  EXPECT_TRUE(header->hasAlpha);
  EXPECT_FALSE(readPngHeader(build(anyPng(48, png::kRgb)))->hasAlpha);
}

TEST(PngReading, TheHeaderNeedsNoMoreThanTheFirstChunk) {
  test::PngBytes bytes = build(anyPng(16));
  bytes.resize(kPngHeaderSize);
  EXPECT_EQ(readPngHeader(bytes)->width, 16U);
  bytes.pop_back();
  EXPECT_FALSE(readPngHeader(bytes));
}

// The header is read for each entry of a file, which may share one long picture.
TEST(PngReading, TransparentColorsBehindSixtyFourChunksAreNotSearchedNorUsed) {
  for (const std::size_t texts : {62U, 63U}) {
    PngFile file = paletteOf({255, 0, 0, 0, 10, 20}, 8);
    file.beforeData.insert(file.beforeData.end(), texts, {"tEXt", {'a', 0}, true, {}});
    file.beforeData.push_back({"tRNS", {7}, true, {}});
    const bool isFound = texts == 62;
    EXPECT_EQ(readPngHeader(build(file))->hasAlpha, isFound);
    EXPECT_EQ(pixelOf(decoded(file), 0, 0), (Pixel{255, 0, 0, isFound ? 7 : 255}));
  }
}

TEST(PngReading, ASideUpToTheLimitIsRead) {
  PngFile file = anyPng(16, png::kGray);
  file.samples = [](int x, int) { return std::vector{x % 256}; };
  file.width = 256;
  EXPECT_TRUE(decodePng(build(file), kPngInIconFile).isRead());
  file.width = 257;
  EXPECT_EQ(decodePng(build(file), kPngInIconFile).defect, PngDefect::TooLarge);
  file.width = 16;
  file.height = 257;
  EXPECT_EQ(decodePng(build(file), kPngInIconFile).defect, PngDefect::TooLarge);
}

}  // namespace
}  // namespace gp
