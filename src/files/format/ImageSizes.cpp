#include "files/format/ImageSizes.h"

#include "files/format/IcoLayout.h"
#include "files/format/ImageHeader.h"
#include "platform/files/ByteReader.h"
#include "platform/files/WholePicture.h"

#include <algorithm>

namespace gp {

std::uint32_t ImageSizes::sizeOf(const IconEntry& entry) {
  const std::uint64_t there = file_.span().size() - std::min<std::uint64_t>(entry.imageOffset, file_.span().size());
  return std::max(entry.bytesInRes, static_cast<std::uint32_t>(std::min(neededBy(entry), there)));
}

// 0 if the image does not show how long it is.
std::uint64_t ImageSizes::neededBy(const IconEntry& entry) {
  if (isPngImage(file_, entry)) return pngSize(entry);
  const auto header = readImageHeader(file_, entry);
  if (!header || entry.bytesInRes >= header->bytesNeeded(header->paletteStated())) return 0;
  // Some writers state a short palette and write a full one.
  const std::uint64_t needed = header->bytesNeeded(header->paletteForBits());
  return needed <= ico::kLargestImage ? needed : 0;
}

std::uint64_t ImageSizes::pngSize(const IconEntry& entry) {
  const auto searched = ByteReader(file_.span()).bytesAt(entry.imageOffset, pngBytesLeft_);
  const std::size_t size = wholePngSize(searched);
  pngBytesLeft_ -= size == 0 ? searched.size() : size;
  return size;
}

}  // namespace gp
