#include "extraction/format/ExtractedIcon.h"
#include "files/IcoBuilder.h"
#include "files/format/IconDecoder.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

// Opaque pixels of that many colours, all different.
IconImage iconOfColors(int count, int size = 32) {
  IconImage icon{Surface(size, size, kBlack), Surface(size, size, kBlack), AlphaMatrix()};
  for (int i = 0; i < count; ++i) icon.image.SetPixelV(i % size, i / size, rgb(i % 256, i / 256, 7));
  return icon;
}

IconImage withAlpha(int size = 32) {
  IconImage icon = iconOfColors(2, size);
  icon.alpha = AlphaMatrix(size, size, 200);
  return icon;
}

TEST(ExtractedIcon, TheDepthFollowsFromTheColors) {
  IconImage mono = transparentIcon(32);
  EXPECT_EQ(depthOfExtracted(mono), kMonoDepth);
  mono.image.SetPixelV(0, 0, rgb(255, 0, 0));
  EXPECT_EQ(depthOfExtracted(mono), kStandardDepth);
  EXPECT_EQ(depthOfExtracted(iconOfColors(100)), kPaletteDepth);
  EXPECT_EQ(depthOfExtracted(iconOfColors(300)), (ColorDepth{kTrueColor, 24}));
  EXPECT_EQ(depthOfExtracted(withAlpha()), (ColorDepth{kTrueColor, 32}));
}

TEST(ExtractedIcon, TheRecordIsThatOfAnIconThatWasNeverSaved) {
  const IconContainerRec record = recordOfExtracted(iconOfColors(100, 16), "/home/ana/setup_3");
  EXPECT_TRUE(record.used);
  EXPECT_TRUE(record.present);
  EXPECT_EQ(record.sourceLabel.trimmed(), "Extraction");
  EXPECT_EQ(record.size, 16);
  EXPECT_EQ(record.dirColors, 256);
  EXPECT_EQ(record.bitCount, 8);
  EXPECT_EQ(record.bihColors, 256);
  EXPECT_EQ(record.bihBitCount, 8);
  EXPECT_FALSE(record.hasAlpha);
  EXPECT_EQ(record.path.trimmed(), "/home/ana/setup_3");
  EXPECT_FALSE(record.fromMultiIconFile);
  EXPECT_EQ(record.multiIconIndex, 0);
  EXPECT_FALSE(record.isCursor);
  EXPECT_EQ(record.hotspotX, 0);
  EXPECT_EQ(record.hotspotY, 0);
  EXPECT_TRUE(record.neverSaved);
  EXPECT_FALSE(record.modified);
}

TEST(ExtractedIcon, TheRecordOfAnIconWithAlphaStatesTrueColorOf32Bits) {
  const IconContainerRec record = recordOfExtracted(withAlpha(), "");
  EXPECT_TRUE(record.hasAlpha);
  EXPECT_EQ(record.dirColors, -1);
  EXPECT_EQ(record.bihColors, -1);
  EXPECT_EQ(record.bitCount, 32);
  EXPECT_EQ(record.bihBitCount, 32);
  EXPECT_EQ(record.path.trimmed(), "Extracted");
}

DecodedIcon decoded(const std::vector<std::uint8_t>& bytes) {
  const IconFile file = parseIconFile(FileBytes(bytes));
  return decodeEntry(file, file.entry(0), file.entry(0).width, file.entry(0).height);
}

TEST(ExtractedIcon, ItsFileHasOneImageOfItsDepth) {
  for (const IconImage& icon :
       {iconOfColors(100), iconOfColors(300), withAlpha(), withAlpha(16), transparentIcon(48)}) {
    const auto bytes = fileOfExtracted(icon);
    const IconDirectory directory = parseIconDirectory(bytes);
    ASSERT_TRUE(directory.isIcon());
    EXPECT_EQ(directory.count, 1);
    EXPECT_EQ(directory.entry(0).width, icon.width());
    EXPECT_EQ(directory.entry(0).bitCount, depthOfExtracted(icon).bits);
    const DecodedIcon read = decoded(bytes);
    ASSERT_TRUE(read.isRead());
    EXPECT_TRUE(std::ranges::equal(read.icon.image.pixels(), icon.image.pixels()));
    EXPECT_TRUE(std::ranges::equal(read.icon.mask.pixels(), icon.mask.pixels()));
    EXPECT_TRUE(!icon.hasAlphaValues() || read.icon.alpha == icon.alpha);
  }
}

}  // namespace
}  // namespace gp::test
