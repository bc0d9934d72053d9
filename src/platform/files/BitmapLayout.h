// The layout of bitmaps, in bitmap files and inside icons. Readers and writers share these offsets, sizes and strides.
// All numbers are little-endian.
#pragma once

#include <cstddef>

namespace gp::dib {

// BITMAPFILEHEADER, which only bitmap files have; offsets are from the start of the file.
inline constexpr std::size_t kFileHeaderSize = 14;
inline constexpr std::size_t kFilePixelsOffset = 10;

// BITMAPINFOHEADER; offsets are from its start.
inline constexpr std::size_t kHeaderSize = 40;
inline constexpr std::size_t kHeaderWidth = 4;
inline constexpr std::size_t kHeaderHeight = 8;
inline constexpr std::size_t kHeaderPlanes = 12;
inline constexpr std::size_t kHeaderBitCount = 14;
inline constexpr std::size_t kHeaderCompression = 16;
inline constexpr std::size_t kHeaderSizeImage = 20;
inline constexpr std::size_t kHeaderColorsUsed = 32;
inline constexpr std::size_t kHeaderMasks = 40;  // of red, green, blue and alpha, in longer headers or behind this one
inline constexpr std::size_t kHeaderWithAlphaMask = 56;

// BITMAPCOREHEADER, of old programs; offsets are from its start. Palette entries behind it have three bytes.
inline constexpr std::size_t kOldHeaderSize = 12;
inline constexpr std::size_t kOldHeaderWidth = 4;
inline constexpr std::size_t kOldHeaderHeight = 6;
inline constexpr std::size_t kOldHeaderBitCount = 10;

inline constexpr std::size_t kRowAlignment = 4;

constexpr std::size_t aligned(std::size_t bytes) { return (bytes + kRowAlignment - 1) / kRowAlignment * kRowAlignment; }
// Bytes in one row of pixels, without and with the padding to a multiple of 4.
constexpr std::size_t rowBytes(int width, int bits) { return (static_cast<std::size_t>(width) * bits + 7) / 8; }
constexpr std::size_t rowStride(int width, int bits) { return aligned(rowBytes(width, bits)); }

}  // namespace gp::dib
