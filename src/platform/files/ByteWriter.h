// Builds a file in memory from little-endian values. The writer owns the bytes until take() returns them.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace gp {

class ByteWriter {
 public:
  ByteWriter() = default;
  // Reserves memory for `expectedSize` bytes; more can be written.
  explicit ByteWriter(std::size_t expectedSize) { bytes_.reserve(expectedSize); }

  void u8(std::uint8_t value) { bytes_.push_back(value); }
  void u16(std::uint16_t value) { append(value, 2); }
  void u32(std::uint32_t value) { append(value, 4); }
  void i16(std::int16_t value) { u16(static_cast<std::uint16_t>(value)); }
  void i32(std::int32_t value) { u32(static_cast<std::uint32_t>(value)); }
  void bytes(std::span<const std::uint8_t> values) { bytes_.insert(bytes_.end(), values.begin(), values.end()); }
  void text(std::string_view characters) { bytes_.insert(bytes_.end(), characters.begin(), characters.end()); }
  void zeros(std::size_t count) { bytes_.resize(bytes_.size() + count); }
  // Overwrites a value written earlier, such as a size known only at the end. [at, at + 4) must have been written.
  void setU32(std::size_t at, std::uint32_t value) {
    for (int i = 0; i < 4; ++i) bytes_.at(at + i) = static_cast<std::uint8_t>(value >> (i * kBitsPerByte));
  }

  std::size_t size() const { return bytes_.size(); }
  std::span<const std::uint8_t> span() const { return bytes_; }
  std::vector<std::uint8_t> take() { return std::exchange(bytes_, {}); }

 private:
  static constexpr int kBitsPerByte = 8;

  void append(std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i) u8(static_cast<std::uint8_t>(value >> (i * kBitsPerByte)));
  }

  std::vector<std::uint8_t> bytes_;
};

}  // namespace gp
