#include "files/format/IcoDirectory.h"

#include "files/format/IcoLayout.h"
#include "platform/files/ByteReader.h"
#include "platform/files/ByteWriter.h"

#include <algorithm>

namespace gp {
namespace {

IconEntry parseEntry(ByteReader& reader, std::size_t at) {
  IconEntry entry;
  entry.width = reader.u8At(at + ico::kEntryWidth);
  entry.height = reader.u8At(at + ico::kEntryHeight);
  entry.colorCount = reader.u8At(at + ico::kEntryColorCount);
  entry.bitCount = reader.u16At(at + ico::kEntryBitCount);
  entry.reserved = reader.u8At(at + ico::kEntryReserved);
  entry.planes = reader.u16At(at + ico::kEntryPlanes);
  entry.bytesInRes = reader.u32At(at + ico::kEntryBytesInRes);
  entry.imageOffset = reader.u32At(at + ico::kEntryImageOffset);
  return entry;
}

// The number of entries of which the file holds at least one byte; at most `count`.
std::size_t entriesPresent(std::size_t fileSize, std::size_t count) {
  if (fileSize <= ico::kDirSize) return 0;
  const std::size_t room = fileSize - ico::kDirSize;
  return std::min(count, (room + ico::kEntrySize - 1) / ico::kEntrySize);
}

int standardColorCount(int colorCount) {
  return colorCount > kMonoDepth.colors ? kStandardDepth.colors : kMonoDepth.colors;
}

// The number of colours of an entry without a colour count.
int colorsForBits(int bitCount) {
  if (bitCount == 0) return kPaletteDepth.colors;
  return bitCount > kPaletteDepth.bits ? kTrueColor : 1 << bitCount;
}

}  // namespace

bool IconDirectory::isIcon() const { return type == ico::kTypeIcon && count >= 1; }
bool IconDirectory::isCursor() const { return type == ico::kTypeCursor && count >= 1; }

IconEntry IconDirectory::entry(int index) const {
  return index >= 0 && static_cast<std::size_t>(index) < entries.size() ? entries[static_cast<std::size_t>(index)]
                                                                        : IconEntry{};
}

IconDirectory parseIconDirectory(std::span<const std::uint8_t> file) {
  ByteReader reader(file);
  IconDirectory directory;
  directory.reserved = reader.u16At(0);
  directory.type = reader.u16At(ico::kDirType);
  directory.count = reader.u16At(ico::kDirCount);
  const std::size_t present = entriesPresent(file.size(), static_cast<std::size_t>(directory.count));
  directory.entries.reserve(present);
  for (std::size_t i = 0; i < present; ++i)
    directory.entries.push_back(parseEntry(reader, ico::kDirSize + i * ico::kEntrySize));
  return directory;
}

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

int ColorsForEntry(const IconEntry& entry, int bitCount) {
  return entry.colorCount != 0 ? standardColorCount(entry.colorCount) : colorsForBits(bitCount);
}

int RawColorsForEntry(const IconEntry& entry, int bitCount) {
  return entry.colorCount != 0 ? entry.colorCount : colorsForBits(bitCount);
}

ColorDepth depthOfEntry(const IconEntry& entry) { return depthOfEntry(entry, entry.bitCount); }

ColorDepth depthOfEntry(const IconEntry& entry, int bitCount) { return {ColorsForEntry(entry, bitCount), bitCount}; }

}  // namespace gp
