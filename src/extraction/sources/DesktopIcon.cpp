#include "extraction/sources/DesktopIcon.h"

#include "platform/ports/FileTypeIcons.h"

#include <algorithm>

namespace gp {

std::optional<IconImage> handleOf(const std::optional<FileTypeIcon>& icon) {
  if (!icon || std::ranges::none_of(icon->alpha, [](std::uint8_t alpha) { return alpha > 0; })) return std::nullopt;
  const int width = icon->colors.width(), height = icon->colors.height();
  if (icon->alpha.size() != static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) return std::nullopt;
  IconImage handle{icon->colors, Surface(width, height, kBlack), AlphaMatrix(width, height)};
  auto alpha = icon->alpha.begin();
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x, ++alpha) {
      handle.alpha.at(x, y) = *alpha;
      if (*alpha == 0) handle.mask.SetPixelV(x, y, kWhite);
    }
  return handle;
}

}  // namespace gp
