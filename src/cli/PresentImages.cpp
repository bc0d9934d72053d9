#include "cli/PresentImages.h"

#include "files/format/IcoLayout.h"
#include "files/format/IconUpdates.h"
#include "platform/files/ByteReader.h"

namespace gp::cli {
namespace {

bool isAllThere(const IconFile& file, int index, const IconEntry& entry) {
  const ByteReader reader(file.span());
  const std::size_t at = ico::kDirSize + static_cast<std::size_t>(index) * ico::kEntrySize;
  return reader.contains(at, ico::kEntrySize) && reader.contains(entry.imageOffset, entry.bytesInRes);
}

}  // namespace

IconArrays takePresentImages(IconFile file) {
  IconArrays arrays;
  arrays.file = std::move(file);
  for (int i = 0; i < arrays.file.directory.presentCount(); ++i) {
    const IconEntry entry = arrays.file.entry(i);
    if (!isAllThere(arrays.file, i, entry)) continue;
    arrays.entries.push_back(entry);
    arrays.images.push_back(ByteReader(arrays.file.span()).bytesAt(entry.imageOffset, entry.bytesInRes));
  }
  takeWholeImages(arrays);
  return arrays;
}

}  // namespace gp::cli
