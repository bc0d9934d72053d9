#include "animation/format/FrameImages.h"

#include "files/format/IcoDirectory.h"
#include "files/format/ImageChoice.h"
#include "files/format/ImageDecoding.h"
#include "platform/codec/BitmapPicture.h"
#include "platform/files/ByteReader.h"

#include <algorithm>

namespace gp {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr int kBitsOfPng = 24, kBitsOfPngWithAlpha = 32;

// The part of `rest` that belongs to the image: what the directory states, or all if that is too little.
std::size_t sizeIn(Bytes rest, std::uint32_t stated, std::uint64_t needed) {
  return stated < needed ? rest.size() : std::min<std::size_t>(stated, rest.size());
}

std::optional<FrameImageFacts> pngFacts(Bytes rest, std::uint32_t stated) {
  const auto header = readPngHeader(rest);
  if (!header || !header->fits(kLargestDecodedImage)) return std::nullopt;
  FrameImageFacts facts;
  facts.width = static_cast<int>(header->width);
  facts.height = static_cast<int>(header->height);
  facts.bits = header->hasAlpha ? kBitsOfPngWithAlpha : kBitsOfPng;
  facts.isPng = true;
  facts.size = sizeIn(rest, stated, kPngHeaderSize);
  return facts;
}

std::optional<FrameImageFacts> bitmapFacts(Bytes rest, std::uint32_t stated) {
  const auto bitmap = iconBitmapFacts(rest, stated, kLargestDecodedImage);
  if (!bitmap) return std::nullopt;
  FrameImageFacts facts;
  facts.width = bitmap->width;
  facts.height = bitmap->height;
  facts.bits = bitmap->bits;
  facts.size = sizeIn(rest, stated, bitmap->rowsEnd);
  return facts;
}

std::optional<FrameImageFacts> factsOf(Bytes file, const IconEntry& entry, bool isCursor) {
  if (entry.imageOffset >= file.size()) return std::nullopt;
  const Bytes rest = file.subspan(entry.imageOffset);
  auto facts = isPng(rest) ? pngFacts(rest, entry.bytesInRes) : bitmapFacts(rest, entry.bytesInRes);
  if (!facts) return std::nullopt;
  facts->offset = entry.imageOffset;
  facts->hotspotX = isCursor ? entry.hotspotX() : 0;
  facts->hotspotY = isCursor ? entry.hotspotY() : 0;
  return facts;
}

}  // namespace

std::vector<FrameImageFacts> frameImages(Bytes file) {
  const IconDirectory directory = parseIconDirectory(file);
  std::vector<FrameImageFacts> images;
  if (!directory.isIcon() && !directory.isCursor()) return images;
  for (const IconEntry& entry : directory.entries)
    if (const auto facts = factsOf(file, entry, directory.isCursor())) images.push_back(*facts);
  return images;
}

std::vector<FrameImageFacts> frameImagesToTry(Bytes file, int size) {
  const std::vector<FrameImageFacts> images = frameImages(file);
  std::vector<ImageTrait> traits;
  traits.reserve(images.size());
  for (const FrameImageFacts& image : images) traits.push_back({image.width, image.height, image.bits, image.offset});
  std::vector<FrameImageFacts> tried;
  for (const std::size_t i : imagesToTry(traits, size)) tried.push_back(images[i]);
  return tried;
}

// A PNG picture states its end itself.
Bytes bytesOfFrameImage(Bytes file, const FrameImageFacts& image) {
  ByteReader reader(file);
  return reader.bytesAt(image.offset, image.isPng ? reader.size() : image.size);
}

std::optional<IconImage> decodeFrameImage(Bytes file, const FrameImageFacts& image) {
  auto decoded = decodeImage(bytesOfFrameImage(file, image));
  if (!decoded) return std::nullopt;
  return std::move(decoded->icon);
}

}  // namespace gp
