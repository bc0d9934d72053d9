#include "effects/Blend.h"

#include "effects/Channels.h"
#include "effects/PaintedPixels.h"

#include <algorithm>

namespace gp {
namespace {

constexpr int kPercent = 100;

Color mixed(Color own, Color other, double part) {
  const auto channel = [part](int from, int to) { return roundToByte(from - (from - to) * part); };
  return colorOfChannels(eachChannel(channel, channelsOf(own), channelsOf(other)));
}

// The places of the effect's settings in its values.
enum : std::size_t { kWith, kPart };

constexpr Setting kSettings[] = {
    {.option = "with",
     .kind = SettingKind::IconFile,
     .isRequired = true,
     .help = "its first icon of the same size without alpha is blended in"},
    {.option = "percent", .to = kPercent, .first = 40, .help = "the part of the other icon"}};

// Returns the first icon of that size; null when there is none.
const IconImage* otherOf(const IconImage& icon, const EffectValues& values) {
  const auto others = values.pictures();
  const auto found = std::ranges::find_if(others, [&icon](const IconImage& other) {
    return other.width() == icon.width() && other.height() == icon.height();
  });
  return found == others.end() ? nullptr : &*found;
}

IconImage blend(const IconImage& icon, const EffectValues& values) {
  const IconImage* other = otherOf(icon, values);
  return other ? blended(icon, *other, values.number(kPart)) : IconImage{icon.image, icon.mask, {}};
}

Refusal refusal(const IconImage& icon, const EffectValues& values) {
  return otherOf(icon, values) ? Refusal() : kNothingToBlend;
}

}  // namespace

IconImage blended(const IconImage& icon, const IconImage& other, int percent) {
  const double part = static_cast<double>(percent) / kPercent;
  IconImage result{icon.image, icon.mask, {}};
  for (int y = 0; y < icon.height(); ++y)
    for (int x = 0; x < icon.width(); ++x) {
      if (other.mask.GetPixel(x, y) != kBlack) continue;
      const Color color = other.image.GetPixel(x, y);
      const bool areBoth = icon.mask.GetPixel(x, y) == kBlack;
      result.image.SetPixelV(x, y, areBoth ? mixed(icon.image.GetPixel(x, y), color, part) : color);
      result.mask.SetPixelV(x, y, kBlack);
    }
  return result;
}

extern const EffectRow kBlend{.name = "blend",
                              .title = "Blend in other icon into current one",
                              .help = "mixed with another icon",
                              .menu = {23, "Bl&end In Another Icon ....", "", ""},
                              .panel = {16, "picBlendIn", "", false},
                              .settings = kSettings,
                              .apply = blend,
                              .refusal = refusal};

}  // namespace gp
