#include "files/format/IconArrays.h"

#include "files/format/IcoLayout.h"
#include "platform/files/ByteReader.h"
#include "platform/files/ByteWriter.h"

namespace gp {
namespace {

bool isHeld(const IconDirectory& directory, std::size_t fileSize) {
  const auto count = static_cast<std::size_t>(directory.count);
  return directory.isIcon() && fileSize >= ico::kDirSize + count * ico::kEntrySize;
}

bool takeImages(const IconDirectory& directory, IconArrays& arrays) {
  ByteReader reader(arrays.file.span());
  for (const IconEntry& entry : directory.entries) {
    if (!reader.contains(entry.imageOffset, entry.bytesInRes)) return false;
    arrays.images.push_back(reader.bytesAt(entry.imageOffset, entry.bytesInRes));
  }
  return true;
}

std::size_t directorySize(const IconArrays& arrays) { return ico::kDirSize + arrays.entries.size() * ico::kEntrySize; }

void writeEntry(const IconEntry& entry, ByteWriter& out) {
  out.u8(static_cast<std::uint8_t>(entry.width));
  out.u8(static_cast<std::uint8_t>(entry.height));
  out.u8(static_cast<std::uint8_t>(entry.colorCount));
  out.u8(static_cast<std::uint8_t>(entry.reserved));
  out.u16(static_cast<std::uint16_t>(entry.planes));
  out.u16(static_cast<std::uint16_t>(entry.bitCount));
  out.u32(entry.bytesInRes);
  out.u32(entry.imageOffset);
}

std::vector<std::uint8_t> directoryBytes(const IconArrays& arrays) {
  ByteWriter out(directorySize(arrays));
  out.u16(static_cast<std::uint16_t>(arrays.reserved));
  out.u16(static_cast<std::uint16_t>(arrays.type));
  out.u16(static_cast<std::uint16_t>(arrays.count()));
  for (const IconEntry& entry : arrays.entries) writeEntry(entry, out);
  return out.take();
}

}  // namespace

ArraysDefect parseIconArrays(FileBytes bytes, ReservedField rule, IconArrays& arrays) {
  arrays = {};
  arrays.file = std::move(bytes);
  const IconDirectory directory = parseIconDirectory(arrays.file.span());
  const bool reservedFits = rule == ReservedField::Any || directory.reserved == 0;
  if (!reservedFits || !isHeld(directory, arrays.file.span().size()) || !takeImages(directory, arrays)) {
    arrays = {};
    return ArraysDefect::NoIcons;
  }
  arrays.reserved = directory.reserved;
  arrays.type = directory.type;
  arrays.entries = directory.entries;
  return ArraysDefect::None;
}

ArraysDefect readIconArrays(const std::string& path, ReservedField rule, IconArrays& arrays) {
  auto bytes = readFile(path);
  if (bytes) return parseIconArrays(std::move(*bytes), rule, arrays);
  arrays = {};
  return ArraysDefect::NotReadable;
}

void layOutImages(IconArrays& arrays) {
  std::size_t running = directorySize(arrays);
  for (IconEntry& entry : arrays.entries) {
    entry.imageOffset = static_cast<std::uint32_t>(running);
    running += entry.bytesInRes;
  }
}

WriteOutcome writeWholeFile(IconArrays& arrays, const std::string& path, std::span<const std::uint8_t> former) {
  if (arrays.entries.size() > ico::kMaxEntries) return {};
  layOutImages(arrays);
  const std::vector<std::uint8_t> directory = directoryBytes(arrays);
  std::vector<ImageBytes> pieces{directory};
  pieces.insert(pieces.end(), arrays.images.begin(), arrays.images.end());
  return rewriteFile(path, pieces, former);
}

}  // namespace gp
