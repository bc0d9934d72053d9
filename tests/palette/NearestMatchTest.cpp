#include "palette/HalftonePalette.h"
#include "palette/NearestMatch.h"
#include "palette/clsGPPal.h"
#include "platform/gdi/GoldenFile.h"
#include "platform/gdi/NearestColor.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <sstream>
#include <vector>

namespace gp {
namespace {

using test::GoldenCase;
using test::parseHex;

std::vector<Color> entriesOf(const GoldenCase& c) {
  std::vector<Color> entries;
  for (const std::string& row : c.rows) {
    std::istringstream words(row);
    std::string index, color;
    words >> index >> color;
    entries.push_back(static_cast<Color>(parseHex(color)));
  }
  return entries;
}

struct Sample {
  Color color = kNoColor;
  int index = 0;
};

std::vector<Sample> samplesOf(const GoldenCase& c) {
  std::vector<Sample> samples;
  for (const std::string& row : c.rows) {
    std::istringstream words(row);
    std::string color;
    samples.emplace_back();
    words >> color >> samples.back().index;
    samples.back().color = static_cast<Color>(parseHex(color));
  }
  return samples;
}

clsGPDIB rowOf(const std::vector<Color>& colors) {
  clsGPDIB dib;
  dib.CreateBlankDIB(static_cast<int>(colors.size()), 1);
  std::ranges::transform(colors, dib.DIBBitsPtr().begin(), dibPixel);
  return dib;
}

std::vector<Color> colorsOf(const clsGPDIB& dib) {
  std::vector<Color> colors;
  for (const DibPixel pixel : dib.DIBBitsPtr()) colors.push_back(colorOf(pixel));
  return colors;
}

std::vector<Color> matched(const std::vector<Color>& colors, std::span<const Color> palette) {
  clsGPDIB dib = rowOf(colors);
  matchToPalette(dib, palette);
  return colorsOf(dib);
}

TEST(HalftonePalette, IsThatOfThePlatform) {
  const auto cases = test::readGoldenFile("palette_halftone.txt");
  EXPECT_EQ(std::vector(kHalftonePalette.begin(), kHalftonePalette.end()), entriesOf(cases.at(0)));
}

TEST(HalftonePalette, HasTheSystemColorsAtItsEnds) {
  const auto cases = test::readGoldenFile("palette_halftone.txt");
  const std::vector<Color> system = entriesOf(test::findCase(cases, "stock_default"));
  ASSERT_EQ(system.size(), 20U);
  for (std::size_t i = 0; i < 10; ++i) {
    EXPECT_EQ(kHalftonePalette[i], system[i]) << i;
    EXPECT_EQ(kHalftonePalette[246 + i], system[10 + i]) << i;
  }
}

TEST(NearestMatch, EqualsThePlatformsChoice) {
  std::vector<Color> palette;
  std::size_t checked = 0;
  for (const GoldenCase& c : test::readGoldenFile("palette_nearest.txt")) {
    if (c.name.ends_with("_palette")) {
      palette = entriesOf(c);
      continue;
    }
    std::vector<Color> colors, expected;
    for (const Sample& sample : samplesOf(c)) {
      colors.push_back(sample.color);
      expected.push_back(palette.at(static_cast<std::size_t>(sample.index)));
    }
    if (colors.empty()) continue;
    EXPECT_EQ(matched(colors, palette), expected) << c.name;
    checked += colors.size();
  }
  EXPECT_EQ(checked, 3120U);
}

TEST(NearestMatch, TheTablesOfAPaletteMatchAsThePlatformDoes) {
  const auto cases = test::readGoldenFile("palette_nearest.txt");
  clsGPPal two, sixteen;
  two.CreatePalette2();
  sixteen.CreatePalette16();
  const std::pair<const char*, const clsGPPal*> tables[] = {
      {"two_nearest", &two}, {"vga16_nearest", &sixteen}, {"vga16_ties", &sixteen}};
  for (const auto& [name, palette] : tables) {
    const auto samples = samplesOf(test::findCase(cases, name));
    ASSERT_FALSE(samples.empty());
    for (const auto& [color, index] : samples)
      EXPECT_EQ(palette->NearestPaletteIndex(dibPixel(color).red, dibPixel(color).green, dibPixel(color).blue), index)
          << name << ' ' << color;
  }
}

// Far more colours than the cache holds, each of them twice.
TEST(NearestMatch, WhatWasMetBeforeDoesNotChangeTheAnswer) {
  std::vector<Color> colors;
  for (int turn = 0; turn < 2; ++turn)
    for (int i = 0; i < 20000; ++i) colors.push_back(i * 839 & kWhite);
  const std::vector<Color> all = matched(colors, kStandardPalette);
  for (std::size_t i = 0; i < colors.size(); i += 37)
    EXPECT_EQ(all[i], matched({colors[i]}, kStandardPalette)[0]) << colors[i];
  EXPECT_TRUE(std::equal(all.begin(), all.begin() + 20000, all.begin() + 20000));
}

TEST(NearestMatch, ColorsOfThePaletteStay) {
  const std::vector<Color> colors(kHalftonePalette.begin(), kHalftonePalette.end());
  EXPECT_EQ(matched(colors, kHalftonePalette), colors);
}

TEST(NearestMatch, EqualsASearchOfEveryEntryAndTheFirstOfEqualOnesWins) {
  std::mt19937 numbers(7);
  for (const std::size_t count : {1U, 2U, 7U, 8U, 17U, 255U, 256U})
    for (const unsigned range : {2U, 60U, 256U}) {
      const auto color = [&] {
        const auto level = [&] { return static_cast<int>(numbers() % range * (255 / (range - 1))); };
        return rgb(level(), level(), level());
      };
      std::vector<Color> palette(count), colors(300), expected;
      for (Color& entry : palette) entry = color();
      for (Color& one : colors) one = rgb(static_cast<int>(numbers() % 256), color() & 0xFF, color() & 0xFF);
      for (const Color one : colors)
        expected.push_back(palette[static_cast<std::size_t>(GetNearestPaletteIndex(palette, one))]);
      EXPECT_EQ(matched(colors, palette), expected) << count << " of " << range;
    }
}

TEST(NearestMatch, APaletteOfNoEntryAndAnEmptyBitmapAreLeftAlone) {
  EXPECT_EQ(matched({kGround}, {}), std::vector{kGround});
  clsGPDIB empty;
  matchToPalette(empty, kHalftonePalette);
  EXPECT_TRUE(empty.isEmpty());
}

}  // namespace
}  // namespace gp
