// Bytes that are read in parts: a file of which only some parts are needed, or bytes in memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace gp {

class ByteSource {
 public:
  virtual ~ByteSource() = default;
  // The size in bytes when it was opened. A file can become shorter afterwards.
  virtual std::uint64_t size() const = 0;
  // Reads from a position on until `into` is full or the bytes end. Returns the number of bytes read; the rest of
  // `into` is unchanged. Can be called on several threads at once.
  virtual std::size_t read(std::uint64_t at, std::span<std::uint8_t> into) const = 0;
};

// Bytes in memory, which must outlive it.
class MemorySource final : public ByteSource {
 public:
  explicit MemorySource(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}
  std::uint64_t size() const override { return bytes_.size(); }
  std::size_t read(std::uint64_t at, std::span<std::uint8_t> into) const override;

 private:
  std::span<const std::uint8_t> bytes_;
};

// Opens a file to read it in parts. Null when it is not a regular file or cannot be opened. Never blocks.
std::unique_ptr<ByteSource> openByteSource(const std::string& path);

}  // namespace gp
