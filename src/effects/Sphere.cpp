// The icon replaced by a shaded ball, which has a fixed size whatever that of the icon.
#include "effects/Sphere.h"

#include "effects/ColorRamp.h"
#include "effects/PaintedPixels.h"
#include "platform/text/Numbers.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace gp {
namespace {

struct Ball {
  int side;      // of its square, in pixels; the ball's middle is side / 2
  int radius;    // the rounded distance of its outermost pixels
  int rampSize;  // steps from white to the colour
  bool darkens;
  Refusal refusal;
};

// In the order of SphereSize.
constexpr std::array<Ball, kSphereSizes> kBalls{{{32, 15, 32, true, "Current icon is less then 32x 32."},
                                                 {24, 10, 22, false, "Current icon is less then 24x24."},
                                                 {16, 6, 14, false, "Current icon is less than 16x16."}}};
constexpr int kSampleMiddle = kSphereSampleSide / 2;

// The ground's colour never is a colour of the ball, nearly the same takes its place.
constexpr Color kNearlyGround = rgb(208, 192, 192);
// Brightness is counted in thousandths. This many are lost for each tenth of the factor and each pixel between the
// light and the middle.
constexpr int kFull = 1000;
constexpr int kLoss = 3;

const Ball& ballOf(SphereSize size) { return kBalls.at(static_cast<std::size_t>(size)); }

Color withoutGround(Color color) { return color == kGround ? kNearlyGround : color; }

Color darkened(Color color, int brightness) {
  const auto channel = [brightness](int value) { return divide(value * brightness, kFull); };
  return rgb(channel(redOf(color)), channel(greenOf(color)), channel(blueOf(color)));
}

int brightnessOf(const SphereSettings& settings) {
  const int distance = pointDistance(kSampleMiddle, kSampleMiddle, settings.light.x, settings.light.y);
  return std::max(0, kFull - distance * settings.factorTenths * kLoss);
}

// The square of the ball, filled with light.
Surface litSquare(const Ball& ball, const SphereSettings& settings) {
  Surface square(ball.side, ball.side);
  const double scale = static_cast<double>(ball.side) / kSphereSampleSide;
  const ColorRamp ramp = makeColorRamp(kWhite, settings.color, ball.rampSize);
  drawRings(square, settings.light.x * scale, settings.light.y * scale, ramp, ball.rampSize - 1);
  return square;
}

bool isOnBall(int x, int y, const Ball& ball) {
  return pointDistance(x, y, divide(ball.side, 2), divide(ball.side, 2)) <= ball.radius;
}

constexpr const char* kSizeWords[kSphereSizes] = {"normal", "small", "tiny"};
constexpr int kTenths = 10;

// The places of the effect's settings in its values.
enum : std::size_t { kColor, kLight, kSize, kFactor };

constexpr Setting kSettings[] = {
    {.option = "color", .kind = SettingKind::Rgb, .first = rgb(0, 0, 255), .help = "the color of the ball"},
    {.option = "light",
     .kind = SettingKind::Point,
     .first = pointValue(11, 11),
     .help = "the brightest point, on a ball of 32 pixels around 16,16"},
    {.option = "size", .kind = SettingKind::Word, .words = kSizeWords, .help = "a ball of 32, 24 or 16 pixels"},
    {.option = "factor",
     .kind = SettingKind::Tenths,
     .to = kTenths,
     .first = 5,
     .help = "how much light from the side darkens a normal ball"}};

IconImage sphere(const IconImage& icon, const EffectValues& values) {
  return sphereIcon(icon.width(), icon.height(), sphereSettings(values));
}

// The light is measured on the normal ball whatever the size.
Refusal refusal(const IconImage& icon, const EffectValues& values) {
  const Refusal ofSize = refusalOfSize(icon, static_cast<SphereSize>(values.number(kSize)));
  if (ofSize.text) return ofSize;
  const int light = values.number(kLight);
  return isOnSphere(xOfPoint(light), yOfPoint(light), SphereSize::Normal) ? Refusal() : kClickOnSphere;
}

}  // namespace

SphereSettings sphereSettings(const EffectValues& values) {
  const int light = values.number(kLight);
  return {values.color(kColor),
          {static_cast<double>(xOfPoint(light)), static_cast<double>(yOfPoint(light))},
          static_cast<SphereSize>(values.number(kSize)),
          values.number(kFactor)};
}

IconImage sphereIcon(int width, int height, const SphereSettings& settings) {
  const Ball& ball = ballOf(settings.size);
  const Surface lit = litSquare(ball, settings);
  const int brightness = ball.darkens ? brightnessOf(settings) : kFull;
  IconImage icon = emptyIcon(width, height);
  const int offsetX = divide(std::abs(width - ball.side), 2), offsetY = divide(std::abs(height - ball.side), 2);
  for (int y = 0; y < ball.side; ++y)
    for (int x = 0; x < ball.side; ++x) {
      if (!isOnBall(x, y, ball)) continue;
      const Color color = withoutGround(darkened(withoutGround(lit.GetPixel(x, y)), brightness));
      icon.image.SetPixelV(x + offsetX, y + offsetY, color);
      icon.mask.SetPixelV(x + offsetX, y + offsetY, kBlack);
    }
  return icon;
}

Refusal refusalOfSize(const IconImage& icon, SphereSize size) {
  return icon.width() < ballOf(size).side ? ballOf(size).refusal : Refusal();
}

SphereSize largestSphere(int width) {
  for (const SphereSize size : {SphereSize::Normal, SphereSize::Small})
    if (width >= ballOf(size).side) return size;
  return SphereSize::Tiny;
}

bool isOnSphere(int x, int y, SphereSize size) {
  return pointDistance(x, y, kSampleMiddle, kSampleMiddle) <= ballOf(size).radius;
}

SamplePoint lightOfClick(int x, int y, SphereSize size) {
  const double scale = static_cast<double>(kSphereSampleSide) / ballOf(size).side;
  return {kSampleMiddle + (x - kSampleMiddle) * scale, kSampleMiddle + (y - kSampleMiddle) * scale};
}

extern const EffectRow kSphere{.name = "sphere",
                               .title = "Auto-draw sphere",
                               .help = "a shaded ball in the place of the icon",
                               .menu = {2, "Auto-Draw &Sphere ....", "Ctrl+F3", "sphere"},
                               .panel = {6, "PicSphere(0)", "", false},
                               .settings = kSettings,
                               .apply = sphere,
                               .refusal = refusal};

}  // namespace gp
