#include "files/format/IconDecoder.h"

#include "files/format/IcoLayout.h"
#include "files/format/PngEntry.h"
#include "platform/files/ByteReader.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <vector>

namespace gp {
namespace {

constexpr std::uint32_t kOpaque = 255;
constexpr int kBytesPerTrueColor24 = 3;
constexpr int kBytesPerTrueColor32 = 4;

// A pixel stored as blue, green, red.
std::uint32_t pixelAt(const std::uint8_t* bytes) {
  return static_cast<std::uint32_t>(bytes[2] | bytes[1] << 8 | bytes[0] << 16);
}

// One load instead of four lets the compiler vectorize the row loops.
std::uint32_t littleEndian32(const std::uint8_t* bytes) {
  std::uint32_t value;
  std::memcpy(&value, bytes, sizeof value);
  if constexpr (std::endian::native == std::endian::big)
    value = (value << 24) | (value << 8 & 0xFF0000) | (value >> 8 & 0xFF00) | value >> 24;
  return value;
}

// The layout of the rows in the bytes of an image.
struct ImageFormat {
  int bits;                  // per pixel of the picture
  std::size_t paletteCount;  // 0 for true colour
  std::size_t imageStride;
  std::size_t maskStride;

  std::size_t paletteBytes() const { return paletteCount * ico::kPaletteEntrySize; }
  std::size_t size(int height) const {
    return paletteBytes() + static_cast<std::size_t>(height) * (imageStride + maskStride);
  }
};

ImageFormat formatOf(const IconEntry& entry, int width) {
  const ColorDepth depth = depthOfEntry(entry);
  const std::size_t maskStride = ico::rowStride(width, 1);
  if (depth.isTrueColor()) {
    const int bits = entry.bitCount == kBitsWithoutAlpha ? kBitsWithoutAlpha : kBitsWithAlpha;
    return {bits, 0, ico::trueRowStride(width, bits), maskStride};
  }
  const int bits = convBPP_Upto24(depth.colors);
  return {bits, static_cast<std::size_t>(depth.colors), ico::rowStride(width, bits), maskStride};
}

// `count` bytes of the file from a position on, with zeros beyond its end, so that the row readers need no bounds
// checks.
class PaddedBytes {
 public:
  PaddedBytes(std::span<const std::uint8_t> file, std::uint64_t at, std::size_t count) {
    const auto present = ByteReader(file).bytesAt(at, count);
    data_ = present.data();
    if (present.size() == count) return;
    copy_.assign(count, 0);
    std::ranges::copy(present, copy_.begin());
    data_ = copy_.data();
  }
  const std::uint8_t* data() const { return data_; }

 private:
  std::vector<std::uint8_t> copy_;
  const std::uint8_t* data_ = nullptr;
};

using Palette = std::array<std::uint32_t, ico::kMaxPaletteColors>;

// The four pixels of each half byte of a picture of two colours, so that rows are copied four pixels at a time.
constexpr int kPixelsPerHalf = 4;
constexpr int kPixelsPerByte = 2 * kPixelsPerHalf;
using MonoTable = std::array<std::uint32_t, 16 * kPixelsPerHalf>;

constexpr MonoTable monoTable(std::uint32_t zero, std::uint32_t one) {
  MonoTable table{};
  for (std::size_t i = 0; i < table.size(); ++i)
    table[i] = (i / kPixelsPerHalf >> (3 - i % kPixelsPerHalf) & 1) ? one : zero;
  return table;
}
constexpr MonoTable kMaskTable = monoTable(storedForm(kBlack), storedForm(kWhite));

void readMonoByte(unsigned byte, const std::uint32_t* table, std::uint32_t* out) {
  std::memcpy(out, table + (byte >> 4) * kPixelsPerHalf, kPixelsPerHalf * sizeof *out);
  std::memcpy(out + kPixelsPerHalf, table + (byte & 0xF) * kPixelsPerHalf, kPixelsPerHalf * sizeof *out);
}

void readMonoRow(const std::uint8_t* row, const std::uint32_t* table, std::uint32_t* out, int count) {
  int x = 0;
  for (; x + kPixelsPerByte <= count; x += kPixelsPerByte) readMonoByte(*row++, table, out + x);
  if (x == count) return;
  std::array<std::uint32_t, kPixelsPerByte> rest;
  readMonoByte(*row, table, rest.data());
  std::copy_n(rest.begin(), count - x, out + x);
}

void read16ColorRow(const std::uint8_t* row, const std::uint32_t* palette, std::uint32_t* out, int count) {
  for (; count >= 2; count -= 2, ++row) {
    *out++ = palette[*row >> 4];
    *out++ = palette[*row & 0xF];
  }
  if (count == 1) *out = palette[*row >> 4];
}

void read256ColorRow(const std::uint8_t* row, const std::uint32_t* palette, std::uint32_t* out, int count) {
  for (int x = 0; x < count; ++x) out[x] = palette[row[x]];
}

void read24BitRow(const std::uint8_t* row, const std::uint32_t*, std::uint32_t* out, int count) {
  for (int x = 0; x < count; ++x) out[x] = pixelAt(row + x * kBytesPerTrueColor24);
}

void read32BitRow(const std::uint8_t* row, const std::uint32_t*, std::uint32_t* out, int count) {
  for (int x = 0; x < count; ++x) {
    const std::uint32_t value = littleEndian32(row + x * kBytesPerTrueColor32);
    out[x] = (value >> 16 & 0xFF) | (value & 0xFF00) | (value & 0xFF) << 16;
  }
}

// An alpha of 0 leaves the pixel opaque here, because the Mask alone marks fully transparent pixels.
void readAlphaRow(const std::uint8_t* row, std::uint8_t* out, int count) {
  for (int x = 0; x < count; ++x) {
    const std::uint32_t alpha = littleEndian32(row + x * kBytesPerTrueColor32) >> 24;
    out[x] = static_cast<std::uint8_t>(alpha == 0 ? kOpaque : alpha);
  }
}

// The lookup table for the row reader of a format: the file's colours, or a MonoTable for two colours.
Palette paletteFor(const std::uint8_t* bytes, const ImageFormat& format) {
  Palette palette;
  // Palette entries have the layout of pixels.
  read32BitRow(bytes, nullptr, palette.data(), static_cast<int>(format.paletteCount));
  if (format.bits == kMonoDepth.bits) std::ranges::copy(monoTable(palette[0], palette[1]), palette.begin());
  return palette;
}

using RowReader = void (*)(const std::uint8_t* row, const std::uint32_t* palette, std::uint32_t* out, int count);

RowReader rowReaderFor(int bits) {
  switch (bits) {
    case kMonoDepth.bits:
      return readMonoRow;
    case kStandardDepth.bits:
      return read16ColorRow;
    case kPaletteDepth.bits:
      return read256ColorRow;
    case kBitsWithoutAlpha:
      return read24BitRow;
    default:
      return read32BitRow;
  }
}

// The bottom row is stored first.
Surface readRows(const std::uint8_t* rows, std::size_t stride, int width, int height, const std::uint32_t* palette,
                 RowReader readRow) {
  Surface surface(width, height);
  std::uint32_t* out = surface.rowsForWriting(0, height, 0, width);
  for (int y = 0; y < height; ++y, out += width)
    readRow(rows + static_cast<std::size_t>(height - 1 - y) * stride, palette, out, width);
  return surface;
}

AlphaMatrix readAlpha(const std::uint8_t* rows, const ImageFormat& format, int width, int height) {
  if (format.paletteCount != 0) return {};
  AlphaMatrix alpha(width, height, kOpaque);
  if (format.bits != kBitsWithAlpha) return alpha;
  for (int y = 0; y < height; ++y)
    readAlphaRow(rows + static_cast<std::size_t>(height - 1 - y) * format.imageStride, &alpha.at(0, y), width);
  return alpha;
}

bool hasRowFormat(ColorDepth depth) { return depth.isTrueColor() || isPaletteSize(depth.colors); }

DecodedIcon decodeBitmap(const IconFile& file, const IconEntry& entry, int width, int height) {
  const ImageFormat format = formatOf(entry, width);
  const PaddedBytes image(file.span(), std::uint64_t{entry.imageOffset} + ico::kBitmapHeaderSize, format.size(height));
  const Palette palette = paletteFor(image.data(), format);
  const std::uint8_t* const imageRows = image.data() + format.paletteBytes();
  const std::uint8_t* const maskRows = imageRows + static_cast<std::size_t>(height) * format.imageStride;
  return {IconDefect::None,
          {readRows(imageRows, format.imageStride, width, height, palette.data(), rowReaderFor(format.bits)),
           readRows(maskRows, format.maskStride, width, height, kMaskTable.data(), readMonoRow),
           readAlpha(imageRows, format, width, height)}};
}

}  // namespace

const char* describe(IconDefect defect) {
  switch (defect) {
    case IconDefect::None:
      return "no defect";
    case IconDefect::NotReadable:
      return "not a file that can be read";
    case IconDefect::NotAnIcon:
      return "not an icon file";
    case IconDefect::NoSuchEntry:
      return "no image of that index";
    case IconDefect::SizeNotOffered:
      return "icon not of size 16x16, 24x24, 32x32 or 48x48";
    case IconDefect::DamagedPng:
      return "a damaged PNG image";
    case IconDefect::StrangeDepth:
      return "not of 1, 4, 8, 24 or 32 bits per pixel";
    case IconDefect::StrangeTrueColor:
      return "true color, but not of 24 or 32 bits per pixel";
  }
  return "";
}

DecodedIcon decodeEntry(const IconFile& file, const IconEntry& entry, int width, int height) {
  if (width < 1 || height < 1) return {IconDefect::SizeNotOffered, {}};
  if (isPngImage(file, entry)) return decodePngEntry(file, entry, width, height);
  if (!hasRowFormat(depthOfEntry(entry))) return {IconDefect::StrangeDepth, {}};
  return decodeBitmap(file, entry, width, height);
}

IconDefect defectOfEntry(const IconFile& file, const IconEntry& entry) {
  const ColorDepth depth = depthOfEntry(shownEntry(file, entry));
  if (!hasRowFormat(depth)) return IconDefect::StrangeDepth;
  return depth.isShown() ? IconDefect::None : IconDefect::StrangeTrueColor;
}

}  // namespace gp
