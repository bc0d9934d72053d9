// Any bytes that are scanned for icons: what is found does not overlap and can be decoded. A slow search finds the
// same.
#include "FuzzInput.h"
#include "extraction/format/IclScan.h"
#include "files/format/IconWriter.h"

#include <algorithm>

namespace {

using gp::fuzz::require;

constexpr std::size_t kMostDecoded = 200;

bool isOneOf(int value, std::initializer_list<int> values) { return std::ranges::find(values, value) != values.end(); }

// The size of the image at a position from 1, by the bytes of its header; 0 for none.
std::size_t sizeAt(std::span<const std::uint8_t> file, std::size_t i) {
  const auto byte = [&](std::size_t k) { return int{file[k - 1]}; };
  if (file.size() < 40 || i >= file.size() - 40 || byte(i) != 40) return 0;
  const int w = byte(i + 4), h = byte(i + 8), b = byte(i + 14);
  if (!isOneOf(w, {16, 24, 32, 48}) || h != 2 * w || byte(i + 12) != 1 || !isOneOf(b, {1, 4, 8, 24, 32})) return 0;
  const std::size_t size = gp::IconByteSize(gp::ColorsForBitCount(b), b, w, w);
  return file.size() - i + 1 >= size ? size : 0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::span<const std::uint8_t> file(data, size);
  const auto entries = gp::scanForIconImages(file);
  std::size_t found = 0, next = 0;
  for (std::size_t i = 1; i <= size; ++i) {
    const std::size_t blob = sizeAt(file, i);
    if (blob == 0 || i < next) continue;
    require(found < entries.size() && entries[found].blobOffset == i && entries[found].blobEnd == i + blob - 1);
    next = i + blob;
    ++found;
  }
  require(found == entries.size());
  for (std::size_t i = 0; i < std::min(found, kMostDecoded); ++i) {
    const auto icon = gp::decodeIconBlob(file, entries[i]);
    require(icon && icon->width() == entries[i].side && icon->mask.height() == entries[i].side);
    require(!icon->hasAlphaValues() || entries[i].bitCount == gp::kBitsWithAlpha);
  }
  return 0;
}
