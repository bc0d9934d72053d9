#include "extraction/LibraryBytes.h"
#include "extraction/format/IclScan.h"
#include "support/NeBytes.h"

#include <gtest/gtest.h>
#include <sstream>

namespace gp::test {
namespace {

std::string found(const Bytes& file) {
  std::ostringstream text;
  for (const IclScanEntry& entry : scanForIconImages(file))
    text << entry.sizeText() << " (" << entry.bitCount << ") " << entry.blobOffset << '-' << entry.blobEnd << "; ";
  return text.str();
}

Bytes imageOf(int side, int bits) {
  Picture p = plainPicture(side, {1, 2, 3, 255}, bits);
  return imageBytes(p);
}

Bytes behind(std::size_t count, const Bytes& image, std::size_t rest = 2) {
  Bytes file(count, 0xEE);
  append(file, image);
  file.resize(file.size() + rest, 0xEE);
  return file;
}

TEST(IclScan, EverySizeAndDepthIsFoundWhereverItIs) {
  for (const int side : {16, 24, 32, 48})
    for (const int bits : {1, 4, 8, 24, 32}) {
      const Bytes image = imageOf(side, bits);
      for (const std::size_t at : {0, 1, 7, 1000}) {
        const auto entries = scanForIconImages(behind(at, image));
        ASSERT_EQ(entries.size(), 1u) << side << ' ' << bits << ' ' << at;
        EXPECT_EQ(entries[0].blobOffset, at + 1);
        EXPECT_EQ(entries[0].blobEnd, at + image.size());
        EXPECT_EQ(entries[0].side, side);
        EXPECT_EQ(entries[0].bitCount, bits);
        EXPECT_TRUE(entries[0].valid);
      }
    }
}

TEST(IclScan, TheSizesAreThoseOfPaletteAndBothBitmaps) {
  EXPECT_EQ(found(behind(0, imageOf(16, 1))), "16x16 (1) 1-176; ");
  EXPECT_EQ(found(behind(0, imageOf(32, 4))), "32x32 (4) 1-744; ");
  EXPECT_EQ(found(behind(0, imageOf(24, 8))), "24x24 (8) 1-1736; ");
  EXPECT_EQ(found(behind(0, imageOf(48, 24))), "48x48 (24) 1-7336; ");
  EXPECT_EQ(found(behind(0, imageOf(48, 32))), "48x48 (32) 1-9640; ");
}

TEST(IclScan, OtherSizesDepthsAndPlanesAreNotFound) {
  for (const int side : {8, 15, 17, 20, 31, 64, 255}) EXPECT_EQ(found(behind(3, imageOf(side, 8))), "") << side;
  for (const int bits : {0, 2, 16, 33, 255}) {
    Bytes image = imageOf(32, 8);
    image[14] = static_cast<std::uint8_t>(bits);
    EXPECT_EQ(found(behind(3, image)), "") << bits;
  }
  for (const int planes : {0, 2}) {
    Bytes image = imageOf(32, 8);
    image[12] = static_cast<std::uint8_t>(planes);
    EXPECT_EQ(found(behind(3, image)), "") << planes;
  }
}

TEST(IclScan, TheHeightIsTwiceTheWidth) {
  for (const int height : {0, 32, 48, 63, 65, 66, 96}) {
    Bytes image = imageOf(32, 8);
    image[8] = static_cast<std::uint8_t>(height);
    EXPECT_EQ(found(behind(3, image)), "") << height;
  }
}

TEST(IclScan, OnlyTheLowBytesOfTheHeaderCount) {
  Bytes image = imageOf(32, 4);
  for (const std::size_t at : {1, 2, 3, 5, 6, 7, 9, 10, 11, 13, 15, 16, 20, 32}) image[at] = 0xAB;
  EXPECT_EQ(found(behind(5, image)), "32x32 (4) 6-749; ");
}

TEST(IclScan, AnImageThatRunsPastTheEndIsPassedOver) {
  const Bytes image = imageOf(16, 1);
  EXPECT_EQ(found(behind(4, image, 0)), "16x16 (1) 5-180; ");
  Bytes cut = behind(4, image, 0);
  cut.pop_back();
  EXPECT_EQ(found(cut), "");
  // A large one that does not fit hides no small one inside it.
  Bytes large = imageOf(48, 32);
  large.resize(40);
  append(large, image);
  EXPECT_EQ(found(behind(0, large)), "16x16 (1) 41-216; ");
}

TEST(IclScan, AHeaderNeedsMoreBytesBehindIt) {
  EXPECT_EQ(found({}), "");
  EXPECT_EQ(found({40}), "");
  EXPECT_EQ(found(Bytes(40, 40)), "");
  EXPECT_EQ(found(Bytes(41, 40)), "");
  EXPECT_EQ(found(Bytes(2000, 40)), "");
  Bytes lone(500, 0);
  lone[0] = 40;
  EXPECT_EQ(found(lone), "");
}

TEST(IclScan, AnImageInsideAnotherIsNotCountedAndTheNextBeginsAtItsEnd) {
  Bytes outer = imageOf(32, 24);
  const Bytes inner = imageOf(16, 1);
  std::copy(inner.begin(), inner.end(), outer.begin() + 100);
  EXPECT_EQ(found(behind(0, outer)), "32x32 (24) 1-3240; ");
  append(outer, inner);
  EXPECT_EQ(found(behind(0, outer)), "32x32 (24) 1-3240; 16x16 (1) 3241-3416; ");
  // One that begins inside and ends behind is skipped as well.
  Bytes overlapping = imageOf(16, 1);
  std::copy(inner.begin(), inner.begin() + 40, overlapping.begin() + 130);
  append(overlapping, Bytes(400, 0));
  EXPECT_EQ(found(overlapping), "16x16 (1) 1-176; ");
}

TEST(IclScan, FilesOfAnyFormatAreScanned) {
  const Entry strange = plainEntry(20, {1, 2, 3, 255}), small = plainEntry(16, {1, 2, 3, 255}, 32),
              large = plainEntry(48, {1, 2, 3, 255}, 24);
  EXPECT_EQ(scanForIconImages(build({{small, strange, large}, 0, 1, {}})).size(), 2u);
  const std::vector<Resource> resources = iconWith({plainImage(16, {}), plainImage(64, {}), plainImage(32, {}, 32)});
  EXPECT_EQ(scanForIconImages(peWith(resources)).size(), 2u);
  EXPECT_EQ(scanForIconImages(neWith(resources)).size(), 2u);
}

Picture anyPicture(int side, int bits) {
  Picture p = plainPicture(side, {}, bits);
  p.index = [=](int x, int y) { return (x + y) % (1 << std::min(bits, 8)); };
  p.color = [](int x, int y) { return Rgb{x, y, 9, x + y + 1}; };
  p.transparent = [](int x, int y) { return (x ^ y) % 4 == 0; };
  return p;
}

TEST(IclScan, AFoundImageIsDecodedWithItsMask) {
  for (const int side : {16, 24, 32, 48})
    for (const int bits : {1, 4, 8, 24, 32}) {
      const Picture p = anyPicture(side, bits);
      const Bytes file = behind(9, imageBytes(p));
      const IconImage icon = decodeIconBlob(file, scanForIconImages(file).at(0)).value();
      ASSERT_EQ(icon.width(), side);
      EXPECT_EQ(icon.hasAlphaValues(), bits == 32);
      for (const auto& [x, y] : {std::pair{0, 0}, {1, 0}, {side - 1, 0}, {0, side - 1}, {7, 11}}) {
        const int i = p.index(x, y);
        EXPECT_EQ(icon.image.GetPixel(x, y), bits <= 8 ? rgb(i, 2 * i % 256, 255 - i) : rgb(x, y, 9)) << bits;
        EXPECT_EQ(icon.mask.GetPixel(x, y), (x ^ y) % 4 == 0 ? kWhite : kBlack);
        EXPECT_EQ(icon.alphaAt(x, y), bits == 32 ? x + y + 1 : 255);
      }
    }
}

TEST(IclScan, A32BitImageWithoutAlphaHasNone) {
  const Bytes file = behind(0, imageBytes(plainPicture(16, {5, 6, 7, 0}, 32)));
  const IconImage icon = decodeIconBlob(file, scanForIconImages(file).at(0)).value();
  EXPECT_EQ(icon.alpha, AlphaMatrix());
  EXPECT_EQ(icon.image.GetPixel(3, 3), rgb(5, 6, 7));
}

TEST(IclScan, TheRestOfTheHeaderDoesNotMatterForDecoding) {
  Bytes image = imageBytes(anyPicture(32, 4));
  for (const std::size_t at : {1, 2, 5, 6, 9, 10, 13, 15, 16, 20, 32}) image[at] = 0x7B;
  const IconImage icon = decodeIconBlob(image, IclScanEntry{1, image.size(), 32, 4}).value();
  EXPECT_EQ(icon.image.GetPixel(5, 2), rgb(7, 14, 248));
}

TEST(IclScan, AnEntryOfAnotherFileIsNotDecoded) {
  const Bytes file = behind(0, imageOf(16, 1));
  EXPECT_FALSE(decodeIconBlob(file, IclScanEntry{0, 176, 16, 1}));
  EXPECT_FALSE(decodeIconBlob(file, IclScanEntry{1, 5000, 16, 1}));
  EXPECT_FALSE(decodeIconBlob(file, IclScanEntry{100, 20, 16, 1}));
  EXPECT_FALSE(decodeIconBlob(file, IclScanEntry{1, 60, 16, 1}));
  EXPECT_FALSE(decodeIconBlob({}, IclScanEntry{1, 176, 16, 1}));
}

}  // namespace
}  // namespace gp::test
