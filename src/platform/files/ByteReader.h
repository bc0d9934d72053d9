// Reads little-endian values from untrusted bytes. The reader does not own the bytes: the span must outlive it. Reading
// never fails and never leaves the span: missing bytes read as zero and set beyondEnd().
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <span>

namespace gp {

class ByteReader {
 public:
  // Positions are 64 bits wide, so that sums of 32-bit offsets and sizes from a file cannot wrap.
  using Position = std::uint64_t;

  constexpr explicit ByteReader(std::span<const std::uint8_t> bytes, Position position = 0)
      : bytes_(bytes), position_(position) {}

  // Values at an absolute position; the reader's current position does not change.
  constexpr std::uint8_t u8At(Position at) { return static_cast<std::uint8_t>(read(at, 1)); }
  constexpr std::uint16_t u16At(Position at) { return static_cast<std::uint16_t>(read(at, 2)); }
  constexpr std::uint32_t u32At(Position at) { return read(at, 4); }
  constexpr std::int32_t i32At(Position at) { return static_cast<std::int32_t>(u32At(at)); }

  // Values at the current position, which advances past them.
  constexpr std::uint8_t u8() { return static_cast<std::uint8_t>(next(1)); }
  constexpr std::uint16_t u16() { return static_cast<std::uint16_t>(next(2)); }
  constexpr std::uint32_t u32() { return next(4); }
  constexpr std::int16_t i16() { return static_cast<std::int16_t>(u16()); }
  constexpr std::int32_t i32() { return static_cast<std::int32_t>(u32()); }

  constexpr void seek(Position position) { position_ = position; }
  // Advances by `count`; stops at the largest position instead of wrapping.
  constexpr void skip(Position count) { position_ = sum(position_, count); }
  constexpr Position position() const { return position_; }
  constexpr Position size() const { return bytes_.size(); }
  constexpr Position remaining() const { return position_ < size() ? size() - position_ : 0; }

  // Returns true when [at, at + count) lies inside the bytes.
  constexpr bool contains(Position at, Position count) const { return at <= size() && count <= size() - at; }
  // Returns the part of [at, at + count) that lies inside the bytes. Sets beyondEnd() when that is not all of it.
  constexpr std::span<const std::uint8_t> bytesAt(Position at, Position count) {
    if (!contains(at, count)) beyondEnd_ = true;
    const Position first = std::min(at, size());
    return bytes_.subspan(first, std::min(count, size() - first));
  }

  // True when a byte behind the end has been requested.
  constexpr bool beyondEnd() const { return beyondEnd_; }

 private:
  static constexpr int kBitsPerByte = 8;

  static constexpr Position sum(Position a, Position b) {
    constexpr Position largest = std::numeric_limits<Position>::max();
    return b > largest - a ? largest : a + b;
  }
  constexpr std::uint32_t next(int count) {
    const std::uint32_t value = read(position_, count);
    skip(static_cast<Position>(count));
    return value;
  }
  constexpr std::uint32_t read(Position at, int count) {
    if (!contains(at, static_cast<Position>(count))) return readPart(at, count);
    std::uint32_t value = 0;
    for (int i = 0; i < count; ++i) value |= std::uint32_t{bytes_[at + i]} << (i * kBitsPerByte);
    return value;
  }
  constexpr std::uint32_t readPart(Position at, int count) {
    beyondEnd_ = true;
    std::uint32_t value = 0;
    for (int i = 0; i < count && at < size() && i < static_cast<int>(size() - at); ++i)
      value |= std::uint32_t{bytes_[at + i]} << (i * kBitsPerByte);
    return value;
  }

  std::span<const std::uint8_t> bytes_;
  Position position_ = 0;
  bool beyondEnd_ = false;
};

}  // namespace gp
