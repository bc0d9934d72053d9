// Replacing, adding, removing and reordering images, and salvage: byte by byte, with the exact text of every refusal.
// The tests build the expected files themselves, laid out in directory order.
#include "cli/GpiconFixture.h"

#include <sys/stat.h>
#include <unistd.h>

namespace gp::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kSameInReplace =
    " Icon of same size and color palette already in original multi-file. Multi-icon file cannot have two icons of "
    "identical size and color depth. You may save to a single-icon file or change color-depth first (to see original "
    "color-depth, click Enquiry menu).";
constexpr const char* kSameInAdd =
    " Icon of same size and color palette already in file. Multi-icon file cannot have two icons of identical size and "
    "color depth.";

class GpiconUpdate : public Gpicon {
 protected:
  const std::vector<Entry> three{anyEntry(16, 1), anyEntry(32, 4), anyEntry(48, 8)};
  const std::string file = folder.write("file.ico", fileOf(three));
  const Bytes before = bytesOf(file);

  // A true colour icon: loading and saving it reproduces the bytes of its file.
  std::string trueColorIcon(int size, const std::string& name = "icon.ico") const { return icon(name, size, 24); }
  void expectRefusal(const std::vector<std::string>& arguments, const std::string& text) const {
    const Outcome o = run(arguments);
    EXPECT_EQ(o.status, 1);
    EXPECT_EQ(o.err, "gpicon: " + text + "\n");
    EXPECT_EQ(bytesOf(file), before);
  }
  void expectFile(const Outcome& o, const std::vector<Entry>& entries, const std::string& path) const {
    EXPECT_EQ(o.status, 0);
    EXPECT_EQ(o.out + o.err, "");
    EXPECT_EQ(bytesOf(path), fileOf(entries));
  }
};

TEST_F(GpiconUpdate, ImagesThatStateTooFewBytesAreWrittenWholeByEveryUpdate) {
  std::vector<Entry> tooShort = three;
  tooShort[0].bytesInRes = 50;
  tooShort[2].bytesInRes = 0;
  const Entry added = anyEntry(24, 24);
  const std::string icon = trueColorIcon(24);
  const auto updated = [&](std::vector<std::string> arguments) {
    arguments.insert(arguments.begin() + 1, folder.write("short.ico", fileOf(tooShort)));
    return run(arguments);
  };
  const std::string path = folder.path("short.ico");
  expectFile(updated({"replace", "1", icon}), {three[0], added, three[2]}, path);
  expectFile(updated({"add", icon}), {three[0], three[1], three[2], added}, path);
  expectFile(updated({"remove", "1"}), {three[0], three[2]}, path);
  expectFile(updated({"reorder", "3,1,2"}), {three[2], three[0], three[1]}, path);
}

// Replace.

TEST_F(GpiconUpdate, ReplaceGivesTheEntryTheNewImageAndMovesTheOthers) {
  expectFile(run({"replace", file, "1", trueColorIcon(24)}), {three[0], anyEntry(24, 24), three[2]}, file);
}

TEST_F(GpiconUpdate, ReplaceIntoAnotherFileLeavesTheFirstAlone) {
  const std::string out = folder.write("out.ico", {1, 2, 3});
  expectFile(run({"replace", "-o", out, file, "0", trueColorIcon(16)}), {anyEntry(16, 24), three[1], three[2]}, out);
  EXPECT_EQ(bytesOf(file), before);
}

TEST_F(GpiconUpdate, ReplaceWithTheSameSizeAndColorsInTheSamePlaceIsAllowed) {
  const std::string path = folder.write("t.ico", fileOf({anyEntry(16, 1), anyEntry(32, 24)}));
  Picture p = anyPicture(32, 24);
  p.color = [](int x, int y) { return Rgb{y, x, 99}; };
  const std::string other = folder.write("o.ico", build(entryOf(p)));
  expectFile(run({"replace", path, "1", other}), {anyEntry(16, 1), entryOf(p)}, path);
}

TEST_F(GpiconUpdate, ReplaceWritesTheDepthThatTheEditorWrites) {
  Picture p = anyPicture(16, 8);  // eight bits, with only black and white left
  p.palette = {{0, 0, 0}, {255, 255, 255}};
  p.index = [](int x, int y) { return (x + y) % 2; };
  Picture mono = p;
  mono.bits = 1;
  const std::string path = folder.write("t.ico", fileOf({anyEntry(32, 4), anyEntry(48, 8)}));
  expectFile(run({"replace", path, "1", folder.write("i.ico", build(entryOf(p)))}), {anyEntry(32, 4), entryOf(mono)},
             path);
}

TEST_F(GpiconUpdate, ReplaceKeepsAlpha) {
  Picture p = anyPicture(32, 32);
  p.color = [&p](int x, int y) { return Rgb{x, y, 1, p.transparent(x, y) ? 0 : 1 + x}; };
  const std::string alpha = folder.write("alpha.ico", build(entryOf(p)));
  expectFile(run({"replace", file, "2", alpha}), {three[0], three[1], entryOf(p)}, file);
}

TEST_F(GpiconUpdate, ReplaceKeepsReservedAndPlanesOfTheEntry) {
  Bytes odd = before;
  odd[6 + 3] = 7;
  odd[6 + 4] = 3;
  Bytes expected = fileOf({anyEntry(24, 24), three[1], three[2]});
  expected[6 + 3] = 7;
  expected[6 + 4] = 3;
  const std::string path = folder.write("odd.ico", odd);
  EXPECT_EQ(run({"replace", path, "0", trueColorIcon(24)}).status, 0);
  EXPECT_EQ(bytesOf(path), expected);
}

TEST_F(GpiconUpdate, ReplaceTakesTheIconThatTheEditorWouldOpen) {
  const std::string several = folder.write("s.ico", fileOf({anyEntry(16, 24), anyEntry(32, 24), anyEntry(48, 24)}));
  expectFile(run({"replace", file, "0", several}), {anyEntry(32, 24), three[1], three[2]}, file);
}

TEST_F(GpiconUpdate, ReplaceRefusesSizeAndColorsOfAnotherEntry) {
  const std::string path = folder.write("t.ico", fileOf({anyEntry(16, 1), anyEntry(32, 24)}));
  const Outcome o = run({"replace", path, "0", trueColorIcon(32)});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + path + ": True Color 24 BPP 32 x 32" + kSameInReplace + "\n");
}

TEST_F(GpiconUpdate, ReplaceComparesWhatThePictureHasBecome) {
  Picture p = anyPicture(16, 24);  // true colour remains true colour, eight bits do not remain eight
  p.bits = 8;
  p.palette = {{0, 0, 0}, {255, 255, 255}};
  p.index = [](int x, int) { return x % 2; };
  expectRefusal({"replace", file, "1", folder.write("i.ico", build(entryOf(p)))},
                file + ": 2-color 16 x 16" + kSameInReplace);
}

TEST_F(GpiconUpdate, ReplaceOfAnEntryThatIsNotThereIsRefused) {
  expectRefusal({"replace", file, "3", trueColorIcon(32)}, file + ": no image of that index");
  const Bytes two = fileOf({anyEntry(16, 1), anyEntry(32, 24)});
  const std::string path = folder.write("t.ico", two);
  expectRefusal({"replace", path, "2", trueColorIcon(32)}, path + ": no image of that index");
  EXPECT_EQ(bytesOf(path), two);
}

TEST_F(GpiconUpdate, ReplaceInWhatCannotBeReadIsRefused) {
  const std::string a = trueColorIcon(32), gone = folder.path("gone.ico");
  expectRefusal({"replace", gone, "0", a}, gone + ": file can no longer be found!");
  const std::string cut = folder.write("cut.ico", Bytes(before.begin(), before.end() - 1));
  expectRefusal({"replace", cut, "0", a}, cut + ": Failed to save current icon - at reading preparation stage");
  EXPECT_EQ(bytesOf(cut).size(), before.size() - 1);
}

TEST_F(GpiconUpdate, AnIconThatTheEditorDoesNotOpenIsRefused) {
  Entry large = anyEntry(48, 8);
  large.width = large.height = 64;
  const std::string big = folder.write("big.ico", build(large)), none = folder.write("n.ico", {'h', 'i'}),
                    cursor = folder.write("c.cur", build(IcoFile{{anyEntry(32, 4)}, 0, 2, {}}));
  for (const std::string command : {"replace", "add"}) {
    for (const auto& [path, text] : {std::pair{big, "icon not of size 16x16, 24x24, 32x32 or 48x48"},
                                     std::pair{none, "not an icon file"}, std::pair{cursor, "not an icon file"}}) {
      if (command == "replace")
        expectRefusal({command, file, "0", path}, path + ": " + text);
      else
        expectRefusal({command, file, path}, path + ": " + text);
    }
  }
}

// Add.

TEST_F(GpiconUpdate, AddAppendsOrTakesItsPlace) {
  const std::string a = trueColorIcon(24);
  const Entry added = anyEntry(24, 24);
  const std::string out = folder.path("out.ico");
  expectFile(run({"add", file, a, "-o", out}), {three[0], three[1], three[2], added}, out);
  expectFile(run({"add", file, a, "-o", out, "--at", "4"}), {three[0], three[1], three[2], added}, out);
  expectFile(run({"add", file, a, "-o", out, "--at", "1"}), {added, three[0], three[1], three[2]}, out);
  expectFile(run({"add", file, a, "-o", out, "--at", "2"}), {three[0], added, three[1], three[2]}, out);
  EXPECT_EQ(bytesOf(file), before);
  expectFile(run({"add", file, a}), {three[0], three[1], three[2], added}, file);
}

TEST_F(GpiconUpdate, AddMendsALayoutThatIsNotInOrder) {
  std::vector<Entry> entries = three;
  const auto first = static_cast<std::uint32_t>(6 + 3 * 16), second = first + 50;
  Bytes scattered;  // directory, 50 unused bytes, images in reverse order
  for (Entry& e : entries) e.image.clear();
  std::uint32_t at = second;
  for (int i = 2; i >= 0; --i) {
    entries[static_cast<std::size_t>(i)].offset = at;
    entries[static_cast<std::size_t>(i)].bytesInRes =
        static_cast<std::uint32_t>(three[static_cast<std::size_t>(i)].image.size());
    at += *entries[static_cast<std::size_t>(i)].bytesInRes;
  }
  scattered = fileOf(entries);
  scattered.resize(second, 0xEE);
  for (int i = 2; i >= 0; --i) append(scattered, three[static_cast<std::size_t>(i)].image);
  scattered.push_back(0xEE);
  const std::string path = folder.write("scattered.ico", scattered);
  expectFile(run({"add", path, trueColorIcon(16), "--at", "1"}), {anyEntry(16, 24), three[0], three[1], three[2]},
             path);
}

TEST_F(GpiconUpdate, AddToSeveralFilesInOneCallLeavesNoneOutForAnother) {
  const std::string a = folder.write("a.ico", fileOf({anyEntry(16, 1)})), b = folder.path("missing.ico"),
                    c = folder.write("c.ico", fileOf({anyEntry(32, 24)})),
                    d = folder.write("d.ico", fileOf({anyEntry(48, 8), anyEntry(16, 4)}));
  const Outcome o = run({"add", a, b, c, d, trueColorIcon(32)});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + b + ": Failed to open " + b + "\ngpicon: " + c + ": True Color 24 BPP 32 x 32" +
                       kSameInAdd + "\n");
  EXPECT_EQ(bytesOf(a), fileOf({anyEntry(16, 1), anyEntry(32, 24)}));
  EXPECT_EQ(bytesOf(c), fileOf({anyEntry(32, 24)}));
  EXPECT_EQ(bytesOf(d), fileOf({anyEntry(48, 8), anyEntry(16, 4), anyEntry(32, 24)}));
}

TEST_F(GpiconUpdate, AddKeepsImagesThatTheEditorCannotShow) {
  Entry png;
  png.width = png.height = 0;
  png.bitCount = 32;
  png.image = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 9};
  const std::string path = folder.write("p.ico", fileOf({anyEntry(16, 1), png}));
  expectFile(run({"add", path, trueColorIcon(24)}), {anyEntry(16, 1), png, anyEntry(24, 24)}, path);
}

TEST_F(GpiconUpdate, AddRefusesAPlaceThatIsNotThere) {
  const std::string a = trueColorIcon(24);
  for (const std::string at : {"0", "5", "99999"})
    expectRefusal({"add", file, a, "--at", at}, file + ": Discrepancy found in the position ref to add in " + file);
}

TEST_F(GpiconUpdate, AddRefusesWhatIsNoIconFileOrIsCutOff) {
  const std::string a = trueColorIcon(24), none = folder.write("n.ico", {'h', 'i'}),
                    cut = folder.write("cut.ico", Bytes(before.begin(), before.end() - 1));
  expectRefusal({"add", none, a}, none + ": File does not contain 16x16, 24x24, 32x32 or 48x48 icon.");
  expectRefusal({"add", cut, a}, cut + ": No icon found in " + cut);
}

TEST_F(GpiconUpdate, TheFullestFileTakesNoMore) {
  std::vector<Entry> entries(65535);
  for (Entry& entry : entries) entry.offset = 6 + 16 * 65535, entry.bytesInRes = 1;
  entries.back().image = {0};
  const std::string path = folder.write("full.ico", fileOf(entries));
  const Bytes full = bytesOf(path);
  const Outcome o = run({"add", path, trueColorIcon(24)});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + path + ": Failed to save current icon - writing\n");
  EXPECT_EQ(bytesOf(path), full);
}

// Files that the editor opens only through its browser: the first image is of 256x256, or none is of 32x32.

class GpiconRefusedByTheProbe : public GpiconUpdate {
 protected:
  const Entry large = sized(anyEntry(48, 24), 0), c24 = anyEntry(24, 24), c16 = anyEntry(16, 24);
  // Each with an image of 16x16 at index 1.
  const std::vector<std::vector<Entry>> files{{large, c16, anyEntry(32, 4)}, {anyEntry(48, 8), c16}};

  static Entry sized(Entry entry, int side) {
    entry.width = entry.height = side;
    return entry;
  }
  std::string write(const std::vector<Entry>& entries) const { return folder.write("refused.ico", fileOf(entries)); }
};

TEST_F(GpiconRefusedByTheProbe, TheProbeStaysAsItIs) {
  EXPECT_EQ(run({"probe", write(files[0])}).out, folder.path("refused.ico") + "\t0/0/0/0/0/0/0/0/0\n");
  EXPECT_EQ(run({"probe", write(files[1])}).out, folder.path("refused.ico") + "\t2/0/0/0/0/0/0/0/0\n");
}

TEST_F(GpiconRefusedByTheProbe, TheyTakeIcons) {
  const std::string a = trueColorIcon(24);
  for (const std::vector<Entry>& entries : files) {
    std::vector<Entry> added = entries, replaced = entries;
    added.push_back(c24);
    replaced[1] = c24;
    const std::string path = write(entries);
    expectFile(run({"add", path, a}), added, path);
    write(entries);
    expectFile(run({"replace", path, "1", a}), replaced, path);
  }
}

TEST_F(GpiconRefusedByTheProbe, TheirImagesAreAddedAndReplaceOthersByTheirIndex) {
  const std::string out = folder.path("out.ico");
  for (const std::vector<Entry>& entries : files) {
    const std::string source = write(entries);
    expectFile(run({"add", file, source, "--image", "1", "-o", out}), {three[0], three[1], three[2], c16}, out);
    expectFile(run({"replace", file, "0", source, "--image", "1", "-o", out}), {c16, three[1], three[2]}, out);
    for (const std::string command : {"add", "replace"}) {
      std::vector<std::string> arguments{command, file, source};
      if (command == "replace") arguments.insert(arguments.begin() + 2, "0");
      expectRefusal(arguments, source + ": no image of it is chosen by itself, --image N names one");
      arguments.insert(arguments.end(), {"--image", "9"});
      expectRefusal(arguments, source + ": no image of that index");
      arguments.back() = "x";
      EXPECT_EQ(run(arguments).err, "gpicon: " + command + ": --image takes a number (see gpicon --help)\n");
    }
  }
  expectRefusal({"add", file, write(files[0]), "--image", "0"},
                folder.path("refused.ico") + ": icon not of size 16x16, 24x24, 32x32 or 48x48");
}

TEST_F(GpiconRefusedByTheProbe, AnyImageOfAFileThatIsOpenedCanBeNamed) {
  const std::string several = folder.write("s.ico", fileOf({c16, anyEntry(32, 24), anyEntry(48, 24)}));
  const std::string out = folder.path("out.ico");
  expectFile(run({"add", file, several, "--image", "2", "-o", out}), {three[0], three[1], three[2], anyEntry(48, 24)},
             out);
  expectFile(run({"add", file, several, "-o", out}), {three[0], three[1], three[2], anyEntry(32, 24)}, out);
}

TEST_F(GpiconRefusedByTheProbe, TheyAreTakenApartAndResavedByIndex) {
  for (const std::vector<Entry>& entries : files) {
    fs::remove_all(folder.path("out"));
    const std::string path = write(entries), out = folder.path("out"), one = folder.path("one.ico");
    EXPECT_EQ(run({"unpack", path, "-d", out}).status, 0);
    EXPECT_TRUE(fs::exists(out + "/refused_1.image.ppm"));
    EXPECT_EQ(namesIn("out").size(), 4U) << "two files for each of the two usable images";
    EXPECT_EQ(run({"split", path, "-d", out}).status, 0);
    EXPECT_EQ(bytesOf(out + "/refused_16_24bpp.ico"), build(c16));
    EXPECT_EQ(namesIn("out").size(), 4U + entries.size());
    EXPECT_EQ(run({"resave", path, "1", one}).status, 0);
    EXPECT_EQ(bytesOf(one), build(c16));
    EXPECT_EQ(run({"effect", path, "1", one, "disabled"}).status, 0);
    EXPECT_EQ(bytesOf(one).size(), build(c16).size());
  }
}

// Remove.

TEST_F(GpiconUpdate, RemoveTakesOneEntryOutAndMovesTheOthersUp) {
  const std::string out = folder.path("out.ico");
  expectFile(run({"remove", file, "0", "-o", out}), {three[1], three[2]}, out);
  expectFile(run({"remove", file, "2", "-o", out}), {three[0], three[1]}, out);
  EXPECT_EQ(bytesOf(file), before);
  expectFile(run({"remove", file, "1"}), {three[0], three[2]}, file);
}

TEST_F(GpiconUpdate, RemoveWorksInFilesOfAHundredAndMore) {
  std::vector<Entry> entries;
  for (int i = 0; i < 120; ++i) {
    entries.push_back(anyEntry(16, 1));
    entries.back().image.back() = static_cast<std::uint8_t>(i);
  }
  const std::string path = folder.write("many.ico", fileOf(entries));
  const Outcome o = run({"remove", path, "110"});
  entries.erase(entries.begin() + 110);
  expectFile(o, entries, path);
}

TEST_F(GpiconUpdate, RemoveKeepsTheLastIconAndWhatIsNotThere) {
  const std::string one = icon("one.ico", 32, 4);
  expectRefusal({"remove", one, "0"}, one + ": Not allowed to delete the last icon in file");
  expectRefusal({"remove", file, "3"}, file + ": no image of that index");
}

TEST_F(GpiconUpdate, ChangingWhatCannotBeReadIsRefused) {
  const std::string gone = folder.path("gone.ico"), none = folder.write("n.ico", {'h', 'i'}),
                    cut = folder.write("cut.ico", Bytes(before.begin(), before.end() - 1));
  for (const auto& [path, text] : {std::pair{gone, "not a file that can be read"}, std::pair{none, "not an icon file"},
                                   std::pair{cut, "shorter than its directory says"}}) {
    expectRefusal({"remove", path, "0"}, path + ": " + text);
    expectRefusal({"reorder", path, "2,1"}, path + ": " + text);
    expectRefusal({"salvage", path, "-o", folder.path("out.ico")}, path + ": " + text);
  }
  EXPECT_FALSE(fs::exists(folder.path("out.ico")));
}

TEST_F(GpiconUpdate, AReservedFieldThatIsNotZeroKeepsOnlyIconsOut) {
  IcoFile odd{three, 9, 1, {}};
  const std::string path = folder.write("odd.ico", build(odd)), a = trueColorIcon(24);
  expectRefusal({"replace", path, "0", a}, path + ": Failed to save current icon - at reading preparation stage");
  expectRefusal({"add", path, a}, path + ": No icon found in " + path);
  EXPECT_EQ(run({"remove", path, "1"}).status, 0);
  odd.entries = {three[0], three[2]};
  EXPECT_EQ(bytesOf(path), build(odd));
}

// Reorder.

TEST_F(GpiconUpdate, ReorderPutsTheEntriesIntoTheSequence) {
  const std::string out = folder.path("out.ico");
  expectFile(run({"reorder", file, "3,1,2", "-o", out}), {three[2], three[0], three[1]}, out);
  expectFile(run({"reorder", file, "3,2,1"}), {three[2], three[1], three[0]}, file);
}

TEST_F(GpiconUpdate, ReorderRefusesWhatIsNoNewSequence) {
  const std::string one = icon("one.ico", 32, 4);
  expectRefusal({"reorder", one, "1"}, one + ": Only a single icon in file");
  expectRefusal({"reorder", file, "1,2,3"}, file + ": There is no change in original sequence.");
  for (const std::string order : {"1", "2,1", "3,2,1,1", "0,1,2", "1,2,4", "2,2,3", "2,1,3,4"})
    expectRefusal({"reorder", file, order}, file + ": the sequence does not hold every position ref of the file once");
}

// Salvage.

TEST_F(GpiconUpdate, SalvageTakesSizeAndBitsFromTheHeadersAndNothingElse) {
  Entry lying = anyEntry(32, 8), old = anyEntry(48, 4), png;
  lying.width = lying.height = 16;
  lying.colorCount = 16;
  lying.bitCount = 4;
  old.bitCount = 0;
  png.width = png.height = 64;
  png.bitCount = 32;
  png.image = Bytes(64, 0x55);
  const Bytes signature{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
  std::copy(signature.begin(), signature.end(), png.image.begin());
  const std::string path = folder.write("lies.ico", fileOf({lying, old, png})), out = folder.path("out.ico");
  const Bytes lies = bytesOf(path);
  Entry mended = lying, known = old;
  mended.width = mended.height = 32;
  mended.bitCount = 8;
  known.bitCount = 4;
  expectFile(run({"salvage", path, "-o", out}), {mended, known, png}, out);
  EXPECT_EQ(bytesOf(path), lies);
  expectFile(run({"salvage", path, "-o", path}), {mended, known, png}, path);
}

TEST_F(GpiconUpdate, SalvageLeavesTheSizeOfAnIconWhoseTopRowComesFirst) {
  Picture p = anyPicture(32, 24);
  p.headerHeight = -64;
  const std::string path = folder.write("t.ico", fileOf({entryOf(p)})), out = folder.path("out.ico");
  expectFile(run({"salvage", path, "-o", out}), {entryOf(p)}, out);
}

TEST_F(GpiconUpdate, SalvageRefusesSidesAbove128) {
  Entry large = anyEntry(32, 8);
  large.width = 129;
  const std::string path = folder.write("large.ico", fileOf({anyEntry(16, 1), large})), out = folder.path("out.ico");
  expectRefusal({"salvage", path, "-o", out},
                path + ": One or more icons have width or height exceeds 128, cannot save per actual");
  EXPECT_FALSE(fs::exists(out));
  large.width = large.height = 0;  // 256
  EXPECT_EQ(run({"salvage", folder.write("l.ico", build(large)), "-o", out}).status, 0);
}

// Files that cannot be written.

// Each command that would overwrite `file`, which has three entries, with its message when that fails.
struct Writing {
  std::vector<std::string> arguments;
  std::string readOnly, failed;
};
std::vector<Writing> writings(const std::string& file, const std::string& icon) {
  return {{{"replace", file, "1", icon}, "File is read-only.", "Failed to save current icon - at writing stage"},
          {{"add", file, icon}, "File is read-only", "Failed to save current icon - writing"},
          {{"remove", file, "0"},
           "Failed to update the file for this icon. File is read-only",
           "Failed to update the file for this icon."},
          {{"reorder", file, "3,2,1"},
           "Failed to reposition icons sequence in " + file + " File is read-only",
           "Failed to reposition icons sequence in " + file},
          {{"salvage", file, "-o", file}, "cannot be written File is read-only", "cannot be written"}};
}

TEST_F(GpiconUpdate, AReadOnlyFileStaysAsItIs) {
  fs::permissions(file, fs::perms::owner_read);
  for (const Writing& w : writings(file, trueColorIcon(24))) expectRefusal(w.arguments, file + ": " + w.readOnly);
}

TEST_F(GpiconUpdate, AFileThatBelongsToAnotherStaysAsItIs) {
  if (getuid() != 0) GTEST_SKIP() << "needs root, to become another user";
  fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write | fs::perms::others_read);
  const std::string a = trueColorIcon(24), other = "setpriv --reuid=65534 --regid=65534 --clear-groups ";
  if (runAfter(other, {"probe", a}).status != 0) GTEST_SKIP() << "another user does not reach the program";
  for (const Writing& w : writings(file, a)) {
    const Outcome o = runAfter(other, w.arguments);
    EXPECT_EQ(o.status, 1);
    EXPECT_EQ(o.err, "gpicon: " + file + ": " + w.failed + "\n");
    EXPECT_EQ(bytesOf(file), before);
  }
}

TEST_F(GpiconUpdate, FoldersAndPipesAreNotWrittenOver) {
  const std::string a = trueColorIcon(24), pipe = folder.path("pipe"), place = folder.path("place");
  fs::create_directory(place);
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  for (const std::string& out : {pipe, place, std::string("/dev/full")}) {
    const std::string text = out + ": not an ordinary file, and not written over";
    expectRefusal({"replace", file, "1", a, "-o", out}, text);
    expectRefusal({"add", file, a, "-o", out}, text);
    expectRefusal({"remove", file, "0", "-o", out}, text);
    expectRefusal({"reorder", file, "3,2,1", "-o", out}, text);
    expectRefusal({"salvage", file, "-o", out}, text);
  }
  EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST_F(GpiconUpdate, AnOutputInNoFolderIsRefused) {
  const std::string out = folder.path("no/such.ico");
  expectRefusal({"remove", file, "0", "-o", out}, out + ": Failed to update the file for this icon.");
}

// Mounted on a folder of the test for its own lifetime.
class SmallDisk {
 public:
  explicit SmallDisk(std::string place) : place_(std::move(place)) {
    fs::create_directory(place_);
    isMounted_ = getuid() == 0 &&
                 std::system(("mount -t tmpfs -o size=12k tmpfs " + inShell(place_) + " 2>/dev/null").c_str()) == 0;
  }
  ~SmallDisk() {
    if (isMounted_) static_cast<void>(std::system(("umount " + inShell(place_)).c_str()) == 0);
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;
  bool isMounted() const { return isMounted_; }

 private:
  std::string place_;
  bool isMounted_ = false;
};

TEST_F(GpiconUpdate, OnAFullDiskTheFormerContentStays) {
  const std::string a = trueColorIcon(48);  // 7704 bytes
  const SmallDisk disk(folder.path("disk"));
  if (!disk.isMounted()) GTEST_SKIP() << "needs root, to mount a small disk";
  const Bytes content = fileOf({three[0], three[1], anyEntry(48, 8)});
  const std::string path = folder.write("disk/file.ico", content), out = folder.write("disk/out.ico", {1, 2, 3});
  for (const auto& [arguments, text] :
       {std::pair{std::vector<std::string>{"add", path, a}, path + ": Failed to save current icon - writing"},
        std::pair{std::vector<std::string>{"replace", path, "0", a},
                  path + ": Failed to save current icon - at writing stage"},
        std::pair{std::vector<std::string>{"add", path, a, "-o", out},
                  out + ": Failed to save current icon - writing"}}) {
    const Outcome o = run(arguments);
    EXPECT_EQ(o.status, 1);
    EXPECT_EQ(o.err, "gpicon: " + text + "\n");
    EXPECT_EQ(bytesOf(path), content);
    EXPECT_EQ(bytesOf(out), (Bytes{1, 2, 3}));
  }
}

TEST_F(GpiconUpdate, ALimitOnFileSizesIsLikeAFullDisk) {
  const Outcome o = runAfter("trap '' XFSZ; ulimit -f 20; ", {"add", file, trueColorIcon(48)});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + file + ": Failed to save current icon - writing\n");
  EXPECT_EQ(bytesOf(file), before);
}

}  // namespace
}  // namespace gp::test
