// The shaded ball: exact pixels, and a slow model of it.
#include "effects/EffectCases.h"
#include "effects/ModelIcons.h"
#include "effects/Pictures.h"
#include "effects/Sphere.h"

#include <cmath>
#include <gtest/gtest.h>

namespace gp::test {
namespace {

constexpr Color kBlue = rgb(0, 0, 255), kNearlyGround = rgb(208, 192, 192);
enum { kNormal, kSmall, kTiny };

IconImage sphere(int size, Color color, int light, int ball, int factor) {
  return applied("sphere", generatedIcons(size).back(), {color, light, ball, factor});
}

TEST(Sphere, TheRingsAroundTheLightGoFromWhiteToTheColor) {
  const IconImage icon = sphere(32, kBlue, pointValue(16, 16), kNormal, 0);
  EXPECT_EQ(icon.image.GetPixel(16, 16), rgb(247, 247, 255));
  EXPECT_EQ(icon.image.GetPixel(16, 15), rgb(247, 247, 255));
  EXPECT_EQ(icon.image.GetPixel(14, 16), rgb(239, 239, 255));
  EXPECT_EQ(icon.image.GetPixel(16, 1), rgb(135, 135, 255));
}

TEST(Sphere, TheFactorDarkensByTheDistanceOfTheLightOnce) {
  // The light is 8 pixels from the middle: 1 - 8 * 0.5 * 3 / 100 = 0.88.
  const IconImage icon = sphere(32, kBlue, pointValue(16, 8), kNormal, 5);
  EXPECT_EQ(icon.image.GetPixel(16, 8), rgb(217, 217, 224));
  EXPECT_EQ(icon.image.GetPixel(16, 16), rgb(168, 168, 224));
  const IconImage full = sphere(32, kBlue, pointValue(16, 8), kNormal, 10);
  EXPECT_EQ(full.image.GetPixel(16, 8), rgb(187, 187, 193));
}

TEST(Sphere, TheOldPictureIsLostAndTheRestIsTransparent) {
  const IconImage icon = sphere(48, kBlue, pointValue(11, 11), kNormal, 5);
  int painted = 0;
  for (int y = 0; y < 48; ++y)
    for (int x = 0; x < 48; ++x) {
      if (icon.mask.GetPixel(x, y) == kBlack) {
        ++painted;
        continue;
      }
      ASSERT_EQ(icon.mask.GetPixel(x, y), kWhite);
      ASSERT_EQ(icon.image.GetPixel(x, y), kBlack);
    }
  EXPECT_EQ(painted, 749);
}

TEST(Sphere, TheNormalBallIsAtOffset8On48Pixels) {
  const IconImage large = sphere(48, kBlue, pointValue(11, 11), kNormal, 5);
  const IconImage fitting = sphere(32, kBlue, pointValue(11, 11), kNormal, 5);
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x) {
      ASSERT_EQ(large.image.GetPixel(x + 8, y + 8), fitting.image.GetPixel(x, y));
      ASSERT_EQ(large.mask.GetPixel(x + 8, y + 8), fitting.mask.GetPixel(x, y));
    }
}

TEST(Sphere, TheFactorDoesNothingOnSmallAndTiny) {
  for (const int ball : {kSmall, kTiny})
    EXPECT_TRUE(
        samePixels(sphere(32, kBlue, pointValue(20, 9), ball, 10), sphere(32, kBlue, pointValue(20, 9), ball, 0)));
  EXPECT_FALSE(
      samePixels(sphere(32, kBlue, pointValue(20, 9), kNormal, 10), sphere(32, kBlue, pointValue(20, 9), kNormal, 0)));
}

TEST(Sphere, TheLightOfSmallAndTinyIsAFractionOfAPixel) {
  // At 11 * 3 / 4 = 8.25 the pixel 8 is nearer than 9: its ring is the first one, that of 10 the second.
  const IconImage small = sphere(24, kBlack, pointValue(11, 11), kSmall, 0);
  EXPECT_EQ(small.image.GetPixel(8, 8), rgb(243, 243, 243));
  EXPECT_EQ(small.image.GetPixel(10, 8), rgb(232, 232, 232));  // 1.77
  EXPECT_EQ(small.image.GetPixel(6, 8), rgb(232, 232, 232));   // 2.26
  EXPECT_EQ(small.image.GetPixel(5, 8), rgb(220, 220, 220));   // 3.26
  const IconImage tiny = sphere(16, kBlack, pointValue(11, 16), kTiny, 0);
  EXPECT_EQ(tiny.image.GetPixel(5, 8), rgb(237, 237, 237));  // 0.5
  EXPECT_EQ(tiny.image.GetPixel(7, 8), rgb(219, 219, 219));  // 1.5, up
}

TEST(Sphere, NoPixelHasTheColorOfTheGround) {
  // The eighth ring would have it.
  EXPECT_EQ(sphere(32, rgb(3, 3, 3), pointValue(16, 16), kNormal, 0).image.GetPixel(16, 8), kNearlyGround);
  // 253 * 0.76 would have it.
  EXPECT_EQ(sphere(32, rgb(252, 252, 252), pointValue(16, 8), kNormal, 10).image.GetPixel(16, 31), kNearlyGround);
  const IconImage grey = sphere(24, kGround, pointValue(11, 11), kSmall, 0);
  for (const std::uint32_t pixel : grey.image.pixels()) EXPECT_NE(pixel & kColorBits, storedForm(kGround));
}

TEST(Sphere, AnIconTakesTheBallsThatFitIntoIt) {
  const EffectRow& effect = *findEffect("sphere");
  const char* kLess32 = "Current icon is less then 32x 32.";
  const char* kLess24 = "Current icon is less then 24x24.";
  const auto refusal = [&effect](int size, int ball) {
    const char* text = refusalOf(effect, transparentIcon(size), {kBlue, pointValue(11, 11), ball, 5}).text;
    return std::string(text ? text : "");
  };
  EXPECT_EQ(refusal(16, kNormal), kLess32);
  EXPECT_EQ(refusal(16, kSmall), kLess24);
  EXPECT_EQ(refusal(16, kTiny), "");
  EXPECT_EQ(refusal(24, kNormal), kLess32);
  EXPECT_EQ(refusal(24, kSmall), "");
  for (const int ball : {kNormal, kSmall, kTiny})
    for (const int size : {32, 48}) EXPECT_EQ(refusal(size, ball), "");
  EXPECT_EQ(largestSphere(16), SphereSize::Tiny);
  EXPECT_EQ(largestSphere(24), SphereSize::Small);
  EXPECT_EQ(largestSphere(48), SphereSize::Normal);
}

TEST(Sphere, ALightOffTheNormalBallIsRefusedWhateverTheSize) {
  const EffectRow& effect = *findEffect("sphere");
  for (const int ball : {kNormal, kSmall, kTiny}) {
    const auto refusal = [&](int x, int y) {
      const char* text = refusalOf(effect, transparentIcon(32), {kBlue, pointValue(x, y), ball, 5}).text;
      return std::string(text ? text : "");
    };
    for (const auto& [x, y] : {std::pair{0, 16}, {16, 0}, {32, 16}, {4, 4}, {0, 0}, {-300, 5}, {16, 32767}})
      EXPECT_EQ(refusal(x, y), "Please click a point on sphere") << x << " " << y;
    for (const auto& [x, y] : {std::pair{1, 16}, {16, 31}, {31, 16}, {6, 5}, {16, 16}}) EXPECT_EQ(refusal(x, y), "");
  }
}

TEST(Sphere, AClickOnTheSampleSelectsTheLightThatShinesThere) {
  for (const auto& [size, side, radius] :
       {std::tuple{SphereSize::Normal, 32, 15}, {SphereSize::Small, 24, 10}, {SphereSize::Tiny, 16, 6}}) {
    EXPECT_TRUE(isOnSphere(16 - radius, 16, size));
    EXPECT_FALSE(isOnSphere(16 - radius - 1, 16, size));
    const int offset = (32 - side) / 2;
    for (const auto& [x, y] : {std::pair{16, 16}, {14, 19}, {16 + radius, 16}}) {
      const SamplePoint light = lightOfClick(x, y, size);
      EXPECT_NEAR(light.x * side / 32, x - offset, 1e-9);
      EXPECT_NEAR(light.y * side / 32, y - offset, 1e-9);
      const IconImage ball = sphereIcon(32, 32, {kBlack, light, size, 0});
      const int steps = size == SphereSize::Normal ? 32 : size == SphereSize::Small ? 22 : 14;
      const int first = static_cast<int>(std::lround(255 - 255.0 / steps));
      EXPECT_EQ(ball.image.GetPixel(x, y), rgb(first, first, first));
    }
  }
}

// Pixel by pixel, from its distance: independent of ramps and rings.
struct Model {
  int side, radius, steps;
};
constexpr Model kModels[] = {{32, 15, 32}, {24, 10, 22}, {16, 6, 14}};

Color modelColor(const Model& model, Color color, double lightX, double lightY, int x, int y, int loss) {
  const double distance = std::hypot(x - lightX * model.side / 32, y - lightY * model.side / 32);
  int ring = 1;
  while (ring + 0.5 <= distance && ring < model.steps - 1) ++ring;
  int channels[3], i = 0;
  for (const int end : {redOf(color), greenOf(color), blueOf(color)})
    channels[i++] = static_cast<int>(std::nearbyint(255 + (end - 255.0) / model.steps * ring));
  if (rgb(channels[0], channels[1], channels[2]) == kGround) channels[0] = 208;
  for (int& channel : channels) channel = channel * (1000 - loss) / 1000;
  const Color made = rgb(channels[0], channels[1], channels[2]);
  return made == kGround ? kNearlyGround : made;
}

// Each of the icons is replaced at least once.
TEST(Sphere, ItEqualsASlowModelForEveryIconBallLightAndFactor) {
  int compared = 0;
  for (const int size : kIconSides) {
    const std::vector<IconImage>& icons = iconsOfSize(size);
    for (int ball = 0; ball < 3; ++ball)
      for (const auto& [x, y] : {std::pair{11, 11}, {16, 16}, {3, 20}, {25, 7}, {16, 31}})
        for (const Color color : {kBlue, kWhite, kBlack, kGround, rgb(3, 3, 3), rgb(250, 17, 99)})
          for (const int factor : {0, 3, 5, 10}) {
            const Model& model = kModels[ball];
            if (model.side > size) continue;
            const IconImage& icon = icons.at(static_cast<std::size_t>(compared) % icons.size());
            const IconImage made = applied("sphere", icon, {color, pointValue(x, y), ball, factor});
            const int away = static_cast<int>(std::lround(std::hypot(x - 16, y - 16)));
            const int loss = ball == kNormal ? away * factor * 3 : 0;
            const int offset = (size - model.side) / 2, middle = model.side / 2;
            for (int iy = 0; iy < size; ++iy)
              for (int ix = 0; ix < size; ++ix) {
                const bool isInside = std::hypot(ix - offset - middle, iy - offset - middle) < model.radius + 0.5;
                ASSERT_EQ(made.mask.GetPixel(ix, iy), isInside ? kBlack : kWhite) << ix << " " << iy;
                ASSERT_EQ(made.image.GetPixel(ix, iy),
                          isInside ? modelColor(model, color, x, y, ix - offset, iy - offset, loss) : kBlack)
                    << ix << " " << iy << " ball " << ball << " light " << x << "," << y;
              }
            ++compared;
          }
  }
  EXPECT_EQ(compared, 1080);
}

}  // namespace
}  // namespace gp::test
