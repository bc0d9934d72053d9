// Large icon files, of which only the directory and the parts that images can occupy are read. The images of the input
// are moved far apart in a file with holes; it must read like the whole file.
#include "FuzzIcons.h"
#include "files/cursor/CursorLoading.h"
#include "files/format/IcoLayout.h"
#include "files/format/IconProbe.h"

namespace {

using gp::fuzz::Bytes;
using gp::fuzz::Choices;
using gp::fuzz::require;

constexpr std::size_t kLargestInput = 1 << 14;
constexpr int kMostMoved = 16;
constexpr std::uint32_t kLargestPart = 4096;  // of an image that is moved
// The input also chooses the size of the file, down to the smallest one that is not read at once.
constexpr std::uint64_t kSmallestFile = 256 * 1024;
constexpr std::uint64_t kSizeStep = 16 * 1024;
constexpr std::uint64_t kLargestFile = kSmallestFile + 255 * kSizeStep;
// Moves even the first image behind the largest directory, which is always read.
constexpr std::uint64_t kSpread = 65536;

struct Moved {
  std::uint32_t offset;
  std::span<const std::uint8_t> image;
};

std::span<const std::uint8_t> imageOf(std::span<const std::uint8_t> input, const gp::IconEntry& entry) {
  const auto rest = input.subspan(std::min<std::size_t>(entry.imageOffset, input.size()));
  return rest.first(std::min<std::size_t>(rest.size(), std::min(entry.bytesInRes, kLargestPart)));
}

void setOffset(Bytes& start, int index, std::uint32_t offset) {
  const std::size_t at = gp::ico::kDirSize + static_cast<std::size_t>(index) * gp::ico::kEntrySize;
  for (std::size_t i = 0; i < sizeof offset && at + gp::ico::kEntryImageOffset + i < start.size(); ++i)
    start[at + gp::ico::kEntryImageOffset + i] = static_cast<std::uint8_t>(offset >> 8 * i);
}

// Changes the offsets in the directory at the start of the file.
std::vector<Moved> moveImages(Bytes& start) {
  const Bytes input = start;
  const gp::IconDirectory directory = gp::parseIconDirectory(input);
  std::vector<Moved> moved;
  for (int i = 0; i < std::min(kMostMoved, directory.presentCount()); ++i) {
    const gp::IconEntry entry = directory.entry(i);
    const auto offset = static_cast<std::uint32_t>(entry.imageOffset * kSpread % kLargestFile);
    setOffset(start, i, offset);
    moved.push_back({offset, imageOf(std::span(start), entry)});
  }
  return moved;
}

// Parsing a long directory takes long: most inputs get a short one, and some one that is longer than the part of the
// file that is read first.
void shortenDirectory(Bytes& start, Choices& choices) {
  constexpr std::size_t kHighByte = gp::ico::kDirCount + 1;
  constexpr std::uint8_t kShort = 0x03, kLong = 0x43;
  if (start.size() > kHighByte) start[kHighByte] &= choices.below(16) == 1 ? kLong : kShort;
}

std::string writeLarge(Bytes start, std::uint64_t size) {
  static const gp::fuzz::ScratchFolder folder;
  const std::vector<Moved> moved = moveImages(start);
  const std::string path = folder.holding("large.ico", start);
  std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
  for (const Moved& each : moved) {
    file.seekp(static_cast<std::streamoff>(each.offset));
    file.write(reinterpret_cast<const char*>(each.image.data()), static_cast<std::streamsize>(each.image.size()));
  }
  file.close();
  std::filesystem::resize_file(path, size);
  return path;
}

void requireAlike(const gp::IconFile& part, const gp::IconFile& whole) {
  require(part.directory.entries == whole.directory.entries && part.directory.count == whole.directory.count);
  require(gp::probeIcon(part, true).joined() == gp::probeIcon(whole, true).joined());
  require(gp::probeCursor(part).joined() == gp::probeCursor(whole).joined());
  gp::fuzz::requireSame(gp::loadCursorImage(part), gp::loadCursorImage(whole));
  for (int i = 0; i < gp::fuzz::entriesToDecode(whole); ++i) {
    const gp::IconEntry entry = whole.entry(i);
    require(gp::headerBitCount(part, entry) == gp::headerBitCount(whole, entry));
    gp::fuzz::requireSame(gp::decodeEntry(part, entry, entry.width, entry.height),
                          gp::decodeEntry(whole, entry, entry.width, entry.height));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > kLargestInput) return 0;
  Choices choices(std::span(data, size), 2);
  Bytes start(data, data + size);
  shortenDirectory(start, choices);
  const std::uint64_t fileSize = kLargestFile - static_cast<std::uint64_t>(choices.next()) * kSizeStep;
  const std::string path = writeLarge(std::move(start), fileSize);
  const auto part = gp::readIconFile(path), whole = gp::readWholeIconFile(path);
  require(part && whole && part->span().size() <= whole->span().size());
  require(part->isIcon() == whole->isIcon() && part->isCursor() == whole->isCursor());
  if (part->isIcon() || part->isCursor()) requireAlike(*part, *whole);
  return 0;
}
