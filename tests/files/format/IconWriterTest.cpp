#include "files/Decoding.h"
#include "files/IcoBuilder.h"
#include "files/format/IconRows.h"
#include "files/format/IconWriter.h"
#include "platform/files/ByteWriter.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

template <class F>
Surface painted(int width, int height, F color) {
  Surface surface(width, height, kBlack);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) surface.SetPixelV(x, y, color(x, y));
  return surface;
}

Bytes taken(ByteWriter& out) { return out.take(); }

TEST(IconByteSize, OfEveryDepth) {
  EXPECT_EQ(IconByteSize(-1, 24, 32, 32), 3240u);
  EXPECT_EQ(IconByteSize(256, 8, 48, 48), 3752u);
  EXPECT_EQ(IconByteSize(-1, 32, 32, 32), 40u + 4096 + 128);
  EXPECT_EQ(IconByteSize(16, 4, 32, 32), 744u);
  EXPECT_EQ(IconByteSize(16, 4, 24, 24), 104u + 12 * 24 + 96);
  EXPECT_EQ(IconByteSize(2, 1, 24, 24), 48u + 4 * 24 + 96);
  EXPECT_EQ(IconByteSize(2, 1, 16, 16), 48u + 64 + 64);
  EXPECT_EQ(IconByteSize(2, 1, 48, 48), 48u + 8 * 48 + 8 * 48);
  EXPECT_EQ(IconByteSize(256, 8, 33, 10), 1064u + 36 * 10 + 8 * 10);
}

TEST(IconRows, MaskRowsOf24PixelsTakeThreeBytesAndOneOfPadding) {
  const Surface surface = painted(24, 2, [](int x, int y) { return (x + y) % 2 == 0 ? kWhite : 0x010203; });
  ByteWriter out;
  WriteMaskRows(surface, out);
  EXPECT_EQ(taken(out), (Bytes{0x55, 0x55, 0x55, 0, 0xAA, 0xAA, 0xAA, 0}));
}

TEST(IconRows, AnUnfinishedMaskByteIsFilledWithOnes) {
  ByteWriter out;
  WriteMaskRows(Surface(10, 1, kBlack), out);
  EXPECT_EQ(taken(out), (Bytes{0x00, 0x3F, 0, 0}));
}

TEST(IconRows, SixteenColorRowsPairPixelsHighHalfFirstBottomRowFirst) {
  const Surface surface = painted(4, 2, [](int x, int y) { return y == 1 ? rgb(128 * (x % 2), 0, 0) : kWhite; });
  ByteWriter out;
  WriteRows16(surface, out);
  EXPECT_EQ(taken(out), (Bytes{0x01, 0x01, 0, 0, 0xFF, 0xFF, 0, 0}));
}

TEST(IconRows, AColorOutsideTheSixteenRepeatsTheIndexBeforeItAndAMissingSecondPixelIsZero) {
  const Color row[] = {0x010101, 0x0000FF, 0x123456, kWhite, 0x654321};
  const Surface surface = painted(5, 1, [&](int x, int) { return row[x]; });
  ByteWriter out;
  WriteRows16(surface, out);
  EXPECT_EQ(taken(out), (Bytes{0x09, 0x9F, 0xF0, 0}));
}

TEST(IconRows, TheSixteenColorsStandInTheirFixedOrder) {
  ByteWriter out;
  writePalette(mPal16, out);
  EXPECT_EQ(taken(out), (Bytes{0,   0,   0,   0, 0,   0, 128, 0, 0,   128, 0, 0, 0,   128, 128, 0,  //
                               128, 0,   0,   0, 128, 0, 128, 0, 128, 128, 0, 0, 192, 192, 192, 0,  //
                               128, 128, 128, 0, 0,   0, 255, 0, 0,   255, 0, 0, 0,   255, 255, 0,  //
                               255, 0,   0,   0, 255, 0, 255, 0, 255, 255, 0, 0, 255, 255, 255, 0}));
  writePalette(mPalMono, out);
  EXPECT_EQ(taken(out), (Bytes{0, 0, 0, 0, 255, 255, 255, 0}));
}

TEST(IconRows, ThePaletteBeginsWithBlackAndWhiteAndGoesOnRowByRow) {
  const Surface surface = painted(2, 2, [](int x, int y) {
    return x == 0 && y == 0 ? rgb(1, 2, 3) : x == 1 && y == 0 ? kWhite : x == 0 ? rgb(4, 5, 6) : rgb(1, 2, 3);
  });
  const auto palette = BuildPal256(surface);
  ASSERT_TRUE(palette);
  ByteWriter out;
  palette->write(out);
  Bytes bytes = taken(out);
  EXPECT_EQ(bytes.size(), 1024u);
  bytes.resize(20);
  EXPECT_EQ(bytes, (Bytes{0, 0, 0, 0, 255, 255, 255, 0, 3, 2, 1, 0, 6, 5, 4, 0, 0, 0, 0, 0}));
  WriteRows256(surface, *palette, out);
  EXPECT_EQ(taken(out), (Bytes{3, 2, 0, 0, 2, 1, 0, 0}));
}

TEST(IconRows, ThePaletteTakes254ColorsBesideBlackAndWhite) {
  const auto withColors = [](int count) {
    return painted(32, 32, [=](int x, int y) { return 0x100000 + std::min(y * 32 + x, count - 1); });
  };
  EXPECT_TRUE(BuildPal256(withColors(254)));
  EXPECT_FALSE(BuildPal256(withColors(255)));
}

TEST(IconRows, TrueColorRowsArePlainBytesWithoutPadding) {
  const Surface surface = painted(3, 1, [](int x, int) { return rgb(x, 10 + x, 20 + x); });
  ByteWriter out;
  WriteRowsTrue(surface, Surface(3, 1, kBlack), nullptr, out);
  EXPECT_EQ(taken(out), (Bytes{20, 10, 0, 21, 11, 1, 22, 12, 2}));
}

TEST(IconRows, AlphaIsWrittenWhereTheMaskIsBlackAndZeroElsewhere) {
  const Surface surface = painted(3, 1, [](int x, int) { return rgb(x, 10 + x, 20 + x); });
  const Surface mask = painted(3, 1, [](int x, int) { return x == 1 ? kWhite : x == 2 ? 0x808080 : kBlack; });
  const AlphaMatrix alpha(3, 1, 77);
  ByteWriter out;
  WriteRowsTrue(surface, mask, &alpha, out);
  EXPECT_EQ(taken(out), (Bytes{20, 10, 0, 77, 21, 11, 1, 0, 22, 12, 2, 0}));
}

TEST(IconRows, APaintedPixelOfAlpha0IsWrittenAs1AndATransparentOneAs0) {
  const Surface surface(4, 1, kBlack);
  const Surface mask = painted(4, 1, [](int x, int) { return x < 3 ? kBlack : kWhite; });
  AlphaMatrix alpha(4, 1);
  alpha.at(1, 0) = 1;
  alpha.at(2, 0) = 2;
  ByteWriter out;
  WriteRowsTrue(surface, mask, &alpha, out);
  EXPECT_EQ(taken(out), (Bytes{0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 2, 0, 0, 0, 0}));
}

IconImage plainIcon(int size, Color color) { return {Surface(size, size, color), Surface(size, size, kBlack), {}}; }

IconContainerRec recordOf(ColorDepth depth) {
  IconContainerRec record;
  record.setDepth(depth);
  return record;
}

Bytes firstBytes(std::vector<std::uint8_t> bytes, std::size_t count) {
  bytes.resize(count);
  return bytes;
}

TEST(IconWriter, TheHeadersOfATrueColorIcon) {
  const auto file = composeSingleIcon(plainIcon(32, 0x010203), {-1, 24});
  EXPECT_EQ(file.size(), 22u + 3240);
  EXPECT_EQ(firstBytes(file, 65), (Bytes{0,  0,  1, 0, 1,  0,                                         //
                                         32, 32, 0, 0, 1,  0, 24, 0, 0xA8, 0x0C, 0, 0, 22, 0, 0,  0,  //
                                         40, 0,  0, 0, 32, 0, 0,  0, 64,   0,    0, 0, 1,  0, 24, 0, 0, 0, 0, 0,
                                         0,  0,  0, 0, 0,  0, 0,  0, 0,    0,    0, 0, 0,  0, 0,  0, 0, 0, 0, 0,  //
                                         1,  2,  3}));
}

struct DepthCase {
  ColorDepth depth;
  int colorCount;
};

TEST(IconWriter, ColorCountAndBitCountOfEveryDepth) {
  constexpr DepthCase kCases[] = {{{2, 1}, 2}, {{16, 4}, 16}, {{256, 8}, 0}, {{-1, 24}, 0}, {{-1, 32}, 0}};
  IconImage icon = plainIcon(16, kWhite);
  icon.alpha = AlphaMatrix(16, 16, 9);
  for (const auto& [depth, colorCount] : kCases) {
    const auto file = composeSingleIcon(icon, depth);
    EXPECT_EQ(file[8], colorCount) << depth.bits;
    EXPECT_EQ(file[12], depth.bits);
    EXPECT_EQ(file[36], depth.bits);
    EXPECT_EQ(file.size(), 22 + IconByteSize(depth.colors, depth.bits, 16, 16)) << depth.bits;
    EXPECT_EQ(file[14] | file[15] << 8, static_cast<int>(file.size()) - 22);
  }
}

TEST(IconWriter, EveryDepthAndSizeIsByteForByteWhatItShouldBe) {
  const auto standard = [](int x, int y) {
    return std::array{kBlack, rgb(128, 0, 0), rgb(0, 128, 0)}[static_cast<std::size_t>((x + y) % 3)];
  };
  for (const int size : {16, 24, 32, 48}) {
    Picture p;
    p.width = p.height = size;
    p.bits = 4;
    for (const PaletteEntry& e : mPal16) p.palette.push_back({e[2], e[1], e[0], 255});
    p.index = [](int x, int y) { return (x + y) % 3; };
    p.transparent = [](int x, int y) { return x > y; };
    const Surface mask = painted(size, size, [&](int x, int y) { return p.transparent(x, y) ? kWhite : kBlack; });
    const IconImage standardIcon{painted(size, size, standard), mask, {}};
    EXPECT_EQ(composeSingleIcon(standardIcon, {16, 4}), build(entryOf(p))) << size;

    p = Picture{};
    p.width = p.height = size;
    p.bits = 32;
    p.transparent = [](int x, int y) { return x > y; };
    p.color = [](int x, int y) { return Rgb{x, y, 99, x > y ? 0 : 200}; };
    const Surface image = painted(size, size, [](int x, int y) { return rgb(x, y, 99); });
    EXPECT_EQ(composeSingleIcon({image, mask, AlphaMatrix(size, size, 200)}, {-1, 32}), build(entryOf(p))) << size;
  }
}

TEST(IconWriter, TrueColorStaysTrueColorWithTwoColorsOnIt) {
  EXPECT_EQ(depthToWrite(plainIcon(32, kWhite), recordOf({-1, 24})), (ColorDepth{-1, 24}));
  EXPECT_EQ(depthToWrite(plainIcon(32, kWhite), recordOf({16, 4})), (ColorDepth{2, 1}));
}

TEST(IconWriter, TheAlphaChannelThatTheRecordStatesIsWrittenInTrueColorOnly) {
  IconContainerRec record = recordOf({-1, 32});
  EXPECT_EQ(depthToWrite(plainIcon(32, kWhite), record), (ColorDepth{-1, 24})) << "32 bits without alpha";
  record.hasAlpha = true;
  EXPECT_EQ(depthToWrite(plainIcon(32, kWhite), record), (ColorDepth{-1, 32}));
  record.setDepth({16, 32});
  EXPECT_EQ(depthToWrite(plainIcon(32, kWhite), record), (ColorDepth{2, 1}));
}

TEST(IconWriter, APictureThatNeedsMoreThan256EntriesIsWrittenInTrueColor) {
  // 255 colours without black and white are counted as 256 colours but need 257 entries.
  const Surface image = painted(32, 32, [](int x, int y) { return 0x100000 + std::min(y * 32 + x, 254); });
  const IconImage icon{image, Surface(32, 32, kBlack), {}};
  const ColorDepth depth = depthToWrite(icon, recordOf({256, 8}));
  EXPECT_EQ(depth, (ColorDepth{-1, 24}));
  const auto file = composeSingleIcon(icon, depth);
  EXPECT_EQ(file[12], 24);
  const Decoded d = decode(file);
  EXPECT_TRUE(samePixels(d.image, image)) << "no colour is lost";
}

TEST(IconWriter, AnAlphaMatrixOfAnotherSizeFailsTheWrite) {
  const IconFolder folder;
  IconImage icon = plainIcon(32, kWhite);
  for (const int size : {1, 16, 48}) {
    icon.alpha = AlphaMatrix(size, size);
    bool ok = true;
    WriteSingleIconFile(icon, {-1, 32}, folder.path("a.ico"), ok);
    EXPECT_FALSE(ok) << size;
    EXPECT_FALSE(std::filesystem::exists(folder.path("a.ico")));
  }
  bool ok = false;
  WriteSingleIconFile(icon, {-1, 24}, folder.path("a.ico"), ok);
  EXPECT_TRUE(ok) << "no value is asked for";
}

TEST(IconWriter, TheRecordOfASavedIconStatesWhatWasWritten) {
  IconContainerRec record = recordOf({256, 8});
  record.setHeaderDepth({-1, 24});
  record.sourceLabel = "CUR file";
  record.path = "/old/icon.cur";
  record.size = 48;
  record.fromMultiIconFile = record.isCursor = record.modified = record.neverSaved = true;
  record.multiIconIndex = record.hotspotX = record.hotspotY = 5;
  const IconContainerRec saved = recordOfSavedIcon(record, {16, 4}, "/new/icon.ico");
  EXPECT_EQ(saved.depth(), (ColorDepth{16, 4}));
  EXPECT_EQ(saved.headerDepth(), (ColorDepth{16, 4}));
  EXPECT_EQ(saved.path.trimmed(), "/new/icon.ico");
  EXPECT_EQ(saved.sourceLabel.trimmed(), "ICO file");
  EXPECT_EQ(saved.size, 48);
  EXPECT_FALSE(saved.fromMultiIconFile || saved.isCursor || saved.modified || saved.neverSaved);
  EXPECT_EQ(saved.multiIconIndex + saved.hotspotX + saved.hotspotY, 0);
}

TEST(IconWriter, TheRecordOfASavedTrueColorIconKeepsItsDepth) {
  const IconContainerRec saved = recordOfSavedIcon(recordOf({-1, 32}), {-1, 24}, "/a.ico");
  EXPECT_EQ(saved.depth(), (ColorDepth{-1, 32}));
  EXPECT_EQ(saved.headerDepth(), (ColorDepth{-1, 32}));
}

}  // namespace
}  // namespace gp::test
