// Builds PNG pictures chunk by chunk for the tests of readers; every field can be given a wrong value. Shares no code
// with the program's encoder: the data is stored uncompressed.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace gp::test {

using PngBytes = std::vector<std::uint8_t>;

inline void putBig32(PngBytes& out, std::uint32_t value) {
  for (int shift = 24; shift >= 0; shift -= 8) out.push_back(static_cast<std::uint8_t>(value >> shift));
}

inline std::uint32_t crcOf(const PngBytes& bytes) {
  std::uint32_t crc = 0xFFFFFFFF;
  for (const std::uint8_t byte : bytes) {
    crc ^= byte;
    for (int i = 0; i < 8; ++i) crc = crc >> 1 ^ (crc & 1 ? 0xEDB88320 : 0);
  }
  return ~crc;
}

struct PngChunk {
  std::string type;  // four letters
  PngBytes data;
  bool hasRightCrc = true;
  std::optional<std::uint32_t> length;  // the wrong value, if any
};

inline void putChunk(PngBytes& out, const PngChunk& chunk) {
  putBig32(out, chunk.length.value_or(static_cast<std::uint32_t>(chunk.data.size())));
  PngBytes body(chunk.type.begin(), chunk.type.end());
  body.insert(body.end(), chunk.data.begin(), chunk.data.end());
  out.insert(out.end(), body.begin(), body.end());
  putBig32(out, crcOf(body) ^ (chunk.hasRightCrc ? 0 : 1));
}

// A zlib stream of stored blocks.
inline PngBytes zlibStored(const PngBytes& raw) {
  constexpr std::size_t kMostInBlock = 0xFFFF;
  PngBytes out{0x78, 0x01};
  for (std::size_t at = 0; at < raw.size() || at == 0; at += kMostInBlock) {
    const std::size_t count = std::min(kMostInBlock, raw.size() - at);
    out.push_back(at + count == raw.size());
    for (const std::size_t value : {count, ~count})
      for (const int shift : {0, 8}) out.push_back(static_cast<std::uint8_t>(value >> shift));
    out.insert(out.end(), raw.begin() + static_cast<std::ptrdiff_t>(at),
               raw.begin() + static_cast<std::ptrdiff_t>(at + count));
  }
  std::uint32_t a = 1, b = 0;
  for (const std::uint8_t byte : raw) b = (b + (a = (a + byte) % 65521)) % 65521;
  putBig32(out, b << 16 | a);
  return out;
}

// Writes codes of a deflate stream, the least significant bit first.
class DeflateBits {
 public:
  explicit DeflateBits(PngBytes& out) : out_(out) {}
  ~DeflateBits() {
    if (held_) out_.push_back(byte_);
  }
  // Huffman codes begin with their most significant bit.
  void code(int value, int bits) {
    while (bits-- > 0) bit(value >> bits & 1);
  }

 private:
  void bit(int value) {
    byte_ = static_cast<std::uint8_t>(byte_ | value << held_);
    if (++held_ == 8) out_.push_back(byte_), byte_ = 0, held_ = 0;
  }
  PngBytes& out_;
  std::uint8_t byte_ = 0;
  int held_ = 0;
};

// A zlib stream of 1 + 258 x `repeats` zeros, which take 13 bits for 258 of them.
inline PngBytes zlibOfZeros(std::size_t repeats) {
  PngBytes out{0x78, 0x01};
  {
    DeflateBits bits(out);
    bits.code(0b110, 3);       // the last block, with the fixed codes
    bits.code(0b00110000, 8);  // a zero
    for (std::size_t i = 0; i < repeats; ++i) {
      bits.code(0b11000101, 8);  // 258 bytes
      bits.code(0, 5);           // at the distance of 1
    }
    bits.code(0, 7);  // the end
  }
  putBig32(out, static_cast<std::uint32_t>((1 + 258 * repeats) % 65521) << 16 | 1);
  return out;
}

namespace png {
inline constexpr int kGray = 0, kRgb = 2, kPalette = 3, kGrayAlpha = 4, kRgba = 6;
}

// A picture by its samples at x, y (y from the top): as many values as the colour type has channels.
struct PngFile {
  std::uint32_t width = 32, height = 32;
  int bitDepth = 8, colorType = png::kRgba;
  bool isInterlaced = false;
  std::function<std::vector<int>(int, int)> samples = [](int, int) { return std::vector<int>(4, 0); };
  std::vector<PngChunk> beforeData = {};
  std::vector<PngChunk> afterData = {};
  // What takes the place of correct values.
  std::optional<PngBytes> data = {};  // of the IDAT chunk
  std::optional<std::uint32_t> statedWidth = {}, statedHeight = {};
  int dataChunks = 1;
  bool hasRightHeaderCrc = true, hasRightDataCrc = true, hasEnd = true;
};

inline int channelsOf(const PngFile& file) {
  return std::array{1, 0, 3, 1, 2, 0, 4}[static_cast<std::size_t>(file.colorType)];
}

// Adds the row y of the pixels x, x + step, ... without a filter.
inline void putPngRow(PngBytes& out, const PngFile& file, int x, int y, int step) {
  out.push_back(0);
  unsigned held = 0;
  int heldBits = 0;
  for (; x < static_cast<int>(file.width); x += step) {
    for (const int sample : file.samples(x, y)) {
      if (file.bitDepth == 16) out.push_back(static_cast<std::uint8_t>(sample >> 8));
      held = held << file.bitDepth | static_cast<unsigned>(sample);
      heldBits += file.bitDepth;
      if (heldBits >= 8) out.push_back(static_cast<std::uint8_t>(held)), heldBits = 0;
    }
  }
  if (heldBits) out.push_back(static_cast<std::uint8_t>(held << (8 - heldBits)));
}

inline PngBytes rawPngRows(const PngFile& file) {
  struct Pass {
    int x, y, stepX, stepY;
  };
  constexpr std::array<Pass, 7> kPasses{
      {{0, 0, 8, 8}, {4, 0, 8, 8}, {0, 4, 4, 8}, {2, 0, 4, 4}, {0, 2, 2, 4}, {1, 0, 2, 2}, {0, 1, 1, 2}}};
  PngBytes out;
  const int width = static_cast<int>(file.width), height = static_cast<int>(file.height);
  if (!file.isInterlaced)
    for (int y = 0; y < height; ++y) putPngRow(out, file, 0, y, 1);
  else
    for (const Pass& pass : kPasses)
      for (int y = pass.y; y < height && pass.x < width; y += pass.stepY) putPngRow(out, file, pass.x, y, pass.stepX);
  return out;
}

inline PngBytes build(const PngFile& file) {
  PngBytes out{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'}, header;
  putBig32(header, file.statedWidth.value_or(file.width));
  putBig32(header, file.statedHeight.value_or(file.height));
  for (const int value : {file.bitDepth, file.colorType, 0, 0, file.isInterlaced ? 1 : 0})
    header.push_back(static_cast<std::uint8_t>(value));
  putChunk(out, {"IHDR", header, file.hasRightHeaderCrc, {}});
  for (const PngChunk& chunk : file.beforeData) putChunk(out, chunk);
  const PngBytes data = file.data ? *file.data : zlibStored(rawPngRows(file));
  const std::size_t part = data.size() / static_cast<std::size_t>(std::max(file.dataChunks, 1)) + 1;
  for (std::size_t at = 0; file.dataChunks > 0 && at < data.size(); at += part) {
    const std::size_t end = std::min(data.size(), at + part);
    putChunk(out, {"IDAT",
                   {data.begin() + static_cast<std::ptrdiff_t>(at), data.begin() + static_cast<std::ptrdiff_t>(end)},
                   file.hasRightDataCrc,
                   {}});
  }
  for (const PngChunk& chunk : file.afterData) putChunk(out, chunk);
  if (file.hasEnd) putChunk(out, {"IEND", {}, true, {}});
  return out;
}

// Red, green, blue and alpha of a picture whose content does not matter: every alpha occurs, and no two rows are equal.
inline std::vector<int> anyRgba(int x, int y) { return {x * 5 % 256, y * 5 % 256, (x ^ y) % 256, (x + 48 * y) % 256}; }

inline PngFile anyPng(int size, int colorType = png::kRgba) {
  PngFile file;
  file.width = file.height = static_cast<std::uint32_t>(size);
  file.colorType = colorType;
  const int channels = channelsOf(file);
  file.samples = [channels](int x, int y) {
    std::vector<int> all = anyRgba(x, y);
    if (channels == 2) return std::vector{all[0], all[3]};
    all.resize(static_cast<std::size_t>(channels));
    return all;
  };
  return file;
}

}  // namespace gp::test
