// The layout of icon files: every offset, size and stride, for readers and writers. A file is one ICONDIR, its entries,
// and the images at the offsets that the entries state. All numbers are little-endian.
#pragma once

#include "document/ColorDepth.h"
#include "platform/files/BitmapLayout.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace gp::ico {

// ICONDIR.
inline constexpr std::size_t kDirSize = 6;
inline constexpr std::size_t kDirType = 2;
inline constexpr std::size_t kDirCount = 4;
inline constexpr int kTypeIcon = 1;
inline constexpr int kTypeCursor = 2;

// ICONDIRENTRY, from the start of the entry. In a cursor file, planes and bit count are the hot spot's x and y.
inline constexpr std::size_t kEntrySize = 16;
inline constexpr std::size_t kEntryWidth = 0;
inline constexpr std::size_t kEntryHeight = 1;
inline constexpr std::size_t kEntryColorCount = 2;
inline constexpr std::size_t kEntryReserved = 3;
inline constexpr std::size_t kEntryPlanes = 4;
inline constexpr std::size_t kEntryBitCount = 6;
inline constexpr std::size_t kEntryBytesInRes = 8;
inline constexpr std::size_t kEntryImageOffset = 12;

// The offset of the image in a file with one entry.
inline constexpr std::uint32_t kSingleImageOffset = kDirSize + kEntrySize;

inline constexpr std::size_t kMaxEntries = 0xFFFF;
inline constexpr std::size_t kMaxDirectorySize = kDirSize + kMaxEntries * kEntrySize;

// BITMAPINFOHEADER, from the start of the image. The palette follows after 40 bytes, whatever the first field states.
inline constexpr std::size_t kBitmapHeaderSize = dib::kHeaderSize;
using dib::kHeaderBitCount;

inline constexpr std::size_t kPaletteEntrySize = 4;
inline constexpr int kMaxPaletteColors = kPaletteDepth.colors;
inline constexpr int kMaxEntrySide = 255;

using dib::aligned;
using dib::rowBytes;
using dib::rowStride;

// The stride of a true colour row for the reader. The padding is what the width in pixels lacks to a multiple of 4. It
// equals rowStride for all icon sizes.
constexpr std::size_t trueRowStride(int width, int bits) {
  return rowBytes(width, bits) + (aligned(static_cast<std::size_t>(width)) - static_cast<std::size_t>(width));
}

// The largest bitmap that an entry can describe, in bytes from its offset on.
inline constexpr std::size_t kLargestImage =
    kBitmapHeaderSize + kMaxPaletteColors * kPaletteEntrySize +
    kMaxEntrySide * (trueRowStride(kMaxEntrySide, kBitsWithAlpha) + rowStride(kMaxEntrySide, 1));

// The largest PNG picture that is read. Pictures of an icon size need far less, and many entries can share a long one.
inline constexpr std::size_t kLargestPng = std::size_t{512} * 1024;

// The bytes from an image's offset on that a reader uses at most. A bitmap can be larger than its entry states.
constexpr std::size_t readSize(std::uint32_t bytesInRes) {
  return std::clamp<std::size_t>(bytesInRes, kLargestImage, kLargestPng);
}

}  // namespace gp::ico
