#include "platform/codec/BitmapPicture.h"

#include "platform/codec/BitmapForm.h"

#include <algorithm>
#include <array>
#include <bit>
#include <optional>

namespace gp {
namespace {

constexpr std::uint32_t kMaxPalette = 256;
constexpr int kBitsPerByte = 8;

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

Palette readPalette(ByteReader& reader, const BitmapForm& form) {
  Palette palette;
  palette.fill({0, 0, 0, kPngOpaque});
  for (std::uint32_t i = 0; i < form.colors; ++i) {
    const std::uint32_t entry = reader.u32At(form.palette + std::uint64_t{i} * form.paletteEntry);
    palette[i] = {static_cast<std::uint8_t>(entry >> 16), static_cast<std::uint8_t>(entry >> 8),
                  static_cast<std::uint8_t>(entry), kPngOpaque};
  }
  return palette;
}

void readPaletteRow(const std::uint8_t* row, const BitmapForm& form, const Palette& palette, std::uint8_t* out) {
  const unsigned ones = (1U << form.bits) - 1;
  for (int x = 0; x < form.width; ++x, out += kChannels) {
    const int bit = x * form.bits;
    const unsigned index = row[bit / kBitsPerByte] >> (kBitsPerByte - form.bits - bit % kBitsPerByte) & ones;
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

void readMaskedRow(const std::uint8_t* row, const BitmapForm& form, std::uint8_t* out) {
  const Channel red(form.masks[kRed]), green(form.masks[kGreen]), blue(form.masks[kBlue]), alpha(form.masks[kAlpha]);
  const int bytes = form.bits / kBitsPerByte;
  for (int x = 0; x < form.width; ++x, row += bytes, out += kChannels) {
    std::uint32_t pixel = 0;
    for (int i = 0; i < bytes; ++i) pixel |= std::uint32_t{row[i]} << i * kBitsPerByte;
    out[kRed] = red.of(pixel, 0);
    out[kGreen] = green.of(pixel, 0);
    out[kBlue] = blue.of(pixel, 0);
    out[kAlpha] = alpha.of(pixel, kPngOpaque);
  }
}

void readRow(const std::uint8_t* row, const BitmapForm& form, const Palette& palette, std::uint8_t* out) {
  if (form.bits <= kMaxPaletteBits)
    readPaletteRow(row, form, palette, out);
  else if (form.bits == 24)
    read24Row(row, form.width, out);
  else if (form.masks == kMasks32)
    readPlain32Row(row, form.width, out);
  else
    readMaskedRow(row, form, out);
}

// The row of the file that is row y of the picture from the top.
std::uint64_t storedRow(const BitmapForm& form, int y) {
  return static_cast<std::uint64_t>(form.isTopFirst ? y : form.height - 1 - y);
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
DecodedBitmap decodeRows(ByteReader& reader, const BitmapForm& form) {
  const std::size_t stride = dib::rowStride(form.width, form.bits);
  const auto stored = reader.bytesAt(form.rows, form.rowsSize(form.bits));
  if (stored.size() != form.rowsSize(form.bits)) return {BitmapDefect::CutShort, {}};
  const Palette palette = readPalette(reader, form);
  PngPicture picture{form.width, form.height, false, {}};
  const std::size_t rowSize = static_cast<std::size_t>(form.width) * kChannels;
  picture.rgba.resize(rowSize * static_cast<std::size_t>(form.height));
  for (int y = 0; y < form.height; ++y)
    readRow(stored.data() + storedRow(form, y) * stride, form, palette,
            picture.rgba.data() + static_cast<std::size_t>(y) * rowSize);
  const bool mayHaveAlpha = form.bits > kMaxPaletteBits && form.bits != 24 && form.masks[kAlpha] != 0;
  picture.hasAlpha = mayHaveAlpha && hasAnyAlpha(picture.rgba);
  if (!picture.hasAlpha) makeOpaque(picture.rgba);
  return {BitmapDefect::None, std::move(picture)};
}

// 1 where the Mask is set, for each pixel; 0 where it is cut short.
std::vector<std::uint8_t> readMask(ByteReader& reader, const BitmapForm& form) {
  const std::size_t stride = dib::rowStride(form.width, 1);
  std::vector<std::uint8_t> mask(static_cast<std::size_t>(form.width) * static_cast<std::size_t>(form.height));
  auto out = mask.begin();
  for (int y = 0; y < form.height; ++y) {
    const auto row = reader.bytesAt(form.rowsEnd() + storedRow(form, y) * stride, stride);
    for (int x = 0; x < form.width; ++x, ++out) {
      const auto byte = static_cast<std::size_t>(x / kBitsPerByte);
      if (byte < row.size()) *out = row[byte] >> (kBitsPerByte - 1 - x % kBitsPerByte) & 1;
    }
  }
  return mask;
}

// Where the Mask is set, alpha becomes 0.
void applyMask(const std::vector<std::uint8_t>& mask, PngPicture& picture) {
  for (std::size_t i = 0; i < mask.size(); ++i)
    if (mask[i] != 0) picture.rgba[i * kChannels + kAlpha] = 0;
}

BitmapDefect readIconForm(ByteReader& reader, std::uint64_t statedSize, PngLimits limits, BitmapForm& form) {
  const BitmapDefect defect = readBitmapForm(reader, 0, 2, limits, form);
  if (defect == BitmapDefect::None) placeRows(statedSize, form.rowsSize(form.bits) + form.rowsSize(1), form);
  return defect;
}

}  // namespace

bool isBitmapFile(std::span<const std::uint8_t> bytes) {
  return bytes.size() >= 2 && bytes[0] == 'B' && bytes[1] == 'M';
}

DecodedBitmap decodeBitmapFile(std::span<const std::uint8_t> bytes, PngLimits limits) {
  if (!isBitmapFile(bytes)) return {BitmapDefect::NotBitmap, {}};
  ByteReader reader(bytes);
  BitmapForm form;
  if (const BitmapDefect defect = readBitmapForm(reader, dib::kFileHeaderSize, 1, limits, form);
      defect != BitmapDefect::None)
    return {defect, {}};
  placeRows(0, 0, form);
  form.rows = reader.u32At(dib::kFilePixelsOffset);
  return decodeRows(reader, form);
}

std::optional<BitmapFacts> iconBitmapFacts(std::span<const std::uint8_t> bytes, std::uint64_t statedSize,
                                           PngLimits limits) {
  ByteReader reader(bytes);
  BitmapForm form;
  if (readIconForm(reader, statedSize, limits, form) != BitmapDefect::None || form.rowsEnd() > bytes.size())
    return std::nullopt;
  return BitmapFacts{form.width, form.height, form.bits, form.rowsEnd()};
}

MaskedBitmap decodeMaskedBitmap(std::span<const std::uint8_t> bytes, std::uint64_t statedSize, PngLimits limits) {
  ByteReader reader(bytes);
  BitmapForm form;
  if (const BitmapDefect defect = readIconForm(reader, statedSize, limits, form); defect != BitmapDefect::None)
    return {defect, {}, {}, false};
  DecodedBitmap decoded = decodeRows(reader, form);
  if (!decoded.isRead()) return {decoded.defect, {}, {}, false};
  return {BitmapDefect::None, std::move(decoded.picture), readMask(reader, form),
          form.rowsEnd() + form.rowsSize(1) <= bytes.size()};
}

DecodedBitmap decodeIconBitmap(std::span<const std::uint8_t> bytes, std::uint64_t statedSize, PngLimits limits) {
  MaskedBitmap decoded = decodeMaskedBitmap(bytes, statedSize, limits);
  if (!decoded.isRead()) return {decoded.defect, {}};
  if (!decoded.picture.hasAlpha) applyMask(decoded.mask, decoded.picture);
  decoded.picture.hasAlpha = true;
  return {BitmapDefect::None, std::move(decoded.picture)};
}

}  // namespace gp
