// gpicon split: each image as a single-icon file, byte by byte.
#include "animation/AniBytes.h"
#include "cli/GpiconFixture.h"
#include "files/CursorBuilder.h"

#include <sys/stat.h>

namespace gp::test {
namespace {

namespace fs = std::filesystem;

// An image that cannot be decoded: images are copied unchanged.
Entry pngEntry(int side) {
  Entry png;
  png.width = png.height = side;
  png.bitCount = 32;
  png.image = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 1, 2, 3};
  return png;
}

class GpiconSplit : public Gpicon {
 protected:
  Outcome split(const std::vector<std::string>& files) const {
    std::vector<std::string> arguments{"split"};
    arguments.insert(arguments.end(), files.begin(), files.end());
    arguments.insert(arguments.end(), {"-d", folder.path("out")});
    return run(arguments);
  }
  Bytes output(const std::string& name) const { return bytesOf(folder.path("out/" + name)); }
};

TEST_F(GpiconSplit, EveryImageOfEverySizeBecomesAFileWithItsBytes) {
  Entry large = anyEntry(48, 8);
  large.width = large.height = 64;  // a wrong value, copied unchanged
  const std::vector<Entry> entries{anyEntry(16, 1),  anyEntry(32, 4), anyEntry(48, 8), anyEntry(24, 24),
                                   anyEntry(32, 32), large,           pngEntry(0)};
  const std::string path = folder.write("tools.ico", fileOf(entries));
  const Bytes before = bytesOf(path);
  const Outcome o = split({path});
  EXPECT_EQ(o.status, 0) << o.err;
  EXPECT_EQ(o.out + o.err, "");
  const std::vector<std::string> names{"tools_16_2.ico",     "tools_32_16.ico",    "tools_48_256.ico",
                                       "tools_24_24bpp.ico", "tools_32_32bpp.ico", "tools_64_256.ico",
                                       "tools_256_32bpp.ico"};
  EXPECT_EQ(namesIn("out").size(), names.size());
  for (std::size_t i = 0; i < names.size(); ++i) EXPECT_EQ(output(names[i]), build(entries[i])) << names[i];
  EXPECT_EQ(bytesOf(path), before);
}

TEST_F(GpiconSplit, TheEntryIsCopiedUnchangedExceptForTheOffset) {
  Entry odd = anyEntry(16, 4);
  odd.colorCount = 7;
  odd.bitCount = 0;
  Bytes file = build(odd);
  file[6 + 3] = 9;  // reserved
  file[6 + 4] = 5;  // planes
  EXPECT_EQ(split({folder.write("odd.ico", file)}).status, 0);
  EXPECT_EQ(output("odd_16_16.ico"), file);
}

TEST_F(GpiconSplit, ImagesThatStateTooFewBytesAreWrittenWhole) {
  Entry tooShort = anyEntry(16, 4), empty = anyEntry(32, 8);
  tooShort.bytesInRes = 50;
  empty.bytesInRes = 0;
  EXPECT_EQ(split({folder.write("short.ico", fileOf({tooShort, empty}))}).status, 0);
  EXPECT_EQ(output("short_16_16.ico"), build(anyEntry(16, 4)));
  EXPECT_EQ(output("short_32_256.ico"), build(anyEntry(32, 8)));
}

TEST_F(GpiconSplit, TheReservedFieldOfTheFileIsNotCopied) {
  IcoFile file{{anyEntry(16, 4)}, 0xFFFF, 1, {}};
  EXPECT_EQ(split({folder.write("r.ico", build(file))}).status, 0);
  EXPECT_EQ(output("r_16_16.ico"), build(anyEntry(16, 4)));
}

TEST_F(GpiconSplit, ASizeIsTheHeight) {
  Entry wide = anyEntry(16, 4);
  wide.width = 48;
  EXPECT_EQ(split({folder.write("w.ico", build(wide))}).status, 0);
  EXPECT_EQ(output("w_16_16.ico"), build(wide));
}

TEST_F(GpiconSplit, ImagesOfOneSizeAndDepthGetNamesOfTheirOwn) {
  Entry other = anyEntry(32, 8);
  other.image.back() ^= 1;
  fs::create_directory(folder.path("x"));
  const std::string a = folder.write("a.ico", fileOf({anyEntry(32, 8), other})),
                    b = folder.write("x/a.ico", fileOf({anyEntry(32, 8)}));
  EXPECT_EQ(split({a, b}).status, 0);
  EXPECT_EQ(namesIn("out"), (std::vector<std::string>{"a_32_256-2.ico", "a_32_256-3.ico", "a_32_256.ico"}));
  EXPECT_EQ(output("a_32_256.ico"), build(anyEntry(32, 8)));
  EXPECT_EQ(output("a_32_256-2.ico"), build(other));
  EXPECT_EQ(output("a_32_256-3.ico"), build(anyEntry(32, 8)));
}

TEST_F(GpiconSplit, NoInputOfTheCallIsOverwritten) {
  const std::string a = folder.write("a.ico", fileOf({anyEntry(32, 8)})),
                    b = folder.write("a_32_256.ico", fileOf({anyEntry(16, 1), anyEntry(16, 4)}));
  const Bytes before = bytesOf(b);
  EXPECT_EQ(run({"split", a, b, "-d", folder.folder()}).status, 0);
  EXPECT_EQ(bytesOf(b), before);
  EXPECT_EQ(bytesOf(folder.path("a_32_256-2.ico")), build(anyEntry(32, 8)));
  EXPECT_EQ(bytesOf(folder.path("a_32_256_16_2.ico")), build(anyEntry(16, 1)));
}

TEST_F(GpiconSplit, AnImageThatIsCutOffDoesNotCostTheOthers) {
  const Bytes whole = fileOf({anyEntry(16, 4), anyEntry(32, 4)});
  const std::string path = folder.write("cut.ico", Bytes(whole.begin(), whole.end() - 1));
  const Outcome o = split({path});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + path + ": 1 of its 2 images reach behind the end of the file\n");
  EXPECT_EQ(namesIn("out"), std::vector<std::string>{"cut_16_16.ico"});
}

TEST_F(GpiconSplit, SharedBytesAreNoWayToFillADisk) {
  // 1000 entries that share 300 KB would need 300 MB.
  std::vector<Entry> entries(1000);
  for (Entry& entry : entries) entry.offset = 6 + 16 * 1000, entry.bytesInRes = 300'000;
  entries.back().image = Bytes(300'000);
  const std::string path = folder.write("bomb.ico", fileOf(entries));
  const Outcome o = split({path});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(lines(o.err), 1);
  EXPECT_TRUE(namesIn("out").empty());
}

TEST_F(GpiconSplit, ManyImagesOfOneNameTakeNoQuadraticTime) {
  std::vector<Entry> entries(5'000);
  const Outcome o = split({folder.write("many.ico", fileOf(entries))});
  EXPECT_EQ(o.status, 0);
  EXPECT_EQ(namesIn("out").size(), 5'000u);
  EXPECT_TRUE(fs::exists(folder.path("out/many_32_256-5000.ico")));
}

TEST_F(GpiconSplit, ABadFileCostsOneLineAndNotTheOthers) {
  const std::string cursor = folder.write("c.cur", build(IcoFile{{anyEntry(32, 4)}, 0, 2, {}}));
  const Outcome o = split({folder.path("missing.ico"), cursor, icon("good.ico", 16, 4)});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + folder.path("missing.ico") + ": not a file that can be read\ngpicon: " + cursor +
                       ": not an icon file\n");
  EXPECT_EQ(namesIn("out"), std::vector<std::string>{"good_16_16.ico"});
}

TEST_F(GpiconSplit, WhatIsInTheWayIsReportedAndLeft) {
  const std::string path = icon("a.ico", 16, 4);
  fs::create_directories(folder.path("out/a_16_16.ico"));
  const Outcome o = split({path});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + folder.path("out/a_16_16.ico") + ": already there, and not replaced\n");
}

TEST_F(GpiconSplit, FilesThatAreThereAreReplacedOnlyByForce) {
  const std::string path = icon("a.ico", 16, 4);
  fs::create_directories(folder.path("out"));
  const std::string there = folder.write("out/a_16_16.ico", Bytes(4, 7));
  EXPECT_EQ(split({path}).status, 1);
  EXPECT_EQ(bytesOf(there).size(), 4u);
  EXPECT_EQ(split({path, "--force"}).status, 0);
  EXPECT_GT(bytesOf(there).size(), 100u);
}

TEST_F(GpiconSplit, PlantedLinksAreRefusedByNameEvenByForce) {
  const std::string path = icon("a.ico", 16, 4);
  fs::create_directories(folder.path("out"));
  const std::string outside = folder.write("outside", Bytes(8, 7));
  for (const bool isHard : {false, true}) {
    const std::string planted = folder.path("out/a_16_16.ico");
    fs::remove(planted);
    if (isHard)
      fs::create_hard_link(outside, planted);
    else
      fs::create_symlink(outside, planted);
    const Outcome o = split({path, "--force"});
    EXPECT_EQ(o.status, 1);
    EXPECT_EQ(o.err, "gpicon: " + planted + ": already there, and not replaced\n");
    EXPECT_EQ(bytesOf(outside).size(), 8u);
  }
}

TEST_F(GpiconSplit, ACallWritesNoMoreThanItsBound) {
  std::vector<Entry> entries(3);
  for (Entry& entry : entries) entry.image = Bytes(600'000), entry.bytesInRes = 600'000;
  const std::string path = folder.write("a.ico", fileOf(entries));
  const Outcome o = split({path, "--max-size", "1"});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + path + ": more than one call may write (see --max-size)\n");
  EXPECT_TRUE(namesIn("out").empty());
  EXPECT_EQ(split({path, "--max-size", "2"}).status, 0);
  for (const char* bound : {"0", "-1", "many", ""}) EXPECT_EQ(split({path, "--max-size", bound}).status, 2) << bound;
}

TEST_F(GpiconSplit, APipeInTheWayIsNoTrap) {
  const std::string path = icon("a.ico", 16, 4);
  fs::create_directories(folder.path("out"));
  ASSERT_EQ(mkfifo(folder.path("out/a_16_16.ico").c_str(), 0600), 0);
  EXPECT_EQ(split({path}).status, 1);
}

// Animated cursors.

TEST_F(GpiconSplit, TheFramesOfAnAnimatedCursorAreWrittenAsTheyAre) {
  const Bytes cursor = build(cursorOf(anyPicture(32, 8), 3, 4));
  const Bytes icon = build(anyEntry(16, 4));
  const std::string text =
      aniOf(headerOf(3) + listOf("fram", chunkOf("icon", std::string(cursor.begin(), cursor.end())) +
                                             chunkOf("icon", std::string(icon.begin(), icon.end())) +
                                             padded(chunkOf("icon", "odd"))));
  const Outcome o = split({folder.write("any name", bytesOfText(text))});
  EXPECT_EQ(o.status, 0) << o.err;
  EXPECT_EQ(o.out + o.err, "");
  EXPECT_EQ(namesIn("out"), (std::vector<std::string>{"any name_1.cur", "any name_2.ico", "any name_3.cur"}));
  EXPECT_EQ(output("any name_1.cur"), cursor);
  EXPECT_EQ(output("any name_2.ico"), icon);
  EXPECT_EQ(output("any name_3.cur"), bytesOfText("odd"));
}

TEST_F(GpiconSplit, AFrameThatIsCutCostsAComplaint) {
  std::string text = aniOf(headerOf(2) + listOf("fram", chunkOf("icon", "first!") + chunkOf("icon", "second")));
  text.pop_back();
  const std::string path = folder.write("cut.ani", bytesOfText(text));
  const Outcome o = split({path});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + path + ": 1 of its 2 images reach behind the end of the file\n");
  EXPECT_EQ(namesIn("out"), std::vector<std::string>{"cut_1.cur"});
}

TEST_F(GpiconSplit, AnimatedCursorsThatCannotBeReadAreRefused) {
  const std::string frames = listOf("fram", chunkOf("icon", "abcd"));
  const std::vector<std::pair<std::string, std::string>> cases{
      {"RIFF", "Failed to read this ANI file"},
      {aniOf(frames), "Failed to read jiffies info of file."},
      {aniOf(headerOf(1, 10, 0) + frames), "Failed to read this ANI file"},
      {aniOf(headerOf(1)), "Failed to read this ANI file"}};
  for (const auto& [text, reason] : cases) {
    const std::string path = folder.write("bad.ani", bytesOfText(text));
    const Outcome o = split({path});
    EXPECT_EQ(o.status, 1);
    EXPECT_EQ(o.err, "gpicon: " + path + ": " + reason + "\n");
    EXPECT_TRUE(namesIn("out").empty());
  }
}

}  // namespace
}  // namespace gp::test
