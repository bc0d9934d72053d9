#include "palette/MonoDiffusion.h"
#include "palette/PalettePictures.h"
#include "palette/clsGPPal.h"
#include "palette/clsGPPalDither.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

// Indices packed like rows of a bitmap.
std::vector<std::uint8_t> packed(const std::vector<std::vector<int>>& indices, int bits) {
  std::vector<std::uint8_t> bytes;
  for (const auto& row : indices) {
    const std::size_t start = bytes.size();
    for (std::size_t x = 0; x < row.size(); ++x) {
      const int perByte = 8 / bits;
      if (x % static_cast<std::size_t>(perByte) == 0) bytes.push_back(0);
      const int shift = 8 - bits * (static_cast<int>(x) % perByte + 1);
      bytes.back() = static_cast<std::uint8_t>(bytes.back() + (row[x] << shift));
    }
    while ((bytes.size() - start) % 4) bytes.push_back(0);
  }
  return bytes;
}

std::vector<std::vector<int>> asIndices(const std::vector<std::vector<bool>>& light) {
  std::vector<std::vector<int>> indices;
  for (const auto& row : light) indices.emplace_back(row.begin(), row.end());
  return indices;
}

SlowPicture asPicture(const std::vector<std::vector<bool>>& light) {
  SlowPicture p;
  for (const auto& row : light) {
    p.emplace_back();
    for (const bool isLight : row) p.back().push_back(grey(isLight ? 255 : 0));
  }
  return p;
}

std::vector<std::uint8_t> bytesOf(const clsGPPalDither& dither) {
  return {dither.PalID().begin(), dither.PalID().end()};
}

class PaletteModel : public testing::TestWithParam<NamedPicture> {
 protected:
  const SlowPicture& picture() const { return GetParam().pixels; }
};

TEST_P(PaletteModel, OptimalPalettesAndTheirDithersAreThoseOfThePlainRules) {
  clsGPDIB dib = dibOf(picture());
  clsGPPal palette;
  palette.CreateOptimal(dib, 256, 8);
  const std::vector<SlowColor> expected = slowOptimal(picture(), 256);
  ASSERT_EQ(colorsOf(palette.PalettePtr()), expected);

  clsGPPalDither dither;
  dither.DitherToPalette256(dib, palette);
  SlowPicture shown = picture();
  EXPECT_EQ(bytesOf(dither), packed(slowFloydSteinberg(shown, expected), 8));
  EXPECT_EQ(picturesOf(dib), shown);
}

TEST_P(PaletteModel, FewerColorsThanLeavesFoldAsThePlainRulesDo) {
  const clsGPDIB dib = dibOf(picture());
  for (const int colors : {1, 2, 16, 100}) {
    clsGPPal palette;
    palette.CreateOptimal(dib, colors, 8);
    EXPECT_EQ(colorsOf(palette.PalettePtr()), slowOptimal(picture(), colors)) << colors;
    // The root is never folded, so eight colours may remain.
    EXPECT_LE(palette.MaxCount(), std::max(colors, 8)) << colors;
  }
}

TEST_P(PaletteModel, TheSixteenColorsAreDitheredAsThePlainRulesDo) {
  clsGPDIB dib = dibOf(picture());
  clsGPPal palette;
  palette.CreatePalette16();
  clsGPPalDither dither;
  dither.DitherToPalette16(dib, palette);
  SlowPicture shown = picture();
  EXPECT_EQ(bytesOf(dither), packed(slowFloydSteinberg(shown, colorsOf(palette.PalettePtr())), 4));
  EXPECT_EQ(picturesOf(dib), shown);
}

TEST_P(PaletteModel, BlackAndWhiteIsThatOfThePlainRules) {
  for (const int divisor : {10, 15}) {
    clsGPDIB dib = dibOf(picture());
    clsGPPalDither dither;
    dither.DitherToBlackAndWhite(dib, divisor);
    const auto light = slowStucki(picture(), divisor);
    EXPECT_EQ(bytesOf(dither), packed(asIndices(light), 1)) << divisor;
    EXPECT_EQ(picturesOf(dib), asPicture(light)) << divisor;
  }
}

TEST_P(PaletteModel, WeightedAndOrderedAreThoseOfThePlainRules) {
  clsGPDIB weighted = dibOf(picture());
  ditherWeighted(weighted);
  EXPECT_EQ(picturesOf(weighted), asPicture(slowBurkes(picture())));
  clsGPDIB ordered = dibOf(picture());
  ditherOrdered(ordered);
  EXPECT_EQ(picturesOf(ordered), asPicture(slowOrdered(picture())));
}

std::string testName(const testing::TestParamInfo<NamedPicture>& picture) {
  std::string name = picture.param.name;
  for (char& c : name)
    if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
  return name;
}
INSTANTIATE_TEST_SUITE_P(Pictures, PaletteModel, testing::ValuesIn(palettePictures()), testName);

}  // namespace
}  // namespace gp::test
