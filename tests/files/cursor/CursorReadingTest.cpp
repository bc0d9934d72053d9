#include "document/IconContainerRec.h"
#include "files/CursorBuilder.h"
#include "files/Decoding.h"
#include "files/cursor/CursorLoading.h"
#include "support/Sha256.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <iostream>
#include <sstream>

namespace gp::test {
namespace {

DecodedIcon load(const CursorFile& cursor) { return loadCursorImage(iconFileOf(build(cursor))); }

Color expectedColor(const Picture& p, int x, int y) {
  if (p.bits > 8) return colorOf(p.color(x, y));
  const int i = p.index(x, y);
  return colorOf(Rgb{i, 2 * i % 256, 255 - i});
}

void expectPicture(const DecodedIcon& loaded, const Picture& p) {
  ASSERT_EQ(loaded.defect, IconDefect::None);
  ASSERT_TRUE(loaded.icon.width() == 32 && loaded.icon.height() == 32);
  for (int y = 0; y < 32; ++y) {
    for (int x = 0; x < 32; ++x) {
      ASSERT_EQ(loaded.icon.image.GetPixel(x, y), expectedColor(p, x, y)) << p.bits << " bits at " << x << "," << y;
      ASSERT_EQ(loaded.icon.mask.GetPixel(x, y), p.transparent(x, y) ? kWhite : kBlack) << x << "," << y;
    }
  }
}

TEST(CursorReading, EveryDepthReadsToItsPixelsAndItsMask) {
  for (const int bits : {1, 4, 8, 24, 32}) {
    const Picture p = anyPicture(32, bits);
    expectPicture(load(cursorOf(p, 5, 6)), p);
  }
}

TEST(CursorReading, TheHotSpotAndTheColorCountDoNotDecideHowTheBytesAreRead) {
  for (const int hotspotY : {0, 1, 4, 8, 24, 31}) {
    for (const int colorCount : {0, 2, 16, 255}) {
      CursorFile cursor = cursorOf(anyPicture(32, 8), 1, hotspotY);
      cursor.colorCount = colorCount;
      expectPicture(load(cursor), cursor.picture);
    }
  }
}

TEST(CursorReading, TheAlphaBytesAreKeptAndAZeroReadsAs255) {
  Picture p = anyPicture(32, 32);
  p.color = [](int x, int y) { return Rgb{x, y, 9, (x + y) % 256}; };
  const DecodedIcon loaded = load(cursorOf(p));
  ASSERT_TRUE(loaded.icon.alpha.isOfSize(32));
  EXPECT_EQ(loaded.icon.alpha.at(0, 0), 255);
  EXPECT_EQ(loaded.icon.alpha.at(3, 4), 7);
}

TEST(CursorReading, TrueColorOf24BitsIsOpaqueThroughout) {
  const DecodedIcon loaded = load(cursorOf(anyPicture(32, 24)));
  ASSERT_TRUE(loaded.icon.alpha.isOfSize(32));
  EXPECT_EQ(loaded.icon.alpha.at(31, 31), 255);
}

TEST(CursorReading, TrueColorOfOddBitCountsIsReadAsFourBytesAPixel) {
  for (const int bits : {0, 2, 3, 16, 65535}) {
    CursorFile cursor = cursorOf(anyPicture(32, 32));
    cursor.picture.headerBits = bits;
    expectPicture(load(cursor), cursor.picture);
  }
}

TEST(CursorReading, TheSizesOfTheBitmapHeaderAndItsOwnLengthAreNotLookedAt) {
  CursorFile cursor = cursorOf(anyPicture(32, 4));
  cursor.picture.headerWidth = 7;
  cursor.picture.headerHeight = -32;
  cursor.picture.headerSize = 12;
  cursor.picture.colorsUsed = 0xFFFFFFFF;
  expectPicture(load(cursor), cursor.picture);
}

TEST(CursorReading, OtherTypesSizesAndPngPicturesAreRefused) {
  CursorFile icon = cursorOf(anyPicture(32, 4)), none = icon, small = icon, empty = icon, png = icon;
  icon.type = 1;
  none.count = 0;
  small.width = small.height = 16;
  empty.width = empty.height = 0;
  png.image = Bytes{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0, 0, 13, 'I', 'H', 'D', 'R'};
  EXPECT_EQ(load(icon).defect, IconDefect::NotAnIcon);
  EXPECT_EQ(load(none).defect, IconDefect::NotAnIcon);
  EXPECT_EQ(load(small).defect, IconDefect::SizeNotOffered);
  EXPECT_EQ(load(empty).defect, IconDefect::SizeNotOffered);
  EXPECT_EQ(load(png).defect, IconDefect::DamagedPng);
}

// Missing bytes read as zero: the result is the same as if the file continued with zeros.
TEST(CursorReading, AFileCutAnywhereReadsAsIfItWentOnWithZeros) {
  for (const int bits : {1, 8, 32}) {
    const Bytes whole = build(cursorOf(anyPicture(32, bits), 3, 3));
    const std::size_t longest = whole.size() + 32 * 32 * 4;
    for (std::size_t size = 0; size < whole.size(); ++size) {
      Bytes padded(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
      const DecodedIcon cut = loadCursorImage(iconFileOf(padded));
      padded.resize(longest);
      const DecodedIcon expected = loadCursorImage(iconFileOf(padded));
      ASSERT_EQ(cut.defect, expected.defect) << size;
      ASSERT_TRUE(samePixels(cut.icon.image, expected.icon.image)) << size;
      ASSERT_TRUE(samePixels(cut.icon.mask, expected.icon.mask)) << size;
      ASSERT_EQ(cut.icon.alpha, expected.icon.alpha) << size;
    }
  }
}

TEST(CursorReading, TheRecordTellsOfTheCursor) {
  const DecodedIcon loaded = load(cursorOf(anyPicture(32, 32), 12, 30));
  const IconContainerRec record = recordOfLoadedCursor({true, -1, 32, 12, 30}, loaded.icon, "/a/b.cur");
  EXPECT_TRUE(record.used && record.present && record.isCursor && record.hasAlpha);
  EXPECT_FALSE(record.modified || record.neverSaved || record.fromMultiIconFile);
  EXPECT_EQ(record.sourceLabel.trimmed(), "CUR file");
  EXPECT_EQ(record.path.trimmed(), "/a/b.cur");
  EXPECT_EQ(record.size, 32);
  EXPECT_EQ(record.dirColors, -1);
  EXPECT_EQ(record.bitCount, 32);
  EXPECT_FALSE(record.isDiscrepant());
  EXPECT_EQ(record.hotspotX, 12);
  EXPECT_EQ(record.hotspotY, 30);
  EXPECT_EQ(record.multiIconIndex, 0);
}

TEST(CursorReading, WithoutAlphaValuesOfTheSizeA32BitCursorCountsAs24Bits) {
  IconImage icon = transparentIcon(32);
  icon.alpha = AlphaMatrix(16, 16);
  const IconContainerRec record = recordOfLoadedCursor({true, -1, 32, 0, 0}, icon, "/a/b.cur");
  EXPECT_EQ(record.bitCount, 24);
  EXPECT_EQ(record.bihBitCount, 24);
  EXPECT_FALSE(record.hasAlpha);
}

// The corpus of real and generated cursor files, if it is beside the repository.

struct Measured {
  std::string file, probe;
  int hotspotX = 0, hotspotY = 0;
  std::string picture, mask;
};

std::vector<Measured> measuredCursors() {
  std::ifstream stream(std::string(GP_TEST_DATA) + "/corpus-cursors.tsv");
  std::vector<Measured> all;
  for (std::string line; std::getline(stream, line);) {
    std::istringstream fields(line);
    Measured m;
    fields >> m.file >> m.probe >> m.hotspotX >> m.hotspotY >> m.picture >> m.mask;
    all.push_back(m);
  }
  return all;
}

std::string hashOf(const Surface& surface, bool isMask) {
  Bytes bytes;
  for (const std::uint32_t pixel : surface.pixels()) {
    const auto color = static_cast<Color>(pixel & kColorBits);
    if (isMask) {
      bytes.push_back(color != kBlack);
      continue;
    }
    for (const int channel : {redOf(color), greenOf(color), blueOf(color)})
      bytes.push_back(static_cast<std::uint8_t>(channel));
  }
  return Sha256::of(bytes);
}

TEST(Corpus, EveryCursorIsTakenOrRefusedAndReadAsMeasured) {
  const std::string corpus = std::string(GP_SOURCE_DIR) + "/../shared/corpus/";
  if (!std::filesystem::is_directory(corpus)) GTEST_SKIP() << "no corpus in " << corpus << ": nothing was checked";
  const std::vector<Measured> all = measuredCursors();
  ASSERT_EQ(all.size(), 50u);
  int taken = 0;
  for (const Measured& m : all) {
    const IconFile file = iconFileOf(bytesOf(corpus + m.file));
    ASSERT_FALSE(file.span().empty()) << m.file;
    const CursorFacts facts = probeCursor(file);
    EXPECT_EQ(facts.joined(), m.probe) << m.file;
    if (!facts.valid) continue;
    ++taken;
    EXPECT_EQ(facts.hotspotX, m.hotspotX) << m.file;
    EXPECT_EQ(facts.hotspotY, m.hotspotY) << m.file;
    const DecodedIcon loaded = loadCursorImage(file);
    const bool isPng = m.picture == "-";
    EXPECT_EQ(loaded.defect, IconDefect::None) << m.file;
    if (isPng) continue;
    EXPECT_EQ(hashOf(loaded.icon.image, false), m.picture) << m.file;
    EXPECT_EQ(hashOf(loaded.icon.mask, true), m.mask) << m.file;
  }
  std::cout << "corpus: " << taken << " of " << all.size() << " cursor files taken, their pixels as measured\n";
  EXPECT_GT(taken, 20);
}

}  // namespace
}  // namespace gp::test
