#include "files/format/IconFile.h"

#include "files/format/IcoLayout.h"
#include "files/format/PngEntry.h"
#include "platform/codec/Png.h"
#include "platform/files/ByteReader.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace gp {
namespace {

// Most icon files are no larger and are read at once. A directory may be longer.
constexpr std::size_t kFirstPart = 256 * 1024;

// Far above the size of the images of any real file. Of a file with wrong offsets, no more than this is read.
constexpr std::uint64_t kMostRead = std::uint64_t{64} << 20;

// The parts of the file that a reader can use, up to kMostRead: the directory, and each image once, even if several
// entries share it.
std::vector<FileRange> wantedRanges(const IconDirectory& directory) {
  std::vector<FileRange> images;
  for (const IconEntry& entry : directory.entries)
    images.push_back({entry.imageOffset, std::uint64_t{entry.imageOffset} + ico::readSize(entry.bytesInRes)});
  std::ranges::sort(images, {}, &FileRange::begin);
  std::vector<FileRange> ranges{{0, ico::kMaxDirectorySize}};
  std::uint64_t taken = ico::kMaxDirectorySize;
  for (const FileRange& image : images) {
    FileRange& last = ranges.back();
    const std::uint64_t begin = std::max(image.begin, last.end);
    const std::uint64_t end = std::min(std::max(image.end, last.end), begin + kMostRead - taken);
    taken += end - begin;
    if (begin == last.end)
      last.end = end;
    else if (begin < end)
      ranges.push_back({begin, end});
  }
  return ranges;
}

std::optional<IconFile> parsed(std::optional<FileBytes> bytes) {
  return bytes ? std::optional(parseIconFile(std::move(*bytes))) : std::nullopt;
}

// The directory is needed before the images can be read, and may be longer than the first part.
std::optional<IconFile> readWantedRanges(const std::string& path) {
  const auto directory = readFileStart(path, ico::kMaxDirectorySize);
  if (!directory) return std::nullopt;
  return parsed(readFileRanges(path, wantedRanges(parseIconDirectory(directory->span()))));
}

}  // namespace

IconFile parseIconFile(FileBytes bytes) {
  IconDirectory directory = parseIconDirectory(bytes.span());
  return {std::move(bytes), std::move(directory)};
}

std::optional<IconFile> readIconFile(const std::string& path) {
  auto start = parsed(readFileStart(path, kFirstPart));
  const bool isWhole = !start || start->span().size() < kFirstPart;
  return isWhole || (!start->isIcon() && !start->isCursor()) ? std::move(start) : readWantedRanges(path);
}

std::optional<IconFile> readWholeIconFile(const std::string& path) { return parsed(readFile(path)); }

int headerBitCount(const IconFile& file, const IconEntry& entry) {
  if (isPngImage(file, entry)) return pngBitCount(file, entry);
  return ByteReader(file.span()).u16At(ByteReader::Position{entry.imageOffset} + ico::kHeaderBitCount);
}

bool isPngImage(const IconFile& file, const IconEntry& entry) {
  return isPng(ByteReader(file.span()).bytesAt(entry.imageOffset, kPngSignature.size()));
}

}  // namespace gp
