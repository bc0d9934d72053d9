#include "platform/codec/Png.h"
#include "platform/files/ByteReader.h"

#include <algorithm>

namespace gp {
namespace {

// Offsets in the file. All numbers are big-endian.
constexpr std::size_t kHeaderType = 12;
constexpr std::size_t kWidth = 16;
constexpr std::size_t kHeight = 20;
constexpr std::size_t kBitDepth = 24;
constexpr std::size_t kColorType = 25;
constexpr std::size_t kSecondChunk = kPngHeaderSize + 4;

constexpr std::uint64_t kChunkExtra = 12;  // length, type and check sum
constexpr int kMostChunksSearched = 64;
constexpr int kAlphaInColorType = 4;

constexpr std::uint32_t chunkType(char a, char b, char c, char d) {
  return static_cast<std::uint32_t>(a << 24 | b << 16 | c << 8 | d);
}
constexpr std::uint32_t kHeaderChunk = chunkType('I', 'H', 'D', 'R');
constexpr std::uint32_t kTransparencyChunk = chunkType('t', 'R', 'N', 'S');
constexpr std::uint32_t kDataChunk = chunkType('I', 'D', 'A', 'T');

std::uint32_t bigEndianAt(ByteReader& reader, ByteReader::Position at) {
  const std::uint32_t value = reader.u32At(at);
  return value << 24 | (value << 8 & 0xFF0000) | (value >> 8 & 0xFF00) | value >> 24;
}

bool hasTransparency(ByteReader& reader) {
  ByteReader::Position at = kSecondChunk;
  for (int i = 0; i < kMostChunksSearched && reader.contains(at, kChunkExtra); ++i) {
    const std::uint32_t type = bigEndianAt(reader, at + 4);
    if (type == kTransparencyChunk) return true;
    if (type == kDataChunk) return false;
    at += bigEndianAt(reader, at) + kChunkExtra;
  }
  return false;
}

}  // namespace

bool PngHeader::fits(PngLimits limits) const {
  return width >= 1 && height >= 1 && width <= static_cast<std::uint32_t>(limits.width) &&
         height <= static_cast<std::uint32_t>(limits.height);
}

bool isPng(std::span<const std::uint8_t> bytes) {
  return bytes.size() >= kPngSignature.size() && std::ranges::equal(bytes.first(kPngSignature.size()), kPngSignature);
}

std::optional<PngHeader> readPngHeader(std::span<const std::uint8_t> bytes) {
  ByteReader reader(bytes);
  if (!isPng(bytes) || bytes.size() < kPngHeaderSize || bigEndianAt(reader, kHeaderType) != kHeaderChunk)
    return std::nullopt;
  PngHeader header;
  header.width = bigEndianAt(reader, kWidth);
  header.height = bigEndianAt(reader, kHeight);
  header.bitDepth = reader.u8At(kBitDepth);
  header.colorType = reader.u8At(kColorType);
  header.hasAlpha = (header.colorType & kAlphaInColorType) != 0 || hasTransparency(reader);
  return header;
}

}  // namespace gp
