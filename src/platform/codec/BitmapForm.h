// What the header of an uncompressed bitmap states: size, depth, and where its palette and rows are.
#pragma once

#include "platform/codec/BitmapPicture.h"
#include "platform/files/BitmapLayout.h"
#include "platform/files/ByteReader.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace gp {

inline constexpr int kMaxPaletteBits = 8;
inline constexpr std::size_t kRed = 0, kGreen = 1, kBlue = 2, kAlpha = 3, kChannels = 4;

// The bits of each channel in a pixel.
using ChannelMasks = std::array<std::uint32_t, kChannels>;
inline constexpr ChannelMasks kMasks16{0x7C00, 0x03E0, 0x001F, 0};
inline constexpr ChannelMasks kMasks32{0xFF0000, 0x00FF00, 0x0000FF, 0xFF000000};

struct BitmapForm {
  int width = 0;
  int height = 0;
  bool isTopFirst = false;
  int bits = 0;
  ChannelMasks masks{};  // of 16 and 32 bits
  std::uint64_t palette = 0;
  std::size_t paletteEntry = 0;  // the size of a palette entry: 4 bytes, 3 in files of the old header
  std::uint32_t statedColors = 0;
  std::uint32_t colors = 0;
  std::uint64_t rows = 0;

  // The size of all rows with that many bits per pixel.
  std::uint64_t rowsSize(int bitsPerPixel) const {
    return dib::rowStride(width, bitsPerPixel) * static_cast<std::uint64_t>(height);
  }
  std::uint64_t rowsEnd() const { return rows + rowsSize(bits); }
};

// Reads everything but the place of the rows. The stated height is `heights` times that of the picture.
BitmapDefect readBitmapForm(ByteReader& reader, std::uint64_t header, int heights, PngLimits limits, BitmapForm& form);
// Places palette and rows. A short palette moves the rows, but some writers state a short palette and write a full one:
// the size of the whole shows which. `behindPalette` is what follows the palette.
void placeRows(std::uint64_t wholeSize, std::uint64_t behindPalette, BitmapForm& form);

}  // namespace gp
