// gpicon bmp: headers, palettes and pixels of every depth, the background of transparent pixels, and every refusal.
#include "cli/WrittenPicture.h"

namespace gp::test {
namespace {

constexpr Color kSilver = 0xC0C0C0;

class GpiconBitmap : public GpiconOneImage {
 protected:
  // An image of 16x16 pixels, whose rows need no padding.
  std::string inputOf(const Picture& p) const { return folder.write("in.ico", build(entryOf(p))); }
  static Picture opaque(int bits) {
    Picture p = anyPicture(16, bits);
    p.transparent = [](int, int) { return false; };
    return p;
  }
  WrittenPicture bitmapOf(const Picture& p, const std::vector<std::string>& options = {}) const {
    std::vector<std::string> arguments{"bmp", inputOf(p), "0", out};
    arguments.insert(arguments.end(), options.begin(), options.end());
    expectDone(arguments);
    return writtenBitmap(out);
  }
  void expectColors(const WrittenPicture& written, const std::function<Color(int, int)>& expected) const {
    for (int y = 0; y < written.height; ++y)
      for (int x = 0; x < written.width; ++x) ASSERT_EQ(written.color(x, y), expected(x, y)) << x << "," << y;
  }
};

// Both headers, complete.
struct BitmapHeaders {
  std::uint32_t fileSize, toldSize, pixels, side, bits, toldPixelBytes;
};
Bytes bytesOfHeaders(const BitmapHeaders& h) {
  Bytes out{'B', 'M'};
  for (const std::uint32_t value : {h.toldSize, 0U, h.pixels, 40U, h.side, h.side}) put32(out, value);
  put16(out, 1);
  put16(out, h.bits);
  for (const std::uint32_t value : {0U, h.toldPixelBytes, 0U, 0U, 0U, 0U}) put32(out, value);
  return out;
}
void expectHeaders(const std::string& path, const BitmapHeaders& h) {
  const Bytes file = bytesOf(path);
  ASSERT_EQ(file.size(), h.fileSize);
  EXPECT_EQ(Bytes(file.begin(), file.begin() + 54), bytesOfHeaders(h));
}

TEST_F(GpiconBitmap, BlackAndWhiteTakeOneBit) {
  Picture p = opaque(1);
  p.palette = {{0, 0, 0}, {255, 255, 255}};
  const WrittenPicture written = bitmapOf(p);
  expectHeaders(out, {62 + 16 * 4, 62 + 16 * 4 - 14, 62, 16, 1, 0});
  expectColors(written, [&p](int x, int y) { return p.index(x, y) ? kWhite : kBlack; });
}

TEST_F(GpiconBitmap, TheStandardColorsTakeFourBits) {
  Picture p = opaque(4);
  p.palette = {{255, 0, 0}, {0, 0, 128}, {0, 255, 255}, {128, 128, 128}, {192, 192, 192}, {255, 255, 255}};
  p.index = [](int x, int y) { return (x + y) % 6; };
  const WrittenPicture written = bitmapOf(p);
  expectHeaders(out, {118 + 16 * 8, 118 + 16 * 8 - 14, 118, 16, 4, 0});
  expectColors(written, [&](int x, int y) { return iconOf(p).image.GetPixel(x, y); });
}

TEST_F(GpiconBitmap, OtherColorsTakeEightBitsAndAPaletteOfTheirOwn) {
  Picture p = opaque(8);
  for (int i = 0; i < 256; ++i) p.palette.push_back({i % 16 * 17, i / 16 * 17, 51});
  p.index = [](int x, int y) { return x / 2 + 16 * y; };
  const WrittenPicture written = bitmapOf(p);
  expectHeaders(out, {1078 + 16 * 16, 1078 + 16 * 16 - 14, 1078, 16, 8, 0});
  expectColors(written, [](int x, int y) { return rgb(x / 2 * 17, y * 17, 51); });
}

TEST_F(GpiconBitmap, TrueColorTakes24Bits) {
  Picture p = anyPicture(32, 24);
  p.transparent = [](int, int) { return false; };
  const WrittenPicture written = bitmapOf(p);
  expectHeaders(out, {54 + 32 * 96, 54 + 32 * 96, 54, 32, 24, 32 * 96});
  expectColors(written, [](int x, int y) { return rgb(5 * x, 5 * y, x ^ y); });
}

TEST_F(GpiconBitmap, TheDepthIsThatOfThePixelsAndNotOfTheIcon) {
  Picture p = opaque(24);
  p.color = [](int x, int y) { return x == y ? Rgb{255, 255, 255} : Rgb{0, 0, 0}; };
  EXPECT_EQ(bitmapOf(p).bits, 1);
  p.color = [](int x, int y) { return x == y ? Rgb{255, 255, 0} : Rgb{0, 0, 0}; };
  EXPECT_EQ(bitmapOf(p).bits, 4);
  p.color = [](int x, int y) { return x == y ? Rgb{255, 255, 51} : Rgb{0, 0, 0}; };
  EXPECT_EQ(bitmapOf(p).bits, 8);
}

TEST_F(GpiconBitmap, RowsArePaddedToFourBytes) {
  Picture p = opaque(1);
  p.width = p.height = 24;
  p.palette = {{0, 0, 0}, {255, 255, 255}};
  const WrittenPicture written = bitmapOf(p);
  expectHeaders(out, {62 + 24 * 4, 62 + 24 * 4 - 14, 62, 24, 1, 0});
  expectColors(written, [&p](int x, int y) { return p.index(x, y) ? kWhite : kBlack; });
}

// The painted part has black pixels and one white column; the rest is transparent.
Picture halfTransparent() {
  Picture p;
  p.width = p.height = 16;
  p.bits = 24;
  p.transparent = [](int x, int) { return x < 8; };
  p.color = [](int x, int) { return x == 15 ? Rgb{255, 255, 255} : Rgb{0, 0, 0}; };
  return p;
}

TEST_F(GpiconBitmap, TransparentPixelsAreSilverOrTheBackground) {
  struct Case {
    std::vector<std::string> options;
    Color color;
    int bits;
  };
  for (const Case& c :
       {Case{{}, kSilver, 4}, Case{{"--background", "C0C0C0"}, kSilver, 4}, Case{{"--background", "FFFFFF"}, kWhite, 1},
        Case{{"--background", "000000"}, kBlack, 1}, Case{{"--background", "ff0000"}, rgb(255, 0, 0), 4},
        Case{{"--background", "33CcfF"}, rgb(51, 204, 255), 8}}) {
    const WrittenPicture written = bitmapOf(halfTransparent(), c.options);
    EXPECT_EQ(written.bits, c.bits) << testing::PrintToString(c.options);
    expectColors(written, [&c](int x, int) { return x < 8 ? c.color : x == 15 ? kWhite : kBlack; });
  }
}

TEST_F(GpiconBitmap, RealSilverStaysAsItIs) {
  Picture p = halfTransparent();
  p.color = [](int x, int) { return x < 8 ? Rgb{0, 0, 0} : Rgb{192, 192, 192}; };
  expectColors(bitmapOf(p, {"--background", "00FF00"}), [](int x, int) { return x < 8 ? rgb(0, 255, 0) : kSilver; });
}

TEST_F(GpiconBitmap, TransparentPixelsThatInvertTheGroundAreNoBackground) {
  Picture p = halfTransparent();
  p.width = p.height = 48;  // an image with more colours than a palette holds keeps all of them unchanged
  p.color = [](int x, int y) {
    if (x < 8) return x < 4 ? Rgb{255, 255, 255} : Rgb{0, 0, 0};
    return Rgb{x, y, 5 * y};
  };
  const WrittenPicture written = bitmapOf(p, {"--background", "FF00FF"});
  ASSERT_EQ(written.bits, 24);
  expectColors(written, [](int x, int y) {
    if (x < 8) return x < 4 ? rgb(0x3F, 0x3F, 0x3F) : rgb(255, 0, 255);
    return rgb(x, y, 5 * y);
  });
}

TEST_F(GpiconBitmap, AlphaIsBlendedOverTheGroundWhateverTheBackground) {
  Picture p = anyPicture(48, 32);
  p.color = [](int x, int y) {
    if (x < 24) return x == 0 ? Rgb{0, 0, 0, 0} : Rgb{0, 255, 100, 128};
    return Rgb{5 * x, 5 * y, x ^ y, x == 24 ? 1 : 255};
  };
  p.transparent = [](int x, int) { return x == 0; };
  const WrittenPicture written = bitmapOf(p, {"--background", "090A0B"});
  ASSERT_EQ(written.bits, 24);
  expectColors(written, [](int x, int y) {
    if (x == 0) return rgb(9, 10, 11);
    if (x < 24) return rgb(96, 223, 146);
    return x == 24 ? kSilver : rgb(5 * x, 5 * y, x ^ y);
  });
}

TEST_F(GpiconBitmap, TheIndexSelectsTheImage) {
  Picture p = opaque(4);
  p.palette = {{255, 0, 0}};
  p.index = [](int, int) { return 0; };
  const std::string path = folder.write("three.ico", fileOf({anyEntry(32, 4), entryOf(p), anyEntry(48, 8)}));
  expectDone({"bmp", path, "1", out});
  const WrittenPicture written = writtenBitmap(out);
  EXPECT_EQ(written.width, 16);
  expectColors(written, [](int, int) { return rgb(255, 0, 0); });
}

TEST_F(GpiconBitmap, AFormerFileIsReplacedEvenTheInput) {
  folder.write("out", Bytes(9999, 'x'));
  Picture p = opaque(1);
  p.palette = {{0, 0, 0}, {255, 255, 255}};
  EXPECT_EQ(bitmapOf(p).bits, 1);
  const Bytes bitmap = bytesOf(out);
  EXPECT_EQ(bitmap.size(), 126U);
  const std::string input = inputOf(p);
  expectDone({"bmp", "--background", "123456", input, "0", input});
  EXPECT_EQ(bytesOf(input), bitmap);
}

TEST_F(GpiconBitmap, WhatTheEditorDoesNotOpenIsRefused) { expectRefusalsOfFiles("bmp", {"--background", "000000"}); }

TEST_F(GpiconBitmap, WhatCannotBeWrittenLeavesNothing) { expectFailuresToWrite("bmp", {}); }

TEST_F(GpiconBitmap, BadUsage) {
  const std::string a = icon("a.ico", 16, 4);
  const std::string needed = "bmp: IN.ico INDEX OUT.bmp is needed",
                    digits = "bmp: --background takes six hexadecimal digits",
                    once = "bmp: one --background RRGGBB is all it takes";
  expectBadUsage({"bmp"}, needed);
  expectBadUsage({"bmp", a, "0"}, needed);
  expectBadUsage({"bmp", a, "0", out, "more"}, needed);
  expectBadUsage({"bmp", a, "x", out}, "bmp: the index is no number");
  expectBadUsage({"bmp", a, "0", out, "--color", "FFFFFF"}, "bmp: unknown option --color");
  for (const std::string color :
       {"12345", "1234567", "GGGGGG", "#12345", "#123456", "0x1234", "-12345", "+12345", " 12345", "12345 ", "red"})
    expectBadUsage({"bmp", a, "0", out, "--background", color}, digits);
  expectBadUsage({"bmp", a, "0", out, "--background"}, once);
  expectBadUsage({"bmp", a, "0", out, "--background", ""}, once);
  expectBadUsage({"bmp", a, "0", out, "--background", "000000", "--background", "000000"}, once);
}

}  // namespace
}  // namespace gp::test
