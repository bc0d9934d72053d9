// gpicon check: a line for each wrong field of a directory, and none for correct files.
#include "cli/GpiconFixture.h"
#include "files/PngEntries.h"

namespace gp::test {
namespace {

class GpiconCheck : public Gpicon {
 protected:
  // The lines printed for a file, each without the name of the file.
  std::string linesOf(const Bytes& file, const std::string& name = "f.ico") const {
    const std::string path = folder.write(name, file);
    const Outcome o = run({"check", path});
    EXPECT_EQ(o.err, "");
    EXPECT_EQ(o.status, o.out.empty() ? 0 : 1);
    std::string found, rest = o.out;
    for (std::size_t end; (end = rest.find('\n')) != std::string::npos; rest.erase(0, end + 1)) {
      EXPECT_EQ(rest.substr(0, path.size() + 1), path + "\t");
      found += rest.substr(path.size() + 1, end - path.size());
    }
    return found;
  }
  std::string linesOf(const Entry& entry) const { return linesOf(build(entry)); }
  std::string linesOf(const Picture& picture) const { return linesOf(build(entryOf(picture))); }
};

void put32At(Bytes& bytes, std::size_t at, std::uint32_t value) {
  for (std::size_t i = 0; i < 4; ++i) bytes[at + i] = static_cast<std::uint8_t>(value >> 8 * i);
}

PngFile pngPicture(std::uint32_t width, std::uint32_t height) {
  PngFile file = anyPng(1);
  file.width = width;
  file.height = height;
  return file;
}
Entry pngEntry(int width, int height, const PngFile& picture) {
  Entry entry = pngEntryOf(picture);
  entry.width = width;
  entry.height = height;
  return entry;
}

Picture hundredColors() {
  Picture p = anyPicture(32, 8);
  p.index = [](int x, int y) { return (x + 32 * y) % 100; };
  return p;
}

TEST_F(GpiconCheck, HealthyIconsAreNotMentioned) {
  std::vector<Entry> entries;
  for (const int size : {16, 24, 32, 48})
    for (const int bits : {1, 4, 8, 24, 32}) entries.push_back(anyEntry(size, bits));
  EXPECT_EQ(linesOf(fileOf(entries)), "");
}

TEST_F(GpiconCheck, FewerColorsThanTheDepthAllowsAreHealthy) {
  Picture p = anyPicture(32, 8);
  p.palette = {{0, 0, 0}, {255, 255, 255}};
  p.index = [](int x, int) { return x % 2; };
  EXPECT_EQ(linesOf(p), "");
}

TEST_F(GpiconCheck, OldIconsWithoutABitCountAreHealthy) {
  for (const int bits : {1, 4, 8}) {
    Entry e = anyEntry(32, bits);
    e.bitCount = 0;
    EXPECT_EQ(linesOf(e), "") << bits;
  }
}

TEST_F(GpiconCheck, ARareDepthThatIsStatedCorrectlyIsHealthy) {
  Picture p = anyPicture(16, 2);
  EXPECT_EQ(linesOf(entryOf(p, 4, 2)), "");
  EXPECT_EQ(linesOf(entryOf(p, 0, 2)), "");
  EXPECT_EQ(linesOf(entryOf(p, 4, 0)), "");
}

TEST_F(GpiconCheck, PngPicturesWithCorrectFieldsAreHealthy) {
  EXPECT_EQ(linesOf(pngEntry(48, 32, pngPicture(48, 32))), "");
  EXPECT_EQ(linesOf(pngEntry(0, 0, pngPicture(256, 256))), "");
  EXPECT_EQ(linesOf(pngEntry(0, 0, pngPicture(512, 512))), "0\twidth\t256\t512\t-\n0\theight\t256\t512\t-\n");
}

TEST_F(GpiconCheck, AWrongSizeInTheDirectoryIsReported) {
  Entry e = anyEntry(32, 4);
  e.width = 16;
  e.height = 0;
  EXPECT_EQ(linesOf(e), "0\twidth\t16\t32\t-\n0\theight\t256\t32\t-\n");
}

TEST_F(GpiconCheck, AHeaderWithoutTheMaskUpsideDownOrOddIsReported) {
  for (const auto& [height, stated] : {std::pair{32, "16"}, std::pair{-64, "-32"}, std::pair{65, "32.5"},
                                       std::pair{0, "0"}, std::pair{-65, "-32.5"}}) {
    Picture p = anyPicture(32, 4);
    p.headerHeight = height;
    EXPECT_EQ(linesOf(p), "0\theight\t32\t" + std::string(stated) + "\t-\n");
  }
}

TEST_F(GpiconCheck, AWrongDepthIsReportedWithWhatThePixelsNeed) {
  EXPECT_EQ(linesOf(entryOf(hundredColors(), 16, 4)), "0\tcolors\t16\t256\t256\n0\tbits\t4\t8\t8\n");
}

TEST_F(GpiconCheck, AWrongBitCountAloneIsReported) {
  EXPECT_EQ(linesOf(entryOf(anyPicture(32, 24), 0, 32)), "0\tbits\t32\t24\t24\n");
  Picture opaque = anyPicture(32, 32);
  opaque.color = [](int x, int y) { return Rgb{x * 5, y * 5, x ^ y, 255}; };
  EXPECT_EQ(linesOf(entryOf(opaque, 0, 24)), "0\tbits\t24\t32\t32\n");
  EXPECT_EQ(linesOf(entryOf(anyPicture(32, 4), 16, 8)), "0\tbits\t8\t4\t8\n");
}

TEST_F(GpiconCheck, AWrongColorCountAloneIsReported) {
  EXPECT_EQ(linesOf(entryOf(hundredColors(), 200, 8)), "0\tcolors\t16\t256\t256\n");
}

TEST_F(GpiconCheck, PixelsThatNeedLessThanBothTellAreMeasured) {
  Picture p = anyPicture(32, 8);
  p.palette = {{0, 0, 0}, {255, 255, 255}};
  p.index = [](int x, int) { return x % 2; };
  EXPECT_EQ(linesOf(entryOf(p, 16, 4)), "0\tcolors\t16\t256\t2\n0\tbits\t4\t8\t1\n");
}

TEST_F(GpiconCheck, AlphaMakesTrueColorOfFewColors) {
  Picture p = anyPicture(32, 32);
  p.color = [](int, int) { return Rgb{0, 0, 0, 100}; };
  EXPECT_EQ(linesOf(entryOf(p, 0, 24)), "0\tbits\t24\t32\t32\n");
  p.color = [](int, int) { return Rgb{0, 0, 0, 255}; };
  EXPECT_EQ(linesOf(entryOf(p, 0, 24)), "0\tbits\t24\t32\t1\n");
}

TEST_F(GpiconCheck, DepthsThatTheEditorDoesNotReadAreComparedWithoutThePixels) {
  Picture p = anyPicture(32, 24);
  p.headerBits = 16;
  EXPECT_EQ(linesOf(p), "0\tbits\t24\t16\t-\n");
}

TEST_F(GpiconCheck, AByteCountThatIsTooSmallIsReported) {
  Entry e = anyEntry(32, 4);  // 40 + 64 + 32 * (16 + 4)
  e.bytesInRes = 743;
  EXPECT_EQ(linesOf(e), "0\tbytes\t743\t744\t-\n");
  e.bytesInRes = 39;
  EXPECT_EQ(linesOf(e), "0\tbytes\t39\t40\t-\n");
  e.bytesInRes = 744;
  EXPECT_EQ(linesOf(e), "");
}

TEST_F(GpiconCheck, AShorterPaletteNeedsLess) {
  Picture p = anyPicture(16, 4);
  p.colorsUsed = 3;
  Entry e = entryOf(p);
  e.image = bitmapHeader(p);
  e.image.resize(40 + 3 * 4 + 16 * (8 + 4));
  EXPECT_EQ(linesOf(e), "");
  e.image.pop_back();
  EXPECT_EQ(linesOf(e), "0\tbytes\t243\t244\t-\n");
}

TEST_F(GpiconCheck, PixelsBeyondAShorterPaletteAreReported) {
  Picture p = anyPicture(16, 4);
  p.colorsUsed = 3;
  p.index = [](int x, int y) { return x == 5 && y == 7 ? 14 : 2; };
  Entry e = entryOf(p);
  e.image.erase(e.image.begin() + 40 + 3 * 4, e.image.begin() + 40 + 16 * 4);
  EXPECT_EQ(linesOf(e), "0\tpixels\t-\t3\t14\n");
  p.index = [](int, int) { return 2; };
  e = entryOf(p);
  e.image.erase(e.image.begin() + 40 + 3 * 4, e.image.begin() + 40 + 16 * 4);
  EXPECT_EQ(linesOf(e), "");
}

TEST_F(GpiconCheck, AFullPaletteThatIsDeclaredShorterIsReadUnchanged) {
  Picture p = anyPicture(16, 4);
  p.colorsUsed = 3;
  p.index = [](int x, int) { return x % 3; };
  EXPECT_EQ(linesOf(p), "");
  p.index = [](int x, int) { return x % 4; };
  EXPECT_EQ(linesOf(p), "0\tpixels\t-\t3\t3\n");
}

// Transparent by the alpha values in the left half, and by the mask where `isMasked` says so.
Picture halfTransparent(int size, std::function<bool(int, int)> isMasked) {
  Picture p = anyPicture(size, 32);
  p.color = [size](int x, int y) { return Rgb{x, y, 9, x < size / 2 ? 0 : 200}; };
  p.transparent = std::move(isMasked);
  return p;
}

TEST_F(GpiconCheck, PixelsThatTheAlphaCallsTransparentAndTheMaskPaintedAreCounted) {
  for (const int size : {16, 24, 32, 48}) {
    const std::string half = std::to_string(size * size / 2);
    EXPECT_EQ(linesOf(halfTransparent(size, [](int, int) { return false; })), "0\talpha\t-\t-\t" + half + "\n");
    EXPECT_EQ(linesOf(halfTransparent(size, [=](int x, int) { return x < size / 2; })), "");
    EXPECT_EQ(linesOf(halfTransparent(size, [=](int x, int y) { return x < size / 2 && x + y != 5; })),
              "0\talpha\t-\t-\t6\n");
  }
}

TEST_F(GpiconCheck, AMaskThatHidesMoreThanTheAlphaIsHealthy) {
  EXPECT_EQ(linesOf(halfTransparent(32, [](int, int) { return true; })), "");
}

TEST_F(GpiconCheck, AnImageOf32BitsWhoseAlphaIsNotUsedIsHealthy) {
  Picture p = anyPicture(32, 32);
  p.color = [](int x, int y) { return Rgb{x, y, 9, 0}; };
  p.transparent = [](int, int) { return false; };
  EXPECT_EQ(linesOf(p), "");
}

TEST_F(GpiconCheck, PixelsThatTheFileDoesNotHaveAreNotCounted) {
  Bytes file = build(entryOf(halfTransparent(16, [](int, int) { return false; })));
  file.resize(6 + 16 + 40 + 5 * 16 * 4 + 8);  // five rows and two pixels, all transparent
  EXPECT_EQ(linesOf(file), "0\tend\t" + std::to_string(22 + 40 + 16 * 16 * 4 + 16 * 4) + "\t-\t" +
                               std::to_string(file.size()) + "\n0\talpha\t-\t-\t42\n");
}

TEST_F(GpiconCheck, ImagesInTheWrongPlaceAreReported) {
  Entry e = anyEntry(32, 4);
  e.bytesInRes = 745;
  EXPECT_EQ(linesOf(e), "0\tend\t767\t-\t766\n");
  e.bytesInRes = 0xFFFFFFFF;
  e.offset = 0xFFFFFFFF;
  EXPECT_EQ(linesOf(e), "0\tend\t8589934590\t-\t766\n");
  Bytes inside = fileOf({anyEntry(16, 1), anyEntry(32, 4)});
  put32At(inside, 6 + 16 + 12, 37);
  put32At(inside, 6 + 16 + 8, 1);
  const std::string found = linesOf(inside);
  EXPECT_NE(found.find("1\toffset\t37\t-\t38\n"), std::string::npos) << found;
}

TEST_F(GpiconCheck, SharedBytesAreReported) {
  std::vector<Entry> entries{anyEntry(16, 4), anyEntry(32, 4), anyEntry(48, 4)};
  entries[1].offset = 6 + 3 * 16;  // the offset of the first image
  const std::string found = linesOf(fileOf(entries));
  EXPECT_NE(found.find("1\tshared\timage 0\t-\t-\n"), std::string::npos) << found;
  EXPECT_EQ(found.find("\n2\t"), std::string::npos) << found;
}

TEST_F(GpiconCheck, TwoEntriesOfOneSizeAndDepthAreReported) {
  Entry old = anyEntry(32, 4);
  old.bitCount = 0;
  EXPECT_EQ(linesOf(fileOf({anyEntry(32, 4), anyEntry(32, 8), anyEntry(16, 4), anyEntry(32, 4), old})),
            "3\tsame\timage 0\t-\t-\n4\tsame\timage 0\t-\t-\n");
}

TEST_F(GpiconCheck, ACountBeyondTheFileIsReported) {
  IcoFile file{{}, 0, 1, 7};
  EXPECT_EQ(linesOf(build(file)), "-\tcount\t7\t-\t0\n");
}

TEST_F(GpiconCheck, PngPicturesOfAnotherSizeOrCutOffAreReported) {
  EXPECT_EQ(linesOf(pngEntry(16, 16, pngPicture(48, 32))), "0\twidth\t16\t48\t-\n0\theight\t16\t32\t-\n");
  Entry cut = anyPngEntry(16);
  cut.image.pop_back();
  const std::string size = std::to_string(cut.image.size());
  EXPECT_EQ(linesOf(cut), "0\tbytes\t" + size + "\t-\tincomplete\n");
}

TEST_F(GpiconCheck, DamagedPngPicturesAreReportedOnce) {
  PngFile sum = anyPng(16), data = sum;
  sum.hasRightDataCrc = false;
  data.data = Bytes(100);
  for (const PngFile& picture : {sum, data}) EXPECT_EQ(linesOf(pngEntryOf(picture)), "0\tpng\t-\t-\tdamaged\n");
  Entry other = anyPngEntry(16);
  other.image[12] = 'J';  // the first chunk is not the header
  EXPECT_EQ(linesOf(other), "0\tpng\t-\t-\tdamaged\n");
}

TEST_F(GpiconCheck, CursorsAreAskedForTheirHotSpotAndNotForADepth) {
  Entry e = anyEntry(32, 8);
  e.colorCount = 16;
  e.bitCount = 31;
  EXPECT_EQ(linesOf(build(IcoFile{{e}, 0, 2, {}})), "");
  e.bitCount = 32;
  Bytes file = build(IcoFile{{e}, 0, 2, {}});
  EXPECT_EQ(linesOf(file), "0\thotspotY\t32\t-\t32\n");
  file[6 + 5] = 1;  // x: 257
  EXPECT_EQ(linesOf(file), "0\thotspotX\t257\t-\t32\n0\thotspotY\t32\t-\t32\n");
}

TEST_F(GpiconCheck, SeveralFilesAreReportedOneAfterAnother) {
  Entry e = anyEntry(16, 4);
  e.width = 15;
  const std::string good = icon("good.ico", 32, 4), bad = folder.write("bad.ico", build(e)),
                    none = folder.write("none.ico", {'h', 'i'}), gone = folder.path("gone.ico");
  const Outcome o = run({"check", good, bad, none, gone});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.out, bad + "\t0\twidth\t15\t16\t-\n");
  EXPECT_EQ(o.err, "gpicon: " + none + ": not an icon file\ngpicon: " + gone + ": not a file that can be read\n");
  EXPECT_EQ(run({"check", good}).status, 0);
}

}  // namespace
}  // namespace gp::test
