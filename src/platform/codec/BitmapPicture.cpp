#include "platform/codec/BitmapPicture.h"

#include "platform/files/BitmapLayout.h"
#include "platform/files/ByteReader.h"

#include <algorithm>
#include <array>
#include <bit>
#include <optional>

namespace gp {
namespace {

constexpr std::size_t kPaletteEntrySize = 4;
constexpr std::size_t kMaskSize = 4;
constexpr std::uint32_t kMaxPalette = 256;
constexpr int kMaxPaletteBits = 8;
constexpr int kBitsPerByte = 8;
constexpr std::size_t kRed = 0, kGreen = 1, kBlue = 2, kAlpha = 3, kChannels = 4;
constexpr std::array kDepths{1, 2, 4, 8, 16, 24, 32};

enum Compression : std::uint32_t { kPlain = 0, kBitFields = 3, kAlphaBitFields = 6 };

using ChannelMasks = std::array<std::uint32_t, kChannels>;
constexpr ChannelMasks kMasks16{0x7C00, 0x03E0, 0x001F, 0};
constexpr ChannelMasks kMasks32{0xFF0000, 0x00FF00, 0x0000FF, 0xFF000000};

struct Layout {
  int width = 0;
  int height = 0;
  bool isTopFirst = false;
  int bits = 0;
  ChannelMasks masks{};  // of 16 and 32 bits
  std::uint64_t palette = 0;
  std::uint32_t colors = 0;
  std::uint64_t rows = 0;
};

std::uint32_t fullPalette(int bits) { return bits <= kMaxPaletteBits ? 1U << bits : 0; }

// Places palette and rows. A short palette moves the rows, but some writers state a short palette and write a full one:
// the size of the whole shows which.
void placeRows(std::uint32_t stated, std::uint64_t wholeSize, std::uint64_t rowBytes, Layout& layout) {
  const std::uint32_t full = fullPalette(layout.bits);
  const bool isShort =
      stated != 0 && stated < full && layout.palette + full * kPaletteEntrySize + rowBytes != wholeSize;
  layout.colors = isShort ? stated : full;
  layout.rows = layout.palette + std::uint64_t{layout.colors} * kPaletteEntrySize;
}

ChannelMasks readMasks(ByteReader& reader, std::uint64_t header, bool withAlpha) {
  ChannelMasks masks{};
  for (std::size_t i = 0; i < (withAlpha ? kChannels : kAlpha); ++i)
    masks[i] = reader.u32At(header + dib::kHeaderMasks + i * kMaskSize);
  return masks;
}

// The masks of the channels; sets where the palette begins.
ChannelMasks channelMasks(ByteReader& reader, std::uint64_t header, std::uint32_t compression, Layout& layout) {
  const std::uint32_t size = reader.u32At(header);
  layout.palette = header + size;
  if (compression == kPlain) return layout.bits == 16 ? kMasks16 : kMasks32;
  const bool withAlpha = compression == kAlphaBitFields || size >= dib::kHeaderWithAlphaMask;
  if (size == dib::kHeaderSize) layout.palette += (withAlpha ? kChannels : kAlpha) * kMaskSize;
  return readMasks(reader, header, withAlpha);
}

bool isKnown(int bits, std::uint32_t compression) {
  if (compression == kPlain) return std::ranges::find(kDepths, bits) != kDepths.end();
  return (compression == kBitFields || compression == kAlphaBitFields) && (bits == 16 || bits == 32);
}

// Reads everything but the place of the rows. The stated height is `heights` times that of the picture.
BitmapDefect readHeader(ByteReader& reader, std::uint64_t header, int heights, PngLimits limits, Layout& layout) {
  if (!reader.contains(header, dib::kHeaderSize) || reader.u32At(header) < dib::kHeaderSize)
    return BitmapDefect::NotBitmap;
  layout.bits = reader.u16At(header + dib::kHeaderBitCount);
  const std::uint32_t compression = reader.u32At(header + dib::kHeaderCompression);
  if (!isKnown(layout.bits, compression)) return BitmapDefect::Unsupported;
  const std::int64_t width = reader.i32At(header + dib::kHeaderWidth);
  const std::int64_t rows = reader.i32At(header + dib::kHeaderHeight);
  const std::int64_t height = std::abs(rows) / heights;
  if (width < 1 || height < 1 || width > limits.width || height > limits.height) return BitmapDefect::TooLarge;
  layout.width = static_cast<int>(width);
  layout.height = static_cast<int>(height);
  layout.isTopFirst = rows < 0;
  layout.masks = channelMasks(reader, header, compression, layout);
  return BitmapDefect::None;
}

// The bits of a mask as a number from 0 to 255, rounded.
class Channel {
 public:
  explicit Channel(std::uint32_t mask) : mask_(mask), shift_(mask == 0 ? 0 : std::countr_zero(mask)) {
    most_ = mask_ >> shift_;
  }
  std::uint8_t of(std::uint32_t pixel, std::uint8_t without) const {
    if (mask_ == 0) return without;
    const std::uint64_t value = (pixel & mask_) >> shift_;
    return static_cast<std::uint8_t>((value * kPngOpaque + most_ / 2) / most_);
  }

 private:
  std::uint32_t mask_;
  int shift_;
  std::uint32_t most_;
};

using Rgba = std::array<std::uint8_t, kChannels>;
using Palette = std::array<Rgba, kMaxPalette>;

Palette readPalette(ByteReader& reader, const Layout& layout) {
  Palette palette;
  palette.fill({0, 0, 0, kPngOpaque});
  for (std::uint32_t i = 0; i < layout.colors; ++i) {
    const std::uint32_t entry = reader.u32At(layout.palette + std::uint64_t{i} * kPaletteEntrySize);
    palette[i] = {static_cast<std::uint8_t>(entry >> 16), static_cast<std::uint8_t>(entry >> 8),
                  static_cast<std::uint8_t>(entry), kPngOpaque};
  }
  return palette;
}

void readPaletteRow(const std::uint8_t* row, const Layout& layout, const Palette& palette, std::uint8_t* out) {
  const unsigned ones = (1U << layout.bits) - 1;
  for (int x = 0; x < layout.width; ++x, out += kChannels) {
    const int bit = x * layout.bits;
    const unsigned index = row[bit / kBitsPerByte] >> (kBitsPerByte - layout.bits - bit % kBitsPerByte) & ones;
    std::ranges::copy(palette[index], out);
  }
}

void read24Row(const std::uint8_t* row, int width, std::uint8_t* out) {
  for (int x = 0; x < width; ++x, row += 3, out += kChannels) {
    out[kRed] = row[2];
    out[kGreen] = row[1];
    out[kBlue] = row[0];
    out[kAlpha] = kPngOpaque;
  }
}

void readPlain32Row(const std::uint8_t* row, int width, std::uint8_t* out) {
  for (int x = 0; x < width; ++x, row += kChannels, out += kChannels) {
    out[kRed] = row[2];
    out[kGreen] = row[1];
    out[kBlue] = row[0];
    out[kAlpha] = row[3];
  }
}

void readMaskedRow(const std::uint8_t* row, const Layout& layout, std::uint8_t* out) {
  const Channel red(layout.masks[kRed]), green(layout.masks[kGreen]), blue(layout.masks[kBlue]),
      alpha(layout.masks[kAlpha]);
  const int bytes = layout.bits / kBitsPerByte;
  for (int x = 0; x < layout.width; ++x, row += bytes, out += kChannels) {
    std::uint32_t pixel = 0;
    for (int i = 0; i < bytes; ++i) pixel |= std::uint32_t{row[i]} << i * kBitsPerByte;
    out[kRed] = red.of(pixel, 0);
    out[kGreen] = green.of(pixel, 0);
    out[kBlue] = blue.of(pixel, 0);
    out[kAlpha] = alpha.of(pixel, kPngOpaque);
  }
}

void readRow(const std::uint8_t* row, const Layout& layout, const Palette& palette, std::uint8_t* out) {
  if (layout.bits <= kMaxPaletteBits)
    readPaletteRow(row, layout, palette, out);
  else if (layout.bits == 24)
    read24Row(row, layout.width, out);
  else if (layout.masks == kMasks32)
    readPlain32Row(row, layout.width, out);
  else
    readMaskedRow(row, layout, out);
}

std::uint64_t rowsSize(const Layout& layout, int bits) {
  return dib::rowStride(layout.width, bits) * static_cast<std::uint64_t>(layout.height);
}

// The row of the file that is row y of the picture from the top.
std::uint64_t storedRow(const Layout& layout, int y) {
  return static_cast<std::uint64_t>(layout.isTopFirst ? y : layout.height - 1 - y);
}

// The alpha bytes of all pixels, every fourth byte.
bool hasAnyAlpha(const std::vector<std::uint8_t>& rgba) {
  for (std::size_t at = kAlpha; at < rgba.size(); at += kChannels)
    if (rgba[at] != 0) return true;
  return false;
}

void makeOpaque(std::vector<std::uint8_t>& rgba) {
  for (std::size_t at = kAlpha; at < rgba.size(); at += kChannels) rgba[at] = kPngOpaque;
}

// Sets hasAlpha when the pixels have alpha values; without, they are opaque.
DecodedBitmap decodeRows(ByteReader& reader, const Layout& layout) {
  const std::size_t stride = dib::rowStride(layout.width, layout.bits);
  const auto stored = reader.bytesAt(layout.rows, rowsSize(layout, layout.bits));
  if (stored.size() != rowsSize(layout, layout.bits)) return {BitmapDefect::CutShort, {}};
  const Palette palette = readPalette(reader, layout);
  PngPicture picture{layout.width, layout.height, false, {}};
  const std::size_t rowSize = static_cast<std::size_t>(layout.width) * kChannels;
  picture.rgba.resize(rowSize * static_cast<std::size_t>(layout.height));
  for (int y = 0; y < layout.height; ++y)
    readRow(stored.data() + storedRow(layout, y) * stride, layout, palette,
            picture.rgba.data() + static_cast<std::size_t>(y) * rowSize);
  const bool mayHaveAlpha = layout.bits > kMaxPaletteBits && layout.bits != 24 && layout.masks[kAlpha] != 0;
  picture.hasAlpha = mayHaveAlpha && hasAnyAlpha(picture.rgba);
  if (!picture.hasAlpha) makeOpaque(picture.rgba);
  return {BitmapDefect::None, std::move(picture)};
}

// Where the Mask is set, alpha becomes 0.
void applyMask(ByteReader& reader, const Layout& layout, PngPicture& picture) {
  const std::size_t stride = dib::rowStride(layout.width, 1);
  const std::uint64_t mask = layout.rows + rowsSize(layout, layout.bits);
  std::size_t out = kAlpha;
  for (int y = 0; y < layout.height; ++y) {
    const auto row = reader.bytesAt(mask + storedRow(layout, y) * stride, stride);
    for (int x = 0; x < layout.width; ++x, out += kChannels) {
      const auto byte = static_cast<std::size_t>(x / kBitsPerByte);
      if (byte < row.size() && (row[byte] << x % kBitsPerByte & 0x80) != 0) picture.rgba[out] = 0;
    }
  }
}

}  // namespace

bool isBitmapFile(std::span<const std::uint8_t> bytes) {
  return bytes.size() >= 2 && bytes[0] == 'B' && bytes[1] == 'M';
}

DecodedBitmap decodeBitmapFile(std::span<const std::uint8_t> bytes, PngLimits limits) {
  if (!isBitmapFile(bytes)) return {BitmapDefect::NotBitmap, {}};
  ByteReader reader(bytes);
  Layout layout;
  if (const BitmapDefect defect = readHeader(reader, dib::kFileHeaderSize, 1, limits, layout);
      defect != BitmapDefect::None)
    return {defect, {}};
  placeRows(reader.u32At(dib::kFileHeaderSize + dib::kHeaderColorsUsed), 0, 0, layout);
  layout.rows = reader.u32At(dib::kFilePixelsOffset);
  return decodeRows(reader, layout);
}

DecodedBitmap decodeIconBitmap(std::span<const std::uint8_t> bytes, std::uint64_t statedSize, PngLimits limits) {
  ByteReader reader(bytes);
  Layout layout;
  if (const BitmapDefect defect = readHeader(reader, 0, 2, limits, layout); defect != BitmapDefect::None)
    return {defect, {}};
  placeRows(reader.u32At(dib::kHeaderColorsUsed), statedSize, rowsSize(layout, layout.bits) + rowsSize(layout, 1),
            layout);
  DecodedBitmap decoded = decodeRows(reader, layout);
  if (!decoded.isRead()) return decoded;
  if (!decoded.picture.hasAlpha) applyMask(reader, layout, decoded.picture);
  decoded.picture.hasAlpha = true;
  return decoded;
}

}  // namespace gp
