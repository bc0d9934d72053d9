#include "effects/Resize.h"

#include "colour/ColorCount.h"
#include "effects/PaintedPixels.h"
#include "platform/gdi/StretchAxis.h"
#include "platform/gdi/SurfaceOps.h"

#include <array>

namespace gp {
namespace {

constexpr const char* kSizes[] = {"16", "24", "32", "48"};  // of kIconSides
static_assert(std::size(kSizes) == kIconSides.size());

constexpr Setting kSettings[] = {
    {.option = "to",
     .kind = SettingKind::Word,
     .words = kSizes,
     .isRequired = true,
     .help = "the new width and height in pixels"},
    {.option = "plain", .kind = SettingKind::Flag, .help = "keeps or drops whole pixels and does not soften"}};
enum { kTo, kPlain };

int wantedSize(const EffectValues& values) { return kIconSides.at(static_cast<std::size_t>(values.number(kTo))); }

IconImage resize(const IconImage& icon, const EffectValues& values) {
  return resizedIcon(icon, wantedSize(values), !values.flag(kPlain));
}

Refusal refusalOfSameSize(const IconImage& icon, const EffectValues& values) {
  return icon.width() == wantedSize(values) ? kNotOfSuitableSize : Refusal();
}

Surface plain(const Surface& source, int size) {
  Surface target(size, size);
  target.stretchMode = StretchMode::KeepOrDrop;
  StretchbltPic(source, target, false);
  return target;
}

std::vector<StretchCell> cellsOf(int source, int target) {
  return stretchCells({0, target, 0, source, target, source}, StretchMode::Halftone, KeptPixel::First).cells;
}

// The sums of the weighted channels of painted pixels.
struct PaintedSum {
  static constexpr std::size_t kChannels = 3;
  std::array<std::int64_t, kChannels> channels{};
  std::int64_t weight = 0;

  void add(Color color, std::int64_t share) {
    const int parts[] = {redOf(color), greenOf(color), blueOf(color)};
    for (std::size_t i = 0; i < kChannels; ++i) channels.at(i) += share * parts[i];
    weight += share;
  }
  Color mean() const {
    const auto rounded = [this](std::int64_t sum) { return static_cast<int>((2 * sum + weight) / (2 * weight)); };
    return weight == 0 ? kBlack : rgb(rounded(channels[0]), rounded(channels[1]), rounded(channels[2]));
  }
};

Color softenedPixel(const IconImage& icon, const StretchCell& columns, const StretchCell& rows) {
  PaintedSum sum;
  for (int y = rows.first; y <= rows.last; ++y)
    for (int x = columns.first; x <= columns.last; ++x)
      if (icon.mask.GetPixel(x, y) == kBlack) sum.add(icon.image.GetPixel(x, y), columns.weight(x) * rows.weight(y));
  return sum.mean();
}

Surface softened(const IconImage& icon, const Surface& mask) {
  const std::vector<StretchCell> columns = cellsOf(icon.width(), mask.width());
  const std::vector<StretchCell> rows = cellsOf(icon.height(), mask.height());
  Surface image(mask.width(), mask.height(), kBlack);
  for (int y = 0; y < mask.height(); ++y)
    for (int x = 0; x < mask.width(); ++x)
      if (mask.GetPixel(x, y) == kBlack)
        image.SetPixelV(x, y,
                        softenedPixel(icon, columns[static_cast<std::size_t>(x)], rows[static_cast<std::size_t>(y)]));
  return image;
}

}  // namespace

IconImage resizedIcon(const IconImage& icon, int size, bool isSoftened) {
  if (icon.isEmpty()) return transparentIcon(size);
  const Surface mask = plain(icon.mask, size);
  return {isSoftened ? softened(icon, mask) : plain(icon.image, size), mask, {}};
}

IconContainerRec recordOfResized(IconContainerRec record, const IconImage& resized) {
  int colors = 0;
  GetColorBitCount_Image(resized.image, colors);
  record.size = static_cast<std::int16_t>(resized.width());
  record.setDepth(depthOfColors(colors));
  record.setHeaderDepth(depthOfColors(colors));
  return record;
}

extern const EffectRow kResize{.name = "resize",
                               .title = "Resize",
                               .help = "the icon at another size",
                               .panel = {18},
                               .settings = kSettings,
                               .apply = resize,
                               .refusal = refusalOfSameSize,
                               .changesSize = true};

}  // namespace gp
