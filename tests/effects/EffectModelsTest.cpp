// Each effect against a slow model: the rule of one pixel, written from its description with nothing of the program.
#include "effects/EffectCases.h"
#include "effects/ModelIcons.h"
#include "effects/Pictures.h"
#include "effects/TexturePatterns.h"

#include <cmath>
#include <functional>
#include <gtest/gtest.h>

namespace gp::test {
namespace {

struct Rgb3 {
  double red, green, blue;
};

Rgb3 at(const IconImage& icon, int x, int y) {
  if (x < 0 || y < 0 || x >= icon.width() || y >= icon.height()) return {-1, 0, 0};
  const int color = icon.image.GetPixel(x, y);
  return {static_cast<double>(color % 256), static_cast<double>(color / 256 % 256),
          static_cast<double>(color / 65536 % 256)};
}

Rgb3 each(const std::function<double(double Rgb3::*)>& make) {
  return {make(&Rgb3::red), make(&Rgb3::green), make(&Rgb3::blue)};
}

Color rounded(const Rgb3& value) {
  const auto whole = [](double level) { return static_cast<int>(std::lrint(std::fmin(std::fmax(level, 0), 255))); };
  return whole(value.red) + 256 * whole(value.green) + 65536 * whole(value.blue);
}

using Model = std::function<Rgb3(const IconImage& icon, int x, int y)>;

void expectModel(const char* effect, const EffectValues& values, const Model& model) {
  for (const int size : {16, 24, 32, 48})
    for (const IconImage& icon : iconsOfSize(size)) {
      const IconImage result = applied(effect, icon, values);
      for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x) {
          const bool isPainted = icon.mask.GetPixel(x, y) == 0;
          const Color expected = isPainted ? rounded(model(icon, x, y)) : icon.image.GetPixel(x, y);
          ASSERT_EQ(result.image.GetPixel(x, y), expected) << effect << " " << size << ": " << x << "," << y;
          ASSERT_EQ(result.mask.GetPixel(x, y), icon.mask.GetPixel(x, y)) << effect;
        }
    }
}

TEST(EffectModels, Sharpen) {
  for (const auto& [strong, factor] : {std::pair{0, 0.5}, {1, 0.7}})
    expectModel("sharpen", {strong}, [k = factor](const IconImage& icon, int x, int y) {
      const Rgb3 own = at(icon, x, y), corner = at(icon, x - 1, y - 1);
      if (x == 0 || y == 0) return own;
      return each([&](auto channel) { return (own.*channel - corner.*channel) * k + own.*channel; });
    });
}

TEST(EffectModels, Soften) {
  for (const int strong : {0, 1})
    expectModel("soften", {strong}, [strong](const IconImage& icon, int x, int y) {
      const int border = strong ? 2 : 1;
      if (std::min({x, y, icon.width() - 1 - x, icon.height() - 1 - y}) < border) return at(icon, x, y);
      return each([&](auto channel) {
        double sum = 0;
        for (int dy = -border; dy <= border; ++dy)
          for (int dx = -border; dx <= border; ++dx)
            if (strong || dx == 0 || dy == 0) sum += at(icon, x + dx, y + dy).*channel;
        return sum / (strong ? 25 : 5);
      });
    });
}

TEST(EffectModels, Antialias) {
  expectModel("antialias", {}, [](const IconImage& icon, int x, int y) {
    return each([&](auto channel) {
      const double left = std::rint((at(icon, x, y).*channel + at(icon, x, y + 1).*channel) / 2);
      const double right = std::rint((at(icon, x + 1, y).*channel + at(icon, x + 1, y + 1).*channel) / 2);
      return (left + right) / 2;
    });
  });
}

TEST(EffectModels, Cast) {
  for (const Rgb3 levels : {Rgb3{127, 127, 127}, {0, 0, 0}, {255, 255, 255}, {3, 250, 90}})
    expectModel("cast", {rounded(levels)}, [levels](const IconImage& icon, int x, int y) {
      return each([&](auto channel) {
        return std::fabs(levels.*channel + at(icon, x + 1, y + 1).*channel - at(icon, x, y).*channel);
      });
    });
}

TEST(EffectModels, Grayscale) {
  expectModel("grayscale", {}, [](const IconImage& icon, int x, int y) {
    const Rgb3 own = at(icon, x, y);
    const double grey = 0.3 * own.red + 0.59 * own.green + (1.0 - 0.3 - 0.59) * own.blue;
    return Rgb3{grey, grey, grey};
  });
}

TEST(EffectModels, Invert) {
  expectModel("invert", {}, [](const IconImage& icon, int x, int y) {
    return each([&](auto channel) { return 255 - at(icon, x, y).*channel; });
  });
}

TEST(EffectModels, Swap) {
  const std::array<double Rgb3::*, 3> orders[] = {{&Rgb3::blue, &Rgb3::green, &Rgb3::red},
                                                  {&Rgb3::green, &Rgb3::red, &Rgb3::blue},
                                                  {&Rgb3::blue, &Rgb3::red, &Rgb3::green},
                                                  {&Rgb3::green, &Rgb3::blue, &Rgb3::red},
                                                  {&Rgb3::red, &Rgb3::blue, &Rgb3::green}};
  for (int i = 0; i < 5; ++i)
    expectModel("swap", {i}, [order = orders[i]](const IconImage& icon, int x, int y) {
      const Rgb3 own = at(icon, x, y);
      return Rgb3{own.*order[0], own.*order[1], own.*order[2]};
    });
}

TEST(EffectModels, Brightness) {
  for (const auto& [red, green, blue, overall] :
       {std::tuple{0, 0, 0, 0}, {100, -100, 35, 0}, {-5, 5, -90, 15}, {0, 0, 0, -33}, {60, 70, 80, 90}})
    expectModel(
        "brightness", {red, green, blue, overall},
        [percents = Rgb3{red + 0.0, green + 0.0, blue + 0.0}, all = overall](const IconImage& icon, int x, int y) {
          return each([&](auto channel) {
            const double one = std::fmin(255, std::floor(at(icon, x, y).*channel * (percents.*channel + 100) / 100));
            return std::floor(one * (all + 100) / 100);
          });
        });
}

// The conversion by segments of the circle, in degrees, instead of sixths.
Rgb3 ofHue(double degrees, double lightness, double saturation) {
  const double chroma = (1 - std::fabs(2 * lightness - 1)) * saturation;
  const double second = chroma * (1 - std::fabs(std::fmod(degrees / 60, 2) - 1));
  const Rgb3 segments[] = {{chroma, second, 0}, {second, chroma, 0}, {0, chroma, second},
                           {0, second, chroma}, {second, 0, chroma}, {chroma, 0, second}};
  const Rgb3 segment = segments[static_cast<int>(degrees / 60) % 6];
  return each([&](auto channel) { return (segment.*channel + lightness - chroma / 2) * 255; });
}

// A channel of the result is the nearest whole number; of a half, either.
bool isNearest(Color color, const Rgb3& value) {
  constexpr double kHalf = 0.5 + 1e-9;
  return std::fabs(color % 256 - value.red) <= kHalf && std::fabs(color / 256 % 256 - value.green) <= kHalf &&
         std::fabs(color / 65536 - value.blue) <= kHalf;
}

Rgb3 themed(const Rgb3& own, double degrees, int percent) {
  const double most = std::max({own.red, own.green, own.blue}) / 255;
  const double least = std::min({own.red, own.green, own.blue}) / 255;
  const double lightness = (most + least) / 2, reach = 1 - std::fabs(2 * lightness - 1);
  return ofHue(degrees, lightness, most == least ? 0 : (most - least) / reach * percent / 100);
}

TEST(EffectModels, Theme) {
  struct Theme {
    Color color;
    double degrees;
    int percent;
  };
  for (const Theme& theme : {Theme{rgb(255, 0, 0), 0, 100},
                             {rgb(77, 77, 77), 0, 30},
                             {rgb(0, 0, 50), 240, 100},
                             {rgb(255, 0, 255), 300, 100},
                             {rgb(0, 128, 64), 150, 100}})
    for (const int size : {16, 24, 32, 48})
      for (const IconImage& icon : iconsOfSize(size)) {
        const IconImage result = applied("theme", icon, {theme.color, theme.percent});
        for (int y = 0; y < size; ++y)
          for (int x = 0; x < size; ++x) {
            const Color color = result.image.GetPixel(x, y);
            ASSERT_EQ(result.mask.GetPixel(x, y), icon.mask.GetPixel(x, y));
            if (icon.mask.GetPixel(x, y) == 0)
              ASSERT_TRUE(isNearest(color, themed(at(icon, x, y), theme.degrees, theme.percent))) << color;
            else
              ASSERT_EQ(color, icon.image.GetPixel(x, y));
          }
      }
}

TEST(EffectModels, Blend) {
  for (const int size : {16, 24, 32, 48}) {
    const std::vector<IconImage> icons = iconsOfSize(size);
    for (std::size_t i = 0; i < icons.size(); ++i) {
      const IconImage &icon = icons[i], &other = icons[(i + 7) % icons.size()];
      const int percent = static_cast<int>(i * 2 % 101);
      const IconImage result = applied("blend", icon, withPictures({0, percent}, {other}));
      for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x) {
          const bool isOwn = icon.mask.GetPixel(x, y) == 0, isOther = other.mask.GetPixel(x, y) == 0;
          const Rgb3 a = at(icon, x, y), b = at(other, x, y);
          const Rgb3 both =
              each([&](auto channel) { return a.*channel - (a.*channel - b.*channel) * (percent / 100.0); });
          ASSERT_EQ(result.image.GetPixel(x, y), rounded(!isOther ? a
                                                         : !isOwn ? b
                                                                  : both))
              << size << ": " << x << "," << y;
          ASSERT_EQ(result.mask.GetPixel(x, y), isOwn || isOther ? 0 : icon.mask.GetPixel(x, y));
        }
    }
  }
}

double greyOfRelief(const IconImage& pattern, int size, int x, int y, double depth) {
  const int right = x == size - 1 ? x - 1 : x + 1, below = y == size - 1 ? y - 1 : y + 1;
  const Rgb3 own = at(pattern, x, y), neighbour = at(pattern, right, below);
  const Rgb3 lit =
      each([&](auto channel) { return std::fmin(std::fabs(depth * (own.*channel - neighbour.*channel) + 128), 255); });
  return std::rint(0.1 * lit.blue + 0.2 * lit.green + 0.7 * lit.red);
}

TEST(EffectModels, Texture) {
  for (int pattern = 0; pattern <= kStoredPatterns; ++pattern)
    for (const auto& [tenths, style] : {std::pair{5, 0}, {5, 1}, {1, 0}, {9, 1}}) {
      const IconImage picture{pattern < kStoredPatterns ? storedPattern(pattern) : customPattern(), Surface(), {}};
      const double depth = (style == 0 ? 1 : -1) * tenths / 10.0;
      expectModel("texture", withPictures({pattern, tenths, style}, {picture}),
                  [&](const IconImage& icon, int x, int y) {
                    const double grey = greyOfRelief(picture, icon.width(), x, y, depth);
                    return each([&](auto channel) { return grey / 128 * (at(icon, x, y).*channel) + (grey - 128); });
                  });
    }
}

}  // namespace
}  // namespace gp::test
