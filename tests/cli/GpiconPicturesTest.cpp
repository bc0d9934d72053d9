// The commands that work on images of any size: unpack --png, show and strip.
#include "cli/GpiconFixture.h"
#include "platform/codec/Png.h"
#include "support/PngBuilder.h"

namespace gp::test {
namespace {

Entry pngEntry(const PngFile& picture) {
  Entry entry;
  entry.width = static_cast<int>(picture.width % 256);
  entry.height = static_cast<int>(picture.height % 256);
  entry.bitCount = 32;
  entry.image = build(picture);
  return entry;
}

// With a text and a time.
PngFile withTexts(PngFile picture) {
  picture.beforeData.push_back({"tEXt", {'A', 0, 'b'}, true, {}});
  picture.afterData.push_back({"tIME", {7, 230, 1, 2, 3, 4, 5}, true, {}});
  return picture;
}

class GpiconPictures : public Gpicon {
 protected:
  const std::string out = folder.path("out");

  PngPicture pictureIn(const std::string& name) const {
    const DecodedPng decoded = decodePng(bytesOf(out + "/" + name), kPngPicture);
    EXPECT_TRUE(decoded.isRead()) << name;
    return decoded.picture;
  }
};

TEST_F(GpiconPictures, UnpackWritesEveryImageOfEverySizeAsPng) {
  const Entry large = pngEntry(withTexts(anyPng(256)));
  Entry odd = anyEntry(100, 24);
  const std::string path = folder.write("a.ico", fileOf({anyEntry(16, 4), odd, large, anyEntry(32, 32)}));
  const Outcome o = run({"unpack", "--png", path, "-d", out});
  EXPECT_EQ(o.status, 0);
  EXPECT_EQ(o.out + o.err, "");
  EXPECT_EQ(namesIn("out"), (std::vector<std::string>{"a_0.png", "a_1.png", "a_2.png", "a_3.png"}));
  EXPECT_EQ(bytesOf(out + "/a_2.png"), large.image);

  const Picture p = anyPicture(100, 24);
  const PngPicture made = pictureIn("a_1.png");
  ASSERT_EQ(made.width, 100);
  for (int y = 0; y < 100; ++y)
    for (int x = 0; x < 100; ++x) {
      const Rgb c = p.color(x, y);
      const std::size_t at = static_cast<std::size_t>(y * 100 + x) * 4;
      ASSERT_EQ(Bytes(&made.rgba[at], &made.rgba[at] + 4),
                (Bytes{static_cast<std::uint8_t>(c.r), static_cast<std::uint8_t>(c.g), static_cast<std::uint8_t>(c.b),
                       static_cast<std::uint8_t>(p.transparent(x, y) ? 0 : 255)}));
    }
  const PngPicture deep = pictureIn("a_3.png");
  for (int x = 0; x < 32; ++x)
    EXPECT_EQ(deep.rgba[static_cast<std::size_t>(x) * 4 + 3], anyPicture(32, 32).color(x, 0).a);
}

TEST_F(GpiconPictures, UnpackReportsWhatItCannotDecodeAndWritesTheOthers) {
  PngFile broken = anyPng(16);
  broken.hasRightDataCrc = false;
  const std::string path = folder.write("a.ico", fileOf({pngEntry(broken), anyEntry(16, 8), pngEntry(anyPng(16))}));
  const Outcome o = run({"unpack", path, "-d", out, "--png"});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + path + ": 1 of its 3 images cannot be decoded\n");
  EXPECT_EQ(namesIn("out"), (std::vector<std::string>{"a_1.png", "a_2.png"}));
}

TEST_F(GpiconPictures, UnpackKeepsFilesThatAreThereUnlessForced) {
  const std::string path = icon("a.ico", 16, 24);
  std::filesystem::create_directory(out);
  folder.write("out/a_0.png", {1});
  EXPECT_EQ(run({"unpack", "--png", path, "-d", out}).err,
            "gpicon: " + out + "/a_0.png: already there, and not replaced\n");
  EXPECT_EQ(bytesOf(out + "/a_0.png"), Bytes{1});
  EXPECT_EQ(run({"unpack", "--png", path, "-d", out, "--force"}).status, 0);
  EXPECT_EQ(pictureIn("a_0.png").width, 16);
}

TEST_F(GpiconPictures, ShowPrintsTwoPixelsPerCharacter) {
  Picture p = anyPicture(4, 24);
  p.color = [](int x, int y) { return Rgb{x * 10, y * 10, 5}; };
  p.transparent = [](int x, int y) { return x == 3 || (x == 1 && y == 0) || (x == 2 && y % 2 == 1); };
  const std::string path = folder.write("a.ico", build(entryOf(p)));
  const Outcome plain = run({"show", path});
  EXPECT_EQ(plain.status, 0);
  EXPECT_EQ(plain.out, path + "\t0\t4x4\n█▄▀\n██▀\n");
  EXPECT_EQ(run({"show", "--color", "always", path}).out,
            path +
                "\t0\t4x4\n"
                "\x1B[38;2;0;0;5m\x1B[48;2;0;10;5m▀\x1B[0m\x1B[38;2;10;10;5m▄\x1B[38;2;20;0;5m▀ \x1B[0m\n"
                "\x1B[38;2;0;20;5m\x1B[48;2;0;30;5m▀\x1B[38;2;10;20;5m\x1B[48;2;10;30;5m▀\x1B[0m\x1B[38;2;20;20;5m▀ "
                "\x1B[0m\n");
  EXPECT_EQ(run({"show", "--color", "never", path}).out, plain.out);
}

TEST_F(GpiconPictures, ShowScalesWideImagesDown) {
  Picture p = anyPicture(48, 24);
  p.transparent = [](int, int) { return false; };
  const std::string path = folder.write("a.ico", build(entryOf(p)));
  std::string expected = path + "\t0\t48x48\n";
  for (int y = 0; y < 2; ++y) expected += "████\n";
  EXPECT_EQ(run({"show", path, "--width", "4"}).out, expected);
  EXPECT_EQ(run({"show", path, "--width", "0"}).err,
            "gpicon: show: --width takes a number from 1 to 256 (see gpicon --help)\n");
  EXPECT_EQ(run({"show", path, "--color", "red"}).status, 2);
}

TEST_F(GpiconPictures, ShowReportsWhatItCannotDecode) {
  PngFile broken = anyPng(16);
  broken.hasEnd = false;
  const std::string path = folder.write("a.ico", fileOf({pngEntry(broken)}));
  const Outcome o = run({"show", path});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + path + ": 1 of its 1 images cannot be decoded\n");
  EXPECT_EQ(run({"show", folder.write("t", {'x'})}).status, 1);
}

TEST_F(GpiconPictures, StripDropsChunksAndUnusedColorsAndKeepsEveryPixel) {
  Picture thin = anyPicture(32, 8);
  thin.index = [](int x, int y) { return (x + y) % 3 * 80; };
  thin.transparent = [](int x, int) { return x == 0; };
  const std::string path =
      folder.write("a.ico", fileOf({pngEntry(withTexts(anyPng(32))), entryOf(thin), anyEntry(16, 24)}));
  const Bytes before = bytesOf(path);
  ASSERT_EQ(run({"unpack", "--png", path, "-d", folder.path("before")}).status, 0);
  const Outcome o = run({"strip", path});
  EXPECT_EQ(o.status, 0) << o.err;
  const Bytes after = bytesOf(path);
  EXPECT_EQ(o.out, path + "\t" + std::to_string(before.size()) + "\t" + std::to_string(after.size()) + "\n");

  const Bytes bare = build(anyPng(32));
  EXPECT_EQ(number(after, 14, 4), bare.size());
  EXPECT_EQ(Bytes(after.begin() + 54, after.begin() + 54 + static_cast<std::ptrdiff_t>(bare.size())), bare);
  EXPECT_EQ(after[24], 16);
  EXPECT_EQ(number(after, 28, 2), 4U);
  EXPECT_EQ(number(after, 30, 4), 40U + 64 + 32 * 16 + 32 * 4);

  ASSERT_EQ(run({"unpack", "--png", path, "-d", out}).status, 0);
  for (const std::string name : {"a_0.png", "a_1.png", "a_2.png"})
    EXPECT_EQ(pictureIn(name).rgba, decodePng(bytesOf(folder.path("before/" + name)), kPngPicture).picture.rgba);
  // Nothing is left to drop.
  EXPECT_EQ(run({"strip", path, "--json"}).out, "[\n{\"file\":\"" + path +
                                                    "\",\"before\":" + std::to_string(after.size()) +
                                                    ",\"after\":" + std::to_string(after.size()) + "}\n]\n");
  EXPECT_EQ(bytesOf(path), after);
}

TEST_F(GpiconPictures, StripWritesToOutAndRefusesWhatUpdatesRefuse) {
  const std::string path = folder.write("a.ico", fileOf({pngEntry(withTexts(anyPng(16)))}));
  const Bytes before = bytesOf(path);
  ASSERT_EQ(run({"strip", path, "-o", folder.path("b.ico")}).status, 0);
  EXPECT_EQ(bytesOf(path), before);
  EXPECT_LT(bytesOf(folder.path("b.ico")).size(), before.size());
  const std::string piped = runAfter("cat " + inShell(path) + " | ", {"strip", "-"}).out;
  EXPECT_EQ(Bytes(piped.begin(), piped.end()), bytesOf(folder.path("b.ico")));
  EXPECT_EQ(run({"strip", path, path, "-o", "x"}).status, 2);
  EXPECT_EQ(run({"strip"}).status, 2);
  Bytes cut = before;
  cut.resize(cut.size() - 1);
  const std::string half = folder.write("cut.ico", cut);
  EXPECT_EQ(run({"strip", half}).err, "gpicon: " + half + ": shorter than its directory says\n");
}

}  // namespace
}  // namespace gp::test
