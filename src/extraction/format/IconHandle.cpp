#include "extraction/format/IconHandle.h"

namespace gp {

std::optional<IconImage> libraryIcon(const IconLibrary&, const IconGroup&, int) { return std::nullopt; }
std::optional<IconImage> fileIcon(std::span<const std::uint8_t>, int) { return std::nullopt; }
Surface drawnOn(const IconImage& handle, Color) { return handle.image; }
IconImage surfacesOf(const IconImage& handle) { return handle; }
IconImage surfacesWithoutAlpha(const IconImage& handle) { return handle; }

}  // namespace gp
