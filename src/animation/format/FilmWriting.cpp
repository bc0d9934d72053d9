#include "animation/format/FilmWriting.h"

#include "animation/format/AniWriter.h"
#include "document/IconContainerRec.h"
#include "files/format/IconWriter.h"

#include <algorithm>

namespace gp {
namespace {

// White is the ground of a film; it belongs to the picture where the mask is black.
IconImage iconToWrite(const FramePicture& picture) {
  IconImage icon = transparentIcon(kFrameSide);
  for (int y = 0; y < kFrameSide; ++y)
    for (int x = 0; x < kFrameSide; ++x) {
      const Color color = picture.image.GetPixel(x, y);
      if (color == kWhite && picture.mask.GetPixel(x, y) != kBlack) continue;
      icon.image.SetPixelV(x, y, color);
      icon.mask.SetPixelV(x, y, kBlack);
    }
  return icon;
}

AniFrame frameToWrite(const FilmFrame& frame) {
  const IconImage icon = iconToWrite(frame.picture);
  // An empty record: the depth follows from the colours alone.
  return {composeSingleIcon(icon, depthToWrite(icon, IconContainerRec())), frame.jiffies};
}

}  // namespace

bool isBlank(const FramePicture& picture) {
  return std::ranges::all_of(picture.image.pixels(),
                             [](std::uint32_t pixel) { return (pixel & kColorBits) == storedForm(kWhite); });
}

std::vector<std::uint8_t> composeFilm(std::span<const FilmFrame> frames, int hotspotX, int hotspotY) {
  std::vector<AniFrame> files;
  files.reserve(frames.size());
  for (const FilmFrame& frame : frames) files.push_back(frameToWrite(frame));
  return composeAniFile(files, hotspotX, hotspotY);
}

}  // namespace gp
