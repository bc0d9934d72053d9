// gpicon ani: build, set and icon.
#include "animation/FilmBytes.h"
#include "animation/format/AniFile.h"
#include "animation/format/FilmReading.h"
#include "cli/GpiconFixture.h"
#include "files/SlowIconReader.h"

#include <numeric>

namespace gp::test {
namespace {

constexpr const char* kHint = " (see gpicon --help)\n";

class GpiconAniEditing : public Gpicon {
 protected:
  const std::string out = folder.path("out.ani");

  // An icon file of 32x32 with a colour of frameColor().
  std::string frameIcon(int number) const {
    return folder.write(std::to_string(number) + ".ico", build(plainEntry(32, frameColor(number))));
  }
  std::string cursor(const std::string& name, const Entry& entry) const {
    return folder.write(name, cursorFile({entry}, {{9, 8}}));
  }
  std::string film(int frames) const {
    std::vector<std::string> files;
    for (int i = 1; i <= frames; ++i) files.push_back(test::plainFrame(i % 16, {4, 5}));
    std::vector<std::uint32_t> rates(static_cast<std::size_t>(frames));
    std::iota(rates.begin(), rates.end(), 1U);
    const std::string text = aniOf(headerOf(static_cast<std::uint32_t>(frames)) + ratesOf(rates) + frameList(files));
    return folder.write("film.ani", bytesOfText(text));
  }

  static std::vector<FilmFrame> framesIn(const std::string& path) { return ReadANIFileFrames(bytesOf(path)).frames; }
  // The frames as numbers of frameColor(), 0 for a blank one.
  static std::vector<int> numbersIn(const std::string& path) {
    std::vector<int> numbers;
    for (const FilmFrame& frame : framesIn(path)) {
      const Color color = frame.picture.image.GetPixel(31, 31);
      numbers.push_back(color == kWhite ? 0 : color >> 16);
    }
    return numbers;
  }
  static std::vector<int> jiffiesIn(const std::string& path) {
    std::vector<int> jiffies;
    for (const FilmFrame& frame : framesIn(path)) jiffies.push_back(frame.jiffies);
    return jiffies;
  }
  static std::vector<int> hotspotIn(const std::string& path) {
    return {framesIn(path).at(0).hotspotX, framesIn(path).at(0).hotspotY};
  }

  void expectDone(const std::vector<std::string>& arguments) const {
    const Outcome o = run(arguments);
    EXPECT_EQ(o.status, 0) << testing::PrintToString(arguments);
    EXPECT_EQ(o.out + o.err, "");
  }
  void expectRefused(const std::vector<std::string>& arguments, const std::string& error) const {
    const Outcome o = run(arguments);
    EXPECT_EQ(o.status, 1) << testing::PrintToString(arguments);
    EXPECT_EQ(o.err, "gpicon: " + error + "\n");
    EXPECT_FALSE(std::filesystem::exists(out));
  }
  void expectBadUsage(const std::vector<std::string>& arguments, const std::string& error) const {
    const Outcome o = run(arguments);
    EXPECT_EQ(o.status, 2) << testing::PrintToString(arguments);
    EXPECT_EQ(o.err, "gpicon: " + error + kHint);
    EXPECT_FALSE(std::filesystem::exists(out));
  }
  // The operations on a film of so many frames, into another file.
  void set(int frames, const std::vector<std::string>& operations) const {
    std::vector<std::string> arguments{"ani", "set", film(frames), "-o", out};
    arguments.insert(arguments.end(), operations.begin(), operations.end());
    expectDone(arguments);
  }
  void expectSetRefused(const std::vector<std::string>& operations, const std::string& error) const {
    std::vector<std::string> arguments{"ani", "set", film(2), "-o", out};
    arguments.insert(arguments.end(), operations.begin(), operations.end());
    expectRefused(arguments, error);
  }
  void expectSetBadUsage(const std::vector<std::string>& operations, const std::string& error) const {
    std::vector<std::string> arguments{"ani", "set", film(2), "-o", out};
    arguments.insert(arguments.end(), operations.begin(), operations.end());
    expectBadUsage(arguments, "ani set: " + error);
  }
};

// Building.

TEST_F(GpiconAniEditing, AFilmIsBuiltOfIconsWith30JiffiesAndTheHotSpotAtZero) {
  expectDone({"ani", "build", frameIcon(3), frameIcon(1), frameIcon(2), "-o", out});
  EXPECT_EQ(numbersIn(out), (std::vector{3, 1, 2}));
  EXPECT_EQ(jiffiesIn(out), (std::vector{30, 30, 30}));
  EXPECT_EQ(hotspotIn(out), (std::vector{0, 0}));
}

TEST_F(GpiconAniEditing, TheFileHasTheLayoutOfTheEditor) {
  expectDone({"ani", "build", frameIcon(3), "-o", out, "--jiffies", "90", "--hotspot", "31,30"});
  const Bytes bytes = bytesOf(out);
  EXPECT_EQ(number(bytes, 4, 4), bytes.size());
  EXPECT_EQ(std::string(bytes.begin() + 28 + 4, bytes.begin() + 28 + 4 + 41),
            "Edited with Glimmerpane of Zorvex Lattice");
  const AniReading reading = readAniFile(bytes);
  ASSERT_EQ(reading.file.images.size(), 1U);
  const std::size_t frame = reading.file.images[0].offset;
  EXPECT_EQ(number(bytes, frame + 2, 2), 2U);
  EXPECT_EQ(number(bytes, frame + 10, 2), 31U);
  EXPECT_EQ(number(bytes, frame + 12, 2), 30U);
  EXPECT_EQ(reading.file.rates, (std::vector<std::uint32_t>{90}));
}

TEST_F(GpiconAniEditing, JiffiesAreForAllFramesOrForEach) {
  expectDone({"ani", "build", frameIcon(1), frameIcon(2), "-o", out, "--jiffies", "7"});
  EXPECT_EQ(jiffiesIn(out), (std::vector{7, 7}));
  expectDone({"ani", "build", frameIcon(1), frameIcon(2), "-o", out, "--jiffies", "1,90"});
  EXPECT_EQ(jiffiesIn(out), (std::vector{1, 90}));
}

TEST_F(GpiconAniEditing, ACursorComesByWayOfTheEditingArea) {
  Picture picture = plainPicture(32, frameColor(5));
  picture.color = [](int x, int y) { return x < 16 && y < 16 ? Rgb{192, 192, 192} : frameColor(5); };
  expectDone({"ani", "build", cursor("a.cur", entryOf(picture, 0, 24)), "-o", out});
  const FilmFrame frame = framesIn(out).at(0);
  // The colour of the ground becomes white, opaque because the mask is black there.
  EXPECT_EQ(frame.picture.image.GetPixel(0, 0), kWhite);
  EXPECT_EQ(frame.picture.mask.GetPixel(0, 0), kBlack);
  EXPECT_EQ(frame.picture.image.GetPixel(31, 31), rgb(80, 175, 5));
  EXPECT_EQ(hotspotIn(out), (std::vector{0, 0}));
}

TEST_F(GpiconAniEditing, AnIconKeepsTheGrayOfTheGround) {
  expectDone({"ani", "build", folder.write("g.ico", build(plainEntry(32, {192, 192, 192, 255}))), "-o", out});
  EXPECT_EQ(framesIn(out).at(0).picture.image.GetPixel(0, 0), kGround);
}

TEST_F(GpiconAniEditing, SeventyFramesAreBuiltAndOneMoreIsRefused) {
  std::vector<std::string> arguments{"ani", "build", "-o", out};
  arguments.insert(arguments.end(), 70, frameIcon(4));
  std::vector<std::string> more = arguments;
  more.push_back(frameIcon(4));
  expectRefused(more, out + ": Maximum 70 frames reached");
  expectDone(arguments);
  EXPECT_EQ(framesIn(out).size(), 70U);
}

TEST_F(GpiconAniEditing, FilesThatCannotBeFramesAreRefused) {
  const auto refused = [&](const std::string& path, const std::string& reason) {
    expectRefused({"ani", "build", frameIcon(1), path, "-o", out}, path + ": " + reason);
  };
  const std::string invalid = "Invalid icon file or icon not a size of 16x16, 24x24, 32x32 or 48x48.";
  refused(folder.write("t.ico", {'h', 'i'}), invalid);
  refused(folder.path("missing.ico"), invalid);
  refused(icon("small.ico", 24, 24), "Size not of 32x32");
  refused(icon("alpha.ico", 32, 32), "Cannot load a 32 BPP True Color icon");
  refused(folder.write("two.ico", fileOf({anyEntry(32, 4), anyEntry(32, 24)})),
          "This file is a multi-icon file.  Please load single-icon file only");
  refused(cursor("alpha.cur", anyEntry(32, 32)), "Not allowed to load an icon with Alpha Channel");
  refused(cursor("small.cur", anyEntry(16, 4)), "Invalid cursor file");
}

TEST_F(GpiconAniEditing, TheFirstFrameCannotBeBlank) {
  const std::string white = folder.write("white.ico", build(plainEntry(32, {255, 255, 255, 255})));
  expectRefused({"ani", "build", white, frameIcon(1), "-o", out}, out + ": First frame cannot be a blank");
  expectDone({"ani", "build", frameIcon(1), white, "-o", out});
  EXPECT_EQ(numbersIn(out), (std::vector{1, 0}));
}

TEST_F(GpiconAniEditing, WrongValuesOfBuildAreBadUsage) {
  const std::string first = frameIcon(1), second = frameIcon(2);
  for (const std::string jiffies : {"0", "91", "x", "1,2,3", "1,91", "1,", "-1", "4294967297"})
    expectBadUsage({"ani", "build", first, second, "-o", out, "--jiffies", jiffies},
                   "ani build: --jiffies takes 1 to 90 jiffies, once or for each frame");
  for (const std::string hotspot : {"32,0", "0,32", "1", "1,2,3", "x,1", "-1,1"})
    expectBadUsage({"ani", "build", first, "-o", out, "--hotspot", hotspot},
                   "ani build: --hotspot takes X,Y, each 0 to 31");
  expectBadUsage({"ani", "build", first}, "ani build: FRAME... -o OUT.ani is needed");
  expectBadUsage({"ani", "build", "-o", out}, "ani build: FRAME... -o OUT.ani is needed");
  expectBadUsage({"ani", "build", first, "-o", out, "--up", "1"}, "ani build: unknown option --up");
  expectBadUsage({"ani", "build", first, "-o", out, "-o", out}, "ani build: -o takes one value, once");
  expectBadUsage({"ani"}, "ani: build, set or icon is needed");
  expectBadUsage({"ani", "play", first}, "ani: build, set or icon is needed");
}

// Changing.

TEST_F(GpiconAniEditing, WithoutOperationsTheFilmIsSavedAsItIs) {
  set(3, {});
  EXPECT_EQ(numbersIn(out), (std::vector{1, 2, 3}));
  EXPECT_EQ(jiffiesIn(out), (std::vector{1, 2, 3}));
  EXPECT_EQ(hotspotIn(out), (std::vector{4, 5}));
}

TEST_F(GpiconAniEditing, EachOperationDoesWhatItsNameStates) {
  struct Case {
    std::vector<std::string> operations;
    std::vector<int> numbers, jiffies;
  };
  for (const Case& c : std::vector<Case>{{{"--jiffies", "9"}, {1, 2, 3}, {9, 9, 9}},
                                         {{"--jiffies-of", "2", "9"}, {1, 2, 3}, {1, 9, 3}},
                                         {{"--below", "1"}, {1, 0, 2, 3}, {1, 1, 2, 3}},
                                         {{"--above", "2"}, {1, 0, 2, 3}, {1, 2, 2, 3}},
                                         {{"--below", "3"}, {1, 2, 3, 0}, {1, 2, 3, 3}},
                                         {{"--remove", "1"}, {2, 3}, {2, 3}},
                                         {{"--remove", "3"}, {1, 2}, {1, 2}},
                                         {{"--up", "3"}, {1, 3, 2}, {1, 3, 2}},
                                         {{"--down", "1"}, {2, 1, 3}, {2, 1, 3}},
                                         {{"--load", "2", frameIcon(9)}, {1, 9, 3}, {1, 2, 3}},
                                         {{"--take", "3", frameIcon(9)}, {1, 2, 9}, {1, 2, 3}}}) {
    set(3, c.operations);
    EXPECT_EQ(numbersIn(out), c.numbers) << c.operations.front();
    EXPECT_EQ(jiffiesIn(out), c.jiffies) << c.operations.front();
    EXPECT_EQ(hotspotIn(out), (std::vector{4, 5})) << c.operations.front();
  }
  set(3, {"--hotspot", "31,0"});
  EXPECT_EQ(hotspotIn(out), (std::vector{31, 0}));
}

TEST_F(GpiconAniEditing, OperationsAreAppliedFromLeftToRight) {
  set(2, {"--below", "1", "--load", "2", frameIcon(7), "--remove", "1", "--jiffies-of", "1", "50", "--down", "1"});
  EXPECT_EQ(numbersIn(out), (std::vector{2, 7}));
  EXPECT_EQ(jiffiesIn(out), (std::vector{2, 50}));
  set(2, {"--jiffies", "5", "--jiffies-of", "1", "6", "--hotspot", "1,1", "--hotspot", "2,3"});
  EXPECT_EQ(jiffiesIn(out), (std::vector{6, 5}));
  EXPECT_EQ(hotspotIn(out), (std::vector{2, 3}));
  set(2, {"--jiffies-of", "1", "6", "--jiffies", "5"});
  EXPECT_EQ(jiffiesIn(out), (std::vector{5, 5}));
}

TEST_F(GpiconAniEditing, TakeOpensWhatTheEditorOpens) {
  const std::string several = folder.write("two.ico", fileOf({anyEntry(16, 4), plainEntry(32, frameColor(8))}));
  set(2, {"--take", "1", several, "--take", "2", cursor("a.cur", plainEntry(32, frameColor(9)))});
  EXPECT_EQ(numbersIn(out), (std::vector{8, 9}));
}

TEST_F(GpiconAniEditing, TheFileItselfIsSavedWithoutOutput) {
  const std::string path = film(3);
  expectDone({"ani", "set", "--remove", "2", path});
  EXPECT_EQ(numbersIn(path), (std::vector{1, 3}));
}

TEST_F(GpiconAniEditing, StandardInputIsSavedToStandardOutput) {
  set(3, {"--up", "2"});
  EXPECT_EQ(runAfter("cat " + film(3) + " | ", {"ani", "set", "-", "--up", "2"}).out, textOf("out.ani"));
}

TEST_F(GpiconAniEditing, FramesThatAreNotThereAreRefused) {
  const std::string path = folder.path("film.ani");
  for (const std::string n : {"0", "3", "2000000000"}) {
    for (const std::string operation : {"--below", "--above", "--remove"})
      expectSetRefused({operation, n}, path + ": no frame " + n);
    expectSetRefused({"--jiffies-of", n, "1"}, path + ": no frame " + n);
    expectSetRefused({"--load", n, frameIcon(1)}, path + ": no frame " + n);
    expectSetRefused({"--take", n, frameIcon(1)}, path + ": no frame " + n);
  }
  expectSetRefused({"--up", "1"}, path + ": no frame 0");
  expectSetRefused({"--down", "2"}, path + ": no frame 3");
  expectSetRefused({"--up", "3"}, path + ": no frame 3");
  expectSetRefused({"--remove", "2", "--remove", "2"}, path + ": no frame 2");
  expectRefused({"ani", "icon", film(2), "3", out}, path + ": no frame 3");
  expectRefused({"ani", "icon", film(2), "0", out}, path + ": no frame 0");
}

TEST_F(GpiconAniEditing, RefusalsLeaveTheFileAsItWas) {
  const std::string path = film(70);
  const Bytes former = bytesOf(path);
  const Outcome full = run({"ani", "set", path, "--jiffies", "9", "--above", "1"});
  EXPECT_EQ(full.status, 1);
  EXPECT_EQ(full.err, "gpicon: " + path + ": Maximum 70 frames reached\n");
  EXPECT_EQ(run({"ani", "set", path, "--below", "1"}).err, full.err);
  EXPECT_EQ(run({"ani", "set", path, "--remove", "70", "--load", "1", path}).status, 1);
  EXPECT_EQ(bytesOf(path), former);
  expectSetRefused({"--above", "1"}, path + ": First frame cannot be a blank");
  expectSetRefused({"--remove", "1", "--remove", "1"}, path + ": No frames prepared yet");
  const std::string missing = folder.path("missing.ico");
  expectSetRefused({"--load", "1", missing},
                   missing + ": Invalid icon file or icon not a size of 16x16, 24x24, 32x32 or 48x48.");
  expectSetRefused({"--take", "1", missing}, missing + ": not a file that can be read");
  const std::string small = icon("small.ico", 24, 24), alpha = icon("alpha.ico", 32, 32);
  expectSetRefused({"--take", "1", small}, small + ": Icon in Editing Area is not 32x32");
  expectSetRefused({"--take", "1", alpha}, alpha + ": Not allowed to load an icon with Alpha Channel");
}

TEST_F(GpiconAniEditing, FilesThatAreNoFilmAreRefused) {
  const std::string text = folder.write("t.ani", {'h', 'i'}), missing = folder.path("missing.ani");
  expectRefused({"ani", "set", text, "-o", out}, text + ": Failed to read this ANI file");
  expectRefused({"ani", "icon", text, "1", out}, text + ": Failed to read this ANI file");
  expectRefused({"ani", "set", missing, "-o", out}, missing + ": not a file that can be read");
  std::vector<std::string> frames(71, smallFrame());
  const std::string many = folder.write("many.ani", bytesOfText(aniOf(headerOf(71) + frameList(frames))));
  expectRefused({"ani", "set", many, "-o", out},
                many + ": Either an invalid ANI file or number of frames exceeds limit of 70.");
}

TEST_F(GpiconAniEditing, WrongValuesOfSetAreBadUsage) {
  for (const std::string jiffies : {"0", "91", "x", "1,2", ""}) {
    expectSetBadUsage({"--jiffies", jiffies}, "--jiffies takes 1 to 90 jiffies");
    expectSetBadUsage({"--jiffies-of", "1", jiffies}, "--jiffies-of takes N and 1 to 90 jiffies");
  }
  for (const std::string hotspot : {"32,0", "0,32", "1", "1,2,3", "x,1"})
    expectSetBadUsage({"--hotspot", hotspot}, "--hotspot takes X,Y, each 0 to 31");
  for (const std::string n : {"x", "-1", "1.5", ""}) expectSetBadUsage({"--below", n}, "--below takes N");
  for (const std::string operation : {"--below", "--above", "--remove", "--up", "--down"})
    expectSetBadUsage({operation}, operation + " takes N");
  expectSetBadUsage({"--jiffies"}, "--jiffies takes 1 to 90 jiffies");
  expectSetBadUsage({"--jiffies-of", "1"}, "--jiffies-of takes N and 1 to 90 jiffies");
  expectSetBadUsage({"--load", "1"}, "--load takes N and ICON.ico");
  expectSetBadUsage({"--take", "1"}, "--take takes N and FILE");
  expectSetBadUsage({"--play"}, "unknown option --play");
  expectSetBadUsage({"more.ani"}, "one FILE.ani is needed");
  expectBadUsage({"ani", "set", "--jiffies", "1"}, "ani set: one FILE.ani is needed");
}

TEST_F(GpiconAniEditing, WhatIsNotKeptOfTheFileIsNamed) {
  const Bytes bytes =
      bytesOfText(aniOf(headerOf(1) + frameList({asText(cursorFile({entryOf(anyPicture(32, 32), 0, 32)}))})));
  const std::string path = folder.write("alpha.ani", bytes);
  const Outcome o = run({"ani", "set", path, "-o", out});
  EXPECT_EQ(o.status, 0);
  EXPECT_EQ(o.err, "gpicon: " + path + ": Will not be kept: alpha\n");
}

// Taking out.

TEST_F(GpiconAniEditing, AFrameIsSavedAsTheEditorSavesIt) {
  const std::string path = folder.path("frame.ico");
  expectDone({"ani", "icon", film(3), "2", path});
  const Bytes bytes = bytesOf(path);
  EXPECT_EQ(number(bytes, 2, 2), 1U);
  EXPECT_EQ(number(bytes, 22 + 14, 2), 8U);
  IconEntry entry;
  entry.width = entry.height = 32;
  entry.bitCount = 8;
  entry.imageOffset = 22;
  const IconImage icon = SlowIconReader(bytes, entry, 32, 32).read();
  EXPECT_EQ(icon.image.GetPixel(0, 0), rgb(32, 223, 2));
  EXPECT_EQ(icon.mask.GetPixel(0, 0), kBlack);
}

}  // namespace
}  // namespace gp::test
