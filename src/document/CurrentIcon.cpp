#include "document/CurrentIcon.h"

#include "document/AlphaGreys.h"
#include "document/Containers.h"
#include "document/EditState.h"
#include "platform/gdi/SurfaceOps.h"

#include <algorithm>

namespace gp {
namespace {

// Returns true when a pixel has changed.
bool replaceSurface(const Surface& source, Surface& target) {
  const auto sameColor = [](std::uint32_t a, std::uint32_t b) { return ((a ^ b) & kColorBits) == 0; };
  if (std::ranges::equal(source.pixels(), target.pixels(), sameColor)) return false;
  BitbltPic(source, target);
  target.makePersistent();
  return true;
}

}  // namespace

IconImage currentIcon(const EditState& state) {
  return {state.picImage, state.picMask, AlphaRecIsReady(state) ? alphaOf(state.picAlpha) : AlphaMatrix()};
}

bool replacePixels(EditState& state, const IconImage& icon) {
  const Surface alpha = icon.hasAlphaValues() ? greysOf(icon.alpha) : Surface(icon.width(), icon.height(), kOpaqueGrey);
  const bool image = replaceSurface(icon.image, state.picImage);
  const bool mask = replaceSurface(icon.mask, state.picMask);
  return replaceSurface(alpha, state.picAlpha) || image || mask;
}

}  // namespace gp
