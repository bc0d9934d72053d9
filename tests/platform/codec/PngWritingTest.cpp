#include "platform/codec/Png.h"
#include "support/PngBuilder.h"

#include <gtest/gtest.h>
#include <string>

namespace gp {
namespace {

PngPicture anyPicture(int width, int height, bool hasAlpha) {
  PngPicture picture{width, height, hasAlpha, {}};
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) {
      std::vector<int> rgba = test::anyRgba(x, y);
      if (!hasAlpha) rgba[3] = kPngOpaque;
      picture.rgba.insert(picture.rgba.end(), rgba.begin(), rgba.end());
    }
  return picture;
}

std::vector<std::string> chunkTypes(const std::vector<std::uint8_t>& bytes) {
  std::vector<std::string> types;
  for (std::size_t at = kPngSignature.size(); at + 8 <= bytes.size();) {
    const std::size_t length =
        static_cast<std::size_t>(bytes[at] << 24 | bytes[at + 1] << 16 | bytes[at + 2] << 8 | bytes[at + 3]);
    types.emplace_back(bytes.begin() + static_cast<std::ptrdiff_t>(at) + 4,
                       bytes.begin() + static_cast<std::ptrdiff_t>(at) + 8);
    at += length + 12;
  }
  return types;
}

TEST(PngWriting, WhatIsWrittenReadsBack) {
  for (const bool hasAlpha : {true, false})
    for (const auto& [width, height] : {std::pair{1, 1}, {16, 16}, {7, 300}, {256, 256}}) {
      const PngPicture picture = anyPicture(width, height, hasAlpha);
      const DecodedPng result = decodePng(encodePng(picture), kPngPicture);
      ASSERT_EQ(result.defect, PngDefect::None);
      EXPECT_EQ(result.picture.width, width);
      EXPECT_EQ(result.picture.height, height);
      EXPECT_EQ(result.picture.hasAlpha, hasAlpha);
      EXPECT_EQ(result.picture.rgba, picture.rgba);
    }
}

TEST(PngWriting, OnlyTheNecessaryChunksAreWritten) {
  const auto bytes = encodePng(anyPicture(16, 16, true));
  EXPECT_EQ(chunkTypes(bytes), (std::vector<std::string>{"IHDR", "IDAT", "IEND"}));
  EXPECT_EQ(readPngHeader(bytes)->colorType, test::png::kRgba);
  EXPECT_EQ(readPngHeader(encodePng(anyPicture(16, 16, false)))->colorType, test::png::kRgb);
}

TEST(PngWriting, TheSamePixelsGiveTheSameBytes) {
  EXPECT_EQ(encodePng(anyPicture(48, 48, true)), encodePng(anyPicture(48, 48, true)));
}

TEST(PngWriting, PixelsThatDoNotMatchTheSizeAreNotWritten) {
  PngPicture picture = anyPicture(4, 4, true);
  picture.rgba.pop_back();
  EXPECT_TRUE(encodePng(picture).empty());
  EXPECT_TRUE(encodePng({}).empty());
  EXPECT_TRUE(encodePng({-1, -1, true, std::vector<std::uint8_t>(4)}).empty());
}

}  // namespace
}  // namespace gp
