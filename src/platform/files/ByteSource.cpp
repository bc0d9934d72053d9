#include "platform/files/ByteSource.h"

#include "platform/files/OpenFile.h"

#include <algorithm>
#include <limits>

namespace gp {
namespace {

class FileSource final : public ByteSource {
 public:
  explicit FileSource(OpenFile open) : open_(std::move(open)) {}
  std::uint64_t size() const override { return open_.size(); }
  std::size_t read(std::uint64_t at, std::span<std::uint8_t> into) const override {
    if (at > static_cast<std::uint64_t>(std::numeric_limits<off_t>::max()) - into.size()) return 0;
    return readAt(open_.file.number(), at, into.data(), into.size()).value_or(0);
  }

 private:
  OpenFile open_;
};

}  // namespace

std::size_t MemorySource::read(std::uint64_t at, std::span<std::uint8_t> into) const {
  if (at >= bytes_.size()) return 0;
  const auto part = bytes_.subspan(at, std::min<std::uint64_t>(into.size(), bytes_.size() - at));
  std::ranges::copy(part, into.begin());
  return part.size();
}

std::unique_ptr<ByteSource> openByteSource(const std::string& path) {
  auto open = openToRead(path);
  return open ? std::make_unique<FileSource>(std::move(*open)) : nullptr;
}

}  // namespace gp
