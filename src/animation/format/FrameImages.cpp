#include "animation/format/FrameImages.h"

#include "files/format/IcoDirectory.h"
#include "platform/codec/BitmapPicture.h"
#include "platform/files/ByteReader.h"

#include <algorithm>

namespace gp {
namespace {

using Bytes = std::span<const std::uint8_t>;

// Some files have pictures of 512 pixels, whose entries state 256.
constexpr PngLimits kLargestImage{512, 512};
constexpr int kLeastOpaque = 128;
constexpr int kBitsOfPng = 24, kBitsOfPngWithAlpha = 32;

// The part of `rest` that belongs to the image: what the directory states, or all if that is too little.
std::size_t sizeIn(Bytes rest, std::uint32_t stated, std::uint64_t needed) {
  return stated < needed ? rest.size() : std::min<std::size_t>(stated, rest.size());
}

std::optional<FrameImageFacts> pngFacts(Bytes rest, std::uint32_t stated) {
  const auto header = readPngHeader(rest);
  if (!header || !header->fits(kLargestImage)) return std::nullopt;
  FrameImageFacts facts;
  facts.width = static_cast<int>(header->width);
  facts.height = static_cast<int>(header->height);
  facts.bits = header->hasAlpha ? kBitsOfPngWithAlpha : kBitsOfPng;
  facts.isPng = true;
  facts.size = sizeIn(rest, stated, kPngHeaderSize);
  return facts;
}

std::optional<FrameImageFacts> bitmapFacts(Bytes rest, std::uint32_t stated) {
  const auto bitmap = iconBitmapFacts(rest, stated, kLargestImage);
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

std::uint8_t alphaAt(const PngPicture& picture, std::size_t pixel) {
  return picture.rgba[pixel * kRgbaBytes + kRgbaBytes - 1];
}

std::vector<std::uint8_t> maskOfAlpha(const PngPicture& picture) {
  std::vector<std::uint8_t> mask(picture.rgba.size() / kRgbaBytes);
  for (std::size_t i = 0; i < mask.size(); ++i) mask[i] = alphaAt(picture, i) < kLeastOpaque ? 1 : 0;
  return mask;
}

Surface imageOf(const PngPicture& picture) {
  Surface image(picture.width, picture.height);
  std::uint32_t* out = image.rowsForWriting(0, picture.height, 0, picture.width);
  for (std::size_t at = 0; at < picture.rgba.size(); at += kRgbaBytes)
    *out++ = storedForm(rgb(picture.rgba[at], picture.rgba[at + 1], picture.rgba[at + 2]));
  return image;
}

Surface maskSurface(const PngPicture& picture, const std::vector<std::uint8_t>& mask) {
  Surface surface(picture.width, picture.height);
  std::ranges::transform(mask, surface.rowsForWriting(0, picture.height, 0, picture.width),
                         [](std::uint8_t isSet) { return storedForm(isSet != 0 ? kWhite : kBlack); });
  return surface;
}

// Without alpha an empty matrix, since one of 1 x 1 would be that of an image of one pixel.
AlphaMatrix alphaOf(const PngPicture& picture) {
  if (!picture.hasAlpha) return {0, 0};
  AlphaMatrix alpha(picture.width, picture.height);
  std::size_t pixel = 0;
  for (int y = 0; y < picture.height; ++y)
    for (int x = 0; x < picture.width; ++x) alpha.at(x, y) = alphaAt(picture, pixel++);
  return alpha;
}

IconImage iconOf(const PngPicture& picture, const std::vector<std::uint8_t>& mask) {
  return {imageOf(picture), maskSurface(picture, mask), alphaOf(picture)};
}

bool isInvisible(const PngPicture& picture) {
  for (std::size_t i = 0; i * kRgbaBytes < picture.rgba.size(); ++i)
    if (alphaAt(picture, i) != 0) return false;
  return true;
}

std::optional<IconImage> decodePngImage(Bytes bytes) {
  const DecodedPng decoded = decodePng(bytes, kLargestImage);
  if (!decoded.isRead()) return std::nullopt;
  // Colours that no one sees would become visible without alpha values.
  if (isInvisible(decoded.picture))
    return IconImage{Surface(decoded.picture.width, decoded.picture.height, kBlack),
                     Surface(decoded.picture.width, decoded.picture.height, kWhite), AlphaMatrix(0, 0)};
  return iconOf(decoded.picture, maskOfAlpha(decoded.picture));
}

// Some writers of bitmaps with alpha leave out the Mask.
std::optional<IconImage> decodeBitmapImage(Bytes bytes) {
  const MaskedBitmap decoded = decodeMaskedBitmap(bytes, bytes.size(), kLargestImage);
  if (!decoded.isRead()) return std::nullopt;
  const bool isMaskOfAlpha = decoded.picture.hasAlpha && !decoded.hasWholeMask;
  return iconOf(decoded.picture, isMaskOfAlpha ? maskOfAlpha(decoded.picture) : decoded.mask);
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

// A PNG picture states its end itself.
std::optional<IconImage> decodeFrameImage(Bytes file, const FrameImageFacts& image) {
  ByteReader reader(file);
  return image.isPng ? decodePngImage(reader.bytesAt(image.offset, reader.size()))
                     : decodeBitmapImage(reader.bytesAt(image.offset, image.size));
}

}  // namespace gp
