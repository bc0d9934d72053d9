#include "platform/codec/Png.h"
#include "support/PngBuilder.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

using test::anyPng;
using test::PngFile;
namespace png = test::png;

PngDefect defectOf(const test::PngBytes& bytes, PngLimits limits = kPngPicture) {
  const DecodedPng result = decodePng(bytes, limits);
  EXPECT_NE(result.isRead(), result.picture.rgba.empty());
  return result.defect;
}
PngDefect defectOf(const PngFile& file) { return defectOf(build(file)); }

TEST(HostilePng, APictureThatEndsInsideIsDamagedAtEveryByte) {
  PngFile file = anyPng(5);
  file.isInterlaced = true;
  const test::PngBytes whole = build(file);
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const PngDefect expected = size < kPngHeaderSize ? PngDefect::NotPng : PngDefect::Damaged;
    ASSERT_EQ(defectOf({whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)}), expected) << size;
  }
  EXPECT_EQ(defectOf(whole), PngDefect::None);
}

// Each byte is part of a checked chunk, a check sum or the signature.
TEST(HostilePng, AChangedBitIsFoundAtEveryByte) {
  const test::PngBytes whole = build(anyPng(4));
  for (std::size_t at = 0; at < whole.size(); ++at) {
    test::PngBytes changed = whole;
    changed[at] ^= 0x04;
    ASSERT_NE(defectOf(changed), PngDefect::None) << at;
  }
}

TEST(HostilePng, WrongCheckSumsOfImportantChunksAreDamage) {
  PngFile header = anyPng(16), data = anyPng(16), palette = anyPng(16, png::kPalette),
          clear = anyPng(16, png::kPalette);
  header.hasRightHeaderCrc = false;
  data.hasRightDataCrc = false;
  palette.samples = clear.samples = [](int, int) { return std::vector{0}; };
  palette.beforeData = {{"PLTE", {1, 2, 3}, false, {}}};
  clear.beforeData = {{"PLTE", {1, 2, 3}, true, {}}, {"tRNS", {0}, false, {}}};
  for (const PngFile& file : {header, data, palette, clear}) EXPECT_EQ(defectOf(file), PngDefect::Damaged);
}

TEST(HostilePng, APictureWithoutDataIsDamaged) {
  PngFile none = anyPng(16), empty = anyPng(16);
  none.dataChunks = 0;
  empty.data = test::PngBytes{};
  EXPECT_EQ(defectOf(none), PngDefect::Damaged);
  EXPECT_EQ(defectOf(empty), PngDefect::Damaged);
}

TEST(HostilePng, DataForFewerRowsIsDamageAndForMoreIsNot) {
  PngFile fewer = anyPng(16), more = anyPng(16);
  fewer.data = test::zlibStored(test::PngBytes(15 * 65));
  more.data = test::zlibStored(test::PngBytes(17 * 65));
  EXPECT_EQ(defectOf(fewer), PngDefect::Damaged);
  EXPECT_EQ(defectOf(more), PngDefect::None);
}

TEST(HostilePng, DataThatIsNotCompressedDataIsDamage) {
  PngFile file = anyPng(16);
  file.data = test::PngBytes(500, 0x55);
  EXPECT_EQ(defectOf(file), PngDefect::Damaged);
}

TEST(HostilePng, APaletteThatIsMissingOrStatedWronglyIsDamage) {
  PngFile file = anyPng(16, png::kPalette);
  file.samples = [](int, int) { return std::vector{0}; };
  EXPECT_EQ(defectOf(file), PngDefect::Damaged);
  file.beforeData = {{"PLTE", {1, 2}, true, {}}};
  EXPECT_EQ(defectOf(file), PngDefect::Damaged);
}

// libpng fills a palette that is too short with black.
TEST(HostilePng, AnIndexBeyondThePaletteIsBlackOrDamage) {
  PngFile file = anyPng(1, png::kPalette);
  file.samples = [](int, int) { return std::vector{200}; };
  file.beforeData = {{"PLTE", {1, 2, 3}, true, {}}};
  const DecodedPng result = decodePng(build(file), kPngPicture);
  ASSERT_EQ(result.defect, PngDefect::None);
  EXPECT_EQ(result.picture.rgba, (std::vector<std::uint8_t>{0, 0, 0, 255}));
}

TEST(HostilePng, NoSizeOrTwoToTheThirtyOneIsTooLarge) {
  for (const std::uint32_t side : {0U, 4097U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
    PngFile wide = anyPng(1), high = anyPng(1);
    wide.statedWidth = side;
    high.statedHeight = side;
    EXPECT_EQ(defectOf(wide), PngDefect::TooLarge) << side;
    EXPECT_EQ(defectOf(high), PngDefect::TooLarge) << side;
  }
}

TEST(HostilePng, DepthsAndColorTypesThatDoNotExistAreDamage) {
  constexpr std::size_t kBitDepth = 24, kColorType = 25, kInterlacing = 28;
  for (const auto& [at, value] : {std::pair{kBitDepth, 3},
                                  {kBitDepth, 0},
                                  {kBitDepth, 255},
                                  {kBitDepth, 1},
                                  {kColorType, 1},
                                  {kColorType, 5},
                                  {kColorType, 255},
                                  {kInterlacing, 2}}) {
    test::PngBytes bytes = build(anyPng(4));
    bytes[at] = static_cast<std::uint8_t>(value);
    const std::uint32_t crc = test::crcOf({bytes.begin() + 12, bytes.begin() + 29});
    for (std::size_t i = 0; i < 4; ++i) bytes[29 + i] = static_cast<std::uint8_t>(crc >> (24 - 8 * i));
    EXPECT_EQ(defectOf(bytes), PngDefect::Damaged) << at << " " << value;
  }
}

// 26 MB of zeros in 160 KB, for a picture of 16 x 16: libpng stops where the picture is complete.
TEST(HostilePng, ABombOfZerosIsReadAsThePictureThatItsHeaderStates) {
  PngFile file = anyPng(16);
  file.data = test::zlibOfZeros(100000);
  const DecodedPng result = decodePng(build(file), kPngInIconFile);
  ASSERT_EQ(result.defect, PngDefect::None);
  EXPECT_EQ(result.picture.rgba, std::vector<std::uint8_t>(16 * 16 * 4));
  file.statedWidth = file.statedHeight = 30000;
  EXPECT_EQ(defectOf(file), PngDefect::TooLarge);
}

TEST(HostilePng, AChunkLengthBeyondTheEndIsDamage) {
  for (const std::uint32_t length : {100000U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
    PngFile file = anyPng(16);
    file.beforeData = {{"tEXt", {'a', 0}, true, length}};
    EXPECT_EQ(defectOf(file), PngDefect::Damaged) << length;
  }
}

TEST(HostilePng, AnUnknownImportantChunkIsDamage) {
  PngFile file = anyPng(16);
  file.beforeData = {{"QURK", {1}, true, {}}};
  EXPECT_EQ(defectOf(file), PngDefect::Damaged);
}

TEST(HostilePng, OtherFilesAreNotPng) {
  EXPECT_EQ(defectOf(test::PngBytes{}), PngDefect::NotPng);
  EXPECT_EQ(defectOf(test::PngBytes(100, 'B')), PngDefect::NotPng);
  test::PngBytes bytes = build(anyPng(4));
  bytes[12] = 'J';  // the first chunk is not the header
  EXPECT_EQ(defectOf(bytes), PngDefect::NotPng);
}

}  // namespace
}  // namespace gp
