#include "files/making/Stripping.h"

#include "document/ColorDepth.h"
#include "files/format/IcoLayout.h"
#include "files/making/MadeImage.h"
#include "files/making/PictureColors.h"
#include "platform/codec/BitmapPicture.h"
#include "platform/files/ByteReader.h"

#include <optional>

namespace gp {
namespace {

struct Stripped {
  std::vector<std::uint8_t> bytes;
  int bits = 0;  // of a bitmap; 0 for a PNG picture, whose bits stay
};

std::optional<Stripped> strippedBitmap(ImageBytes image) {
  const int bits = ByteReader(image).u16At(ico::kHeaderBitCount);
  if (bits > kPaletteDepth.bits) return std::nullopt;
  const DecodedBitmap decoded = decodeIconBitmap(image, image.size(), {kLargestMadeSide, kLargestMadeSide});
  if (!decoded.isRead()) return std::nullopt;
  const auto indexed = indexedPicture(decoded.picture, kPaletteDepth.colors);
  const int needed = bitsForColors(indexed->palette.size());
  return Stripped{composeImage(decoded.picture, needed), needed};
}

std::optional<Stripped> stripped(ImageBytes image) {
  auto result = isPng(image) ? std::optional(Stripped{strippedPng(image, kPngInIconFile), 0}) : strippedBitmap(image);
  const bool isSmaller = result && !result->bytes.empty() && result->bytes.size() < image.size();
  return isSmaller ? std::move(result) : std::nullopt;
}

void describe(int bits, IconEntry& entry) {
  entry.bitCount = bits;
  entry.colorCount = bits < kPaletteDepth.bits ? 1 << bits : 0;
}

}  // namespace

bool stripImages(IconArrays& arrays) {
  bool isChanged = false;
  for (std::size_t i = 0; i < arrays.images.size(); ++i) {
    auto result = stripped(arrays.images[i]);
    if (!result) continue;
    isChanged = true;
    arrays.images[i] = arrays.added.emplace_back(std::move(result->bytes));
    arrays.entries[i].bytesInRes = static_cast<std::uint32_t>(arrays.images[i].size());
    if (result->bits != 0) describe(result->bits, arrays.entries[i]);
  }
  return isChanged;
}

}  // namespace gp
