#include "extraction/format/IconHandle.h"

#include "animation/format/FrameImages.h"
#include "files/format/ImageChoice.h"
#include "files/format/ImageDecoding.h"

#include <algorithm>
#include <vector>

namespace gp {
namespace {

// No image of a size that is decoded has more bytes, but a stated size can be that of the file.
constexpr std::uint32_t kMostImageBytes = 4U << 20;
constexpr int kLeastOpaque = 128;

AlphaMatrix scaledAlpha(const AlphaMatrix& alpha, int side) {
  Surface values(alpha.width(), alpha.height());
  for (int y = 0; y < alpha.height(); ++y)
    for (int x = 0; x < alpha.width(); ++x) values.SetPixelV(x, y, alpha.at(x, y));
  values = scaledTo(values, side);
  AlphaMatrix scaled(side, side);
  for (int y = 0; y < side; ++y)
    for (int x = 0; x < side; ++x) scaled.at(x, y) = static_cast<std::uint8_t>(values.GetPixel(x, y));
  return scaled;
}

IconImage handleOf(const DecodedImage& decoded, int size) {
  const IconImage& icon = decoded.icon;
  return {scaledTo(icon.image, size), decoded.hasMask ? scaledTo(icon.mask, size) : Surface(),
          icon.hasAlphaValues() ? scaledAlpha(icon.alpha, size) : AlphaMatrix()};
}

std::vector<GroupImage> imagesThere(const IconLibrary& library, const IconGroup& group) {
  std::vector<GroupImage> images = library.imagesOf(group);
  std::erase_if(images, [](const GroupImage& image) { return !image.isThere(); });
  return images;
}

// The bytes that a decoder can use.
std::vector<std::uint8_t> imageBytes(const IconLibrary& library, ResourcePlace place) {
  place.size = std::min(place.size, kMostImageBytes);
  return library.bytesAt(place);
}

bool hasMask(const IconImage& handle) { return handle.mask.width() == handle.width(); }

// White where an alpha value is below `least`.
Surface maskOfAlpha(const IconImage& handle, int least) {
  Surface mask(handle.width(), handle.height(), kBlack);
  for (int y = 0; y < handle.height(); ++y)
    for (int x = 0; x < handle.width(); ++x)
      if (handle.alphaAt(x, y) < least) mask.SetPixelV(x, y, kWhite);
  return mask;
}

}  // namespace

std::optional<IconImage> libraryIcon(const IconLibrary& library, const IconGroup& group, int size) {
  const std::vector<GroupImage> images = imagesThere(library, group);
  std::vector<ImageTrait> traits;
  traits.reserve(images.size());
  for (const GroupImage& image : images) traits.push_back({image.width, image.height, image.bits, image.place.offset});
  for (const std::size_t i : imagesToTry(traits, size))
    if (const auto decoded = decodeImage(imageBytes(library, images[i].place))) return handleOf(*decoded, size);
  return std::nullopt;
}

std::optional<IconImage> fileIcon(std::span<const std::uint8_t> file, int size) {
  for (const FrameImageFacts& image : frameImagesToTry(file, size))
    if (const auto decoded = decodeImage(bytesOfFrameImage(file, image))) return handleOf(*decoded, size);
  return std::nullopt;
}

IconImage surfacesOf(const IconImage& handle) {
  if (!handle.hasAlphaValues()) return handle;
  IconImage icon{handle.image, hasMask(handle) ? handle.mask : maskOfAlpha(handle, 1), handle.alpha};
  for (int y = 0; y < icon.height(); ++y)
    for (int x = 0; x < icon.width(); ++x)
      if (icon.alpha.at(x, y) == 0 || icon.mask.GetPixel(x, y) == kWhite) erasePixel(icon, x, y);
  return icon;
}

IconImage surfacesWithoutAlpha(const IconImage& handle) {
  if (!handle.hasAlphaValues()) return handle;
  return {drawnOn(handle, kBlack), hasMask(handle) ? handle.mask : maskOfAlpha(handle, kLeastOpaque), AlphaMatrix()};
}

void blackenKey(IconImage& icon, Color key) {
  for (int y = 0; y < icon.height(); ++y)
    for (int x = 0; x < icon.width(); ++x)
      if (icon.image.GetPixel(x, y) == key && icon.mask.GetPixel(x, y) == kWhite) icon.image.SetPixelV(x, y, kBlack);
}

}  // namespace gp
