// The commands xcursor and unxcursor; XcursorConversionTest shows what they convert.
#include "animation/XcursorBytes.h"
#include "cli/GpiconFixture.h"

namespace gp::test {
namespace {

// Kilobytes of address space, and seconds: as few as a large file needs.
constexpr const char* kLimits = "ulimit -v 300000; ulimit -t 20; ";

class GpiconXcursor : public Gpicon {
 protected:
  const std::string out = folder.path("out");

  std::string xcursor(const std::string& name, const std::vector<XcursorPart>& parts) const {
    return folder.write(name, bytesOfText(xcursorOf(parts)));
  }
  static std::vector<XcursorPart> twoSizes() {
    const std::vector<std::uint32_t> pixels{0xFF112233, 0, 0x80402010, 0xFF000000};
    return {{.nominalSize = 2, .height = 2, .hotspotX = 1, .pixels = pixels},
            {.nominalSize = 4, .width = 4, .hotspotX = 3, .pixels = pixels}};
  }
  static std::vector<XcursorPart> moving() {
    return {{.nominalSize = 2, .delayMs = 30}, {.nominalSize = 2, .delayMs = 16}, {.nominalSize = 2, .delayMs = 500}};
  }
  void expectRefused(const std::vector<std::string>& arguments, int status, const std::string& error) const {
    const Outcome o = run(arguments);
    EXPECT_EQ(o.status, status);
    EXPECT_EQ(o.err, "gpicon: " + error + "\n");
    EXPECT_FALSE(std::filesystem::exists(out));
  }
};

TEST_F(GpiconXcursor, AStillCursorComesBackByteForByte) {
  const std::string path = xcursor("left_ptr", twoSizes()), cursor = folder.path("a.CUR");
  Outcome o = run({"unxcursor", path, "-o", cursor});
  EXPECT_EQ(o.status, 0);
  EXPECT_EQ(o.out + o.err, "");
  EXPECT_EQ(number(bytesOf(cursor), 0, 4), 0x20000U);
  EXPECT_EQ(number(bytesOf(cursor), 4, 2), 2U);
  o = run({"xcursor", cursor, "-o", out});
  EXPECT_EQ(o.status, 0);
  EXPECT_EQ(o.out + o.err, "");
  EXPECT_EQ(bytesOf(out), bytesOf(path));
}

TEST_F(GpiconXcursor, AMovingCursorComesBackByteForByte) {
  const std::string path = xcursor("watch", moving()), film = folder.path("a.ani");
  EXPECT_EQ(run({"unxcursor", path, "-o", film}).status, 0);
  EXPECT_EQ(bytesOf(film).front(), 'R');
  EXPECT_EQ(run({"xcursor", film, "-o", out}).status, 0);
  EXPECT_EQ(bytesOf(out), bytesOf(path));
}

TEST_F(GpiconXcursor, OneSizeCanBeChosen) {
  const std::string path = xcursor("left_ptr", twoSizes()), cursor = folder.path("a.cur");
  EXPECT_EQ(run({"unxcursor", "--size", "9", path, "-o", cursor}).status, 0);
  EXPECT_EQ(run({"xcursor", cursor, "-o", out}).status, 0);
  EXPECT_EQ(bytesOf(out), bytesOfText(xcursorOf({twoSizes()[1]})));
}

TEST_F(GpiconXcursor, AnExistingOutputIsReplaced) {
  const std::string path = xcursor("left_ptr", twoSizes()), cursor = folder.write("a.cur", {1});
  EXPECT_EQ(run({"unxcursor", path, "-o", cursor}).status, 0);
  EXPECT_GT(bytesOf(cursor).size(), 1U);
}

TEST_F(GpiconXcursor, StandardInputAndOutputAreUsed) {
  const std::string path = xcursor("watch", moving());
  EXPECT_EQ(run({"unxcursor", path, "-o", folder.path("a.ani")}).status, 0);
  EXPECT_EQ(runAfter("cat " + path + " | ", {"unxcursor", "-", "-o", "-"}).out, textOf("a.ani"));
  EXPECT_EQ(runAfter("cat " + folder.path("a.ani") + " | ", {"xcursor", "-", "-o", "-"}).out, textOf("watch"));
}

TEST_F(GpiconXcursor, RefusalsAreOneLineAndWriteNothing) {
  const std::string still = xcursor("left_ptr", twoSizes()), watch = xcursor("watch", moving());
  const std::string text = folder.write("text", {'h', 'i'}), missing = folder.path("missing");
  const std::string moves = ": a moving cursor, which only an .ani file can hold";
  expectRefused({"unxcursor", watch, "-o", folder.path("a.cur")}, 1, watch + moves);
  EXPECT_FALSE(std::filesystem::exists(folder.path("a.cur")));
  expectRefused({"unxcursor", text, "-o", folder.path("a.cur")}, 1, text + ": not an X cursor file");
  expectRefused({"unxcursor", missing, "-o", folder.path("a.cur")}, 1, missing + ": not a file that can be read");
  expectRefused({"xcursor", text, "-o", out}, 1, text + ": no image that can be read");
  expectRefused({"xcursor", still, "-o", out}, 1, still + ": no image that can be read");
  expectRefused({"xcursor", missing, "-o", out}, 1, missing + ": not a file that can be read");
  const std::string nowhere = folder.path("none/a.cur");
  expectRefused({"unxcursor", still, "-o", nowhere}, 1, nowhere + ": cannot be written");
}

TEST_F(GpiconXcursor, BadUsageIsNamed) {
  const std::string hint = " (see gpicon --help)";
  expectRefused({"xcursor", "a"}, 2, "xcursor: FILE -o OUT is needed" + hint);
  expectRefused({"xcursor", "a", "b", "-o", out}, 2, "xcursor: FILE -o OUT is needed" + hint);
  expectRefused({"xcursor", "a", "-o"}, 2, "xcursor: one -o OUT is all it takes" + hint);
  expectRefused({"xcursor", "a", "--size", "3", "-o", out}, 2, "xcursor: unknown option --size" + hint);
  expectRefused({"unxcursor", "a", "-o", out}, 2, "unxcursor: the name of OUT ends with .cur or .ani" + hint);
  for (const std::string size : {"0", "x", "-3", "1.5", "99999999999"})
    expectRefused({"unxcursor", "a", "--size", size, "-o", "a.cur"}, 2,
                  "unxcursor: --size takes a number of pixels" + hint);
  expectRefused({"unxcursor", "a", "--size", "3", "--size", "4", "-o", "a.cur"}, 2,
                "unxcursor: one --size N is all it takes" + hint);
}

TEST_F(GpiconXcursor, FilesThatAreCutAnywhereEndInAnAnswer) {
  const Bytes whole = bytesOfText(xcursorOf(moving()));
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const std::string path = folder.write("cut", Bytes(whole.begin(), whole.begin() + static_cast<long>(size)));
    const Outcome o = run({"unxcursor", path, "-o", folder.path("a.ani")});
    ASSERT_EQ(o.status, 1) << size;
    ASSERT_EQ(lines(o.err), 1) << size;
  }
  EXPECT_FALSE(std::filesystem::exists(folder.path("a.ani")));
}

TEST_F(GpiconXcursor, FewBytesThatWouldBecomeManyTakeLittleMemory) {
  std::vector<XcursorPart> parts(60000,
                                 XcursorPart{.width = 256, .height = 256, .pixels = {}, .position = 16 + 12 * 60000});
  parts.front().pixels.assign(65536, 0x80402010);
  const Outcome o = runAfter(kLimits, {"unxcursor", xcursor("bomb", parts), "-o", folder.path("a.ani")});
  EXPECT_EQ(o.status, 1);
  EXPECT_NE(o.err.find("too large to be converted"), std::string::npos) << o.err;
}

}  // namespace
}  // namespace gp::test
