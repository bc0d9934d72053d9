#include "effects/DisabledImage.h"
#include "effects/Pictures.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

Rows disabledOf(const Rows& rows) {
  const IconImage icon = iconOf(rows);
  return rowsOf(disabledImage(icon.image, icon.mask));
}

// What one painted pixel of that colour in the middle of three by three becomes.
Rows disabledPixel(Color color) {
  IconImage icon = iconOf({"...", ".o.", "..."});
  icon.image.SetPixelV(1, 1, color);
  return rowsOf(disabledImage(icon.image, icon.mask));
}

const Rows kEtched{"...", ".g.", "..w"};
const Rows kNothing{"...", "...", "..."};

TEST(DisabledImage, ADarkPixelIsGreyWithAWhiteOneToTheBottomRight) {
  EXPECT_EQ(disabledOf({"...", ".o.", "..."}), kEtched);
  EXPECT_EQ(disabledOf({"...", ".b.", "..."}), kEtched);
}

TEST(DisabledImage, EachChannelHasToBeBelow153) {
  EXPECT_EQ(disabledPixel(rgb(152, 152, 152)), kEtched);
  for (const Color color : {rgb(153, 0, 0), rgb(0, 153, 0), rgb(0, 0, 153), rgb(153, 153, 153), kWhite, rgb(255, 0, 0)})
    EXPECT_EQ(disabledPixel(color), kNothing) << color;
  for (const Color color : {rgb(152, 0, 0), rgb(0, 152, 0), rgb(0, 0, 152), rgb(128, 128, 128), kBlack})
    EXPECT_EQ(disabledPixel(color), kEtched) << color;
}

TEST(DisabledImage, APaleIconBecomesEmpty) { EXPECT_EQ(disabledOf(flatRows(6, 5, 'p')), flatRows(6, 5, '.')); }

TEST(DisabledImage, TransparentAndInvertingPixelsDropOutHoweverDark) {
  EXPECT_EQ(disabledOf({".^~", "/-^", "~.."}), kNothing);
}

TEST(DisabledImage, GreyLiesOverWhite) {
  EXPECT_EQ(disabledOf({"....", ".oo.", ".oo.", "...."}), (Rows{"....", ".gg.", ".ggw", "..ww"}));
  EXPECT_EQ(disabledOf({"o...", ".o..", "..o.", "...o"}), (Rows{"g...", ".g..", "..g.", "...g"}));
  EXPECT_EQ(disabledOf({"....", "..o.", ".o..", "...."}), (Rows{"....", "..g.", ".g.w", "..w."}));
}

TEST(DisabledImage, ThePaleNeighbourOfADarkPixelMayTakeItsWhite) {
  EXPECT_EQ(disabledOf({"o..", ".p.", "..p"}), (Rows{"g..", ".w.", "..."}));
}

TEST(DisabledImage, AtTheLastRowAndColumnTheWhiteIsLost) {
  EXPECT_EQ(disabledOf({"..o", "...", "o.o"}), (Rows{"..g", "...", "g.g"}));
  EXPECT_EQ(disabledOf({"o..", "...", "..."}), (Rows{"g..", ".w.", "..."}));
}

TEST(DisabledImage, IconsOfAnySizeKeepIt) {
  for (const auto& [width, height] : kOddSizes) {
    EXPECT_EQ(disabledOf(flatRows(width, height, 'o')), flatRows(width, height, 'g'));
    EXPECT_EQ(disabledOf(flatRows(width, height, 'p')), flatRows(width, height, '.'));
  }
  EXPECT_EQ(disabledOf({"o.o.."}), Rows{"g.g.."});
}

TEST(DisabledImage, EqualsWhatEachPlaceGetsByItsNeighbours) {
  for (const Rows& rows : randomIcons(300)) {
    const auto isDark = [&rows](std::size_t x, std::size_t y) {
      return std::string("obgd").find(rows[y][x]) != std::string::npos;
    };
    Rows expected = rows;
    for (std::size_t y = 0; y < rows.size(); ++y)
      for (std::size_t x = 0; x < rows[y].size(); ++x)
        expected[y][x] = isDark(x, y) ? 'g' : x > 0 && y > 0 && isDark(x - 1, y - 1) ? 'w' : '.';
    EXPECT_EQ(disabledOf(rows), expected);
  }
}

}  // namespace
}  // namespace gp::test
