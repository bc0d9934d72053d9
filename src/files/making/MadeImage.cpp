#include "files/making/MadeImage.h"

#include "document/ColorDepth.h"
#include "files/format/IcoLayout.h"
#include "files/making/PictureColors.h"
#include "platform/files/ByteWriter.h"

#include <algorithm>

namespace gp {
namespace {

constexpr std::size_t kAlpha = 3;

bool isPartlyTransparent(std::uint8_t alpha) { return alpha != 0 && alpha != kPngOpaque; }

bool hasPartAlpha(const PngPicture& picture) {
  for (std::size_t at = kAlpha; at < picture.rgba.size(); at += kRgbaBytes)
    if (isPartlyTransparent(picture.rgba[at])) return true;
  return false;
}

// Rows of `bits` per pixel from the bottom up, padded to 4 bytes. `valueAt` gives the bits of a pixel by its number.
template <class ValueAt>
void writeRows(int width, int height, int bits, const ValueAt& valueAt, ByteWriter& out) {
  constexpr int kBitsPerByte = 8;
  std::vector<std::uint8_t> row(ico::rowStride(width, bits));
  for (int y = height - 1; y >= 0; --y) {
    std::ranges::fill(row, std::uint8_t{0});
    for (int x = 0; x < width; ++x) {
      const int bit = x * bits, shift = kBitsPerByte - bits - bit % kBitsPerByte;
      const unsigned value = valueAt(static_cast<std::size_t>(y) * width + x);
      std::uint8_t& byte = row[static_cast<std::size_t>(bit / kBitsPerByte)];
      byte = static_cast<std::uint8_t>(byte | value << shift);
    }
    out.bytes(row);
  }
}

void writeHeader(const PngPicture& picture, int bits, ByteWriter& out) {
  const std::size_t start = out.size();
  out.u32(ico::kBitmapHeaderSize);
  out.i32(picture.width);
  out.i32(2 * picture.height);  // picture and Mask
  out.u16(1);                   // planes
  out.u16(static_cast<std::uint16_t>(bits));
  out.zeros(start + ico::kBitmapHeaderSize - out.size());
}

void writePalette(const IndexedPicture& indexed, int bits, ByteWriter& out) {
  const std::size_t end = out.size() + (std::size_t{1} << bits) * ico::kPaletteEntrySize;
  for (const Color color : indexed.palette) {
    out.u8(static_cast<std::uint8_t>(blueOf(color)));
    out.u8(static_cast<std::uint8_t>(greenOf(color)));
    out.u8(static_cast<std::uint8_t>(redOf(color)));
    out.u8(0);
  }
  out.zeros(end - out.size());
}

// Blue, green, red, and with 32 bits alpha, which is kept where the Mask is set too.
void writeTrueRows(const PngPicture& picture, int bits, ByteWriter& out) {
  const std::size_t rowSize = static_cast<std::size_t>(picture.width) * kRgbaBytes;
  const std::size_t padding = ico::rowStride(picture.width, bits) - ico::rowBytes(picture.width, bits);
  for (std::size_t row = picture.rgba.size(); row > 0; row -= rowSize) {
    for (std::size_t at = row - rowSize; at < row; at += kRgbaBytes) {
      for (const std::size_t channel : {2, 1, 0}) out.u8(picture.rgba[at + channel]);
      if (bits == kBitsWithAlpha) out.u8(picture.rgba[at + kAlpha]);
    }
    out.zeros(padding);
  }
}

void writeMask(const PngPicture& picture, ByteWriter& out) {
  const auto isMasked = [&](std::size_t pixel) -> unsigned {
    return picture.rgba[pixel * kRgbaBytes + kAlpha] < kMaskedBelow;
  };
  writeRows(picture.width, picture.height, 1, isMasked, out);
}

// The pixels as an image without alpha shows them: opaque, or transparent and black.
PngPicture masked(PngPicture picture) {
  picture.hasAlpha = false;
  for (std::size_t at = 0; at < picture.rgba.size(); at += kRgbaBytes) {
    const bool isTransparent = picture.rgba[at + kAlpha] < kMaskedBelow;
    if (isTransparent) std::fill_n(picture.rgba.begin() + static_cast<std::ptrdiff_t>(at), kAlpha, std::uint8_t{0});
    picture.rgba[at + kAlpha] = isTransparent ? 0 : kPngOpaque;
    picture.hasAlpha |= isTransparent;
  }
  return picture;
}

// As it is, with black where it is fully transparent.
PngPicture withAlpha(PngPicture picture) {
  for (std::size_t at = 0; at < picture.rgba.size(); at += kRgbaBytes)
    if (picture.rgba[at + kAlpha] == 0)
      std::fill_n(picture.rgba.begin() + static_cast<std::ptrdiff_t>(at), kAlpha, std::uint8_t{0});
  picture.hasAlpha = true;
  return picture;
}

// The pixels that an image of this depth shows.
PngPicture pixelsOfDepth(const PngPicture& picture, int bits, bool dithers) {
  if (bits == kBitsWithAlpha) return withAlpha(picture);
  PngPicture shown = masked(picture);
  if (bits <= kPaletteDepth.bits && !indexedPicture(shown, std::size_t{1} << bits)) reduceColors(shown, bits, dithers);
  return shown;
}

}  // namespace

int bitsForColors(std::size_t colors) {
  for (const ColorDepth& depth : kPaletteDepths)
    if (colors <= static_cast<std::size_t>(depth.colors)) return depth.bits;
  return kBitsWithoutAlpha;
}

int bitsNeeded(const PngPicture& picture) {
  if (hasPartAlpha(picture)) return kBitsWithAlpha;
  const auto indexed = indexedPicture(masked(picture), kPaletteDepth.colors);
  return indexed ? bitsForColors(indexed->palette.size()) : kBitsWithoutAlpha;
}

std::vector<std::uint8_t> composeImage(const PngPicture& picture, int bits) {
  ByteWriter out;
  writeHeader(picture, bits, out);
  const auto indexed = bits <= kPaletteDepth.bits ? indexedPicture(picture, std::size_t{1} << bits) : std::nullopt;
  if (indexed) {
    writePalette(*indexed, bits, out);
    writeRows(
        picture.width, picture.height, bits, [&](std::size_t pixel) -> unsigned { return indexed->indices[pixel]; },
        out);
  } else {
    writeTrueRows(picture, bits, out);
  }
  writeMask(picture, out);
  return out.take();
}

MadeImage makeImage(const PngPicture& picture, const MakeSettings& settings) {
  const int bits = settings.bits == kAutoBits ? bitsNeeded(picture) : settings.bits;
  const PngPicture shown = pixelsOfDepth(picture, bits, settings.dithers);
  if (std::max(picture.width, picture.height) <= settings.pngAbove)
    return {picture.width, picture.height, bits, false, composeImage(shown, bits)};
  return {picture.width, picture.height, shown.hasAlpha ? kBitsWithAlpha : kBitsWithoutAlpha, true, encodePng(shown)};
}

}  // namespace gp
