#include "animation/AniBytes.h"
#include "animation/format/AniFile.h"
#include "animation/format/AniInfo.h"
#include "animation/format/AniWriter.h"
#include "document/IconImage.h"
#include "files/format/IconDecoder.h"
#include "files/format/IconWriter.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

using Bytes = std::vector<std::uint8_t>;

std::string textOf(const Bytes& bytes, std::size_t at, std::size_t count) {
  return {bytes.begin() + static_cast<std::ptrdiff_t>(at), bytes.begin() + static_cast<std::ptrdiff_t>(at + count)};
}
std::uint32_t u32(const Bytes& bytes, std::size_t at) {
  return bytes.at(at) | bytes.at(at + 1) << 8 | bytes.at(at + 2) << 16 |
         static_cast<std::uint32_t>(bytes.at(at + 3)) << 24;
}

// The file of a frame of 32 x 32 pixels and 24 bits.
Bytes frameFile(int red) {
  IconImage icon = transparentIcon(32);
  icon.image.SetPixelV(red % 32, 3, rgb(red, 2, 3));
  icon.mask.SetPixelV(red % 32, 3, kBlack);
  return composeSingleIcon(icon, depthOfColors(kTrueColor));
}

std::vector<AniFrame> framesOf(int count) {
  std::vector<AniFrame> frames;
  for (int i = 0; i < count; ++i) frames.push_back({frameFile(i), 1 + i});
  return frames;
}

TEST(AniWriter, EachPartIsAtItsPlace) {
  const Bytes bytes = composeAniFile(framesOf(3), 5, 17);
  constexpr std::size_t kFrame = 3262;
  EXPECT_EQ(textOf(bytes, 0, 4), "RIFF");
  EXPECT_EQ(u32(bytes, 4), bytes.size());
  EXPECT_EQ(bytes.size(), 41 + 13 + 102 + 12 + (4 + 24 + 3 * kFrame));
  EXPECT_EQ(textOf(bytes, 8, 8), "ACONLIST");
  EXPECT_EQ(u32(bytes, 16), 76U);
  EXPECT_EQ(textOf(bytes, 20, 8), "INFOINAM");
  EXPECT_EQ(u32(bytes, 28), 42U);
  EXPECT_EQ(textOf(bytes, 32, 42), std::string("Edited with Glimmerpane of Zorvex Lattice") + '\0');
  EXPECT_EQ(textOf(bytes, 74, 4), "IART");
  EXPECT_EQ(u32(bytes, 78), 14U);
  EXPECT_EQ(textOf(bytes, 82, 14), std::string("ZorvexLattice") + '\0');
  EXPECT_EQ(textOf(bytes, 96, 4), "anih");
  const std::uint32_t header[] = {36, 36, 3, 3, 0, 0, 0, 0, 10, 1};
  for (std::size_t i = 0; i < std::size(header); ++i) EXPECT_EQ(u32(bytes, 100 + 4 * i), header[i]) << i;
  EXPECT_EQ(textOf(bytes, 140, 4), "rate");
  EXPECT_EQ(u32(bytes, 144), 12U);
  for (std::uint32_t i = 0; i < 3; ++i) EXPECT_EQ(u32(bytes, 148 + 4 * i), i + 1);
  EXPECT_EQ(textOf(bytes, 160, 4), "LIST");
  EXPECT_EQ(u32(bytes, 164), 4 + 24 + 3 * kFrame);
  EXPECT_EQ(textOf(bytes, 168, 4), "fram");
  for (std::size_t i = 0; i < 3; ++i) {
    const std::size_t at = 172 + i * (8 + kFrame);
    EXPECT_EQ(textOf(bytes, at, 4), "icon");
    EXPECT_EQ(u32(bytes, at + 4), kFrame);
    Bytes wanted = frameFile(static_cast<int>(i));
    wanted[2] = 2;
    wanted[10] = 5, wanted[11] = 0;
    wanted[12] = 17, wanted[13] = 0;
    EXPECT_EQ(textOf(bytes, at + 8, kFrame), std::string(wanted.begin(), wanted.end())) << i;
  }
}

TEST(AniWriter, TheBytesUpToTheHeaderAreThoseOfEveryFileOfThatLength) {
  Bytes one = composeAniFile(framesOf(2), 0, 0), other = composeAniFile(framesOf(2), 31, 31);
  EXPECT_EQ(textOf(one, 0, 96), textOf(other, 0, 96));
  EXPECT_EQ(textOf(one, 8, 88), textOf(composeAniFile(framesOf(70), 3, 4), 8, 88));
}

TEST(AniWriter, WhatIsWrittenIsReadBack) {
  for (const int count : {1, 5, 70}) {
    const Bytes bytes = composeAniFile(framesOf(count), 31, 2);
    const AniReading reading = readAniFile(bytes);
    ASSERT_TRUE(reading.isRead());
    EXPECT_EQ(reading.file.title, "Edited with Glimmerpane of Zorvex Lattice");
    EXPECT_EQ(reading.file.artist, "ZorvexLattice");
    EXPECT_EQ(reading.file.images.size(), static_cast<std::size_t>(count));
    EXPECT_EQ(reading.file.header.rate, 10U);
    EXPECT_FALSE(reading.file.sequence);
    const auto info = readAniInfo(bytes, count);
    ASSERT_TRUE(info);
    for (int i = 0; i < count; ++i)
      EXPECT_EQ(info->jiffies[static_cast<std::size_t>(i)], i + 1) << "the rate of the header is not used";
    EXPECT_EQ(info->hotspotX, 31);
    EXPECT_EQ(info->hotspotY, 2);
  }
}

}  // namespace
}  // namespace gp::test
