#include "effects/PaintedPixels.h"
#include "effects/Pictures.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

TEST(PaintedPixels, MappingChangesThePaintedPixelsOnly) {
  const IconImage icon = iconOf({"o.b", "^~w", "/-p"});
  const IconImage mapped = mapPainted(icon, [](Color) { return rgb(255, 1, 2); });
  EXPECT_EQ(rowsOf(mapped), (Rows{"r.r", "^~r", "/-r"}));
}

TEST(PaintedPixels, TheMapReceivesTheColorOfThePixel) {
  IconImage icon = iconOf({"ob", "gw"});
  for (const int y : {0, 1}) icon.image.rowForWriting(y, 0, 2)[0] |= 0xFF000000U;
  std::vector<Color> seen;
  const IconImage same = mapPainted(icon, [&seen](Color color) { return seen.emplace_back(color); });
  EXPECT_EQ(seen, (std::vector<Color>{rgb(32, 96, 152), kBlack, rgb(128, 128, 128), kWhite}));
  EXPECT_EQ(rowsOf(same), (Rows{"ob", "gw"}));
  for (const std::uint32_t pixel : same.image.pixels()) EXPECT_EQ(pixel & 0xFF000000U, 0U);
}

TEST(PaintedPixels, IconsOfAnySizeKeepIt) {
  for (const auto& [width, height] : kOddSizes)
    EXPECT_EQ(rowsOf(mapPainted(iconOf(flatRows(width, height, 'o')), [](Color) { return kWhite; })),
              flatRows(width, height, 'w'));
}

}  // namespace
}  // namespace gp::test
