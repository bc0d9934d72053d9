#include "platform/gdi/GoldenFile.h"
#include "platform/gdi/NearestColor.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <sstream>
#include <vector>

namespace gp {
namespace {

using test::GoldenCase;
using test::parseHex;

std::vector<Color> entriesOf(const GoldenCase& c) {
  std::vector<Color> entries;
  for (const std::string& row : c.rows) entries.push_back(static_cast<Color>(parseHex(row.substr(row.find(' ') + 1))));
  return entries;
}

TEST(NearestColor, EqualsThePlatformsChoice) {
  std::vector<Color> palette;
  int checked = 0;
  for (const GoldenCase& c : test::readGoldenFile("palette_nearest.txt")) {
    if (c.name.ends_with("_palette")) {
      palette = entriesOf(c);
      continue;
    }
    for (const std::string& row : c.rows) {
      std::istringstream words(row);
      std::string color;
      int index = 0;
      words >> color >> index;
      EXPECT_EQ(GetNearestPaletteIndex(palette, static_cast<Color>(parseHex(color))), index) << c.name << ' ' << row;
      ++checked;
    }
  }
  std::printf("palette_nearest.txt: %d reference samples checked\n", checked);
  EXPECT_EQ(checked, 3120);
}

TEST(NearestColor, TheFirstAmongEqualsIsTaken) {
  const Color palette[] = {kWhite, kBlack, kBlack};
  EXPECT_EQ(GetNearestPaletteIndex(palette, rgb(1, 1, 1)), 1);
}

TEST(NearestColor, AnEmptyPaletteHasNone) { EXPECT_EQ(GetNearestPaletteIndex({}, kBlack), -1); }

}  // namespace
}  // namespace gp
