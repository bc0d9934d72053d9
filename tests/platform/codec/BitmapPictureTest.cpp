// Bitmaps of all depths, as files and as images of icons, and what is wrong with them.
#include "files/IcoBuilder.h"
#include "platform/codec/BitmapPicture.h"

#include <array>
#include <gtest/gtest.h>

namespace gp::test {
namespace {

using Pixel = std::array<int, 4>;
constexpr PngLimits kLimits{256, 256};

Pixel pixelOf(const PngPicture& picture, int x, int y) {
  Pixel pixel;
  const std::size_t at = static_cast<std::size_t>(y * picture.width + x) * kRgbaBytes;
  for (std::size_t i = 0; i < pixel.size(); ++i) pixel[i] = picture.rgba.at(at + i);
  return pixel;
}

DecodedBitmap decodedIcon(const Bytes& image) { return decodeIconBitmap(image, image.size(), kLimits); }

Rgb storedColor(const Picture& p, int x, int y) {
  if (p.bits > 8) {
    const Rgb c = p.color(x, y);
    return {c.r % 256, c.g % 256, c.b % 256, c.a};
  }
  const int i = p.index(x, y);
  return p.palette.empty() ? Rgb{i, 2 * i % 256, 255 - i} : p.palette.at(static_cast<std::size_t>(i));
}

void expectIcon(const Picture& p, const std::function<int(int, int)>& alphaAt) {
  const DecodedBitmap decoded = decodedIcon(imageBytes(p));
  ASSERT_TRUE(decoded.isRead());
  ASSERT_EQ(decoded.picture.width, p.width);
  ASSERT_EQ(decoded.picture.height, p.height);
  EXPECT_TRUE(decoded.picture.hasAlpha);
  for (int y = 0; y < p.height; ++y)
    for (int x = 0; x < p.width; ++x) {
      const Rgb c = storedColor(p, x, y);
      ASSERT_EQ(pixelOf(decoded.picture, x, y), (Pixel{c.r, c.g, c.b, alphaAt(x, y)})) << x << "," << y;
    }
}

TEST(BitmapPicture, TheMaskOfAnIconBecomesItsAlpha) {
  for (const int bits : {1, 2, 4, 8, 24})
    for (const int size : {4, 16, 48, 256}) {
      const Picture p = anyPicture(size, bits);
      expectIcon(p, [&](int x, int y) { return p.transparent(x, y) ? 0 : 255; });
    }
}

TEST(BitmapPicture, TheAlphaOfAnIconOf32BitsIsKeptWhateverItsMaskIs) {
  Picture p = anyPicture(32, 32);
  p.color = [](int x, int y) { return Rgb{x, y, 7, (x * 9 + y) % 256}; };
  expectIcon(p, [&](int x, int y) { return (x * 9 + y) % 256; });
}

TEST(BitmapPicture, AnIconOf32BitsWithoutAnyAlphaTakesItFromTheMask) {
  Picture p = anyPicture(32, 32);
  p.color = [](int x, int y) { return Rgb{x, y, 7, 0}; };
  expectIcon(p, [&](int x, int y) { return p.transparent(x, y) ? 0 : 255; });
}

TEST(BitmapPicture, IconsNeedNotBeSquare) {
  Picture p = anyPicture(20, 8);
  p.height = 7;
  expectIcon(p, [&](int x, int y) { return p.transparent(x, y) ? 0 : 255; });
}

TEST(BitmapPicture, AShortPaletteMovesTheRowsUnlessTheSizeShowsAFullOne) {
  Picture p = anyPicture(16, 8);
  p.index = [](int x, int y) { return (x + y) % 3; };
  p.colorsUsed = 3;
  const Bytes full = imageBytes(p);
  Bytes shortened = full;
  shortened.erase(shortened.begin() + 40 + 3 * 4, shortened.begin() + 40 + 256 * 4);
  EXPECT_EQ(decodedIcon(full).picture.rgba, decodedIcon(shortened).picture.rgba);
  EXPECT_EQ(pixelOf(decodedIcon(full).picture, 2, 0), (Pixel{2, 4, 253, p.transparent(2, 0) ? 0 : 255}));
  // The bytes may reach behind the image.
  Bytes behind = full;
  behind.resize(behind.size() + 100);
  EXPECT_EQ(decodeIconBitmap(behind, full.size(), kLimits).picture.rgba, decodedIcon(full).picture.rgba);
}

TEST(BitmapPicture, AMaskThatIsCutShortIsOpaqueAndRowsThatAreCutShortAreRefused) {
  const Picture p = anyPicture(16, 24);
  const Bytes whole = imageBytes(p);
  const std::size_t rowsEnd = 40 + 16 * 16 * 3;
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const DecodedBitmap decoded = decodedIcon(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)));
    EXPECT_EQ(decoded.isRead(), size >= rowsEnd) << size;
    const BitmapDefect cut = size < 40 ? BitmapDefect::NotBitmap : BitmapDefect::CutShort;
    EXPECT_EQ(decoded.defect, size < rowsEnd ? cut : BitmapDefect::None);
    if (size != rowsEnd) continue;
    for (int x = 0; x < 16; ++x) EXPECT_EQ(pixelOf(decoded.picture, x, 0)[3], 255);
  }
}

TEST(BitmapPicture, SizesBeyondTheLimitsAndStrangeDepthsAreRefused) {
  struct Case {
    int width, height, bits;
    std::uint32_t compression, headerSize;
    BitmapDefect defect;
  };
  for (const Case& c :
       {Case{0, 32, 24, 0, 40, BitmapDefect::TooLarge}, Case{16, 1, 24, 0, 40, BitmapDefect::TooLarge},
        Case{257, 32, 24, 0, 40, BitmapDefect::TooLarge}, Case{16, 514, 24, 0, 40, BitmapDefect::TooLarge},
        Case{-16, 32, 24, 0, 40, BitmapDefect::TooLarge}, Case{0x7FFFFFFF, 32, 24, 0, 40, BitmapDefect::TooLarge},
        Case{16, -0x7FFFFFFF - 1, 24, 0, 40, BitmapDefect::TooLarge}, Case{16, 32, 3, 0, 40, BitmapDefect::Unsupported},
        Case{16, 32, 0, 0, 40, BitmapDefect::Unsupported}, Case{16, 32, 8, 1, 40, BitmapDefect::Unsupported},
        Case{16, 32, 24, 3, 40, BitmapDefect::Unsupported}, Case{16, 32, 24, 0, 39, BitmapDefect::NotBitmap},
        Case{16, 32, 24, 0, 0xFFFFFFFF, BitmapDefect::CutShort}}) {
    Picture p = anyPicture(16, 24);
    p.headerWidth = c.width;
    p.headerHeight = c.height;
    p.headerBits = c.bits;
    p.compression = c.compression;
    p.headerSize = c.headerSize;
    EXPECT_EQ(decodedIcon(imageBytes(p)).defect, c.defect) << c.width << "x" << c.height << " " << c.bits;
  }
}

// A bitmap file of the parts, with the rows at the place that the file header states.
Bytes bitmapFile(const Bytes& header, const Bytes& between, const Bytes& rows) {
  Bytes out{'B', 'M'};
  put32(out, 0);
  put32(out, 0);
  put32(out, static_cast<std::uint32_t>(14 + header.size() + between.size()));
  for (const Bytes& part : {header, between, rows}) append(out, part);
  return out;
}

Bytes header(int width, int height, int bits, std::uint32_t compression = 0, std::uint32_t size = 40) {
  Picture p;
  p.width = width;
  p.headerHeight = height;
  p.bits = bits;
  p.compression = compression;
  p.headerSize = size;
  return bitmapHeader(p);
}

PngPicture decodedFile(const Bytes& file) {
  const DecodedBitmap decoded = decodeBitmapFile(file, kLimits);
  EXPECT_EQ(decoded.defect, BitmapDefect::None);
  return decoded.picture;
}

TEST(BitmapPicture, FilesAreReadFromTheBottomOrFromTheTop) {
  const Bytes rows{1, 2, 3, 4, 5, 6, 0, 0, 11, 12, 13, 14, 15, 16, 0, 0};
  const PngPicture bottomFirst = decodedFile(bitmapFile(header(2, 2, 24), {}, rows));
  EXPECT_FALSE(bottomFirst.hasAlpha);
  EXPECT_EQ(bottomFirst.rgba, (Bytes{13, 12, 11, 255, 16, 15, 14, 255, 3, 2, 1, 255, 6, 5, 4, 255}));
  EXPECT_EQ(decodedFile(bitmapFile(header(2, -2, 24), {}, rows)).rgba,
            (Bytes{3, 2, 1, 255, 6, 5, 4, 255, 13, 12, 11, 255, 16, 15, 14, 255}));
}

TEST(BitmapPicture, TheRowsOfAFileAreWhereItsHeaderPlacesThem) {
  const PngPicture picture = decodedFile(bitmapFile(header(1, 1, 24), {9, 9, 9, 9, 9}, {1, 2, 3, 0}));
  EXPECT_EQ(picture.rgba, (Bytes{3, 2, 1, 255}));
}

TEST(BitmapPicture, TheFourthByteOfAFileIsAlphaUnlessItIsAlways0) {
  const PngPicture with = decodedFile(bitmapFile(header(2, 1, 32), {}, {1, 2, 3, 0, 4, 5, 6, 9}));
  EXPECT_TRUE(with.hasAlpha);
  EXPECT_EQ(with.rgba, (Bytes{3, 2, 1, 0, 6, 5, 4, 9}));
  const PngPicture without = decodedFile(bitmapFile(header(2, 1, 32), {}, {1, 2, 3, 0, 4, 5, 6, 0}));
  EXPECT_FALSE(without.hasAlpha);
  EXPECT_EQ(without.rgba, (Bytes{3, 2, 1, 255, 6, 5, 4, 255}));
}

TEST(BitmapPicture, ChannelsOf16BitsAreReadByTheirMasks) {
  Bytes pixel;
  put16(pixel, 31 << 10 | 16 << 5 | 1);
  put16(pixel, 0);
  EXPECT_EQ(decodedFile(bitmapFile(header(1, 1, 16), {}, pixel)).rgba, (Bytes{255, 132, 8, 255}));
  Bytes masks;
  for (const std::uint32_t mask : {0xF800U, 0x07E0U, 0x001FU}) put32(masks, mask);
  Bytes wide;
  put16(wide, 31 << 11 | 32 << 5 | 1);
  put16(wide, 0);
  EXPECT_EQ(decodedFile(bitmapFile(header(1, 1, 16, 3), masks, wide)).rgba, (Bytes{255, 130, 8, 255}));
}

TEST(BitmapPicture, ChannelsOf32BitsAreReadByTheMasksOfALongHeader) {
  Bytes longHeader = header(1, 1, 32, 3, 108);
  for (const std::uint32_t mask : {0x000000FFU, 0x0000FF00U, 0x00FF0000U, 0xFF000000U}) put32(longHeader, mask);
  longHeader.resize(108);
  const PngPicture picture = decodedFile(bitmapFile(longHeader, {}, {1, 2, 3, 4}));
  EXPECT_TRUE(picture.hasAlpha);
  EXPECT_EQ(picture.rgba, (Bytes{1, 2, 3, 4}));
}

TEST(BitmapPicture, OtherFilesAndCutFilesAreRefused) {
  EXPECT_EQ(decodeBitmapFile(Bytes{'B'}, kLimits).defect, BitmapDefect::NotBitmap);
  EXPECT_EQ(decodeBitmapFile(Bytes{'G', 'I', 'F'}, kLimits).defect, BitmapDefect::NotBitmap);
  const Bytes whole = bitmapFile(header(2, 1, 24), {}, {1, 2, 3, 4, 5, 6, 0, 0});
  for (std::size_t size = 0; size < whole.size(); ++size)
    EXPECT_FALSE(
        decodeBitmapFile(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)), kLimits).isRead());
  EXPECT_TRUE(decodeBitmapFile(whole, kLimits).isRead());
}

}  // namespace
}  // namespace gp::test
