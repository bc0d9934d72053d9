#include "files/making/MadeFile.h"

#include "files/format/IcoLayout.h"
#include "files/format/IconArrays.h"

namespace gp {
namespace {

// 256 is stored as 0.
int storedSide(int side) { return side % kLargestMadeSide; }

int storedColors(const MadeImage& image) {
  return image.bits == kMonoDepth.bits || image.bits == kStandardDepth.bits ? 1 << image.bits : 0;
}

IconEntry entryOf(const MadeImage& image) {
  IconEntry entry;
  entry.width = storedSide(image.width);
  entry.height = storedSide(image.height);
  entry.colorCount = storedColors(image);
  entry.bitCount = image.bits;
  entry.planes = 1;
  entry.bytesInRes = static_cast<std::uint32_t>(image.bytes.size());
  return entry;
}

IconArrays arraysOf(std::span<const MadeImage> images, int type) {
  IconArrays arrays;
  arrays.type = type;
  for (const MadeImage& image : images) {
    arrays.entries.push_back(entryOf(image));
    arrays.images.emplace_back(image.bytes);
  }
  return arrays;
}

}  // namespace

std::vector<std::uint8_t> composeIconFile(std::span<const MadeImage> images) {
  IconArrays arrays = arraysOf(images, ico::kTypeIcon);
  return composeWholeFile(arrays);
}

std::vector<std::uint8_t> composeCursorFile(std::span<const MadeImage> images, std::span<const Hotspot> hotspots) {
  IconArrays arrays = arraysOf(images, ico::kTypeCursor);
  for (std::size_t i = 0; i < arrays.entries.size(); ++i) {
    arrays.entries[i].planes = hotspots[i].x;
    arrays.entries[i].bitCount = hotspots[i].y;
  }
  return composeWholeFile(arrays);
}

}  // namespace gp
