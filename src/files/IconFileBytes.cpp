#include "files/IconFileBytes.h"

#include "files/IcoDirectory.h"
#include "files/IcoLayout.h"

#include <algorithm>
#include <cstdint>

namespace gp {
namespace {

// Most icon files fit in this and are read at once. A directory may be longer.
constexpr std::size_t kFirstPart = 256 * 1024;

// Where the last byte ends that a reader can want.
std::size_t extentOf(const IconDirectory& directory) {
  std::size_t extent = ico::kMaxDirectorySize;
  for (const IconEntry& entry : directory.entries)
    extent = std::max(extent, std::size_t{entry.imageOffset} + ico::kLargestImage);
  return extent;
}

}  // namespace

std::optional<FileBytes> readIconFile(const std::string& path) {
  auto start = readFileStart(path, kFirstPart);
  if (!start || start->span().size() < kFirstPart) return start;
  const IconDirectory begun = parseIconDirectory(start->span());
  if (!begun.isIcon() && !begun.isCursor()) return start;
  const auto directoryBytes = readFileStart(path, ico::kMaxDirectorySize);
  if (!directoryBytes) return std::nullopt;
  return readFileStart(path, extentOf(parseIconDirectory(directoryBytes->span())));
}

}  // namespace gp
