#include "effects/StandardSnap.h"
#include "palette/clsGPPal.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>

namespace gp {
namespace {

struct Snap {
  std::array<int, 3> from, to;
};

void expectSnaps(std::span<const Snap> snaps) {
  for (const auto& [from, to] : snaps) {
    const Color color = snapToStandard(rgb(from[0], from[1], from[2]));
    EXPECT_EQ((std::array{redOf(color), greenOf(color), blueOf(color)}), to)
        << from[0] << ' ' << from[1] << ' ' << from[2];
  }
}

TEST(StandardSnap, StandardColorsStay) {
  for (const Color color : kStandardPalette) EXPECT_EQ(snapToStandard(color), color);
}

TEST(StandardSnap, AGreyGoesToTheNearestOfTheFourLevels) {
  for (int v = 0; v < 256; ++v) {
    const int level = v <= 64 ? 0 : v <= 159 ? 128 : v <= 223 ? 192 : 255;
    EXPECT_EQ(snapToStandard(rgb(v, v, v)), rgb(level, level, level)) << v;
  }
}

TEST(StandardSnap, AChannelAloneGoesByItsOwnRules) {
  for (int v = 0; v < 256; ++v) {
    // 192 alone is no standard colour and becomes 128 in red and blue; in green too.
    const int level = v <= 64 ? 0 : v <= 223 ? 128 : 255;
    EXPECT_EQ(snapToStandard(rgb(v, 0, 0)), rgb(level, 0, 0)) << v;
    EXPECT_EQ(snapToStandard(rgb(0, v, 0)), rgb(0, level, 0)) << v;
    EXPECT_EQ(snapToStandard(rgb(0, 0, v)), rgb(0, 0, level)) << v;
  }
}

TEST(StandardSnap, LevelsEndAt64And159And223) {
  expectSnaps(std::array<Snap, 8>{{{{64, 64, 64}, {0, 0, 0}},
                                   {{65, 65, 65}, {128, 128, 128}},
                                   {{159, 159, 159}, {128, 128, 128}},
                                   {{160, 160, 160}, {192, 192, 192}},
                                   {{223, 223, 223}, {192, 192, 192}},
                                   {{224, 224, 224}, {255, 255, 255}},
                                   {{254, 1, 64}, {255, 0, 0}},
                                   {{129, 1, 130}, {128, 0, 128}}}});
}

TEST(StandardSnap, FullRedBringsGreenAndBlueToTheirEnds) {
  expectSnaps(std::array<Snap, 12>{{{{255, 0, 128}, {255, 0, 255}},
                                    {{255, 0, 192}, {255, 0, 255}},
                                    {{255, 128, 0}, {255, 255, 0}},
                                    {{255, 128, 128}, {255, 255, 255}},
                                    {{255, 128, 192}, {255, 255, 255}},
                                    {{255, 128, 255}, {255, 255, 255}},
                                    {{255, 192, 0}, {255, 255, 0}},
                                    {{255, 192, 128}, {255, 255, 255}},
                                    {{255, 192, 192}, {255, 255, 255}},
                                    {{255, 192, 255}, {255, 255, 255}},
                                    {{255, 255, 128}, {255, 255, 255}},
                                    {{255, 255, 192}, {255, 255, 255}}}});
}

TEST(StandardSnap, Red192BecomesHalfRedOrSilver) {
  expectSnaps(std::array<Snap, 15>{{{{192, 0, 0}, {128, 0, 0}},
                                    {{192, 0, 128}, {128, 0, 128}},
                                    {{192, 0, 192}, {128, 0, 128}},
                                    {{192, 0, 255}, {128, 0, 128}},
                                    {{192, 128, 0}, {128, 128, 0}},
                                    {{192, 128, 128}, {192, 192, 192}},
                                    {{192, 128, 192}, {192, 192, 192}},
                                    {{192, 128, 255}, {192, 192, 192}},
                                    {{192, 192, 0}, {128, 128, 0}},
                                    {{192, 192, 128}, {192, 192, 192}},
                                    {{192, 192, 255}, {192, 192, 192}},
                                    {{192, 255, 0}, {128, 128, 0}},
                                    {{192, 255, 128}, {192, 192, 192}},
                                    {{192, 255, 192}, {192, 192, 192}},
                                    {{192, 255, 255}, {192, 192, 192}}}});
}

TEST(StandardSnap, WithoutRedBlueFollowsGreen) {
  expectSnaps(std::array<Snap, 9>{{{{0, 0, 192}, {0, 0, 128}},
                                   {{0, 128, 192}, {0, 128, 128}},
                                   {{0, 128, 255}, {0, 128, 128}},
                                   {{0, 192, 0}, {0, 128, 0}},
                                   {{0, 192, 128}, {0, 128, 128}},
                                   {{0, 192, 192}, {0, 255, 255}},
                                   {{0, 192, 255}, {0, 255, 255}},
                                   {{0, 255, 128}, {0, 255, 255}},
                                   {{0, 255, 192}, {0, 255, 255}}}});
}

TEST(StandardSnap, HalfRedBringsGreenAndBlueDownToHalf) {
  expectSnaps(std::array<Snap, 12>{{{{128, 0, 192}, {128, 0, 128}},
                                    {{128, 0, 255}, {128, 0, 128}},
                                    {{128, 128, 192}, {128, 128, 128}},
                                    {{128, 128, 255}, {128, 128, 128}},
                                    {{128, 192, 0}, {128, 128, 0}},
                                    {{128, 192, 128}, {128, 128, 128}},
                                    {{128, 192, 192}, {128, 128, 128}},
                                    {{128, 192, 255}, {128, 128, 128}},
                                    {{128, 255, 0}, {128, 128, 0}},
                                    {{128, 255, 128}, {128, 128, 128}},
                                    {{128, 255, 192}, {128, 128, 128}},
                                    {{128, 255, 255}, {128, 128, 128}}}});
}

TEST(StandardSnap, EveryColorBecomesAStandardOneThatStays) {
  constexpr int kStep = 5;
  for (int red = 0; red < 256; red += kStep)
    for (int green = 0; green < 256; green += kStep)
      for (int blue = 0; blue < 256; blue += kStep) {
        const Color snapped = snapToStandard(rgb(red, green, blue));
        ASSERT_NE(std::ranges::find(kStandardPalette, snapped), kStandardPalette.end());
        ASSERT_EQ(snapToStandard(snapped), snapped);
      }
}

}  // namespace
}  // namespace gp
