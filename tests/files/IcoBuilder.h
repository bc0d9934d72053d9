// Builds icon files byte by byte for the tests of readers; every field can be given a wrong value. Shares no code with
// the program's writers.
#pragma once

#include "support/TempFolder.h"

#include <cstdint>
#include <fstream>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace gp::test {

using Bytes = std::vector<std::uint8_t>;

inline void put16(Bytes& out, std::uint32_t value) {
  out.push_back(static_cast<std::uint8_t>(value));
  out.push_back(static_cast<std::uint8_t>(value >> 8));
}
inline void put32(Bytes& out, std::uint32_t value) {
  put16(out, value & 0xFFFF);
  put16(out, value >> 16);
}
inline void append(Bytes& out, const Bytes& more) {
  for (const std::uint8_t byte : more) out.push_back(byte);
}

struct Rgb {
  int r = 0, g = 0, b = 0, a = 255;
};

// A picture by its depth and its value at x, y (y from the top).
struct Picture {
  int width = 32, height = 32, bits = 4;
  std::vector<Rgb> palette;
  std::function<int(int, int)> index = [](int, int) { return 0; };
  std::function<Rgb(int, int)> color = [](int, int) { return Rgb{}; };
  std::function<bool(int, int)> transparent = [](int, int) { return false; };
  // Fields of the bitmap header that are wrong on purpose.
  std::optional<int> headerBits, headerHeight, headerWidth;
  std::uint32_t headerSize = 40, compression = 0, colorsUsed = 0;
};

inline int defaultPaletteSize(int bits) { return bits <= 8 ? 1 << bits : 0; }

inline Bytes bitmapHeader(const Picture& p) {
  Bytes out;
  put32(out, p.headerSize);
  put32(out, static_cast<std::uint32_t>(p.headerWidth.value_or(p.width)));
  put32(out, static_cast<std::uint32_t>(p.headerHeight.value_or(2 * p.height)));
  put16(out, 1);
  put16(out, static_cast<std::uint32_t>(p.headerBits.value_or(p.bits)));
  put32(out, p.compression);
  for (int i = 0; i < 3; ++i) put32(out, 0);
  put32(out, p.colorsUsed);
  put32(out, 0);
  return out;
}

inline Bytes paletteBytes(const Picture& p) {
  Bytes out;
  for (int i = 0; i < defaultPaletteSize(p.bits); ++i) {
    const Rgb c =
        i < static_cast<int>(p.palette.size()) ? p.palette[static_cast<std::size_t>(i)] : Rgb{i, 2 * i % 256, 255 - i};
    for (int v : {c.b, c.g, c.r, 0}) out.push_back(static_cast<std::uint8_t>(v));
  }
  return out;
}

// Rows of `bits` per pixel, bottom row first, padded to 4 bytes.
inline Bytes packedRows(int width, int height, int bits, const std::function<int(int, int)>& value) {
  Bytes out;
  for (int y = height - 1; y >= 0; --y) {
    int held = 0, heldBits = 0;
    std::size_t start = out.size();
    for (int x = 0; x < width; ++x) {
      held = held << bits | value(x, y);
      heldBits += bits;
      if (heldBits == 8) out.push_back(static_cast<std::uint8_t>(held)), held = heldBits = 0;
    }
    if (heldBits) out.push_back(static_cast<std::uint8_t>(held << (8 - heldBits)));
    while ((out.size() - start) % 4) out.push_back(0);
  }
  return out;
}

inline Bytes trueRows(const Picture& p) {
  Bytes out;
  for (int y = p.height - 1; y >= 0; --y) {
    const std::size_t start = out.size();
    for (int x = 0; x < p.width; ++x) {
      const Rgb c = p.color(x, y);
      for (int v : {c.b, c.g, c.r}) out.push_back(static_cast<std::uint8_t>(v));
      if (p.bits == 32) out.push_back(static_cast<std::uint8_t>(c.a));
    }
    while ((out.size() - start) % 4) out.push_back(0);
  }
  return out;
}

inline Bytes maskRows(const Picture& p) {
  return packedRows(p.width, p.height, 1, [&](int x, int y) { return p.transparent(x, y) ? 1 : 0; });
}

inline Bytes imageBytes(const Picture& p) {
  Bytes out = bitmapHeader(p);
  append(out, paletteBytes(p));
  append(out, p.bits <= 8 ? packedRows(p.width, p.height, p.bits, p.index) : trueRows(p));
  append(out, maskRows(p));
  return out;
}

// One directory entry with its image.
struct Entry {
  int width = 32, height = 32, colorCount = 0, bitCount = 0;
  Bytes image;
  std::optional<std::uint32_t> bytesInRes, offset;  // wrong values, if any
};

inline Entry entryOf(const Picture& p, int colorCount, int bitCount) {
  Entry e;
  e.width = p.width;
  e.height = p.height;
  e.colorCount = colorCount;
  e.bitCount = bitCount;
  e.image = imageBytes(p);
  return e;
}
// With a correct directory.
inline Entry entryOf(const Picture& p) { return entryOf(p, p.bits == 1 ? 2 : p.bits == 4 ? 16 : 0, p.bits); }

struct IcoFile {
  std::vector<Entry> entries;
  int reserved = 0, type = 1;
  std::optional<int> count;  // the wrong value, if any
};

inline Bytes build(const IcoFile& file) {
  Bytes out;
  put16(out, static_cast<std::uint32_t>(file.reserved));
  put16(out, static_cast<std::uint32_t>(file.type));
  put16(out, static_cast<std::uint32_t>(file.count.value_or(static_cast<int>(file.entries.size()))));
  std::size_t at = 6 + 16 * file.entries.size();
  for (const Entry& e : file.entries) {
    for (int v : {e.width, e.height, e.colorCount, 0}) out.push_back(static_cast<std::uint8_t>(v));
    put16(out, 1);
    put16(out, static_cast<std::uint32_t>(e.bitCount));
    put32(out, e.bytesInRes.value_or(static_cast<std::uint32_t>(e.image.size())));
    put32(out, e.offset.value_or(static_cast<std::uint32_t>(at)));
    at += e.image.size();
  }
  for (const Entry& e : file.entries) append(out, e.image);
  return out;
}
inline Bytes build(const Entry& entry) { return build(IcoFile{{entry}, 0, 1, {}}); }

// Pictures whose content does not matter: every value occurs, and no two rows are equal.
inline Picture anyPicture(int size, int bits) {
  Picture p;
  p.width = p.height = size;
  p.bits = bits;
  p.index = [bits](int x, int y) { return (x * 7 + y * 13) % (1 << bits); };
  p.color = [](int x, int y) { return Rgb{x * 5, y * 5, x ^ y, 1 + (x + 48 * y) % 255}; };
  p.transparent = [](int x, int y) { return (x + 2 * y) % 3 == 0; };
  return p;
}

inline Entry anyEntry(int size, int bits) { return entryOf(anyPicture(size, bits)); }

// A folder of built files, removed after its test.
class IconFolder : public TempFolder {
 public:
  std::string path(const std::string& name) const { return file(name); }
  std::string write(const std::string& name, const Bytes& bytes) const {
    return TempFolder::write(name, std::string(bytes.begin(), bytes.end()));
  }
  std::string folder() const { return TempFolder::path(); }
};

inline Bytes bytesOf(const std::string& path) {
  std::ifstream stream(path, std::ios::binary);
  return Bytes(std::istreambuf_iterator<char>(stream), {});
}

}  // namespace gp::test
