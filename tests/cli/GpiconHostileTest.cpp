// Every known kind of defective icon file, given to every subcommand that accepts icon files, with little memory and
// little time. Expected everywhere: exit status 0 or 1, one line per refusal, an unchanged file after a refusal, and no
// written file whose directory and images contradict each other.
#include "animation/FilmBytes.h"
#include "cli/GpiconFixture.h"

#include <random>

namespace gp::test {
namespace {

namespace fs = std::filesystem;

// Kilobytes of address space, and seconds: 64 MB more than the program and its largest test file need.
constexpr const char* kLimits = "ulimit -v 90000; ulimit -t 10; ";

struct HostileFile {
  std::string name;
  Bytes bytes;
};

template <class Lie>
Bytes withEntry(Lie lie) {
  Entry e = anyEntry(32, 8);
  lie(e);
  return fileOf({anyEntry(16, 4), e, anyEntry(48, 24)});
}
template <class Lie>
Bytes withHeader(int bits, Lie lie) {
  Picture p = anyPicture(32, bits);
  lie(p);
  return fileOf({anyEntry(16, 4), entryOf(p), anyEntry(48, 24)});
}
template <class Lie>
Bytes withFile(Lie lie) {
  IcoFile file{{anyEntry(16, 4), anyEntry(32, 8)}, 0, 1, {}};
  lie(file);
  return build(file);
}

std::vector<HostileFile> hostileDirectories() {
  std::vector<HostileFile> files{
      {"reserved", withFile([](IcoFile& f) { f.reserved = 0xFFFF; })},
      {"type 0", withFile([](IcoFile& f) { f.type = 0; })},
      {"cursor", withFile([](IcoFile& f) { f.type = 2; })},
      {"type 3", withFile([](IcoFile& f) { f.type = 3; })},
      {"count 0", withFile([](IcoFile& f) { f.count = 0; })},
      {"count too small", withFile([](IcoFile& f) { f.count = 1; })},
      {"count too large", withFile([](IcoFile& f) { f.count = 4; })},
      {"count huge", withFile([](IcoFile& f) { f.count = 65535; })},
      {"sides 0", withEntry([](Entry& e) { e.width = e.height = 0; })},
      {"another size", withEntry([](Entry& e) { e.width = e.height = 48; })},
      {"sides 255", withEntry([](Entry& e) { e.width = e.height = 255; })},
      {"not square", withEntry([](Entry& e) { e.width = 16; })},
      {"bits 0", withEntry([](Entry& e) { e.bitCount = 0; })},
      {"bits 65535", withEntry([](Entry& e) { e.bitCount = 65535; })},
      {"bits 3", withEntry([](Entry& e) { e.bitCount = 3; })},
      {"colors 255", withEntry([](Entry& e) { e.colorCount = 255; })},
      {"offset in the directory", withEntry([](Entry& e) { e.offset = 7; })},
      {"offset 0", withEntry([](Entry& e) { e.offset = 0; })},
      {"offset behind the end", withEntry([](Entry& e) { e.offset = 0x10000000; })},
      {"offset and size wrap", withEntry([](Entry& e) { e.offset = e.bytesInRes = 0xFFFFFFFF; })},
      {"size wraps", withEntry([](Entry& e) { e.bytesInRes = 0xFFFFFFF0; })},
      {"size 0", withEntry([](Entry& e) { e.bytesInRes = 0; })},
      {"size 1", withEntry([](Entry& e) { e.bytesInRes = 1; })},
      {"shared", withEntry([](Entry& e) { e.offset = 6 + 3 * 16; })},
      {"same twice", fileOf({anyEntry(32, 8), anyEntry(32, 8), anyEntry(32, 4)})},
  };
  Bytes garbage = withEntry([](Entry& e) { e.image.insert(e.image.end(), 999, 0xEE); });
  garbage.insert(garbage.end(), 999, 0xEE);
  files.push_back({"garbage between", garbage});
  return files;
}

std::vector<HostileFile> hostileBitmaps() {
  std::vector<HostileFile> files{
      {"height not doubled", withHeader(8, [](Picture& p) { p.headerHeight = 32; })},
      {"height 0", withHeader(8, [](Picture& p) { p.headerHeight = 0; })},
      {"height odd", withHeader(8, [](Picture& p) { p.headerHeight = 63; })},
      {"upside down", withHeader(8, [](Picture& p) { p.headerHeight = -64; })},
      {"huge", withHeader(8, [](Picture& p) { p.headerWidth = p.headerHeight = 0x7FFFFFFF; })},
      {"huge and negative",
       withHeader(32, [](Picture& p) { p.headerWidth = p.headerHeight = std::numeric_limits<int>::min(); })},
      {"huge with a palette", withHeader(8,
                                         [](Picture& p) {
                                           p.headerWidth = p.headerHeight = 0x7FFFFFFF;
                                           p.colorsUsed = 1;
                                         })},
      {"too many colors", withHeader(4, [](Picture& p) { p.colorsUsed = 17; })},
      {"no end of colors", withHeader(4, [](Picture& p) { p.colorsUsed = 0xFFFFFFFF; })},
      {"stray index", withHeader(8, [](Picture& p) { p.colorsUsed = 2; })},
      {"alpha all zero", withHeader(32, [](Picture& p) { p.color = [](int, int) {
                                                           return Rgb{1, 2, 3, 0};
                                                         }; })},
      {"mask all set", withHeader(32, [](Picture& p) { p.transparent = [](int, int) { return true; }; })},
      {"two bits", withHeader(2, [](Picture&) {})},
      {"V5 header", withHeader(24, [](Picture& p) { p.headerSize = 124; })},
      {"core header", withHeader(8, [](Picture& p) { p.headerSize = 12; })},
  };
  for (const int bits : {0, 3, 5, 16, 64, 65535})
    files.push_back(
        {"header of " + std::to_string(bits) + " bits", withHeader(8, [bits](Picture& p) { p.headerBits = bits; })});
  for (const std::uint32_t compression : {1U, 2U, 3U, 0xFFFFFFFFU})
    files.push_back({"compression " + std::to_string(compression),
                     withHeader(8, [compression](Picture& p) { p.compression = compression; })});
  for (const int width : {1, 17, 31, 33, 255}) {
    Picture p = anyPicture(32, 4);
    p.width = width;
    files.push_back({"width " + std::to_string(width), fileOf({entryOf(p), anyEntry(16, 4)})});
  }
  Entry unmasked = anyEntry(32, 32), half = anyEntry(32, 32);
  unmasked.image.resize(unmasked.image.size() - 128);
  half.image.resize(half.image.size() - 64);
  files.push_back({"no mask", fileOf({anyEntry(16, 4), unmasked})});
  files.push_back({"half a mask", fileOf({anyEntry(16, 4), half})});
  files.push_back({"a renamed bitmap", {'B', 'M', 66, 0, 0, 0, 0, 0, 0, 0, 62, 0, 0, 0, 40, 0, 0, 0}});
  files.push_back({"a renamed GIF", {'G', 'I', 'F', '8', '9', 'a', 1, 0, 1, 0}});
  return files;
}

Entry pngOf(Bytes image) {
  Entry e;
  e.bitCount = 32;
  const Bytes signature{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
  image.insert(image.begin(), signature.begin(), signature.end());
  e.image = std::move(image);
  return e;
}

std::vector<HostileFile> hostilePngs() {
  const Bytes header{0, 0, 0, 13, 'I', 'H', 'D', 'R', 0, 0, 0, 32, 0, 0, 0, 32, 8, 6, 0, 0, 0, 1, 2, 3, 4};
  Bytes bomb = header, chunk = header;
  for (std::size_t i = 8; i < 16; ++i) bomb[i] = 0xFF;
  for (std::size_t i = 0; i < 4; ++i) chunk[i] = 0xFF;
  return {{"PNG", fileOf({anyEntry(16, 4), pngOf(header)})},
          {"PNG without a header", fileOf({anyEntry(16, 4), pngOf({})})},
          {"PNG cut in its header", fileOf({anyEntry(16, 4), pngOf({0, 0, 0, 13, 'I', 'H', 'D', 'R', 0, 0})})},
          {"PNG bomb", fileOf({anyEntry(16, 4), pngOf(bomb)})},
          {"PNG with an endless chunk", fileOf({anyEntry(16, 4), pngOf(chunk)})}};
}

std::vector<HostileFile> allHostileFiles() {
  std::vector<HostileFile> all = hostileDirectories();
  for (const auto& more : {hostileBitmaps(), hostilePngs()}) all.insert(all.end(), more.begin(), more.end());
  return all;
}

// True when the images follow the directory in its order, without gaps, and end with the file.
bool isLaidOut(const Bytes& file) {
  const std::uint32_t count = number(file, 4, 2);
  std::size_t at = 6 + 16 * count;
  for (std::uint32_t i = 0; i < count; ++i) {
    if (number(file, 6 + 16 * i + 12, 4) != at) return false;
    at += number(file, 6 + 16 * i + 8, 4);
  }
  return at == file.size();
}

class GpiconHostile : public Gpicon {
 protected:
  const std::string icon24 = icon("new.ico", 24, 24);

  Outcome limited(const std::vector<std::string>& arguments) const { return runAfter(kLimits, arguments); }

  // Inspects a file in every way; none of them may change it.
  void lookAt(const std::string& path, const Bytes& bytes) const {
    for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
             {"list", path},
             {"list", "--json", path},
             {"check", path},
             {"probe", path},
             {"unpack", path, "-d", folder.path("pictures")},
             {"unpack", path, "--png", "-d", folder.path("pngs")},
             {"show", path},
             {"strip", path, "-o", folder.path("made")},
             {"split", path, "-d", folder.path("parts")},
             {"extract", path},
             {"extract", "--json", path},
             {"extract", path, "-d", folder.path("extracted"), "--index", "0", "--force"},
             {"extract", path, "-d", folder.path("groups"), "--index", "0", "--group", "--force"},
             {"scan", path},
             {"scan", "--json", path},
             {"info", path},
             {"info", "--json", path, "1"},
             {"xcursor", path, "-o", folder.path("made")},
             {"ani", "set", path, "--jiffies", "1", "-o", folder.path("made")},
             {"ani", "icon", path, "1", folder.path("made")},
             {"ani", "build", path, "-o", folder.path("made")},
             {"unxcursor", path, "-o", folder.path("made.cur")},
             {"bmp", path, "1", folder.path("made")},
             {"alpha", path, "1", folder.path("made"), "--set", "9"},
             {"to24", path, "1", folder.path("made")},
             {"shades", path, "1", folder.path("made")},
             {"reduce", path, "1", folder.path("made"), "--to", "2", "--method", "ordered"},
             {"effect", path, "1", folder.path("made"), "raised"},
             {"effect", icon24, "0", folder.path("made"), "blend", "--with", path},
             {"effect", icon24, "0", folder.path("made"), "texture", "--pattern", path},
             {"effect", path, "theme", "--color", "000080", "--all", "-d", folder.path("effects"), "--force"},
             {"effect", path, "turn", "--left", "--all", "-d", folder.path("effects"), "--force"}}) {
      const Outcome o = limited(arguments);
      EXPECT_TRUE(o.status == 0 || o.status == 1) << arguments.front() << " " << o.status << o.err;
      EXPECT_LE(lines(o.err), 1) << arguments.front() << o.err;
    }
    EXPECT_EQ(bytesOf(path), bytes);
    const std::string written = folder.path("effects/" + fs::path(path).filename().string());
    if (fs::exists(written)) {
      EXPECT_TRUE(isLaidOut(bytesOf(written)));
    }
    fs::remove(written);
  }

  // Changes a file by one command. Afterwards the file has the given bytes again.
  void change(const std::string& path, const Bytes& bytes, const std::vector<std::string>& arguments) const {
    const Outcome o = limited(arguments);
    const std::string what = arguments.front() + " " + std::to_string(o.status) + " " + o.err;
    EXPECT_TRUE(o.status == 0 || o.status == 1) << what;
    EXPECT_EQ(lines(o.err), o.status) << what;
    if (o.status == 0) {
      EXPECT_TRUE(isLaidOut(bytesOf(path))) << what;
      folder.write(fs::path(path).filename(), bytes);
    } else {
      EXPECT_EQ(bytesOf(path), bytes) << what;
    }
  }
  void changeInEveryWay(const std::string& path, const Bytes& bytes) const {
    change(path, bytes, {"replace", path, "1", icon24});
    change(path, bytes, {"add", path, icon24, "--at", "1"});
    change(path, bytes, {"remove", path, "0"});
    change(path, bytes, {"reorder", path, "2,1"});
    change(path, bytes, {"reorder", path, "3,2,1"});
    change(path, bytes, {"salvage", path, "-o", path});
  }
  // Uses the file as the icon that is put into a correct file.
  void putIn(const std::string& path) const {
    const Bytes healthy = fileOf({anyEntry(16, 1), anyEntry(48, 4)});
    const std::string target = folder.write("target.ico", healthy);
    change(target, healthy, {"replace", target, "0", path});
    change(target, healthy, {"add", target, path});
  }
};

TEST_F(GpiconHostile, EveryLieEndsInAnAnswer) {
  for (const HostileFile& file : allHostileFiles()) {
    SCOPED_TRACE(file.name);
    const std::string path = folder.write("hostile.ico", file.bytes);
    lookAt(path, file.bytes);
    changeInEveryWay(path, file.bytes);
    putIn(path);
  }
}

TEST_F(GpiconHostile, CursorsThatLieEndInAnAnswerToo) {
  for (HostileFile file : allHostileFiles()) {
    SCOPED_TRACE(file.name);
    file.bytes[2] = 2;
    lookAt(folder.write("hostile.cur", file.bytes), file.bytes);
  }
}

// One file for each size to which a file can be truncated.
std::vector<std::string> cuts(const IconFolder& folder, const Bytes& whole) {
  std::vector<std::string> paths;
  for (std::size_t size = 0; size < whole.size(); ++size)
    paths.push_back(folder.write("cut" + std::to_string(size),
                                 Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size))));
  return paths;
}
std::vector<std::string> call(const std::string& command, std::vector<std::string> files,
                              const std::vector<std::string>& rest = {}) {
  files.insert(files.begin(), command);
  files.insert(files.end(), rest.begin(), rest.end());
  return files;
}

TEST_F(GpiconHostile, AFileThatIsCutAtAnyByteIsRefusedAndLeft) {
  const Bytes whole = fileOf({anyEntry(16, 1), pngOf({1, 2, 3})});
  const std::vector<std::string> paths = cuts(folder, whole);
  for (const auto& arguments : {call("split", paths, {"-d", folder.path("parts")}), call("add", paths, {icon24}),
                                call("effect", paths, {"invert", "--all", "-d", folder.path("effects")})}) {
    const Outcome o = run(arguments);
    EXPECT_EQ(o.status, 1);
    EXPECT_EQ(lines(o.err), static_cast<long>(paths.size())) << arguments.front();
  }
  for (const std::string& path : paths)
    for (const std::vector<std::string>& arguments :
         std::vector<std::vector<std::string>>{{"replace", path, "0", icon24},
                                               {"remove", path, "0"},
                                               {"reorder", path, "2,1"},
                                               {"salvage", path, "-o", path}}) {
      const Outcome o = run(arguments);
      EXPECT_EQ(o.status, 1) << arguments.front() << path;
      EXPECT_EQ(lines(o.err), 1) << arguments.front() << path;
    }
  const Outcome checked = run(call("check", paths));
  EXPECT_EQ(checked.status, 1);
  for (std::size_t size = 0; size < paths.size(); ++size) {
    EXPECT_NE((checked.out + checked.err).find(paths[size] + (size < 5 ? ":" : "\t")), std::string::npos) << size;
    EXPECT_EQ(bytesOf(paths[size]), Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)));
  }
}

TEST_F(GpiconHostile, ACursorThatIsCutAtAnyByteEndsInAnAnswer) {
  const std::vector<std::string> paths = cuts(folder, build(IcoFile{{anyEntry(32, 1)}, 0, 2, {}}));
  const Outcome checked = run(call("check", paths));
  EXPECT_EQ(checked.status, 1);
  for (std::size_t size = 0; size < paths.size(); ++size)
    EXPECT_NE((checked.out + checked.err).find(paths[size] + (size < 5 ? ":" : "\t")), std::string::npos) << size;
  EXPECT_NE(run(call("list", paths)).status, -1);
  EXPECT_NE(run(call("unpack", paths, {"-d", folder.path("pictures")})).status, -1);
}

TEST_F(GpiconHostile, AnAnimatedCursorThatIsCutAtAnyByteEndsInAnAnswer) {
  const std::string film =
      aniOf(headerWithSteps(2, 2, 3) + ratesOf({1, 2}) + sequenceOf({1, 0}) + frameList({smallFrame(), smallFrame()}));
  const std::vector<std::string> paths = cuts(folder, Bytes(film.begin(), film.end()));
  const Outcome checked = run(call("check", paths));
  EXPECT_EQ(checked.status, 1);
  for (std::size_t size = 0; size < paths.size(); ++size)
    EXPECT_NE((checked.out + checked.err).find(paths[size] + (size < 12 ? ":" : "\t")), std::string::npos) << size;
  EXPECT_EQ(run(call("list", paths)).status, 1);
  EXPECT_EQ(run(call("unpack", paths, {"-d", folder.path("pictures")})).status, 1);
  const Outcome probed = run(call("probe", paths));
  EXPECT_EQ(probed.status, 0);
  EXPECT_EQ(lines(probed.out), static_cast<long>(paths.size()));
}

TEST_F(GpiconHostile, SixtyFiveThousandEntriesOverTheSameBytesTakeNoTime) {
  std::vector<Entry> entries(65535);
  const Bytes image = imageBytes(anyPicture(48, 32));
  for (std::size_t i = 0; i < entries.size(); ++i) {
    entries[i].bitCount = 4;  // so that each contradicts its header
    entries[i].offset = 6 + 16 * 65535;
    entries[i].bytesInRes = static_cast<std::uint32_t>(image.size());
  }
  entries.back().image = image;
  const Bytes bytes = fileOf(entries);
  const std::string path = folder.write("many.ico", bytes);
  EXPECT_EQ(lines(limited({"list", path}).out), 65535);
  EXPECT_EQ(lines(limited({"check", path}).out), 4 * 65535 + 2 * 65534);  // size, depth; shared, same
  // All writing commands would write more than 256 MB.
  for (const std::vector<std::string>& arguments :
       std::vector<std::vector<std::string>>{{"split", path, "-d", folder.path("parts")},
                                             {"effect", path, "invert", "--all", "-d", folder.path("effects")},
                                             {"replace", path, "0", icon24},
                                             {"xcursor", path, "-o", folder.path("made")},
                                             {"remove", path, "0"}}) {
    const Outcome o = limited(arguments);
    EXPECT_EQ(o.status, 1) << o.err;
    EXPECT_EQ(lines(o.err), 1) << o.err;
    EXPECT_EQ(bytesOf(path), bytes);
  }
}

// Few bytes of a file become many larger images: each of the entries is a mask of 384 bytes and 48 x 48 indices of the
// same 816 bytes, which make 256 colours.
TEST_F(GpiconHostile, ImagesThatAnEffectMakesLargerAreNoWayToFillTheMemory) {
  std::vector<Entry> entries(65535);
  for (Entry& entry : entries) {
    entry.width = entry.height = 48;
    entry.bitCount = 24;
    entry.offset = 6 + 16 * 65535;
    entry.bytesInRes = 816;
  }
  entries.back().image = imageBytes(anyPicture(48, 1));
  const Bytes bytes = fileOf(entries);
  const std::string path = folder.write("grows.ico", bytes);
  const Outcome o = run({"effect", path, "invert", "--all", "-d", folder.path("effects")});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + path + ": too large to be written\n");
  EXPECT_TRUE(fs::is_empty(folder.path("effects")));
}

TEST_F(GpiconHostile, RandomBytesEndInAnAnswer) {
  std::mt19937 random(4);
  for (int round = 0; round < 60; ++round) {
    SCOPED_TRACE(round);
    Bytes bytes = fileOf({anyEntry(16, 4), anyEntry(32, 8), pngOf({1, 2, 3})});
    for (int i = 0; i < 6; ++i) bytes[6 + random() % 48] = static_cast<std::uint8_t>(random());
    const std::string path = folder.write("random.ico", bytes);
    lookAt(path, bytes);
    changeInEveryWay(path, bytes);
  }
}

}  // namespace
}  // namespace gp::test
