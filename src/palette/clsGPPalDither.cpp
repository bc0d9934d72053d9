#include "palette/clsGPPalDither.h"

#include "palette/ColorCube.h"
#include "palette/MonoDiffusion.h"
#include "platform/files/BitmapLayout.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace gp {
namespace {

constexpr int kBitsPerByte = 8;
constexpr int kHalfByte = 4;
constexpr int kLargestChannel = 255;

// An error whose absolute channels sum up to this value or less is not diffused.
constexpr int kSmallError = 3;
constexpr int kErrorDivisor = 16;

struct Neighbour {
  int dx;
  std::size_t row;
  int weight;
};
constexpr std::array kFloydSteinberg{Neighbour{1, 0, 7}, Neighbour{0, 1, 5}, Neighbour{1, 1, 1}, Neighbour{-1, 1, 3}};

struct ColorError {
  int blue, green, red;

  int size() const { return std::abs(blue) + std::abs(green) + std::abs(red); }
};

std::uint8_t withShare(std::uint8_t channel, int error, int weight) {
  return static_cast<std::uint8_t>(std::clamp(channel + error * weight / kErrorDivisor, 0, kLargestChannel));
}

void addShare(DibPixel& pixel, const ColorError& error, int weight) {
  pixel.blue = withShare(pixel.blue, error.blue, weight);
  pixel.green = withShare(pixel.green, error.green, weight);
  pixel.red = withShare(pixel.red, error.red, weight);
}

// The current row and the next one, which is empty after the last row.
using TwoRows = std::array<std::span<DibPixel>, 2>;

void spread(const TwoRows& rows, std::size_t x, const ColorError& error) {
  for (const Neighbour& neighbour : kFloydSteinberg) {
    const std::span<DibPixel> row = rows[neighbour.row];
    // For a position before the first pixel, x + dx wraps to a value past every row.
    const std::size_t to = x + neighbour.dx;
    if (to < row.size()) addShare(row[to], error, neighbour.weight);
  }
}

// Dithers the current row and stores the palette index of each of its pixels.
void ditherRow(const TwoRows& rows, const ColorCube& cube, std::span<const DibPixel> entries,
               std::span<std::uint8_t> indices) {
  for (std::size_t x = 0; x < indices.size(); ++x) {
    DibPixel& pixel = rows[0][x];
    const std::uint8_t index = cube.at(pixel.red, pixel.green, pixel.blue);
    const DibPixel entry = entries[index];
    const ColorError error{pixel.blue - entry.blue, pixel.green - entry.green, pixel.red - entry.red};
    indices[x] = index;
    pixel = entry;
    if (error.size() > kSmallError) spread(rows, x, error);
  }
}

}  // namespace

void clsGPPalDither::InitializePalID(int width, int height, int bits) {
  stride_ = dib::rowStride(std::max(0, width), bits);
  rows_.assign(stride_ * static_cast<std::size_t>(std::max(0, height)), 0);
}

// The leftmost pixel of a byte is in its highest bits.
void clsGPPalDither::storeRow(int y, int bits, std::span<const std::uint8_t> indices) {
  std::uint8_t* byte = rows_.data() + static_cast<std::size_t>(y) * stride_;
  int shift = kBitsPerByte;
  for (const std::uint8_t index : indices) {
    shift -= bits;
    *byte = static_cast<std::uint8_t>(*byte | index << shift);
    if (shift != 0) continue;
    ++byte;
    shift = kBitsPerByte;
  }
}

void clsGPPalDither::DitherToPalette16(clsGPDIB& dib, const clsGPPal& palette) {
  ditherToPalette(dib, palette, kHalfByte);
}

void clsGPPalDither::DitherToPalette256(clsGPDIB& dib, const clsGPPal& palette) {
  ditherToPalette(dib, palette, kBitsPerByte);
}

void clsGPPalDither::ditherToPalette(clsGPDIB& dib, const clsGPPal& palette, int bits) {
  const std::size_t colors = palette.hPal().size();
  if (dib.isEmpty() || colors == 0 || colors > std::size_t{1} << bits) return;
  const ColorCube cube(palette.hPal());
  const int height = dib.DIBHeight();
  std::vector<std::uint8_t> indices(static_cast<std::size_t>(dib.DIBWidth()));
  InitializePalID(dib.DIBWidth(), height, bits);
  for (int y = 0; y < height; ++y) {
    ditherRow({dib.row(y), y + 1 < height ? dib.row(y + 1) : std::span<DibPixel>()}, cube, palette.PalettePtr(),
              indices);
    storeRow(y, bits, indices);
  }
}

void clsGPPalDither::DitherToBlackAndWhite(clsGPDIB& dib, int divisor) {
  if (dib.isEmpty()) return;
  diffuseToMono(dib, kStucki, divisor);
  TakeBlackAndWhite(dib);
}

void clsGPPalDither::TakeBlackAndWhite(const clsGPDIB& dib) {
  InitializePalID(dib.DIBWidth(), dib.DIBHeight(), 1);
  std::vector<std::uint8_t> indices(static_cast<std::size_t>(dib.DIBWidth()));
  for (int y = 0; y < dib.DIBHeight(); ++y) {
    std::ranges::transform(dib.row(y), indices.begin(),
                           [](DibPixel pixel) { return colorOf(pixel) != kBlack ? 1 : 0; });
    storeRow(y, 1, indices);
  }
}

}  // namespace gp
