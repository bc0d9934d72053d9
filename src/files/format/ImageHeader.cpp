#include "files/format/ImageHeader.h"

#include "files/format/IcoLayout.h"
#include "platform/files/ByteReader.h"

#include <algorithm>
#include <array>

namespace gp {
namespace {

// Offsets in a PNG picture, whose numbers are big-endian.
constexpr std::size_t kPngWidth = 16;
constexpr std::size_t kPngHeight = 20;
constexpr std::size_t kPngSizeEnd = 24;

constexpr int kMaxPaletteBits = 8;
constexpr int kBitsPerByte = 8;
constexpr std::array<int, 7> kKnownBits{1, 2, 4, 8, 16, 24, 32};

std::uint32_t bigEndian32(std::uint32_t value) {
  return value << 24 | (value << 8 & 0xFF0000) | (value >> 8 & 0xFF00) | value >> 24;
}

ImageHeader readPngHeader(ByteReader& reader, ByteReader::Position at) {
  ImageHeader header;
  header.isPng = true;
  header.width = bigEndian32(reader.u32At(at + kPngWidth));
  header.rows = bigEndian32(reader.u32At(at + kPngHeight));
  return header;
}

ImageHeader readBitmapHeader(ByteReader& reader, ByteReader::Position at) {
  ImageHeader header;
  header.width = reader.i32At(at + dib::kHeaderWidth);
  header.rows = reader.i32At(at + dib::kHeaderHeight);
  header.bits = reader.u16At(at + dib::kHeaderBitCount);
  header.compression = reader.u32At(at + dib::kHeaderCompression);
  header.colorsUsed = reader.u32At(at + dib::kHeaderColorsUsed);
  return header;
}

// The sizes may be wrong, so the computation uses 64 bits.
std::uint64_t strideOf(std::uint64_t width, int bits) {
  const std::uint64_t bytes = (width * static_cast<std::uint64_t>(bits) + kBitsPerByte - 1) / kBitsPerByte;
  return (bytes + dib::kRowAlignment - 1) / dib::kRowAlignment * dib::kRowAlignment;
}

std::uint64_t sizeOf(std::int64_t side) { return static_cast<std::uint64_t>(side < 0 ? -side : side); }

}  // namespace

std::uint32_t ImageHeader::paletteForBits() const { return bits >= 1 && bits <= kMaxPaletteBits ? 1U << bits : 0; }

std::uint32_t ImageHeader::paletteStated() const {
  const std::uint32_t most = paletteForBits();
  return colorsUsed == 0 ? most : std::min(most, colorsUsed);
}

std::uint64_t ImageHeader::bytesNeeded(std::uint32_t paletteEntries) const {
  const bool isKnown = isPlain() && std::ranges::find(kKnownBits, bits) != kKnownBits.end();
  if (isPng || !isKnown) return ico::kBitmapHeaderSize;
  const std::uint64_t row = strideOf(sizeOf(width), bits) + strideOf(sizeOf(width), 1);
  return ico::kBitmapHeaderSize + std::uint64_t{paletteEntries} * ico::kPaletteEntrySize + row * (sizeOf(rows) / 2);
}

std::optional<ImageHeader> readImageHeader(const IconFile& file, const IconEntry& entry) {
  ByteReader reader(file.span());
  const ByteReader::Position at = entry.imageOffset;
  const bool isPng = isPngImage(file, entry);
  if (!reader.contains(at, isPng ? kPngSizeEnd : ico::kBitmapHeaderSize)) return std::nullopt;
  return isPng ? readPngHeader(reader, at) : readBitmapHeader(reader, at);
}

}  // namespace gp
