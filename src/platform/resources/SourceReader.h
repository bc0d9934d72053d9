// Reads little-endian values from a ByteSource. It keeps pages of the source, so that values that are near each other
// cost one read. Missing bytes are zero. One reader is used by one thread.
#pragma once

#include "platform/files/ByteSource.h"

#include <array>
#include <cstdint>
#include <vector>

namespace gp {

class SourceReader {
 public:
  // The source must outlive it.
  explicit SourceReader(const ByteSource& source) : source_(source), size_(source.size()) {}

  std::uint64_t size() const { return size_; }
  // True when [at, at + count) is inside the source.
  bool contains(std::uint64_t at, std::uint64_t count) const { return at <= size_ && count <= size_ - at; }
  std::uint8_t u8(std::uint64_t at);
  std::uint16_t u16(std::uint64_t at) { return static_cast<std::uint16_t>(u8(at) | u8(at + 1) << 8); }
  std::uint32_t u32(std::uint64_t at) { return u16(at) | std::uint32_t{u16(at + 2)} << 16; }

 private:
  static constexpr std::size_t kPageSize = 8192;
  static constexpr std::size_t kPages = 32;

  struct Page {
    std::uint64_t number = 0;
    std::vector<std::uint8_t> bytes;  // empty before its first use
  };

  void fill(Page& page, std::uint64_t number);

  const ByteSource& source_;
  std::uint64_t size_;
  std::array<Page, kPages> pages_;
};

}  // namespace gp
