#include "platform/files/WholePicture.h"

#include "platform/files/ByteReader.h"

#include <algorithm>
#include <array>

namespace gp {
namespace {

namespace jpeg {
constexpr int kMark = 0xFF;
constexpr int kStartOfScan = 0xDA;
constexpr std::array<std::uint8_t, 2> kEnd = {kMark, 0xD9};
constexpr int kFirstSegment = 2;
}  // namespace jpeg

namespace gif {
constexpr int kScreenFlags = 10;
constexpr int kHeaderSize = 13;
constexpr int kExtension = 0x21;
constexpr int kPicture = 0x2C;
constexpr int kPictureFlags = 8;  // counted from the byte after the block's first one
constexpr int kPictureHeaderSize = 9;
}  // namespace gif

namespace png {
constexpr int kSignatureSize = 8;
constexpr int kChunkExtra = 8;  // type and checksum
constexpr std::uint32_t kEnd = 0x49454E44;
}  // namespace png

std::uint32_t bigEndian(ByteReader& reader, int bytes) {
  std::uint32_t value = 0;
  for (int i = 0; i < bytes; ++i) value = value << 8 | reader.u8();
  return value;
}

// Returns the size in bytes of the colour table that a screen's or picture's flags announce, 0 for none.
ByteReader::Position colorTableSize(int flags) {
  constexpr int kHasTable = 0x80;
  constexpr int kSizeBits = 7;
  return flags & kHasTable ? ByteReader::Position{6} << (flags & kSizeBits) : 0;
}

void skipBlocks(ByteReader& reader) {
  int size = 0;
  while ((size = reader.u8()) != 0) reader.skip(static_cast<ByteReader::Position>(size));
}

}  // namespace

bool isWholeJpeg(std::span<const std::uint8_t> bytes) {
  ByteReader reader(bytes, jpeg::kFirstSegment);
  while (!reader.beyondEnd()) {
    if (reader.u8() != jpeg::kMark) return false;
    while (reader.u8At(reader.position()) == jpeg::kMark) reader.skip(1);
    const int kind = reader.u8();
    if (kind == jpeg::kStartOfScan) break;
    // The length includes its own two bytes.
    reader.skip(std::max(bigEndian(reader, 2), 2U) - 2);
  }
  const auto scans = bytes.subspan(std::min(reader.position(), reader.size()));
  return std::search(scans.begin(), scans.end(), jpeg::kEnd.begin(), jpeg::kEnd.end()) != scans.end();
}

bool isWholeGif(std::span<const std::uint8_t> bytes) {
  ByteReader reader(bytes, gif::kHeaderSize);
  reader.skip(colorTableSize(reader.u8At(gif::kScreenFlags)));
  while (!reader.beyondEnd()) {
    const int block = reader.u8();
    if (block != gif::kExtension && block != gif::kPicture) return false;
    if (block == gif::kPicture)
      reader.skip(gif::kPictureHeaderSize + colorTableSize(reader.u8At(reader.position() + gif::kPictureFlags)));
    reader.skip(1);  // the type of an extension, or the code size of a picture
    skipBlocks(reader);
    if (block == gif::kPicture) break;
  }
  return !reader.beyondEnd();
}

std::size_t wholePngSize(std::span<const std::uint8_t> bytes) {
  ByteReader reader(bytes, png::kSignatureSize);
  while (!reader.beyondEnd()) {
    const std::uint32_t length = bigEndian(reader, 4);
    ByteReader type(bytes, reader.position());
    const bool isLast = bigEndian(type, 4) == png::kEnd;
    if (!reader.contains(reader.position(), ByteReader::Position{length} + png::kChunkExtra)) return 0;
    reader.skip(ByteReader::Position{length} + png::kChunkExtra);
    if (isLast) return static_cast<std::size_t>(reader.position());
  }
  return 0;
}

bool isWholePng(std::span<const std::uint8_t> bytes) { return wholePngSize(bytes) != 0; }

}  // namespace gp
