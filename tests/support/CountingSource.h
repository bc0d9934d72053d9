// Bytes in memory that count what is read of them.
#pragma once

#include "platform/files/ByteSource.h"

namespace gp::test {

class CountingSource : public ByteSource {
 public:
  explicit CountingSource(std::span<const std::uint8_t> bytes) : source_(bytes) {}
  std::uint64_t size() const override { return source_.size(); }
  std::size_t read(std::uint64_t at, std::span<std::uint8_t> into) const override {
    const std::size_t count = source_.read(at, into);
    ++reads_;
    bytes_ += count;
    return count;
  }

  std::size_t reads() const { return reads_; }
  std::size_t bytes() const { return bytes_; }
  void restart() const { reads_ = bytes_ = 0; }

 private:
  MemorySource source_;
  mutable std::size_t reads_ = 0, bytes_ = 0;
};

}  // namespace gp::test
