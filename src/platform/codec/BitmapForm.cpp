#include "platform/codec/BitmapForm.h"

#include <algorithm>
#include <cstdlib>

namespace gp {
namespace {

constexpr std::size_t kPaletteEntrySize = 4, kOldPaletteEntrySize = 3;
constexpr std::size_t kMaskSize = 4;
constexpr std::array kDepths{1, 2, 4, 8, 16, 24, 32};

enum Compression : std::uint32_t { kPlain = 0, kBitFields = 3, kAlphaBitFields = 6 };

// The fields of a header as stored.
struct Stated {
  std::int64_t width = 0;
  std::int64_t rows = 0;  // negative for a picture with the top row first
  int bits = 0;
  std::uint32_t compression = kPlain;
  std::uint32_t colors = 0;
};

std::uint32_t fullPalette(int bits) { return bits <= kMaxPaletteBits ? 1U << bits : 0; }

Stated readFields(ByteReader& reader, std::uint64_t header) {
  return {reader.i32At(header + dib::kHeaderWidth), reader.i32At(header + dib::kHeaderHeight),
          reader.u16At(header + dib::kHeaderBitCount), reader.u32At(header + dib::kHeaderCompression),
          reader.u32At(header + dib::kHeaderColorsUsed)};
}

Stated readOldFields(ByteReader& reader, std::uint64_t header) {
  return {reader.u16At(header + dib::kOldHeaderWidth), reader.u16At(header + dib::kOldHeaderHeight),
          reader.u16At(header + dib::kOldHeaderBitCount)};
}

ChannelMasks readMasks(ByteReader& reader, std::uint64_t header, bool withAlpha) {
  ChannelMasks masks{};
  for (std::size_t i = 0; i < (withAlpha ? kChannels : kAlpha); ++i)
    masks[i] = reader.u32At(header + dib::kHeaderMasks + i * kMaskSize);
  return masks;
}

// The masks of the channels; sets where the palette begins.
ChannelMasks channelMasks(ByteReader& reader, std::uint64_t header, std::uint32_t compression, BitmapForm& form) {
  const std::uint32_t size = reader.u32At(header);
  form.palette = header + size;
  if (compression == kPlain) return form.bits == 16 ? kMasks16 : kMasks32;
  const bool withAlpha = compression == kAlphaBitFields || size >= dib::kHeaderWithAlphaMask;
  if (size == dib::kHeaderSize) form.palette += (withAlpha ? kChannels : kAlpha) * kMaskSize;
  return readMasks(reader, header, withAlpha);
}

bool isKnown(int bits, std::uint32_t compression) {
  if (compression == kPlain) return std::ranges::find(kDepths, bits) != kDepths.end();
  return (compression == kBitFields || compression == kAlphaBitFields) && (bits == 16 || bits == 32);
}

}  // namespace

void placeRows(std::uint64_t wholeSize, std::uint64_t behindPalette, BitmapForm& form) {
  const std::uint32_t stated = form.statedColors, full = fullPalette(form.bits);
  const bool isShort =
      stated != 0 && stated < full && form.palette + full * form.paletteEntry + behindPalette != wholeSize;
  form.colors = isShort ? stated : full;
  form.rows = form.palette + std::uint64_t{form.colors} * form.paletteEntry;
}

BitmapDefect readBitmapForm(ByteReader& reader, std::uint64_t header, int heights, PngLimits limits, BitmapForm& form) {
  const bool isOld = reader.u32At(header) == dib::kOldHeaderSize;
  const std::size_t least = isOld ? dib::kOldHeaderSize : dib::kHeaderSize;
  if (!reader.contains(header, least) || reader.u32At(header) < least) return BitmapDefect::NotBitmap;
  const Stated stated = isOld ? readOldFields(reader, header) : readFields(reader, header);
  if (!isKnown(stated.bits, stated.compression)) return BitmapDefect::Unsupported;
  const std::int64_t height = std::abs(stated.rows) / heights;
  if (stated.width < 1 || height < 1 || stated.width > limits.width || height > limits.height)
    return BitmapDefect::TooLarge;
  form.width = static_cast<int>(stated.width);
  form.height = static_cast<int>(height);
  form.isTopFirst = stated.rows < 0;
  form.bits = stated.bits;
  form.paletteEntry = isOld ? kOldPaletteEntrySize : kPaletteEntrySize;
  form.statedColors = stated.colors;
  form.masks = channelMasks(reader, header, stated.compression, form);
  return BitmapDefect::None;
}

}  // namespace gp
