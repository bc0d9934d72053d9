// The layout of bitmaps, in files of their own and inside icons: every offset, size and stride stands here, once, for
// readers and writers alike. All numbers are little-endian.
#pragma once

#include <cstddef>

namespace gp::dib {

// BITMAPFILEHEADER, which only bitmap files have, from the start of the file.
inline constexpr std::size_t kFileHeaderSize = 14;
inline constexpr std::size_t kFilePixelsOffset = 10;

// BITMAPINFOHEADER, from its own start.
inline constexpr std::size_t kHeaderSize = 40;
inline constexpr std::size_t kHeaderWidth = 4;
inline constexpr std::size_t kHeaderHeight = 8;
inline constexpr std::size_t kHeaderBitCount = 14;
inline constexpr std::size_t kHeaderCompression = 16;
inline constexpr std::size_t kHeaderSizeImage = 20;
inline constexpr std::size_t kHeaderColorsUsed = 32;

inline constexpr std::size_t kRowAlignment = 4;

constexpr std::size_t aligned(std::size_t bytes) { return (bytes + kRowAlignment - 1) / kRowAlignment * kRowAlignment; }
// Bytes of one row of pixels, without and with its padding to a multiple of 4.
constexpr std::size_t rowBytes(int width, int bits) { return (static_cast<std::size_t>(width) * bits + 7) / 8; }
constexpr std::size_t rowStride(int width, int bits) { return aligned(rowBytes(width, bits)); }

}  // namespace gp::dib
