// Parses the icons and bitmaps that gpicon wrote. Shares no code with the readers of the program.
#pragma once

#include "cli/GpiconFixture.h"
#include "document/IconImage.h"

#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace gp::test {

struct WrittenPicture {
  int width = 0, height = 0, bits = 0;
  std::vector<Color> colors;      // row by row from the top
  std::vector<bool> transparent;  // empty for a bitmap

  std::size_t indexOf(int x, int y) const { return static_cast<std::size_t>(y * width + x); }
  Color color(int x, int y) const { return colors.at(indexOf(x, y)); }
  bool isTransparent(int x, int y) const { return transparent.at(indexOf(x, y)); }
  std::size_t colorCount() const { return std::set<Color>(colors.begin(), colors.end()).size(); }
};

// Bytes of a row, padded to four.
inline std::size_t strideOf(int width, int bits) { return static_cast<std::size_t>((width * bits + 31) / 32 * 4); }

// The value of up to 8 bits at x in the row that begins at `row`.
inline std::uint32_t packedAt(const Bytes& file, std::size_t row, int x, int bits) {
  const int before = x * bits % 8;
  return static_cast<std::uint32_t>(file.at(row + static_cast<std::size_t>(x * bits / 8)) >> (8 - bits - before)) &
         ((1U << bits) - 1);
}
inline Color colorStoredAt(const Bytes& file, std::size_t at) {
  return rgb(file.at(at + 2), file.at(at + 1), file.at(at));
}

inline std::vector<Color> colorsOfRows(const Bytes& file, std::size_t palette, std::size_t rows,
                                       const WrittenPicture& shape) {
  std::vector<Color> colors;
  for (int y = 0; y < shape.height; ++y) {
    const std::size_t row = rows + static_cast<std::size_t>(shape.height - 1 - y) * strideOf(shape.width, shape.bits);
    for (int x = 0; x < shape.width; ++x) {
      const std::size_t at = shape.bits <= 8 ? palette + 4 * packedAt(file, row, x, shape.bits)
                                             : row + static_cast<std::size_t>(x * shape.bits / 8);
      colors.push_back(colorStoredAt(file, at));
    }
  }
  return colors;
}

// A file of one image at offset 22, whose directory and header must agree; 1, 4, 8 or 24 bits.
inline WrittenPicture writtenIcon(const std::string& path) {
  const Bytes file = bytesOf(path);
  constexpr std::size_t kHeader = 22, kPalette = kHeader + 40;
  WrittenPicture p;
  if (file.size() < kPalette) {
    ADD_FAILURE() << path << " has " << file.size() << " bytes";
    return p;
  }
  EXPECT_EQ(Bytes(file.begin(), file.begin() + 6), (Bytes{0, 0, 1, 0, 1, 0}));
  p.width = file[6];
  p.height = file[7];
  p.bits = static_cast<int>(number(file, 12, 2));
  EXPECT_EQ(file[8], p.bits == 1 ? 2 : p.bits == 4 ? 16 : 0);
  EXPECT_EQ(number(file, 18, 4), kHeader);
  EXPECT_EQ(number(file, kHeader + 4, 4), static_cast<std::uint32_t>(p.width));
  EXPECT_EQ(number(file, kHeader + 8, 4), static_cast<std::uint32_t>(2 * p.height));
  EXPECT_EQ(number(file, kHeader + 14, 2), static_cast<std::uint32_t>(p.bits));

  const auto height = static_cast<std::size_t>(p.height);
  const std::size_t rows = kPalette + (p.bits <= 8 ? std::size_t{4} << p.bits : 0);
  const std::size_t mask = rows + height * strideOf(p.width, p.bits);
  EXPECT_EQ(file.size(), mask + height * strideOf(p.width, 1));
  EXPECT_EQ(number(file, 14, 4), file.size() - kHeader);
  p.colors = colorsOfRows(file, kPalette, rows, p);
  for (int y = 0; y < p.height; ++y)
    for (int x = 0; x < p.width; ++x)
      p.transparent.push_back(
          packedAt(file, mask + static_cast<std::size_t>(p.height - 1 - y) * strideOf(p.width, 1), x, 1) != 0);
  return p;
}

inline WrittenPicture writtenBitmap(const std::string& path) {
  const Bytes file = bytesOf(path);
  WrittenPicture p;
  if (file.size() < 54) {
    ADD_FAILURE() << path << " has " << file.size() << " bytes";
    return p;
  }
  p.width = static_cast<int>(number(file, 18, 4));
  p.height = static_cast<int>(number(file, 22, 4));
  p.bits = static_cast<int>(number(file, 28, 2));
  p.colors = colorsOfRows(file, 54, number(file, 10, 4), p);
  return p;
}

// A built picture as the editor shows it.
inline IconImage iconOf(const Picture& p) {
  IconImage icon{Surface(p.width, p.height), Surface(p.width, p.height), AlphaMatrix()};
  for (int y = 0; y < p.height; ++y)
    for (int x = 0; x < p.width; ++x) {
      const Rgb c = p.bits <= 8 ? p.palette.at(static_cast<std::size_t>(p.index(x, y))) : p.color(x, y);
      icon.image.SetPixelV(x, y, rgb(c.r, c.g, c.b));
      icon.mask.SetPixelV(x, y, p.transparent(x, y) ? kWhite : kBlack);
    }
  return icon;
}

inline void expectPixels(const WrittenPicture& written, const IconImage& expected) {
  ASSERT_EQ(written.width, expected.image.width());
  ASSERT_EQ(written.height, expected.image.height());
  for (int y = 0; y < written.height; ++y)
    for (int x = 0; x < written.width; ++x) {
      ASSERT_EQ(written.color(x, y), expected.image.GetPixel(x, y)) << x << "," << y;
      ASSERT_EQ(written.isTransparent(x, y), expected.mask.GetPixel(x, y) == kWhite) << x << "," << y;
    }
}

// Tests that all subcommands share which write a file of one image.
class GpiconOneImage : public Gpicon {
 protected:
  const std::string out = folder.path("out");

  void expectDone(const std::vector<std::string>& arguments) const {
    const Outcome o = run(arguments);
    EXPECT_EQ(o.status, 0) << testing::PrintToString(arguments);
    EXPECT_EQ(o.out + o.err, "");
  }
  // Neither writes `out` nor leaves a part of it.
  void expectRefusal(const std::vector<std::string>& arguments, const std::string& text) const {
    const Outcome o = run(arguments);
    EXPECT_EQ(o.status, 1) << testing::PrintToString(arguments);
    EXPECT_EQ(o.out, "");
    EXPECT_EQ(o.err, "gpicon: " + text + "\n");
    EXPECT_FALSE(std::filesystem::exists(out));
  }
  void expectBadUsage(const std::vector<std::string>& arguments, const std::string& text) const {
    const Outcome o = run(arguments);
    EXPECT_EQ(o.status, 2) << testing::PrintToString(arguments);
    EXPECT_EQ(o.out, "");
    EXPECT_EQ(o.err, "gpicon: " + text + " (see gpicon --help)\n");
    EXPECT_FALSE(std::filesystem::exists(out));
  }
  // Files that the editor does not open. `options` follow the output.
  void expectRefusalsOfFiles(const std::string& command, const std::vector<std::string>& options) const {
    Entry large = anyEntry(48, 24);
    large.width = large.height = 64;
    const std::string two = folder.write("two.ico", fileOf({anyEntry(16, 24), anyEntry(32, 24)})),
                      big = folder.write("big.ico", build(large)), none = folder.write("n.ico", {'h', 'i'}),
                      cursor = folder.write("c.cur", build(IcoFile{{anyEntry(32, 24)}, 0, 2, {}})),
                      high = folder.write("high.ico", build(entryOf(anyPicture(32, 32), 0, 16))),
                      gone = folder.path("gone.ico");
    struct Case {
      std::string path, index, text;
    };
    for (const Case& c :
         {Case{two, "2", "no image of that index"}, Case{big, "0", "icon not of size 16x16, 24x24, 32x32 or 48x48"},
          Case{none, "0", "not an icon file"}, Case{cursor, "0", "not an icon file"},
          Case{high, "0", "true color, but not of 24 or 32 bits per pixel"},
          Case{gone, "0", "not a file that can be read"}}) {
      std::vector<std::string> arguments{command, c.path, c.index, out};
      arguments.insert(arguments.end(), options.begin(), options.end());
      expectRefusal(arguments, c.path + ": " + c.text);
    }
  }
  // `options` follow the output; the image is correct.
  void expectFailuresToWrite(const std::string& command, const std::vector<std::string>& options) const {
    const std::string input = icon("healthy.ico", 48, 24);
    const std::string place = folder.makeFolder("place"), kept = folder.write("kept", {1, 2, 3});
    std::filesystem::permissions(kept, std::filesystem::perms::owner_read);
    for (const std::string& output : {folder.path("no/such"), place, kept, std::string("/dev/full")}) {
      std::vector<std::string> arguments{command, input, "0", output};
      arguments.insert(arguments.end(), options.begin(), options.end());
      expectRefusal(arguments, output + ": cannot be written");
    }
    EXPECT_EQ(bytesOf(kept), (Bytes{1, 2, 3}));
    EXPECT_FALSE(std::filesystem::exists(folder.path("no")));
    std::vector<std::string> arguments{command, input, "0", out};
    arguments.insert(arguments.end(), options.begin(), options.end());
    const Outcome o = runAfter("trap '' XFSZ; ulimit -f 4; ", arguments);
    EXPECT_EQ(o.status, 1);
    EXPECT_EQ(o.err, "gpicon: " + out + ": cannot be written\n");
    EXPECT_FALSE(std::filesystem::exists(out));
  }
};

}  // namespace gp::test
