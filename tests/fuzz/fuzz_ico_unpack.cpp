// The pictures that gpicon takes out of icon files of any size, bitmap files that it makes icons from, and what it
// strips.
#include "FuzzIcons.h"
#include "files/making/MadeImage.h"
#include "platform/codec/BitmapPicture.h"
#include "platform/codec/Png.h"

namespace {

using gp::fuzz::Bytes;
using gp::fuzz::require;
using Span = std::span<const std::uint8_t>;

constexpr gp::PngLimits kLimits{128, 128};
constexpr std::size_t kLargestInput = 16384;

void requirePixels(const gp::DecodedBitmap& decoded) {
  const gp::PngPicture& picture = decoded.picture;
  if (!decoded.isRead()) return require(picture.rgba.empty());
  require(picture.width >= 1 && picture.width <= kLimits.width && picture.height >= 1 &&
          picture.height <= kLimits.height);
  require(picture.rgba.size() == static_cast<std::size_t>(picture.width) * picture.height * gp::kRgbaBytes);
}

// An image that is made from a picture reads back as the picture that it shows.
void requireReadsBack(const gp::PngPicture& picture) {
  const gp::MadeImage image = gp::makeImage(picture, {});
  const gp::DecodedBitmap shown = gp::decodeIconBitmap(image.bytes, image.bytes.size(), kLimits);
  if (image.isPng) return;
  require(shown.isRead() && shown.picture.width == picture.width && shown.picture.height == picture.height);
  const gp::MadeImage again = gp::makeImage(shown.picture, {});
  require(again.bits == image.bits && again.bytes == image.bytes);
}

void strip(Span image) {
  const Bytes stripped = gp::strippedPng(image, kLimits);
  if (stripped.empty()) return;
  const gp::DecodedPng before = gp::decodePng(image, kLimits), after = gp::decodePng(stripped, kLimits);
  require(before.isRead() && after.isRead() && before.picture.rgba == after.picture.rgba);
  require(stripped.size() <= image.size() && gp::strippedPng(stripped, kLimits) == stripped);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > kLargestInput) return 0;
  requirePixels(gp::decodeBitmapFile({data, size}, kLimits));
  const gp::IconFile file = gp::parseIconFile(gp::FileBytes(Span(data, size)));
  for (int i = 0; i < gp::fuzz::entriesToDecode(file); ++i) {
    const gp::IconEntry entry = file.entry(i);
    if (entry.imageOffset > size) continue;
    const Span image = file.span().subspan(entry.imageOffset);
    const gp::DecodedBitmap decoded = gp::decodeIconBitmap(image, entry.bytesInRes, kLimits);
    requirePixels(decoded);
    if (decoded.isRead()) requireReadsBack(decoded.picture);
    strip(image);
  }
  return 0;
}
