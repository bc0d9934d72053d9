#include "files/format/IconSalvage.h"

#include "files/format/IcoLayout.h"
#include "platform/codec/Png.h"
#include "platform/files/ByteReader.h"
#include "platform/text/Numbers.h"

#include <algorithm>
#include <cstdlib>

namespace gp {
namespace {

constexpr int kLargestSide = 128;
// A height is stored in one byte, which images of 128 pixels and more overflow, because it includes the Mask.
constexpr int kLeastWholeHeight = 256;
constexpr int kMostWholeHeight = 2 * ico::kMaxEntrySide;
constexpr std::int64_t kLowByte = 0xFF;

// A negative height means that the top row comes first; the number of rows is the same.
int halfOf(std::int32_t height) {
  const std::int64_t rows = std::abs(std::int64_t{height});
  const bool isWhole = rows >= kLeastWholeHeight && rows <= kMostWholeHeight;
  return roundToInteger(static_cast<int>(isWhole ? rows : rows & kLowByte) / 2.0);
}

}  // namespace

bool hasBitmapHeader(ImageBytes image) { return image.size() > dib::kHeaderBitCount && !isPng(image); }

HeaderFacts headerFactsOf(ImageBytes image) {
  if (!hasBitmapHeader(image)) return {};
  ByteReader reader(image);
  return {.width = reader.u8At(dib::kHeaderWidth),
          .height = halfOf(reader.i32At(dib::kHeaderHeight)),
          .bits = reader.u8At(dib::kHeaderBitCount)};
}

bool canBeSalvaged(const IconArrays& arrays) {
  return std::ranges::all_of(arrays.entries, [](const IconEntry& entry) {
    return entry.width <= kLargestSide && entry.height <= kLargestSide;
  });
}

void salvageEntries(IconArrays& arrays) {
  for (std::size_t i = 0; i < arrays.entries.size(); ++i) {
    if (!hasBitmapHeader(arrays.images[i])) continue;
    const HeaderFacts facts = headerFactsOf(arrays.images[i]);
    arrays.entries[i].width = facts.width;
    arrays.entries[i].height = facts.height;
    arrays.entries[i].bitCount = facts.bits;
  }
}

}  // namespace gp
