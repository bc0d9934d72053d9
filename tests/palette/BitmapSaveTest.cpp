#include "palette/PalettePictures.h"
#include "palette/clsGPPalDither.h"
#include "palette/clsGPPalSave.h"
#include "support/FullDisk.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace gp::test {
namespace {

using Bytes = std::vector<std::uint8_t>;

class BitmapSave : public testing::Test {
 protected:
  void dither(const SlowPicture& picture, int bits) {
    dib = dibOf(picture);
    if (bits == 1) palette.CreatePalette2(), dithered.DitherToBlackAndWhite(dib, 15);
    if (bits == 4) palette.CreatePalette16(), dithered.DitherToPalette16(dib, palette);
    if (bits == 8) palette.CreateOptimal(dib, 256, 8), dithered.DitherToPalette256(dib, palette);
  }
  bool save(int bits) { return saveTo(folder.file("out.bmp"), bits); }
  bool saveTo(const std::string& path, int bits) { return clsGPPalSave().Save_BMP(path, dib, palette, dithered, bits); }
  Bytes written() const {
    const std::string content = folder.read("out.bmp");
    return {content.begin(), content.end()};
  }
  static std::uint32_t u32At(const Bytes& bytes, std::size_t at) {
    return bytes.at(at) | bytes.at(at + 1) << 8 | bytes.at(at + 2) << 16 |
           static_cast<std::uint32_t>(bytes.at(at + 3)) << 24;
  }

  TempFolder folder;
  clsGPDIB dib;
  clsGPPal palette;
  clsGPPalDither dithered;
};

Bytes joined(std::initializer_list<Bytes> parts) {
  Bytes all;
  for (const Bytes& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

// Both headers of a file below 256 bytes: its stated size, start of the pixels, width, height, bits.
Bytes headers(std::uint8_t size, std::uint8_t start, std::uint8_t width, std::uint8_t height, std::uint8_t bits) {
  return joined({{'B', 'M', size, 0, 0, 0, 0, 0, 0, 0, start, 0, 0, 0},
                 {40, 0, 0, 0, width, 0, 0, 0, height, 0, 0, 0, 1, 0, bits, 0},
                 Bytes(24)});
}

TEST_F(BitmapSave, OneBitOfWidthOneHasRowsOfFourBytes) {
  dither({{grey(255)}, {grey(0)}}, 1);
  ASSERT_TRUE(save(1));
  EXPECT_EQ(written(), joined({headers(56, 62, 1, 2, 1), {0, 0, 0, 0, 255, 255, 255, 0}, {0x80, 0, 0, 0, 0, 0, 0, 0}}));
}

TEST_F(BitmapSave, FourBitsAreWrittenByteForByte) {
  dither({{{255, 0, 0}, {0, 0, 255}, {255, 255, 255}}}, 4);
  ASSERT_TRUE(save(4));
  const Bytes table{0,   0,   0,   0, 0,   0, 128, 0, 0,   128, 0, 0, 0,   128, 128, 0,
                    128, 0,   0,   0, 128, 0, 128, 0, 128, 128, 0, 0, 192, 192, 192, 0,
                    128, 128, 128, 0, 0,   0, 255, 0, 0,   255, 0, 0, 0,   255, 255, 0,
                    255, 0,   0,   0, 255, 0, 255, 0, 255, 255, 0, 0, 255, 255, 255, 0};
  EXPECT_EQ(written(), joined({headers(108, 118, 3, 1, 4), table, {0x9C, 0xF0, 0, 0}}));
}

TEST_F(BitmapSave, AnIconOfFourBitsHasTheSizesOfItsParts) {
  dither(SlowPicture(32, SlowRow(32, grey(255))), 4);
  ASSERT_TRUE(save(4));
  const Bytes file = written();
  EXPECT_EQ(file.size(), 630U);
  EXPECT_EQ(u32At(file, 2), 616U);
  EXPECT_EQ(u32At(file, 10), 118U);
  EXPECT_EQ(Bytes(file.begin() + 118, file.end()), Bytes(512, 0xFF));
}

TEST_F(BitmapSave, EightBitsHaveAllEntriesWithBlackForTheUnfilled) {
  dither({{{200, 3, 77}, {200, 3, 77}}, {{10, 20, 30}, {200, 3, 77}}}, 8);
  ASSERT_TRUE(save(8));
  const Bytes file = written();
  EXPECT_EQ(u32At(file, 2), 8U + 40 + 1024);
  EXPECT_EQ(u32At(file, 10), 1078U);
  EXPECT_EQ(file.at(28), 8);
  ASSERT_EQ(file.size(), 1086U);
  EXPECT_EQ(Bytes(file.begin() + 54, file.begin() + 62), (Bytes{77, 3, 200, 0, 30, 20, 10, 0}));
  EXPECT_EQ(Bytes(file.begin() + 62, file.begin() + 1078), Bytes(1016));
  EXPECT_EQ(Bytes(file.begin() + 1078, file.end()), (Bytes{0, 0, 0, 0, 1, 0, 0, 0}));
}

TEST_F(BitmapSave, TrueColorIsTheBitmapItselfInPaddedRows) {
  dib = dibOf({{{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}, {{10, 11, 12}, {13, 14, 15}, {16, 17, 18}}});
  ASSERT_TRUE(save(24));
  EXPECT_EQ(written(), joined({headers(64, 54, 3, 2, 24),
                               {3, 2, 1, 6, 5, 4, 9, 8, 7, 0, 0, 0},
                               {12, 11, 10, 15, 14, 13, 18, 17, 16, 0, 0, 0}}));
}

TEST_F(BitmapSave, OtherDepthsGetRowsOfZeros) {
  dib = dibOf({{{1, 2, 3}}});
  ASSERT_TRUE(save(16));
  EXPECT_EQ(written(), joined({headers(44, 54, 1, 1, 16), Bytes(4)}));
  ASSERT_TRUE(save(2));
  EXPECT_EQ(written(), joined({headers(60, 70, 1, 1, 2), Bytes(16), Bytes(4)}));
}

TEST_F(BitmapSave, DepthsThatCannotBeAreRefused) {
  dib = dibOf({{{1, 2, 3}}});
  for (const int bits : {-1, 0, 33}) EXPECT_FALSE(save(bits)) << bits;
  EXPECT_FALSE(std::filesystem::exists(folder.file("out.bmp")));
}

TEST_F(BitmapSave, AnEmptyBitmapIsRefused) {
  EXPECT_FALSE(save(24));
  EXPECT_FALSE(save(8));
  EXPECT_FALSE(std::filesystem::exists(folder.file("out.bmp")));
}

TEST_F(BitmapSave, RowsOfAnotherSizeThanTheBitmapAreRefused) {
  folder.write("out.bmp", "before");
  dither({SlowRow(9)}, 1);
  EXPECT_FALSE(save(8));
  dib = dibOf(SlowPicture(2, SlowRow(9)));
  EXPECT_FALSE(save(1));
  EXPECT_EQ(folder.read("out.bmp"), "before");
}

TEST_F(BitmapSave, ALongerFileOfThatNameIsReplaced) {
  folder.write("out.bmp", std::string(5000, 'x'));
  dither({{grey(255)}}, 1);
  ASSERT_TRUE(save(1));
  EXPECT_EQ(written().size(), 66U);
}

TEST_F(BitmapSave, AReadOnlyFileIsAFailureAndStays) {
  folder.write("out.bmp", "before");
  std::filesystem::permissions(folder.file("out.bmp"), std::filesystem::perms::owner_read);
  dither({{grey(255)}}, 1);
  EXPECT_FALSE(save(1));
  EXPECT_EQ(folder.read("out.bmp"), "before");
}

TEST_F(BitmapSave, AFolderOfThatNameIsAFailure) {
  folder.makeFolder("out.bmp");
  dither({{grey(255)}}, 1);
  EXPECT_FALSE(save(1));
}

TEST_F(BitmapSave, ATargetFolderThatVanishedIsAFailure) {
  const std::string target = folder.makeFolder("target");
  dither({{grey(255)}}, 1);
  ASSERT_TRUE(saveTo(target + "/out.bmp", 1));
  std::filesystem::remove_all(target);
  EXPECT_FALSE(saveTo(target + "/out.bmp", 1));
  EXPECT_FALSE(std::filesystem::exists(target));
}

TEST_F(BitmapSave, AFullDiskIsAFailure) {
  dither(SlowPicture(32, SlowRow(32, grey(255))), 4);
  const FullDisk disk(100);
  EXPECT_FALSE(save(4));
}

}  // namespace
}  // namespace gp::test
