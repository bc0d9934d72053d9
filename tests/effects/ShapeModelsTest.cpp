// The effects that change the shape of an icon, each against a slow model on many icons: which step of its description
// is the last one that paints a pixel?
#include "effects/EffectCases.h"
#include "effects/ModelIcons.h"
#include "effects/Pictures.h"

#include <functional>
#include <gtest/gtest.h>
#include <optional>

namespace gp::test {
namespace {

constexpr Color kGrey = rgb(128, 128, 128);

bool isBlackInMask(const IconImage& icon, int x, int y) { return icon.mask.GetPixel(x, y) == kBlack; }

// The colour of a pixel of the result; nothing for a transparent one.
using ShapeModel = std::function<std::optional<Color>(const IconImage& icon, int x, int y)>;

void expectShape(const char* effect, const EffectValues& values, const ShapeModel& model) {
  for (const int size : kIconSides)
    for (const IconImage& icon : iconsOfSize(size)) {
      const IconImage result = applied(effect, icon, values);
      for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x) {
          const std::optional<Color> color = model(icon, x, y);
          ASSERT_EQ(result.image.GetPixel(x, y), color.value_or(kBlack))
              << effect << " " << size << ": " << x << "," << y;
          ASSERT_EQ(result.mask.GetPixel(x, y), color ? kBlack : kWhite)
              << effect << " " << size << ": " << x << "," << y;
        }
    }
}

// The picture lies over the light edge, and this over the dark one.
ShapeModel reliefIn(Color light, Color dark) {
  return [light, dark](const IconImage& icon, int x, int y) -> std::optional<Color> {
    if (isBlackInMask(icon, x, y)) return icon.image.GetPixel(x, y);
    if (light != kNoColor && isBlackInMask(icon, x + 1, y + 1)) return light;
    if (isBlackInMask(icon, x - 1, y - 1)) return dark;
    return std::nullopt;
  };
}

TEST(ShapeModels, Relief) {
  expectShape("embossed", {}, reliefIn(kWhite, kGrey));
  expectShape("engraved", {}, reliefIn(kGrey, kWhite));
  expectShape("raised", {}, reliefIn(kWhite, kBlack));
  for (const Color shadow : {kBlack, kWhite, rgb(12, 200, 99)})
    expectShape("shadowed", {shadow}, reliefIn(kNoColor, shadow));
}

TEST(ShapeModels, DisabledImage) {
  const auto isDark = [](const IconImage& icon, int x, int y) {
    const Color color = icon.image.GetPixel(x, y);
    return isBlackInMask(icon, x, y) && std::max({redOf(color), greenOf(color), blueOf(color)}) < 153;
  };
  expectShape("disabled", {}, [isDark](const IconImage& icon, int x, int y) -> std::optional<Color> {
    if (isDark(icon, x, y)) return kGrey;
    if (isDark(icon, x - 1, y - 1)) return kWhite;
    return std::nullopt;
  });
}

// One step of a frame. Coordinates below 0 count from the far side: -1 is the last row or column.
enum class Shape { Line, Box, Pixel };
struct Step {
  Shape shape;
  int x1, y1, x2, y2;
  Color color;
};

// A line ends one pixel short of its second point.
bool paints(const Step& step, int size, int x, int y) {
  const auto place = [size](int coordinate) { return coordinate < 0 ? size + coordinate : coordinate; };
  const int left = place(step.x1), top = place(step.y1), right = place(step.x2), bottom = place(step.y2);
  const bool isInside = x >= left && x <= right && y >= top && y <= bottom;
  if (step.shape != Shape::Line) return isInside && (x == left || x == right || y == top || y == bottom);
  return isInside && (left == right ? y < bottom : x < right);
}

const std::vector<Step> kFrames[] = {{{Shape::Line, 0, 0, -1, 0, kWhite},
                                      {Shape::Line, -1, 0, -1, -1, kBlack},
                                      {Shape::Line, 0, -1, -1, -1, kBlack},
                                      {Shape::Line, 0, 0, 0, -1, kWhite}},
                                     {{Shape::Box, 0, 0, -1, -1, kBlack},
                                      {Shape::Box, 1, 1, -2, -2, kWhite},
                                      {Shape::Box, 2, 2, -3, -3, kWhite},
                                      {Shape::Line, -2, 1, -2, -2, kGrey},
                                      {Shape::Line, -3, 2, -3, -2, kGrey},
                                      {Shape::Line, 2, -3, -2, -3, kGrey},
                                      {Shape::Line, 1, -2, -2, -2, kGrey},
                                      {Shape::Pixel, -2, -2, -2, -2, kGrey},
                                      {Shape::Pixel, -2, -3, -2, -3, kGrey}},
                                     {{Shape::Line, 0, 0, -1, 0, kWhite},
                                      {Shape::Line, 0, 1, -1, 1, rgb(224, 224, 224)},
                                      {Shape::Line, -1, 0, -1, -1, kBlack},
                                      {Shape::Line, -2, 1, -2, -2, rgb(136, 136, 136)},
                                      {Shape::Line, 0, -1, -1, -1, kBlack},
                                      {Shape::Line, 1, -2, -2, -2, rgb(136, 136, 136)},
                                      {Shape::Line, 0, 0, 0, -1, kWhite},
                                      {Shape::Line, 1, 1, 1, -2, rgb(224, 224, 224)},
                                      {Shape::Pixel, -2, -2, -2, -2, rgb(136, 136, 136)}}};

// What lies inside the frame keeps image and mask, which ShapeModel cannot express for inverting pixels.
TEST(ShapeModels, Buttonize) {
  for (int style = 0; style < 3; ++style)
    for (const int size : kIconSides)
      for (const IconImage& icon : iconsOfSize(size)) {
        const IconImage result = applied("buttonize", icon, {style});
        for (int y = 0; y < size; ++y)
          for (int x = 0; x < size; ++x) {
            Color image = icon.image.GetPixel(x, y), mask = icon.mask.GetPixel(x, y);
            for (const Step& step : kFrames[style])
              if (paints(step, size, x, y)) image = step.color, mask = kBlack;
            if ((x == 0 || x == size - 1) && (y == 0 || y == size - 1)) image = kBlack, mask = kWhite;
            ASSERT_EQ(result.image.GetPixel(x, y), image) << style << " " << size << ": " << x << "," << y;
            ASSERT_EQ(result.mask.GetPixel(x, y), mask) << style << " " << size << ": " << x << "," << y;
          }
      }
}

}  // namespace
}  // namespace gp::test
