#include "files/format/Rereading.h"

#include "files/format/IcoLayout.h"
#include "files/format/ImageSizes.h"
#include "platform/files/ByteReader.h"

#include <algorithm>
#include <functional>
#include <string_view>

namespace gp {
namespace {

// Entries may share a large image, so no more is hashed than decoders read.
std::size_t hashOf(ImageBytes image) {
  const ImageBytes used = image.first(std::min(image.size(), ico::kLargestImage));
  return std::hash<std::string_view>()({reinterpret_cast<const char*>(used.data()), used.size()});
}

using EntryFields = decltype(EntryOrigin::entry);

EntryFields fieldsOf(const IconEntry& entry) {
  return {entry.width, entry.height, entry.colorCount, entry.reserved, entry.planes, entry.bitCount};
}

bool isAt(const IconArrays& arrays, const EntryOrigin& origin, std::size_t index) {
  const ImageBytes image = arrays.images[index];
  return fieldsOf(arrays.entries[index]) == origin.entry && image.size() == origin.imageSize &&
         hashOf(image) == origin.imageHash;
}

}  // namespace

EntryOrigin originOf(const IconEntry& entry, ImageBytes image) {
  return {fieldsOf(entry), static_cast<std::uint32_t>(image.size()), hashOf(image)};
}

EntryOrigin originOf(const IconFile& file, const IconEntry& entry) {
  const std::uint32_t size = ImageSizes(file).sizeOf(entry);
  return {fieldsOf(entry), size, hashOf(ByteReader(file.span()).bytesAt(entry.imageOffset, size))};
}

std::optional<int> findOrigin(const IconArrays& arrays, const EntryOrigin& origin, int index) {
  if (index >= 0 && index < arrays.count() && isAt(arrays, origin, static_cast<std::size_t>(index))) return index;
  std::optional<int> found;
  for (int i = 0; i < arrays.count(); ++i) {
    if (!isAt(arrays, origin, static_cast<std::size_t>(i))) continue;
    if (found) return std::nullopt;
    found = i;
  }
  return found;
}

bool isAsRead(const IconArrays& arrays, std::span<const std::uint8_t> before) {
  return std::ranges::equal(arrays.file.span(), before);
}

std::optional<FileVersion> findFileOfOneIcon(const std::string& path) {
  const auto file = readIconFile(path);
  const bool isOne = file && file->isIcon() && file->directory.count == 1;
  return isOne ? file->bytes.version() : std::nullopt;
}

}  // namespace gp
