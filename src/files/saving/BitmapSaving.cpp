#include "files/saving/BitmapSaving.h"

#include "colour/ColorCount.h"
#include "document/AlphaCompositing.h"
#include "document/Compositing.h"
#include "document/Containers.h"
#include "palette/DitheredReduction.h"
#include "palette/clsGPPalSave.h"
#include "platform/files/BitmapFile.h"

#include <algorithm>
#include <array>

namespace gp {
namespace {

struct Depth {
  int colors;
  int bits;
  void (*reduce)(clsGPDIB& dib, clsGPPal& palette, clsGPPalDither& dither);
};

constexpr std::array<Depth, 3> kDepths{{{256, 8, ditherToOptimal}, {16, 4, ditherToStandard}, {2, 1, ditherToMono}}};

}  // namespace

Surface composedForBitmap(const EditState& state, Color ground) {
  Surface look = composedIcon(state.picImage, state.picMask);
  const auto container = static_cast<std::size_t>(state.mCurContainer);
  if (AlphaRecIsReady(state)) composeAlpha(state.picMask, state.picImage, state.mAlphaRecs.at(container), look);
  for (int y = 0; y < look.height(); ++y)
    for (int x = 0; x < look.width(); ++x)
      if (look.GetPixel(x, y) == kGround && state.picMask.GetPixel(x, y) == kWhite) look.SetPixelV(x, y, ground);
  return look;
}

bool saveByColors(const Surface& picture, const std::string& path) {
  int colors = 0;
  GetColorBitCount_Image(picture, colors);
  const auto depth = std::ranges::find(kDepths, colors, &Depth::colors);
  if (depth == kDepths.end()) return writeBitmap(picture, path);
  clsGPDIB dib;
  clsGPPal palette;
  clsGPPalDither dither;
  dib.CreateDIBFromPic(picture);
  depth->reduce(dib, palette, dither);
  return clsGPPalSave().Save_BMP(path, dib, palette, dither, depth->bits);
}

}  // namespace gp
