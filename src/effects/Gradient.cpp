// The transparent pixels of the icon painted in a gradient.
#include "effects/Gradient.h"

#include "drawing/RotateSurface.h"
#include "effects/ColorRamp.h"
#include "platform/text/Numbers.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace gp {
namespace {

// Pixels by which the rotated square exceeds the icon's diagonal.
constexpr int kReserve = 2;
// The ramp of a symmetric gradient is longer than half the square, so that the middle does not reach the last colour.
constexpr double kSymmetricStretch = 1.3;

constexpr const char* kKindWords[kGradientKinds] = {"linear", "symmetric", "square", "spherical"};
constexpr int kWholeTurn = 360;

GradientKind kindOf(const EffectValues& values) {
  return static_cast<GradientKind>(values.number(indexOf(GradientSetting::Kind)));
}

constexpr Setting kSettings[] = {
    {.option = "kind",
     .kind = SettingKind::Word,
     .words = kKindWords,
     .isRequired = true,
     .help = "the shape of the gradient"},
    {.option = "from",
     .kind = SettingKind::Rgb,
     .first = rgb(0, 0, 255),
     .isRequired = true,
     .help = "the first color"},
    {.option = "to", .kind = SettingKind::Rgb, .first = kWhite, .isRequired = true, .help = "the second color"},
    {.option = "angle",
     .to = kWholeTurn,
     .applies = [](const EffectValues& values) { return isStraight(kindOf(values)); },
     .goesWith = "--kind linear and symmetric",
     .help = "counter-clockwise, with linear and symmetric only"},
    {.option = "center",
     .kind = SettingKind::Point,
     .first = kMiddlePoint,
     .applies = [](const EffectValues& values) { return kindOf(values) == GradientKind::Spherical; },
     .goesWith = "--kind spherical",
     .help = "the pixel of the first color, with spherical only"}};

void drawRow(Surface& picture, int y, Color color) {
  std::uint32_t* pixels = picture.rowForWriting(y, 0, picture.width());
  std::fill(pixels, pixels + picture.width(), storedForm(color));
}

Surface straightRows(int side, Color colorA, Color colorB) {
  const ColorRamp ramp = makeColorRamp(colorA, colorB, side);
  Surface rows(side, side);
  for (int y = 0; y < side; ++y) drawRow(rows, y, ramp.at(y));
  return rows;
}

// The second half counts down again.
Surface symmetricRows(int side, Color colorA, Color colorB) {
  const int half = side / 2;
  const ColorRamp ramp = makeColorRamp(colorA, colorB, Int(side / 2.0 * kSymmetricStretch));
  Surface rows(side, side);
  for (int y = 0; y < side; ++y) drawRow(rows, y, ramp.at(y <= half ? y : 2 * half - y + 1));
  return rows;
}

int distanceToCorner(int x, int y, int cornerX, int cornerY) { return pointDistance(x, y, cornerX, cornerY); }

// The upper left corner lies one pixel further out, which is intended.
int farthestCorner(const Surface& target, int x, int y) {
  const int width = target.width(), height = target.height();
  return std::max({distanceToCorner(x, y, -1, -1), distanceToCorner(x, y, width, 0), distanceToCorner(x, y, 0, height),
                   distanceToCorner(x, y, width, height)});
}

struct Center {
  int x, y;
};

Center centerOf(int width, int height, const EffectValues& values) {
  const int center = values.number(indexOf(GradientSetting::Center));
  if (center == kMiddlePoint) return {width / 2, height / 2};
  return {xOfPoint(center), yOfPoint(center)};
}

IconImage gradient(const IconImage& icon, const EffectValues& values) {
  return paintedBehind(icon, gradientPicture(icon.width(), icon.height(), values));
}

Refusal refusal(const IconImage& icon, const EffectValues& values) {
  if (!hasUnpaintedArea(icon.mask)) return "No unpainted area in current icon.";
  const Center center = centerOf(icon.width(), icon.height(), values);
  return icon.image.contains(center.x, center.y) ? Refusal() : "Center point is outside the icon.";
}

}  // namespace

void drawLinearGradient(bool symmetric, Surface& target, int angle, Color colorA, Color colorB) {
  const double width = target.width(), height = target.height();
  const int side = roundToInteger(std::sqrt(width * width + height * height) + kReserve);
  const Surface rows = symmetric ? symmetricRows(side, colorA, colorB) : straightRows(side, colorA, colorB);
  target.fill(kGround);
  rotateSurface(rows, target,
                {.angleDegrees = static_cast<double>(angle),
                 .centerX = side / 2 - divide(side - target.width(), 2),
                 .centerY = side / 2 - divide(side - target.height(), 2)});
}

void drawSquareGradient(Surface& target, Color colorA, Color colorB) {
  // The pen that draws the boxes is 3 pixels wide, so each box covers the outer half of the next line.
  constexpr int kFirst = 2;
  const ColorRamp ramp = makeColorRamp(colorA, colorB, target.width() / 2);
  for (int y = 0; y < target.height(); ++y)
    for (int x = 0; x < target.width(); ++x) {
      const int fromEdge = std::min({x, y, target.width() - 1 - x, target.height() - 1 - y});
      target.SetPixelV(x, y, ramp.at(fromEdge + kFirst));
    }
}

void drawSphericalGradient(Surface& target, int x, int y, Color colorA, Color colorB) {
  const int radius = farthestCorner(target, x, y);
  drawRings(target, x, y, makeColorRamp(colorA, colorB, radius), radius - 1);
}

Surface gradientPicture(int width, int height, const EffectValues& values) {
  Surface picture(width, height);
  const GradientKind kind = kindOf(values);
  const Color from = values.color(indexOf(GradientSetting::From)), to = values.color(indexOf(GradientSetting::To));
  if (kind == GradientKind::Square) {
    drawSquareGradient(picture, from, to);
  } else if (kind == GradientKind::Spherical) {
    const Center center = centerOf(width, height, values);
    drawSphericalGradient(picture, center.x, center.y, from, to);
  } else {
    drawLinearGradient(kind == GradientKind::Symmetric, picture, values.number(indexOf(GradientSetting::Angle)), from,
                       to);
  }
  return picture;
}

IconImage paintedBehind(const IconImage& icon, const Surface& picture) {
  IconImage result{icon.image, Surface(icon.width(), icon.height(), kBlack), {}};
  for (int y = 0; y < icon.height(); ++y)
    for (int x = 0; x < icon.width(); ++x)
      if (icon.mask.GetPixel(x, y) == kWhite) result.image.SetPixelV(x, y, picture.GetPixel(x, y));
  return result;
}

bool hasUnpaintedArea(const Surface& mask) {
  return std::ranges::any_of(mask.pixels(),
                             [](std::uint32_t pixel) { return (pixel & kColorBits) == storedForm(kWhite); });
}

extern const EffectRow kGradient{.name = "gradient",
                                 .title = "Gradient unpainted area",
                                 .help = "the transparent pixels painted in a gradient",
                                 .menu = {4, "Gradient &Unpainted Area ....", "Ctrl+F5", "gradient"},
                                 .panel = {8, "picGradientSample", "", false},
                                 .settings = kSettings,
                                 .apply = gradient,
                                 .refusal = refusal};

}  // namespace gp
