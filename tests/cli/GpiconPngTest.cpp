// PNG images in icon and cursor files, which gpicon reads where it reads bitmaps.
#include "cli/GpiconFixture.h"
#include "files/CursorBuilder.h"
#include "files/PngEntries.h"

#include <sstream>

namespace gp::test {
namespace {

class GpiconPng : public Gpicon {
 protected:
  std::string pngIcon(const PngFile& picture = anyPng(32)) { return folder.write("p.ico", build(pngEntryOf(picture))); }
  std::string out = folder.path("out.ico");

  void expectDone(const std::vector<std::string>& arguments) const {
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.err, "");
  }
  // The bitmap of a 32-bit icon that has the pixels of anyPng.
  static Bytes asBitmap(int size) {
    Picture picture;
    picture.width = picture.height = size;
    picture.bits = 32;
    picture.color = [](int x, int y) {
      const std::vector<int> rgba = anyRgba(x, y);
      return rgba[3] == 0 ? Rgb{0, 0, 0, 0} : Rgb{rgba[0], rgba[1], rgba[2], rgba[3]};
    };
    picture.transparent = [](int x, int y) { return anyAlpha(x, y) == 0; };
    return build(entryOf(picture));
  }
};

Bytes samplesOf(const std::string& header, const std::function<std::vector<int>(int, int)>& samples, int size) {
  Bytes bytes(header.begin(), header.end());
  for (int y = 0; y < size; ++y)
    for (int x = 0; x < size; ++x)
      for (const int sample : samples(x, y)) bytes.push_back(static_cast<std::uint8_t>(sample));
  return bytes;
}

TEST_F(GpiconPng, PngIconsAreUnpackedWithMaskAndAlpha) {
  const std::string path = pngIcon(anyPng(24));
  expectDone({"unpack", path, "-d", folder.path("out")});
  EXPECT_EQ(namesIn("out"), (std::vector<std::string>{"p_0.alpha.pgm", "p_0.image.ppm", "p_0.mask.pgm"}));
  const auto color = [](int x, int y) {
    std::vector<int> rgba = anyRgba(x, y);
    const bool isClear = rgba[3] == 0;
    rgba.pop_back();
    return isClear ? std::vector{0, 0, 0} : rgba;
  };
  EXPECT_EQ(bytesOf(folder.path("out/p_0.image.ppm")), samplesOf("P6\n24 24\n255\n", color, 24));
  const auto mask = [](int x, int y) { return std::vector{anyAlpha(x, y) == 0 ? 255 : 0}; };
  EXPECT_EQ(bytesOf(folder.path("out/p_0.mask.pgm")), samplesOf("P5\n24 24\n255\n", mask, 24));
  const auto alpha = [](int x, int y) { return std::vector{anyAlpha(x, y) == 0 ? 255 : anyAlpha(x, y)}; };
  EXPECT_EQ(bytesOf(folder.path("out/p_0.alpha.pgm")), samplesOf("P5\n24 24\n255\n", alpha, 24));
}

TEST_F(GpiconPng, APngWithoutAlphaIsUnpackedWithoutAlpha) {
  const std::string path = pngIcon(anyPng(16, png::kRgb));
  expectDone({"unpack", path, "-d", folder.path("out")});
  EXPECT_EQ(namesIn("out"), (std::vector<std::string>{"p_0.image.ppm", "p_0.mask.pgm"}));
}

TEST_F(GpiconPng, ADamagedPngDoesNotKeepTheOthersFromBeingUnpacked) {
  PngFile damaged = anyPng(32);
  damaged.hasRightDataCrc = false;
  const std::string path =
      folder.write("p.ico", fileOf({pngEntryOf(damaged), anyPngEntry(16, png::kRgb), anyEntry(24, 4)}));
  expectDone({"unpack", path, "-d", folder.path("out")});
  EXPECT_EQ(namesIn("out"),
            (std::vector<std::string>{"p_1.image.ppm", "p_1.mask.pgm", "p_2.image.ppm", "p_2.mask.pgm"}));
}

TEST_F(GpiconPng, ResaveWritesTheBitmapOfTheSamePixels) {
  for (const int size : {16, 24, 32, 48}) {
    expectDone({"resave", pngIcon(anyPng(size)), "0", out});
    EXPECT_EQ(bytesOf(out), asBitmap(size)) << size;
  }
}

TEST_F(GpiconPng, TheSizeIsThatOfThePictureAndCheckReportsTheOther) {
  Entry entry = anyPngEntry(32);
  entry.width = entry.height = 48;
  const std::string path = folder.write("p.ico", build(entry));
  expectDone({"resave", path, "0", out});
  EXPECT_EQ(bytesOf(out), asBitmap(32));
  EXPECT_EQ(run({"check", path}).out, path + "\t0\twidth\t48\t32\t-\n" + path + "\t0\theight\t48\t32\t-\n");
  EXPECT_EQ(run({"probe", path}).out, path + "\t1/1/0/32/32/-1/32/-1/32\n");
}

TEST_F(GpiconPng, BmpBlendsTheAlpha) {
  const std::string bitmap = folder.path("a.bmp"), other = folder.path("b.bmp");
  expectDone({"bmp", pngIcon(), "0", bitmap});
  expectDone({"bmp", folder.write("b.ico", asBitmap(32)), "0", other});
  EXPECT_EQ(bytesOf(bitmap), bytesOf(other));
}

TEST_F(GpiconPng, EffectsTakePicturesWithoutAlphaAndRefuseOthers) {
  expectDone({"effect", pngIcon(anyPng(32, png::kRgb)), "0", out, "embossed"});
  EXPECT_EQ(number(bytesOf(out), 12, 2), 24u);
  std::filesystem::remove(out);
  const Outcome refused = run({"effect", pngIcon(), "0", out, "embossed"});
  EXPECT_EQ(refused.status, 1);
  EXPECT_FALSE(std::filesystem::exists(out));
}

TEST_F(GpiconPng, ListShowsPngPicturesOfIconSizesAsUsable) {
  PngFile damaged = anyPng(32);
  damaged.hasEnd = false;
  const std::string path = folder.write("p.ico", fileOf({anyPngEntry(16), anyPngEntry(256), pngEntryOf(damaged)}));
  std::string usable;
  std::istringstream listed(run({"list", path}).out);
  for (std::string line; std::getline(listed, line);) usable += line.substr(line.rfind('\t')) + ",";
  EXPECT_EQ(usable, "\tusable,\tunusable,\tunusable,");
}

TEST_F(GpiconPng, ADamagedPngIsNamedAndNothingIsWritten) {
  PngFile damaged = anyPng(32);
  damaged.hasRightDataCrc = false;
  const std::string path = pngIcon(damaged);
  const Outcome outcome = run({"resave", path, "0", out});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err, "gpicon: " + path + ": a damaged PNG image\n");
  EXPECT_FALSE(std::filesystem::exists(out));
}

TEST_F(GpiconPng, ReplacingOneEntryKeepsTheBytesOfTheOtherPngPictures) {
  const Entry first = anyPngEntry(16), last = anyPngEntry(48);
  const std::string path = folder.write("p.ico", fileOf({first, anyPngEntry(32), last}));
  expectDone({"replace", path, "1", icon("new.ico", 24, 24)});
  EXPECT_EQ(bytesOf(path), fileOf({first, anyEntry(24, 24), last}));
}

TEST_F(GpiconPng, ABitmapOfThePicturesSizeAndDepthIsNotAddedBesideIt) {
  Entry entry = anyPngEntry(32);
  entry.bitCount = 0;
  const std::string path = folder.write("p.ico", fileOf({entry, anyEntry(16, 4)}));
  const Outcome outcome = run({"add", path, folder.write("b.ico", asBitmap(32))});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err.substr(0, outcome.err.find("\n")).find("True Color 32 BPP 32 x 32") != std::string::npos, true)
      << outcome.err;
}

TEST_F(GpiconPng, ACursorMayBeAPngPicture) {
  CursorFile cursor = cursorOf(anyPicture(32, 32), 5, 6);
  cursor.image = build(anyPng(32));
  const std::string path = folder.write("c.cur", build(cursor));
  EXPECT_EQ(run({"probe", path}).out, path + "\t1/-1/32\n");
  expectDone({"unpack", path, "-d", folder.path("out")});
  EXPECT_EQ(namesIn("out"), (std::vector<std::string>{"c_0.alpha.pgm", "c_0.image.ppm", "c_0.mask.pgm"}));
}

TEST_F(GpiconPng, ADamagedCursorIsNotUsable) {
  CursorFile cursor = cursorOf(anyPicture(32, 32), 5, 6);
  PngFile damaged = anyPng(32);
  damaged.hasRightDataCrc = false;
  cursor.image = build(damaged);
  const std::string path = folder.write("c.cur", build(cursor));
  EXPECT_NE(run({"list", path}).out.find("unusable"), std::string::npos);
  EXPECT_EQ(run({"unpack", path, "-d", folder.path("out")}).err, "gpicon: " + path + ": no usable image\n");
}

}  // namespace
}  // namespace gp::test
