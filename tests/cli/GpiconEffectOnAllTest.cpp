// gpicon effect --all: the files that it writes byte by byte, which files and images it refuses, and its arguments.
#include "cli/EffectOnAll.h"
#include "cli/GpiconAllFixture.h"
#include "effects/EffectCases.h"
#include "effects/MadeUpEffect.h"

#include <sys/stat.h>

namespace gp::test {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kDirectory = 6, kEntry = 16;

// A painted part, a transparent one and colours that a palette needs.
Picture pictureOf(int size, int bits) {
  Picture p = anyPicture(size, bits);
  p.palette = {{0, 0, 0}, {128, 0, 0}, {0, 128, 0}, {128, 128, 0}, {0, 0, 128}};
  p.index = [bits](int x, int y) { return (x + y) % std::min(5, 1 << bits); };
  return p;
}
Entry entry(int size, int bits) { return entryOf(pictureOf(size, bits)); }
// No effect is applied to an image of this size.
Entry largeEntry() {
  Entry e = anyEntry(48, 8);
  e.width = e.height = 64;
  return e;
}
Entry pngEntry() {
  Entry e;
  e.bitCount = 32;
  e.image = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 1, 2, 3};
  return e;
}

// Bytes of a file, as far as it has them.
Bytes part(const Bytes& file, std::size_t at, std::size_t count) {
  const std::size_t begin = std::min(at, file.size()), end = std::min(begin + count, file.size());
  return {file.begin() + static_cast<std::ptrdiff_t>(begin), file.begin() + static_cast<std::ptrdiff_t>(end)};
}
// The bytes of entry i in the directory, without its byte count and offset.
Bytes fieldsOf(const Bytes& file, std::size_t i) { return part(file, kDirectory + i * kEntry, 8); }
Bytes imageOf(const Bytes& file, std::size_t i) {
  const std::size_t at = kDirectory + i * kEntry;
  return part(file, number(file, at + 12, 4), number(file, at + 8, 4));
}

class GpiconEffectOnAll : public GpiconAll {
 protected:
  GpiconEffectOnAll() : GpiconAll("effect") {}

  void expectLine(const Outcome& o, const std::string& line) const {
    EXPECT_EQ(o.status, 1);
    EXPECT_EQ(o.out, "");
    EXPECT_EQ(o.err, "gpicon: " + line + "\n");
  }
};

// Each image is what `effect` makes of it alone, put in by `replace`, and an image that `effect` refuses is not
// touched. No two of these images get the same size and depth, which `replace` would refuse.
TEST_F(GpiconEffectOnAll, EachImageIsTheOneThatEffectAndReplaceMake) {
  const std::vector<Entry> entries{entry(16, 24), entry(32, 4),     entry(48, 24),
                                   largeEntry(),  anyEntry(24, 32), pngEntry()};
  const std::string path = folder.write("many.ico", fileOf(entries));
  int replaced = 0;
  const FileFor files = [&](const Setting&, const EffectValues&) {
    return folder.write("other.ico", fileOf({anyEntry(16, 24), anyEntry(32, 24), anyEntry(48, 24)}));
  };
  for (const EffectRow* effect : commandLineEffects()) {
    if (effect->changesSize) continue;
    SCOPED_TRACE(effect->name);
    const std::string expected = folder.write("expected.ico", fileOf(entries)), one = folder.path("one.ico");
    std::vector<std::string> options = neededOptions(*effect, files);
    for (std::size_t i = 0; i < entries.size(); ++i) {
      std::vector<std::string> words{"effect", path, std::to_string(i), one, effect->name};
      words.insert(words.end(), options.begin(), options.end());
      if (run(words).status != 0) continue;
      ASSERT_EQ(run({"replace", expected, std::to_string(i), one, "--image", "0"}).status, 0) << i;
      ++replaced;
    }
    std::vector<std::string> words{path, effect->name};
    words.insert(words.end(), options.begin(), options.end());
    expectDone(runAll(words, {"--force"}));
    EXPECT_EQ(written("many.ico"), bytesOf(expected));
  }
  EXPECT_GT(replaced, 40);
}

TEST_F(GpiconEffectOnAll, ReservedBytesPlanesAndOtherImagesStay) {
  Bytes file = fileOf({entry(16, 24), anyEntry(32, 32), largeEntry(), pngEntry()});
  file[0] = 7;  // reserved
  for (std::size_t i = 0; i < 4; ++i) {
    file[kDirectory + i * kEntry + 3] = static_cast<std::uint8_t>(100 + i);  // reserved
    file[kDirectory + i * kEntry + 4] = static_cast<std::uint8_t>(50 + i);   // planes
  }
  expectDone(runAll({folder.write("a.ico", file), "invert"}));
  const Bytes made = written("a.ico");
  ASSERT_EQ(made.size(), file.size());
  EXPECT_EQ(Bytes(made.begin(), made.begin() + 6), Bytes(file.begin(), file.begin() + 6));
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(fieldsOf(made, i), fieldsOf(file, i)) << i;
  EXPECT_NE(imageOf(made, 0), imageOf(file, 0));
  for (std::size_t i = 1; i < 4; ++i) EXPECT_EQ(imageOf(made, i), imageOf(file, i)) << i;
}

TEST_F(GpiconEffectOnAll, SizeColorsBitsAndBytesAreThoseOfASave) {
  Entry wrong = entry(16, 8);  // five standard colours, which a save writes in 4 bits
  Bytes file = fileOf({wrong, entry(32, 24)});
  expectDone(runAll({folder.write("a.ico", file), "turn", "--left"}));
  const Bytes made = written("a.ico");
  EXPECT_EQ(fieldsOf(made, 0), (Bytes{16, 16, 16, 0, 1, 0, 4, 0}));
  EXPECT_EQ(imageOf(made, 0).size(), imageBytes(pictureOf(16, 4)).size());
  EXPECT_EQ(fieldsOf(made, 1), (Bytes{32, 32, 0, 0, 1, 0, 24, 0}));
}

TEST_F(GpiconEffectOnAll, AnImageIsWrittenEvenIfAnotherThenHasItsSizeAndDepth) {
  // Both have five standard colours.
  const std::string path = folder.write("a.ico", fileOf({entry(32, 4), entry(32, 8)}));
  expectDone(runAll({path, "flip", "--vertical"}));
  const Bytes made = written("a.ico");
  EXPECT_EQ(fieldsOf(made, 0), (Bytes{32, 32, 16, 0, 1, 0, 4, 0}));
  EXPECT_EQ(fieldsOf(made, 1), fieldsOf(made, 0));
  EXPECT_EQ(imageOf(made, 1), imageOf(made, 0));
  ASSERT_EQ(run({"effect", path, "1", folder.path("one"), "flip", "--vertical"}).status, 0);
  EXPECT_EQ(run({"replace", path, "1", folder.path("one")}).status, 1);
}

TEST_F(GpiconEffectOnAll, ImagesAreLaidOutAfreshInTheOrderOfTheDirectory) {
  Entry first = anyEntry(16, 32), second = entry(32, 24), third = anyEntry(48, 32);
  const Bytes ordered = fileOf({first, second, third});
  const auto end = static_cast<std::uint32_t>(kDirectory + 3 * kEntry);
  const auto sizeOf = [](const Entry& e) { return static_cast<std::uint32_t>(e.image.size()); };
  // The same images in the opposite order behind each other, with bytes of no image at the end.
  Bytes file(ordered.begin(), ordered.begin() + end);
  std::uint32_t at = end;
  for (const auto& [i, e] : {std::pair{2, &third}, {1, &second}, {0, &first}}) {
    for (int byte = 0; byte < 4; ++byte)
      file[kDirectory + static_cast<std::size_t>(i) * kEntry + 12 + static_cast<std::size_t>(byte)] =
          static_cast<std::uint8_t>(at >> 8 * byte);
    append(file, e->image);
    at += sizeOf(*e);
  }
  append(file, {1, 2, 3});
  expectDone(runAll({folder.write("mixed.ico", file), "invert"}));
  expectDone(runAll({folder.write("ordered.ico", ordered), "invert"}));
  EXPECT_EQ(written("mixed.ico"), written("ordered.ico"));
  EXPECT_EQ(written("mixed.ico").size(), ordered.size());
  EXPECT_EQ(number(written("mixed.ico"), kDirectory + 12, 4), end);
}

TEST_F(GpiconEffectOnAll, ImagesThatStateTooFewBytesAreWrittenWhole) {
  Entry taken = entry(16, 24), other = anyEntry(32, 32);
  taken.bytesInRes = 50;
  other.bytesInRes = 0;
  expectDone(runAll({folder.write("short.ico", fileOf({taken, other})), "invert"}));
  expectDone(runAll({folder.write("whole.ico", fileOf({entry(16, 24), anyEntry(32, 32)})), "invert"}));
  EXPECT_EQ(written("short.ico"), written("whole.ico"));
}

TEST_F(GpiconEffectOnAll, AlphaMovesWithItsPixelsInFlipsTurnsAndRotations) {
  struct Turn {
    std::vector<std::string> words;
    std::size_t (*source)(std::size_t x, std::size_t y);  // the pixel that comes to (x, y), row by row
  };
  const Turn turns[] = {
      {{"rotate", "--angle", "360"}, [](std::size_t x, std::size_t y) { return 16 * y + x; }},
      {{"flip", "--horizontal"}, [](std::size_t x, std::size_t y) { return 16 * y + 15 - x; }},
      {{"turn", "--right"}, [](std::size_t x, std::size_t y) { return 16 * (15 - x) + y; }},
  };
  Picture p = anyPicture(16, 32);
  p.transparent = [](int, int) { return false; };
  const Bytes file = build(entryOf(p));
  const std::string path = folder.write("alpha.ico", file);
  // The blue, green, red and alpha of a pixel; the rows of a file begin at the bottom.
  const auto pixel = [](const Bytes& bytes, std::size_t index) {
    const auto at = static_cast<std::ptrdiff_t>(22 + 40 + 4 * (16 * (15 - index / 16) + index % 16));
    return Bytes(bytes.begin() + at, bytes.begin() + at + 4);
  };
  for (const Turn& turn : turns) {
    std::vector<std::string> all{path};
    all.insert(all.end(), turn.words.begin(), turn.words.end());
    expectDone(runAll(all, {"--force"}));
    const Bytes made = written("alpha.ico");
    ASSERT_EQ(fieldsOf(made, 0), fieldsOf(file, 0)) << turn.words.front();
    ASSERT_EQ(made.size(), file.size());
    for (std::size_t y = 0; y < 16; ++y)
      for (std::size_t x = 0; x < 16; ++x)
        ASSERT_EQ(pixel(made, 16 * y + x), pixel(file, turn.source(x, y))) << turn.words.front() << x << " " << y;
    std::vector<std::string> one{"effect", path, "0", folder.path("one")};
    one.insert(one.end(), turn.words.begin(), turn.words.end());
    expectDone(run(one));
    EXPECT_EQ(bytesOf(folder.path("one")), made);
  }
}

TEST_F(GpiconEffectOnAll, EachFileKeepsItsNameInAFolderThatIsMade) {
  fs::create_directory(folder.path("x"));
  const std::string a = folder.write("a.ico", fileOf({entry(16, 24)})),
                    b = folder.write("x/no icon name", fileOf({entry(32, 24)}));
  expectDone(run({"effect", a, b, "invert", "--all", "-d", out + "/deep/in"}));
  EXPECT_EQ(namesIn("out/deep/in"), (std::vector<std::string>{"a.ico", "no icon name"}));
  EXPECT_EQ(number(bytesOf(out + "/deep/in/no icon name"), kDirectory, 1), 32u);
}

TEST_F(GpiconEffectOnAll, OptionsMayBeAnywhereAndTheNameIsTheLastPlainWord) {
  const std::string a = folder.write("a.ico", fileOf({entry(16, 24)})),
                    b = folder.write("raised", fileOf({entry(16, 24)}));
  expectDone(run({"effect", "--all", "-d", out, a, "--color", "FF0000", b, "shadowed"}));
  EXPECT_EQ(namesIn("out"), (std::vector<std::string>{"a.ico", "raised"}));
  expectDone(run({"effect", "--all", "--force", "-d", out, "--", a, "invert"}));
}

TEST_F(GpiconEffectOnAll, AFileThatIsThereIsKeptUnlessForceIsGiven) {
  const std::string a = folder.write("a.ico", fileOf({entry(16, 24)})),
                    b = folder.write("b.ico", fileOf({entry(16, 24)}));
  fs::create_directory(out);
  const std::string there = folder.write("out/a.ico", {1, 2, 3});
  expectLine(runAll({a, b, "invert"}), there + ": already there, and not replaced");
  EXPECT_EQ(bytesOf(there), (Bytes{1, 2, 3}));
  EXPECT_TRUE(fs::exists(out + "/b.ico"));
  expectDone(runAll({a, b, "invert"}, {"--force"}));
  EXPECT_EQ(bytesOf(there), written("b.ico"));
}

TEST_F(GpiconEffectOnAll, AnInputInTheFolderIsReplacedOnlyByForce) {
  const std::string a = folder.write("a.ico", fileOf({entry(16, 24)}));
  const Bytes before = bytesOf(a);
  expectLine(run({"effect", a, "invert", "--all", "-d", folder.folder()}),
             folder.path("a.ico") + ": already there, and not replaced");
  EXPECT_EQ(bytesOf(a), before);
  expectDone(run({"effect", a, "invert", "--all", "-d", folder.folder(), "--force"}));
  EXPECT_NE(bytesOf(a), before);
}

TEST_F(GpiconEffectOnAll, OfTwoFilesOfOneNameTheLaterIsReportedAndNotWrittenEvenByForce) {
  fs::create_directory(folder.path("x"));
  const std::string a = folder.write("a.ico", fileOf({entry(16, 24)})),
                    later = folder.write("x/a.ico", fileOf({entry(32, 24)})),
                    b = folder.write("b.ico", fileOf({entry(48, 24)}));
  for (const bool isForced : {false, true}) {
    const Outcome o =
        runAll({a, later, b, "invert"}, isForced ? std::vector<std::string>{"--force"} : std::vector<std::string>{});
    expectLine(o, later + ": a file of this name was given before it, so it is not written");
    EXPECT_EQ(number(written("a.ico"), kDirectory, 1), 16u);
    EXPECT_EQ(number(written("b.ico"), kDirectory, 1), 48u);
  }
  expectLine(runAll({b, b, "invert"}, {"--force"}),
             b + ": a file of this name was given before it, so it is not written");
}

TEST_F(GpiconEffectOnAll, AFileOfWhichNoImageTakesTheEffectCostsOneLineAndNotTheOthers) {
  const std::string small = folder.write("small.ico", fileOf({entry(16, 24), entry(24, 4)})),
                    alpha = folder.write("alpha.ico", fileOf({anyEntry(32, 32), pngEntry()})),
                    large = folder.write("large.ico", fileOf({largeEntry()})),
                    good = folder.write("good.ico", fileOf({entry(16, 24), entry(32, 24)}));
  const Outcome o = runAll({small, alpha, large, good, folder.path("gone.ico"), "sphere"});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + small +
                       ": no image of it takes the effect: Current icon is less then 32x 32.\n"
                       "gpicon: " +
                       alpha +
                       ": no image of it takes the effect: Current icon is with alpha, please run Convert 32 To 24 "
                       "BPP to convert it to 24-BPP first.\n"
                       "gpicon: " +
                       large +
                       ": no image of it takes the effect: icon not of size 16x16, 24x24, 32x32 or 48x48\n"
                       "gpicon: " +
                       folder.path("gone.ico") + ": not a file that can be read\n");
  EXPECT_EQ(namesIn("out"), std::vector<std::string>{"good.ico"});
  EXPECT_EQ(imageOf(written("good.ico"), 0), imageOf(bytesOf(good), 0));
}

TEST_F(GpiconEffectOnAll, WhatIsNoWholeIconFileIsRefused) {
  const Bytes whole = fileOf({entry(16, 24), entry(32, 24)});
  const std::string cut = folder.write("cut.ico", Bytes(whole.begin(), whole.end() - 1)),
                    cursor = folder.write("c.cur", build(IcoFile{{anyEntry(32, 4)}, 0, 2, {}}));
  const Outcome o = runAll({cut, cursor, folder.folder(), "invert"});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + cut + ": shorter than its directory says\ngpicon: " + cursor +
                       ": not an icon file\ngpicon: " + folder.folder() + ": not a file that can be read\n");
  EXPECT_TRUE(namesIn("out").empty());
}

TEST_F(GpiconEffectOnAll, AnIndexIsBadUsage) {
  const std::string a = folder.write("a.ico", fileOf({entry(16, 24)}));
  for (const std::string index : {"0", "17", "007"}) {
    expectBadUsage(runAll({a, index, "invert"}), "--all takes no INDEX; the file of this name is ./" + index);
    expectBadUsage(runAll({index, a, "invert"}), "--all takes no INDEX; the file of this name is ./" + index);
    expectBadUsage(runAll({a, index, folder.path("b.ico"), "invert"}),
                   "--all takes no INDEX; the file of this name is ./" + index);
  }
  folder.write("0", fileOf({entry(16, 24)}));
  expectDone(runAfter("cd " + inShell(folder.folder()) + "; ", {"effect", "./0", "invert", "--all", "-d", out}));
  EXPECT_EQ(namesIn("out"), std::vector<std::string>{"0"});
}

TEST_F(GpiconEffectOnAll, BadUsageMakesNoFolder) {
  const std::string a = folder.write("a.ico", fileOf({entry(16, 24)}));
  expectBadUsage(runAll({"invert"}), "FILE... NAME is needed");
  expectBadUsage(runAll({}), "no file given");
  expectBadUsage(runAll({a}), "FILE... NAME is needed");
  expectBadUsage(runAll({a, a}), "no effect is named " + a);
  expectBadUsage(runAll({a, "inverted"}), "no effect is named inverted");
  expectBadUsage(runAll({a, "invert", "--percent", "3"}), "--percent goes with theme and blend only");
  expectBadUsage(runAll({a, "flip"}), "flip needs exactly one of its options");
  expectBadUsage(runAll({a, "flip", "--vertical", "--horizontal"}), "flip needs exactly one of its options");
  expectBadUsage(runAll({a, "rotate", "--angle", "361"}), "--angle takes a number from -360 to 360");
  expectBadUsage(runAll({a, "invert"}, {"--png"}), "unknown option --png");
  expectBadUsage(runAll({a, "invert"}, {"--max-size", "0"}), "--max-size takes a number of megabytes");
  expectBadUsage(run({"effect", a, "invert", "--all"}), "one -d DIR is needed");
  expectBadUsage(run({"effect", a, "0", out, "invert", "-d", out}), "unknown option -d");
  expectBadUsage(run({"effect", a, "0", out, "invert", "--force"}), "unknown option --force");
}

// For all effects of the table, --all is a matter of the row: an effect that changes the size of icons is refused.
TEST_F(GpiconEffectOnAll, AnEffectThatChangesTheSizeIsBadUsage) {
  EffectRow changing = kMadeUp;
  changing.changesSize = true;
  cli::FolderArguments given;
  given.files = {folder.write("a.ico", fileOf({entry(16, 24)}))};
  given.folder = out;
  testing::internal::CaptureStderr();
  EXPECT_EQ(cli::applyToAll({changing, firstValues(changing.settings)}, given), cli::kBadUsage);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "gpicon: effect: madeup does not go with --all (see gpicon --help)\n");
  EXPECT_FALSE(fs::exists(out));
  EXPECT_EQ(cli::applyToAll({kMadeUp, firstValues(kMadeUp.settings)}, given), cli::kDone);
  EXPECT_TRUE(fs::exists(out + "/a.ico"));
}

TEST_F(GpiconEffectOnAll, ResizingIsForOneImage) {
  expectBadUsage(runAll({folder.write("a.ico", fileOf({entry(16, 24)})), "resize", "--to", "32"}),
                 "resize does not go with --all");
}

TEST_F(GpiconEffectOnAll, WhatIsInTheWayIsReportedAndLeft) {
  const std::string a = folder.write("a.ico", fileOf({entry(16, 24)})), outside = folder.write("outside", {7, 7, 7});
  fs::create_directory(out);
  const auto plant = [&](int kind) {
    fs::remove_all(out + "/a.ico");
    if (kind == 0) fs::create_directory(out + "/a.ico");
    if (kind == 1) fs::create_symlink(outside, out + "/a.ico");
    if (kind == 2) fs::create_hard_link(outside, out + "/a.ico");
    if (kind == 3) mkfifo((out + "/a.ico").c_str(), 0600);
  };
  for (int kind = 0; kind < 4; ++kind) {
    plant(kind);
    ASSERT_EQ(namesIn("out"), std::vector<std::string>{"a.ico"}) << kind;
    expectLine(runAll({a, "invert"}, {"--force"}), out + "/a.ico: already there, and not replaced");
    EXPECT_EQ(bytesOf(outside), (Bytes{7, 7, 7})) << kind;
  }
  expectLine(run({"effect", a, "invert", "--all", "-d", outside}), outside + ": not a folder, and cannot be made");
}

TEST_F(GpiconEffectOnAll, ACallWritesNoMoreThanItsBound) {
  Entry stuffed = anyEntry(32, 32);
  stuffed.image.resize(700'000);
  const std::string a = folder.write("a.ico", fileOf({entry(16, 24), stuffed})),
                    b = folder.write("b.ico", fileOf({entry(16, 24), stuffed}));
  expectLine(runAll({a, b, "invert"}, {"--max-size", "1"}), b + ": more than one call may write (see --max-size)");
  EXPECT_EQ(namesIn("out"), std::vector<std::string>{"a.ico"});
  expectDone(runAll({a, b, "invert"}, {"--max-size", "2", "--force"}));
  EXPECT_EQ(written("b.ico").size(), bytesOf(b).size());
}

TEST_F(GpiconEffectOnAll, StandardInputIsNamedAfterIt) {
  const std::string a = folder.write("a.ico", fileOf({entry(16, 24)}));
  expectDone(runAll({a, "invert"}));
  expectDone(runAfter("cat " + inShell(a) + " | ", {"effect", "-", "invert", "--all", "-d", out}));
  EXPECT_EQ(written("stdin.ico"), written("a.ico"));
}

TEST_F(GpiconEffectOnAll, AFileIsWrittenAlsoWhereNothingChanges) {
  const std::string a = folder.write("a.ico", fileOf({entry(16, 24)}));
  expectDone(runAll({a, "brightness", "--red", "0"}));
  EXPECT_EQ(written("a.ico"), bytesOf(a));
}

}  // namespace
}  // namespace gp::test
