#include "files/format/IconFileBytes.h"

#include "files/format/IcoDirectory.h"
#include "files/format/IcoLayout.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace gp {
namespace {

// Most icon files fit in this and are read at once. A directory may be longer.
constexpr std::size_t kFirstPart = 256 * 1024;

// Far above what the images of any real file take; of one that lies, no more than this is read.
constexpr std::uint64_t kMostRead = std::uint64_t{64} << 20;

// Where the bytes are that a reader can want, as far as kMostRead allows: the directory, and each image once, however
// many entries share it.
std::vector<FileRange> wantedRanges(const IconDirectory& directory) {
  std::vector<std::uint64_t> offsets;
  for (const IconEntry& entry : directory.entries) offsets.push_back(entry.imageOffset);
  std::ranges::sort(offsets);
  std::vector<FileRange> ranges{{0, ico::kMaxDirectorySize}};
  std::uint64_t taken = ico::kMaxDirectorySize;
  for (const std::uint64_t offset : offsets) {
    FileRange& last = ranges.back();
    const std::uint64_t begin = std::max(offset, last.end);
    const std::uint64_t end = std::min(std::max(offset + ico::kLargestImage, last.end), begin + kMostRead - taken);
    taken += end - begin;
    if (begin == last.end)
      last.end = end;
    else if (begin < end)
      ranges.push_back({begin, end});
  }
  return ranges;
}

}  // namespace

std::optional<FileBytes> readIconFile(const std::string& path) {
  auto start = readFileStart(path, kFirstPart);
  if (!start || start->span().size() < kFirstPart) return start;
  const IconDirectory begun = parseIconDirectory(start->span());
  if (!begun.isIcon() && !begun.isCursor()) return start;
  const auto directoryBytes = readFileStart(path, ico::kMaxDirectorySize);
  if (!directoryBytes) return std::nullopt;
  return readFileRanges(path, wantedRanges(parseIconDirectory(directoryBytes->span())));
}

}  // namespace gp
