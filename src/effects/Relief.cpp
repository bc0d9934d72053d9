#include "effects/Relief.h"

#include "effects/PaintedPixels.h"

#include <array>

namespace gp {
namespace {

struct EdgeColors {
  Color light;  // to the top left; kNoColor for no such edge
  Color dark;   // to the bottom right
};

EdgeColors edgeColors(const ReliefSettings& settings) {
  // By the values of ReliefKind.
  const std::array<EdgeColors, 4> colors{
      {{kWhite, kEdgeGrey}, {kEdgeGrey, kWhite}, {kWhite, kBlack}, {kNoColor, settings.shadow}}};
  return colors.at(static_cast<std::size_t>(settings.kind));
}

}  // namespace

// The order matters where they meet: light lies over dark, and the picture over both.
IconImage relief(const Surface& image, const Surface& mask, const ReliefSettings& settings) {
  const EdgeColors colors = edgeColors(settings);
  IconImage icon = emptyIcon(image.width(), image.height());
  stamp(icon, mask, 1, colors.dark);
  if (colors.light != kNoColor) stamp(icon, mask, -1, colors.light);
  stamp(icon, mask, 0, kBlack);
  copyPainted(image, mask, icon.image);
  return icon;
}

}  // namespace gp
