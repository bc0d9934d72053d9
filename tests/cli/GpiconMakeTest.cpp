// gpicon make: which images it makes, in which order, what it says, and what it refuses.
#include "cli/WrittenPicture.h"
#include "platform/codec/BitmapPicture.h"
#include "platform/scaling/PictureScaling.h"
#include "support/SamplePictures.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

class GpiconMake : public GpiconOneImage {
 protected:
  const std::string ico = folder.path("out.ico"), cur = folder.path("out.cur");

  std::string png(const std::string& name, const PngPicture& picture) const {
    return folder.write(name, encodePng(picture));
  }
  void expectNone(const std::vector<std::string>& arguments, int status, const std::string& text) const {
    const Outcome o = run(arguments);
    EXPECT_EQ(o.status, status) << testing::PrintToString(arguments);
    EXPECT_EQ(o.out, "");
    EXPECT_EQ(o.err, "gpicon: " + text + (status == 2 ? " (see gpicon --help)\n" : "\n"));
    EXPECT_FALSE(std::filesystem::exists(ico));
  }
};

// The picture of an entry by the directory.
PngPicture entryPicture(const Bytes& file, std::size_t index) {
  const std::size_t entry = 6 + 16 * index;
  const Bytes image(
      file.begin() + static_cast<std::ptrdiff_t>(number(file, entry + 12, 4)),
      file.begin() + static_cast<std::ptrdiff_t>(number(file, entry + 12, 4) + number(file, entry + 8, 4)));
  if (isPng(image)) return decodePng(image, kPngInIconFile).picture;
  return decodeIconBitmap(image, image.size(), kPngInIconFile).picture;
}

TEST_F(GpiconMake, MakesOneImageOfEachPictureInTheirOrderAndSaysWhich) {
  const std::string a = png("a.png", logoPicture(32)), b = png("b.png", linePicture(16)),
                    c = png("c.png", photoPicture(70, 48));
  const Outcome o = run({"make", ico, a, b, c});
  EXPECT_EQ(o.status, 0) << o.err;
  const Bytes file = bytesOf(ico);
  EXPECT_EQ(o.out, "0\t32x32\t32\tbmp\t4264\tunscaled\t" + a + "\n1\t16x16\t1\tbmp\t176\tunscaled\t" + b +
                       "\n2\t70x48\t24\tpng\t" + std::to_string(number(file, 46, 4)) + "\tunscaled\t" + c + "\n");
  EXPECT_EQ(entryPicture(file, 0).rgba, logoPicture(32).rgba);
  EXPECT_EQ(entryPicture(file, 1).rgba, linePicture(16).rgba);
  EXPECT_EQ(entryPicture(file, 2).rgba, photoPicture(70, 48).rgba);
  EXPECT_EQ(run({"check", ico}).out, "");
}

TEST_F(GpiconMake, ScalesOnePictureToAllSizes) {
  const PngPicture logo = logoPicture(300);
  ASSERT_EQ(run({"make", ico, "--from", png("logo.png", logo)}).status, 0);
  const Bytes file = bytesOf(ico);
  ASSERT_EQ(number(file, 4, 2), 7U);
  std::size_t index = 0;
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
    const std::array sizes{PictureSize{size, size}};
    EXPECT_EQ(entryPicture(file, index++).rgba, scaledPictures(logo, sizes, ScalingFilter::Box)[0].rgba) << size;
  }
}

TEST_F(GpiconMake, ScalesToTheNamedSizesWithTheNamedFilterButNotToThoseOfAPicture) {
  const PngPicture logo = logoPicture(90);
  const std::string from = png("logo.png", logo), small = png("small.png", linePicture(16));
  const Outcome o = run({"make", ico, small, "--from", from, "--sizes", "48,16,20", "--filter", "lanczos", "--json"});
  EXPECT_EQ(o.status, 0) << o.err;
  EXPECT_EQ(
      o.out,
      "[\n{\"index\":0,\"width\":16,\"height\":16,\"bits\":1,\"encoding\":\"bmp\",\"bytes\":176,\"scaled\":false,"
      "\"picture\":\"" +
          small +
          "\"},\n"
          "{\"index\":1,\"width\":48,\"height\":48,\"bits\":32,\"encoding\":\"bmp\",\"bytes\":9640,\"scaled\":true,"
          "\"picture\":\"" +
          from +
          "\"},\n"
          "{\"index\":2,\"width\":20,\"height\":20,\"bits\":32,\"encoding\":\"bmp\",\"bytes\":1720,\"scaled\":true,"
          "\"picture\":\"" +
          from + "\"}\n]\n");
  const std::array sizes{PictureSize{48, 48}};
  EXPECT_EQ(entryPicture(bytesOf(ico), 1).rgba, scaledPictures(logo, sizes, ScalingFilter::Lanczos)[0].rgba);
}

TEST_F(GpiconMake, APictureThatIsNotSquareIsCenteredOnTransparentGround) {
  const PngPicture wide = drawn(80, 40, false, [](int, int) { return Rgba{10, 200, 30, 255}; });
  ASSERT_EQ(run({"make", ico, "--from", png("wide.png", wide), "--sizes", "32"}).status, 0);
  const PngPicture made = entryPicture(bytesOf(ico), 0);
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x) {
      const bool isInside = y >= 8 && y < 24;
      const std::size_t at = static_cast<std::size_t>(y * 32 + x) * 4;
      ASSERT_EQ(Bytes(&made.rgba[at], &made.rgba[at] + 4), isInside ? (Bytes{10, 200, 30, 255}) : (Bytes{0, 0, 0, 0}));
    }
}

TEST_F(GpiconMake, TheOptionsOfDepthAreObeyed) {
  const std::string photo = png("photo.png", photoPicture(48, 48));
  for (const std::string bits : {"32", "24", "8", "4", "1"}) {
    ASSERT_EQ(run({"make", ico, photo, "--bits", bits, "--force"}).status, 0);
    EXPECT_EQ(std::to_string(number(bytesOf(ico), 12, 2)), bits);
  }
  ASSERT_EQ(run({"make", ico, photo, "--bits", "1", "--force"}).status, 0);
  const Bytes plain = bytesOf(ico);
  ASSERT_EQ(run({"make", ico, photo, "--bits", "1", "--dither", "floyd", "--force"}).status, 0);
  EXPECT_NE(bytesOf(ico), plain);
  const WrittenPicture dithered = writtenIcon(ico);
  EXPECT_EQ(dithered.colorCount(), 2U);
  ASSERT_EQ(run({"make", ico, photo, "--png-above", "47", "--force"}).status, 0);
  EXPECT_EQ(number(bytesOf(ico), 22, 4), 0x474E5089U);
}

TEST_F(GpiconMake, BitmapsArePicturesToo) {
  ASSERT_EQ(run({"bmp", icon("a.ico", 32, 24), "0", folder.path("a.bmp")}).status, 0);
  ASSERT_EQ(run({"make", ico, folder.path("a.bmp")}).status, 0);
  const WrittenPicture made = writtenIcon(ico), source = writtenBitmap(folder.path("a.bmp"));
  EXPECT_EQ(made.colors, source.colors);
  EXPECT_EQ(std::count(made.transparent.begin(), made.transparent.end(), true), 0);
}

TEST_F(GpiconMake, CursorsGetTheirHotSpotInProportion) {
  const std::string large = png("large.png", logoPicture(64)), small = png("small.png", logoPicture(32)),
                    wide = png("wide.png", photoPicture(80, 40));
  ASSERT_EQ(run({"make", cur, large, small, "--hotspot", "63,31"}).status, 0);
  Bytes file = bytesOf(cur);
  EXPECT_EQ(number(file, 2, 2), 2U);
  EXPECT_EQ(number(file, 10, 2), 63U);
  EXPECT_EQ(number(file, 12, 2), 31U);
  EXPECT_EQ(number(file, 26, 2), 31U);
  EXPECT_EQ(number(file, 28, 2), 15U);
  // In the centered picture.
  ASSERT_EQ(run({"make", cur, "--from", wide, "--sizes", "32", "--hotspot", "79,0", "--force"}).status, 0);
  file = bytesOf(cur);
  EXPECT_EQ(number(file, 10, 2), 31U);
  EXPECT_EQ(number(file, 12, 2), 8U);
  ASSERT_EQ(run({"make", cur, small, "--force"}).status, 0);
  EXPECT_EQ(number(bytesOf(cur), 10, 4), 0U);
}

TEST_F(GpiconMake, AHotSpotOutsideIsRefused) {
  const std::string a = png("a.png", logoPicture(32));
  const Outcome o = run({"make", cur, a, "--hotspot", "3,32"});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + a + ": the hot spot is outside its 32x32 pixels\n");
  EXPECT_FALSE(std::filesystem::exists(cur));
}

TEST_F(GpiconMake, TwoImagesOfOneSizeAndDepthAreRefused) {
  const std::string a = png("a.png", logoPicture(32)), b = png("b.png", logoPicture(32)),
                    line = png("c.png", linePicture(32));
  expectNone({"make", ico, a, b}, 1, b + ": 32x32 with 32 bits, as " + a);
  EXPECT_EQ(run({"make", ico, a, line}).status, 0);
}

TEST_F(GpiconMake, AnExistingFileIsKeptWithoutForce) {
  const std::string a = png("a.png", logoPicture(32)), kept = folder.write("out.ico", {1, 2, 3});
  const Outcome o = run({"make", ico, a});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + ico + ": already there, and not replaced\n");
  EXPECT_EQ(bytesOf(kept), (Bytes{1, 2, 3}));
  EXPECT_EQ(run({"make", ico, a, "--force"}).status, 0);
  EXPECT_NE(bytesOf(kept), (Bytes{1, 2, 3}));
}

TEST_F(GpiconMake, PicturesThatCannotBeReadAreRefusedByName) {
  const std::string good = png("a.png", logoPicture(16)), big = png("big.png", linePicture(257)),
                    text = folder.write("t.png", {'h', 'i'}), gone = folder.path("gone.png");
  Bytes cut = encodePng(logoPicture(16));
  cut.resize(cut.size() / 2);
  const std::string half = folder.write("cut.png", cut);
  expectNone({"make", ico, good, big}, 1, big + ": 257x257 pixels, and an image has 256x256 at most; --from scales it");
  expectNone({"make", ico, good, text}, 1, text + ": not a PNG or BMP picture");
  expectNone({"make", ico, good, gone}, 1, gone + ": not a file that can be read");
  expectNone({"make", ico, good, half}, 1, half + ": damaged, or cut short");
  expectNone({"make", ico, "--from", half}, 1, half + ": damaged, or cut short");
}

TEST_F(GpiconMake, BadUsageIsNamed) {
  const std::string a = png("a.png", logoPicture(16));
  const std::string sizes = "make: --sizes takes numbers from 1 to 256, each once";
  for (const auto& [arguments, text] : std::vector<std::pair<std::vector<std::string>, std::string>>{
           {{"make"}, "make: OUT.ico and a PICTURE are needed"},
           {{"make", ico}, "make: OUT.ico and a PICTURE are needed"},
           {{"make", folder.path("out.png"), a}, "make: the name of OUT ends with .ico or .cur"},
           {{"make", ico, a, "--sizes", "16"}, "make: --sizes goes with --from only"},
           {{"make", ico, "--from", a, "--sizes", "16,16"}, sizes},
           {{"make", ico, "--from", a, "--sizes", "0"}, sizes},
           {{"make", ico, "--from", a, "--sizes", "257"}, sizes},
           {{"make", ico, "--from", a, "--sizes", "16,,24"}, sizes},
           {{"make", ico, "--from", a, "--from", a}, "make: --from takes a PICTURE"},
           {{"make", ico, a, "--bits", "16"}, "make: --bits takes auto, 32, 24, 8, 4 or 1"},
           {{"make", ico, a, "--filter", "cubic"}, "make: --filter takes box or lanczos"},
           {{"make", ico, a, "--dither", "yes"}, "make: --dither takes none or floyd"},
           {{"make", ico, a, "--png-above", "x"}, "make: --png-above takes a number of pixels"},
           {{"make", ico, a, "--hotspot", "1,2"}, "make: --hotspot goes with OUT.cur only"},
           {{"make", cur, a, "--hotspot", "1"}, "make: --hotspot takes X,Y"},
           {{"make", ico, a, "--fast"}, "make: unknown option --fast"}})
    expectNone(arguments, 2, text);
}

TEST_F(GpiconMake, StandardInputAndOutputArePicturesAndIconsToo) {
  const std::string a = png("a.png", logoPicture(40));
  ASSERT_EQ(run({"make", ico, "--from", a}).status, 0);
  const Outcome o = runAfter("cat " + inShell(a) + " | ", {"make", "-", "--from", "-"});
  EXPECT_EQ(o.status, 0) << o.err;
  EXPECT_EQ(Bytes(o.out.begin(), o.out.end()), bytesOf(ico));
  ASSERT_EQ(run({"make", cur, a, "--hotspot", "1,2"}).status, 0);
  const std::string cursor = run({"make", "-", a, "--hotspot", "1,2"}).out;
  EXPECT_EQ(Bytes(cursor.begin(), cursor.end()), bytesOf(cur));
}

}  // namespace
}  // namespace gp::test
