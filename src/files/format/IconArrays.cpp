#include "files/format/IconArrays.h"

#include "files/format/IcoLayout.h"
#include "platform/files/ByteReader.h"
#include "platform/files/ByteWriter.h"

#include <utility>

namespace gp {
namespace {

bool holdsDirectory(const IconFile& file) {
  return file.span().size() >= ico::kDirSize + static_cast<std::size_t>(file.directory.count) * ico::kEntrySize;
}

bool takeImages(IconArrays& arrays) {
  ByteReader reader(arrays.file.span());
  for (const IconEntry& entry : arrays.entries) {
    if (!reader.contains(entry.imageOffset, entry.bytesInRes)) return false;
    arrays.images.push_back(reader.bytesAt(entry.imageOffset, entry.bytesInRes));
  }
  return true;
}

ArraysDefect takeFile(IconFile file, ReservedField rule, IconArrays& arrays) {
  const bool reservedFits = rule == ReservedField::Any || file.directory.reserved == 0;
  if (!reservedFits || !file.isIcon()) return ArraysDefect::NoIcons;
  if (!holdsDirectory(file)) return ArraysDefect::CutShort;
  arrays.file = std::move(file);
  arrays.reserved = arrays.file.directory.reserved;
  arrays.type = arrays.file.directory.type;
  arrays.entries = arrays.file.directory.entries;
  return takeImages(arrays) ? ArraysDefect::None : ArraysDefect::CutShort;
}

std::size_t directorySize(const IconArrays& arrays) { return ico::kDirSize + arrays.entries.size() * ico::kEntrySize; }

std::vector<std::uint8_t> directoryBytes(const IconArrays& arrays) {
  ByteWriter out(directorySize(arrays));
  out.u16(static_cast<std::uint16_t>(arrays.reserved));
  out.u16(static_cast<std::uint16_t>(arrays.type));
  out.u16(static_cast<std::uint16_t>(arrays.count()));
  for (const IconEntry& entry : arrays.entries) writeEntry(entry, out);
  return out.take();
}

}  // namespace

ArraysDefect takeIconArrays(IconFile file, ReservedField rule, IconArrays& arrays) {
  arrays = {};
  const ArraysDefect defect = takeFile(std::move(file), rule, arrays);
  if (defect != ArraysDefect::None) arrays = {};
  return defect;
}

ArraysDefect readIconArrays(const std::string& path, ReservedField rule, IconArrays& arrays) {
  auto file = readWholeIconFile(path);
  if (file) return takeIconArrays(std::move(*file), rule, arrays);
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

std::vector<std::uint8_t> composeWholeFile(IconArrays& arrays) {
  layOutImages(arrays);
  std::vector<std::uint8_t> bytes = directoryBytes(arrays);
  for (const ImageBytes image : arrays.images) bytes.insert(bytes.end(), image.begin(), image.end());
  return bytes;
}

WriteDefect writeWholeFile(IconArrays& arrays, const std::string& path, const std::optional<FileVersion>& read) {
  if (arrays.entries.size() > ico::kMaxEntries) return WriteDefect::NotOpened;
  layOutImages(arrays);
  const std::vector<std::uint8_t> directory = directoryBytes(arrays);
  std::vector<ImageBytes> pieces{directory};
  pieces.insert(pieces.end(), arrays.images.begin(), arrays.images.end());
  return writeFile(path, pieces, read);
}

WriteDefect writeBack(IconArrays& arrays, const std::string& path) {
  return writeWholeFile(arrays, path, arrays.file.bytes.version());
}

}  // namespace gp
