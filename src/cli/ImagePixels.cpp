#include "cli/ImagePixels.h"

#include "colour/ColorCount.h"
#include "files/format/IcoLayout.h"
#include "files/format/IconDecoder.h"
#include "platform/files/ByteReader.h"

#include <algorithm>

namespace gp::cli {
namespace {

constexpr std::int64_t kLargestSide = 256;  // stored as 0
constexpr int kBitsPerByte = 8;
constexpr std::uint8_t kOpaque = 255;

bool isReadable(const ImageHeader& header) {
  const std::int64_t height = header.rows / 2;
  return !header.isPng && header.isPlain() && header.width >= 1 && header.width <= kLargestSide && height >= 1 &&
         height <= kLargestSide;
}

// A short palette moves the rows, but some writers state a short palette and write a full one. The size of the image
// shows which.
std::uint32_t paletteWritten(const IconEntry& entry, const ImageHeader& header) {
  const std::uint32_t full = header.paletteForBits();
  return entry.bytesInRes == header.bytesNeeded(full) ? full : header.paletteStated();
}

bool hasAlpha(const AlphaMatrix& alpha) {
  for (int y = 0; y < alpha.height(); ++y)
    for (int x = 0; x < alpha.width(); ++x)
      if (alpha.at(x, y) != kOpaque) return true;
  return false;
}

constexpr std::size_t kTrueColorBytes = 4;
constexpr std::size_t kAlphaByte = 3;

struct AlphaCount {
  int opaqueInMask = 0;  // of the pixels with an alpha of 0
  bool isUsed = false;   // an alpha is not 0
};

// `row` contains as much of the row as the file has.
void countRow(std::span<const std::uint8_t> row, ByteReader mask, AlphaCount& count) {
  const std::size_t width = row.size() / kTrueColorBytes;
  for (std::size_t x = 0; x < width; ++x) {
    const bool isVisible = row[x * kTrueColorBytes + kAlphaByte] != 0;
    const bool isMasked = mask.u8At(mask.position() + x / kBitsPerByte) >> (kBitsPerByte - 1 - x % kBitsPerByte) & 1;
    count.isUsed |= isVisible;
    count.opaqueInMask += !isVisible && !isMasked;
  }
}

unsigned highestIndexInRow(std::span<const std::uint8_t> row, int width, int bits) {
  const unsigned ones = (1U << bits) - 1;
  unsigned highest = 0;
  for (int x = 0; x < width; ++x) {
    const auto at = static_cast<std::size_t>(x * bits / kBitsPerByte);
    if (at >= row.size()) break;
    highest = std::max(highest, row[at] >> (kBitsPerByte - bits - x * bits % kBitsPerByte) & ones);
  }
  return highest;
}

}  // namespace

std::optional<ColorDepth> measureDepth(const IconFile& file, const IconEntry& entry, const ImageHeader& header) {
  const bool isFull = paletteWritten(entry, header) == header.paletteForBits();
  if (!isReadable(header) || !depthOfBits(header.bits).isShown() || !isFull) return std::nullopt;
  IconEntry described = entry;
  described.colorCount = 0;
  described.bitCount = header.bits;
  const int width = static_cast<int>(header.width), height = static_cast<int>(header.rows / 2);
  const DecodedIcon decoded = decodeEntry(file, described, width, height);
  if (!decoded.isRead()) return std::nullopt;
  int colors = 0;
  GetColorBitCount_Image(decoded.icon.image, colors);
  if (decoded.icon.hasAlphaValues() && hasAlpha(decoded.icon.alpha)) colors = kTrueColor;
  return depthOfColors(colors, header.bits == kBitsWithAlpha);
}

std::optional<unsigned> highestIndex(const IconFile& file, const IconEntry& entry, const ImageHeader& header) {
  const std::uint32_t palette = header.paletteStated();
  if (!isReadable(header) || palette == header.paletteForBits()) return std::nullopt;
  const int width = static_cast<int>(header.width);
  const std::size_t stride = dib::rowStride(width, header.bits);
  ByteReader reader(file.span(), entry.imageOffset + ico::kBitmapHeaderSize +
                                     std::uint64_t{paletteWritten(entry, header)} * ico::kPaletteEntrySize);
  unsigned highest = 0;
  for (std::int64_t y = 0; y < header.rows / 2; ++y, reader.skip(stride))
    highest = std::max(highest, highestIndexInRow(reader.bytesAt(reader.position(), stride), width, header.bits));
  return highest;
}

int countOpenedOpaque(const IconFile& file, const IconEntry& entry, const ImageHeader& header) {
  if (!isReadable(header) || header.bits != kBitsWithAlpha) return 0;
  const int width = static_cast<int>(header.width);
  const auto height = static_cast<std::uint64_t>(header.rows / 2);
  const std::size_t stride = dib::rowStride(width, header.bits), maskStride = dib::rowStride(width, 1);
  const std::uint64_t start = std::uint64_t{entry.imageOffset} + ico::kBitmapHeaderSize;
  AlphaCount count;
  for (std::uint64_t y = 0; y < height; ++y)
    countRow(ByteReader(file.span()).bytesAt(start + y * stride, stride),
             ByteReader(file.span(), start + height * stride + y * maskStride), count);
  return count.isUsed ? count.opaqueInMask : 0;
}

}  // namespace gp::cli
