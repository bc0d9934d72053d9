#include "files/IconDecoder.h"

#include "document/IconContainerRec.h"
#include "files/IcoLayout.h"
#include "platform/files/ByteReader.h"

#include <algorithm>
#include <array>
#include <vector>

namespace gp {
namespace {

constexpr int kOpaque = 255;
constexpr int kBytesPerTrueColor24 = 3;
constexpr int kBytesPerTrueColor32 = 4;
constexpr int kTrueColorBits24 = 24;
constexpr int kTrueColorBits32 = 32;
constexpr std::array<std::uint32_t, 2> kMaskColors{storedForm(kBlack), storedForm(kWhite)};

// Blue, green, red as they stand in files.
std::uint32_t pixelAt(const std::uint8_t* bytes) {
  return static_cast<std::uint32_t>(bytes[2] | bytes[1] << 8 | bytes[0] << 16);
}

// How the rows of an image lie in its bytes.
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
  const int colors = ColorsForEntry(entry, entry.bitCount);
  const std::size_t maskStride = ico::rowStride(width, 1);
  if (colors < 1) {
    const int bits = entry.bitCount == kTrueColorBits24 ? kTrueColorBits24 : kTrueColorBits32;
    return {bits, 0, ico::trueRowStride(width, bits), maskStride};
  }
  const int bits = colors == 2 ? 1 : colors == 16 ? 4 : 8;
  return {bits, static_cast<std::size_t>(colors), ico::rowStride(width, bits), maskStride};
}

// `count` bytes of the file from a position on, with zeros for what it lacks: the row readers need no bounds checks.
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

void readPalette(const std::uint8_t* bytes, std::size_t count, Palette& palette) {
  for (std::size_t i = 0; i < count; ++i) palette[i] = pixelAt(bytes + i * ico::kPaletteEntrySize);
}

void readMonoRow(const std::uint8_t* row, const std::uint32_t* palette, std::uint32_t* out, int count) {
  for (int x = 0; x < count; ++x) out[x] = palette[row[x >> 3] >> (7 - (x & 7)) & 1];
}

void read16ColorRow(const std::uint8_t* row, const std::uint32_t* palette, std::uint32_t* out, int count) {
  for (int x = 0; x < count; ++x) out[x] = palette[x & 1 ? row[x >> 1] & 0xF : row[x >> 1] >> 4];
}

void read256ColorRow(const std::uint8_t* row, const std::uint32_t* palette, std::uint32_t* out, int count) {
  for (int x = 0; x < count; ++x) out[x] = palette[row[x]];
}

template <int BytesPerPixel>
void readTrueColorRow(const std::uint8_t* row, const std::uint32_t*, std::uint32_t* out, int count) {
  for (int x = 0; x < count; ++x) out[x] = pixelAt(row + x * BytesPerPixel);
}

// An alpha of 0 leaves the pixel opaque here: fully transparent pixels are told by the Mask alone.
void readAlphaRow(const std::uint8_t* row, std::uint8_t* out, int count) {
  for (int x = 0; x < count; ++x) {
    const std::uint8_t alpha = row[x * kBytesPerTrueColor32 + 3];
    out[x] = alpha == 0 ? kOpaque : alpha;
  }
}

using RowReader = void (*)(const std::uint8_t* row, const std::uint32_t* palette, std::uint32_t* out, int count);

RowReader rowReaderFor(int bits) {
  switch (bits) {
    case 1:
      return readMonoRow;
    case 4:
      return read16ColorRow;
    case 8:
      return read256ColorRow;
    case kTrueColorBits24:
      return readTrueColorRow<kBytesPerTrueColor24>;
    default:
      return readTrueColorRow<kBytesPerTrueColor32>;
  }
}

// Rows stand bottom row first.
void readRows(const std::uint8_t* rows, std::size_t stride, int width, int height, const std::uint32_t* palette,
              RowReader readRow, Surface& surface) {
  const int visible = std::min(width, surface.width());
  for (int y = std::min(height, surface.height()) - 1; y >= 0; --y) {
    const std::uint8_t* row = rows + static_cast<std::size_t>(height - 1 - y) * stride;
    readRow(row, palette, surface.rowForWriting(y, 0, visible), visible);
  }
}

void readAlpha(const std::uint8_t* rows, const ImageFormat& format, int width, int height, AlphaMatrix& alpha) {
  alpha = AlphaMatrix(width, height, kOpaque);
  if (format.bits != kTrueColorBits32) return;
  for (int y = 0; y < height; ++y)
    readAlphaRow(rows + static_cast<std::size_t>(height - 1 - y) * format.imageStride, &alpha.at(0, y), width);
}

bool hasRowFormat(int colors) { return colors < 1 || colors == 2 || colors == 16 || colors == ico::kMaxPaletteColors; }

IconDefect defectOfImage(std::span<const std::uint8_t> file, const IconEntry& entry) {
  if (isPngImage(file, entry)) return IconDefect::PngImage;
  return hasRowFormat(ColorsForEntry(entry, entry.bitCount)) ? IconDefect::None : IconDefect::StrangeDepth;
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
    case IconDefect::PngImage:
      return "a PNG image, not a bitmap";
    case IconDefect::StrangeDepth:
      return "not of 1, 4, 8, 24 or 32 bits per pixel";
    case IconDefect::StrangeTrueColor:
      return "true color, but not of 24 or 32 bits per pixel";
  }
  return "";
}

IconDefect decodeEntry(std::span<const std::uint8_t> file, const IconEntry& entry, int width, int height,
                       const IconPixels& pixels) {
  if (const IconDefect defect = defectOfImage(file, entry); defect != IconDefect::None) return defect;
  const ImageFormat format = formatOf(entry, width);
  const PaddedBytes image(file, std::uint64_t{entry.imageOffset} + ico::kBitmapHeaderSize, format.size(height));
  Palette palette;
  readPalette(image.data(), format.paletteCount, palette);

  const std::uint8_t* const imageRows = image.data() + format.paletteBytes();
  const std::uint8_t* const maskRows = imageRows + static_cast<std::size_t>(height) * format.imageStride;
  readRows(imageRows, format.imageStride, width, height, palette.data(), rowReaderFor(format.bits), pixels.image);
  readRows(maskRows, format.maskStride, width, height, kMaskColors.data(), readMonoRow, pixels.mask);
  if (format.paletteCount == 0) readAlpha(imageRows, format, width, height, pixels.alpha);
  return IconDefect::None;
}

IconDefect defectOfEntry(std::span<const std::uint8_t> file, const IconEntry& entry) {
  if (const IconDefect defect = defectOfImage(file, entry); defect != IconDefect::None) return defect;
  const bool shown = ColorsForEntry(entry, entry.bitCount) != kTrueColor || entry.bitCount == kTrueColorBits24 ||
                     entry.bitCount == kTrueColorBits32;
  return shown ? IconDefect::None : IconDefect::StrangeTrueColor;
}

}  // namespace gp
