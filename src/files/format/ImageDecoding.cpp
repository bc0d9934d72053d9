#include "files/format/ImageDecoding.h"

#include "platform/codec/BitmapPicture.h"

#include <algorithm>
#include <vector>

namespace gp {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr int kLeastOpaque = 128;

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

std::optional<DecodedImage> decodePngImage(Bytes bytes) {
  const auto [defect, picture] = decodePng(bytes, kLargestDecodedImage);
  if (defect != PngDefect::None) return std::nullopt;
  // Colours that no one sees would become visible without alpha values.
  if (isInvisible(picture))
    return DecodedImage{{Surface(picture.width, picture.height, kBlack), Surface(picture.width, picture.height, kWhite),
                         AlphaMatrix(0, 0)}};
  return DecodedImage{iconOf(picture, maskOfAlpha(picture)), !picture.hasAlpha};
}

// Some writers of bitmaps with alpha leave out the Mask.
std::optional<DecodedImage> decodeBitmapImage(Bytes bytes) {
  const MaskedBitmap decoded = decodeMaskedBitmap(bytes, bytes.size(), kLargestDecodedImage);
  if (!decoded.isRead()) return std::nullopt;
  const bool hasMask = !decoded.picture.hasAlpha || decoded.hasWholeMask;
  return DecodedImage{iconOf(decoded.picture, hasMask ? decoded.mask : maskOfAlpha(decoded.picture)), hasMask};
}

}  // namespace

std::optional<DecodedImage> decodeImage(std::span<const std::uint8_t> bytes) {
  return isPng(bytes) ? decodePngImage(bytes) : decodeBitmapImage(bytes);
}

}  // namespace gp
