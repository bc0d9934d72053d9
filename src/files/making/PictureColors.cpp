#include "files/making/PictureColors.h"

#include "document/ColorDepth.h"
#include "palette/DitheredReduction.h"
#include "palette/NearestMatch.h"

#include <algorithm>
#include <array>
#include <unordered_map>

namespace gp {
namespace {

constexpr std::size_t kAlpha = 3;
constexpr int kTreeLevels = 8;
constexpr std::array kMonoColors{kBlack, kWhite};

Color colorAt(const PngPicture& picture, std::size_t at) {
  return rgb(picture.rgba[at], picture.rgba[at + 1], picture.rgba[at + 2]);
}

bool hasColor(const PngPicture& picture, Color color) {
  for (std::size_t at = 0; at < picture.rgba.size(); at += kRgbaBytes)
    if (colorAt(picture, at) == color) return true;
  return false;
}

// The mean colour of the opaque pixels, which changes neither the threshold nor the palette of a reduction much.
DibPixel meanColor(const PngPicture& picture) {
  std::array<std::uint64_t, kAlpha> sums{};
  std::uint64_t count = 0;
  for (std::size_t at = 0; at < picture.rgba.size(); at += kRgbaBytes) {
    if (picture.rgba[at + kAlpha] == 0) continue;
    for (std::size_t i = 0; i < kAlpha; ++i) sums[i] += picture.rgba[at + i];
    ++count;
  }
  count = std::max<std::uint64_t>(count, 1);
  return {static_cast<std::uint8_t>(sums[2] / count), static_cast<std::uint8_t>(sums[1] / count),
          static_cast<std::uint8_t>(sums[0] / count)};
}

std::size_t rowStart(const PngPicture& picture, int y) {
  return static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width) * kRgbaBytes;
}

clsGPDIB dibOf(const PngPicture& picture) {
  const DibPixel mean = meanColor(picture);
  clsGPDIB dib;
  dib.CreateBlankDIB(picture.width, picture.height);
  for (int y = 0; y < picture.height; ++y) {
    std::size_t at = rowStart(picture, picture.height - 1 - y);
    for (DibPixel& pixel : dib.row(y)) {
      pixel = picture.rgba[at + kAlpha] == 0 ? mean : dibPixel(colorAt(picture, at));
      at += kRgbaBytes;
    }
  }
  return dib;
}

// Transparent pixels stay as they are.
void takeColors(const clsGPDIB& dib, PngPicture& picture) {
  for (int y = 0; y < picture.height; ++y) {
    std::size_t at = rowStart(picture, picture.height - 1 - y);
    for (const DibPixel pixel : dib.row(y)) {
      if (picture.rgba[at + kAlpha] != 0)
        std::ranges::copy(std::array{pixel.red, pixel.green, pixel.blue}, &picture.rgba[at]);
      at += kRgbaBytes;
    }
  }
}

void reduceToOptimal(clsGPDIB& dib, int colors, bool dithers) {
  clsGPPal palette;
  palette.CreateOptimal(dib, colors, kTreeLevels);
  if (dithers)
    clsGPPalDither().DitherToPalette256(dib, palette);
  else
    matchToPalette(dib, palette.hPal().first(static_cast<std::size_t>(palette.MaxCount())));
}

using Dithering = void (*)(clsGPDIB& dib, clsGPPal& palette, clsGPPalDither& dither);

void reduceToFixed(clsGPDIB& dib, std::span<const Color> colors, Dithering dither, bool dithers) {
  clsGPPal palette;
  clsGPPalDither rows;
  if (dithers)
    dither(dib, palette, rows);
  else
    matchToPalette(dib, colors);
}

}  // namespace

std::optional<IndexedPicture> indexedPicture(const PngPicture& picture, std::size_t most) {
  IndexedPicture indexed;
  std::unordered_map<Color, std::uint8_t> known;
  const auto indexOf = [&](Color color) {
    const auto [found, isNew] = known.try_emplace(color, static_cast<std::uint8_t>(known.size()));
    if (isNew) indexed.palette.push_back(color);
    return found->second;
  };
  if (hasColor(picture, kBlack)) indexOf(kBlack);
  for (std::size_t at = 0; at < picture.rgba.size(); at += kRgbaBytes) {
    indexed.indices.push_back(indexOf(colorAt(picture, at)));
    if (known.size() > most) return std::nullopt;
  }
  return indexed;
}

void reduceColors(PngPicture& picture, int bits, bool dithers) {
  clsGPDIB dib = dibOf(picture);
  // Black for the transparent pixels needs one of the colours.
  if (bits == kPaletteDepth.bits)
    reduceToOptimal(dib, kPaletteDepth.colors - (picture.hasAlpha ? 1 : 0), dithers);
  else if (bits == kStandardDepth.bits)
    reduceToFixed(dib, kStandardPalette, ditherToStandard, dithers);
  else
    reduceToFixed(dib, kMonoColors, ditherToMono, dithers);
  takeColors(dib, picture);
}

}  // namespace gp
