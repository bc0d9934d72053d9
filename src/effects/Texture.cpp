#include "effects/Texture.h"

#include "effects/Channels.h"
#include "effects/PaintedPixels.h"
#include "platform/gdi/SurfaceOps.h"

#include <algorithm>
#include <cmath>

namespace gp {
namespace {

constexpr int kFlat = 128;  // the level where the relief is neither lit nor in shadow
constexpr double kTenths = 10;
// The parts of blue, green and red in a level. Intended: they differ from those of brightness as the eye sees it.
constexpr double kBluePart = 0.1, kGreenPart = 0.2, kRedPart = 0.7;

// The row or column after i; before it for the last one.
int neighbourOf(int i, int count) { return i + 1 < count ? i + 1 : std::max(0, i - 1); }

// Returns how bright the relief is at a pixel, from 0 to 255. A negative depth swaps heights and hollows.
int levelAt(const Surface& relief, int x, int y, double depth) {
  const Color own = relief.GetPixel(x, y);
  const Color neighbour = relief.GetPixel(neighbourOf(x, relief.width()), neighbourOf(y, relief.height()));
  const auto lit = [depth](int from, int to) { return std::min(std::fabs(depth * (from - to) + kFlat), 255.0); };
  return roundToByte(kBluePart * lit(blueOf(own), blueOf(neighbour)) +
                     kGreenPart * lit(greenOf(own), greenOf(neighbour)) + kRedPart * lit(redOf(own), redOf(neighbour)));
}

Color shaded(Color color, int level) {
  const double factor = static_cast<double>(level) / kFlat;
  return colorOfChannels(
      eachChannel([&](int channel) { return roundToByte(factor * channel + (level - kFlat)); }, channelsOf(color)));
}

IconImage texture(const IconImage& icon, const EffectValues& values) {
  const double depth = values.number(indexOf(TextureSetting::Depth)) / kTenths;
  const bool isInverted = values.flag(indexOf(TextureSetting::Style));
  Surface relief(icon.width(), icon.height());
  TilePicture(patternOf(values), relief);
  IconImage result{icon.image, icon.mask, {}};
  for (int y = 0; y < icon.height(); ++y) {
    const std::uint32_t* shape = icon.mask.row(y).data();
    std::uint32_t* pixels = result.image.rowForWriting(y, 0, icon.width());
    for (int x = 0; x < icon.width(); ++x)
      if (isPainted(shape[x]))
        pixels[x] = storedForm(
            shaded(static_cast<Color>(pixels[x] & kColorBits), levelAt(relief, x, y, isInverted ? -depth : depth)));
  }
  return result;
}

Refusal refusal(const IconImage& icon, const EffectValues& /*values*/) {
  return std::ranges::any_of(icon.mask.pixels(), isPainted) ? Refusal()
                                                            : "Current icon is blank, i.e. no painted area yet.";
}

constexpr const char* kPatternWords[kStoredPatterns] = {"1", "2", "3"};

// In the order of TextureSetting.
constexpr Setting kSettings[] = {
    {.option = "pattern",
     .kind = SettingKind::PictureFile,
     .words = kPatternWords,
     .help = "woven, brushed, grained, or a picture of 48x48"},
    {.option = "depth",
     .kind = SettingKind::Tenths,
     .from = kLeastDepth,
     .to = kMostDepth,
     .first = 5,
     .help = "how deep the pattern is pressed in"},
    {.option = "inverted", .kind = SettingKind::Flag, .help = "what is high becomes deep"}};

}  // namespace

const Surface& patternOf(const EffectValues& values) {
  const int pattern = values.number(indexOf(TextureSetting::Pattern));
  return pattern < kStoredPatterns ? storedPattern(pattern) : values.pictures().front().image;
}

std::string refusalOfPattern(std::int64_t width, std::int64_t height) {
  if (width == kPatternSide && height == kPatternSide) return {};
  return "Incoming image is " + std::to_string(width) + " x " + std::to_string(height) + ", not of the size of 48x48.";
}

extern const EffectRow kTexture{.name = "texture",
                                .title = "Texturize Painted Area",
                                .help = "a pattern pressed into the painted pixels",
                                .menu = {24, "Texturi&ze Painted Surface ....", "", ""},
                                .panel = {17, "picTexturize(0)", "", false},
                                .settings = kSettings,
                                .apply = texture,
                                .refusal = refusal};

}  // namespace gp
