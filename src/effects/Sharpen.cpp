#include "effects/Sharpen.h"

#include "effects/Channels.h"
#include "effects/EffectTable.h"
#include "effects/EffectTexts.h"
#include "effects/PaintedPixels.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace gp {
namespace {

struct Offset {
  int x, y;
};

constexpr Offset kUpperLeft[] = {{-1, -1}};
constexpr Offset kCross[] = {{0, 0}, {-1, 0}, {1, 0}, {0, -1}, {0, 1}};
constexpr auto kBlock = [] {
  constexpr int kReach = 2, kSide = 2 * kReach + 1;
  std::array<Offset, static_cast<std::size_t>(kSide) * kSide> block{};
  for (int i = 0; i < kSide * kSide; ++i) block[static_cast<std::size_t>(i)] = {i % kSide - kReach, i / kSide - kReach};
  return block;
}();

// A pixel becomes the mean of its neighbours; with a strength, it moves away from that mean by this part of the
// difference.
struct FilterRow {
  Filter filter;
  std::span<const Offset> neighbours;
  double strength = 0;
};
constexpr FilterRow kFilters[] = {{Filter::SharpenStrong, kUpperLeft, 0.7},
                                  {Filter::Sharpen, kUpperLeft, 0.5},
                                  {Filter::Soften, kCross},
                                  {Filter::SoftenStrong, kBlock}};

int filtered(int own, int sum, const FilterRow& row) {
  const double mean = sum / static_cast<double>(row.neighbours.size());
  return roundToByte(row.strength > 0 ? (own - mean) * row.strength + own : mean);
}

Color filteredAt(const Surface& picture, int x, int y, const FilterRow& row) {
  const Color own = picture.GetPixel(x, y);
  Channels sums{};
  for (const Offset& offset : row.neighbours) {
    const Color neighbour = picture.GetPixel(x + offset.x, y + offset.y);
    if (neighbour == kNoColor) return own;
    sums = eachChannel([](int sum, int channel) { return sum + channel; }, sums, channelsOf(neighbour));
  }
  return colorOfChannels(
      eachChannel([&row](int channel, int sum) { return filtered(channel, sum, row); }, channelsOf(own), sums));
}

IconImage filteredIcon(const IconImage& icon, Filter filter) {
  IconImage result{icon.image, icon.mask, {}};
  copyPainted(doSharpenSoften(icon.image, filter), icon.mask, result.image);
  return result;
}

IconImage sharpenSoften(const IconImage& icon, const EffectValues& values) {
  return filteredIcon(icon, static_cast<Filter>(values.number(0)));
}
IconImage sharpen(const IconImage& icon, const EffectValues& values) {
  return filteredIcon(icon, values.flag(0) ? Filter::SharpenStrong : Filter::Sharpen);
}
IconImage soften(const IconImage& icon, const EffectValues& values) {
  return filteredIcon(icon, values.flag(0) ? Filter::SoftenStrong : Filter::Soften);
}

Refusal refusesOriginal(const IconImage& /*icon*/, const EffectValues& values) {
  return static_cast<Filter>(values.number(0)) == Filter::Original ? kNothingChanged : Refusal();
}

constexpr Setting kChoices[] = {{.to = static_cast<int>(Filter::SoftenStrong),
                                 .first = static_cast<int>(Filter::Original),
                                 .control = "cboSharpenSoften",
                                 .label = "&Sharpen or soften:"}};
constexpr Setting kStrength[] = {{.option = "strong", .kind = SettingKind::Flag, .help = "stronger"}};

}  // namespace

Surface doSharpenSoften(const Surface& picture, Filter filter) {
  const auto* row = std::ranges::find(kFilters, filter, &FilterRow::filter);
  if (row == std::end(kFilters)) return picture;
  Surface result(picture.width(), picture.height());
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) result.SetPixelV(x, y, filteredAt(picture, x, y, *row));
  return result;
}

extern const EffectRow kSharpenSoften{.title = "Sharpen/soften image",
                                      .menu = {7, "Shar&pen / Soften Image ....", "Ctrl+F7", ""},
                                      .panel = {10, "picSharpenSoften"},
                                      .settings = kChoices,
                                      .apply = sharpenSoften,
                                      .refusal = refusesOriginal};
extern const EffectRow kSharpen{.name = "sharpen", .help = "harder edges", .settings = kStrength, .apply = sharpen};
extern const EffectRow kSoften{.name = "soften", .help = "softer edges", .settings = kStrength, .apply = soften};

}  // namespace gp
