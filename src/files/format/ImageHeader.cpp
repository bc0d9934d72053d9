#include "files/format/ImageHeader.h"

#include "files/format/IcoLayout.h"
#include "platform/codec/Png.h"
#include "platform/files/ByteReader.h"

#include <algorithm>
#include <array>

namespace gp {
namespace {

constexpr int kMaxPaletteBits = 8;
constexpr int kBitsPerByte = 8;
constexpr std::array<int, 7> kKnownBits{1, 2, 4, 8, 16, 24, 32};

std::optional<ImageHeader> readPictureHeader(std::span<const std::uint8_t> picture) {
  const auto stated = readPngHeader(picture);
  if (!stated) return std::nullopt;
  ImageHeader header;
  header.isPng = true;
  header.width = stated->width;
  header.rows = stated->height;
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
  if (isPngImage(file, entry)) return readPictureHeader(reader.bytesAt(at, kPngHeaderSize));
  if (!reader.contains(at, ico::kBitmapHeaderSize)) return std::nullopt;
  return readBitmapHeader(reader, at);
}

}  // namespace gp
