#include "files/format/PngEntry.h"

#include "files/format/IcoLayout.h"
#include "platform/codec/Png.h"
#include "platform/files/ByteReader.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace gp {
namespace {

constexpr std::uint32_t kSideOfZero = 256;
constexpr std::uint32_t kLargestSide = std::numeric_limits<int>::max();
constexpr int kLeastOpaque = 128;

std::span<const std::uint8_t> pictureOf(const IconFile& file, const IconEntry& entry) {
  return ByteReader(file.span()).bytesAt(entry.imageOffset, ico::readSize(entry.bytesInRes));
}

// The directory's side, if the picture has the same one.
int sideOf(int stated, std::uint32_t side) {
  const std::uint32_t meant = stated == 0 ? kSideOfZero : static_cast<std::uint32_t>(stated);
  return side == meant ? stated : static_cast<int>(std::min(side, kLargestSide));
}

int bitsOf(const PngHeader& header) { return header.hasAlpha ? kBitsWithAlpha : kBitsWithoutAlpha; }

bool isOfSize(const PngPicture& picture, int width, int height) {
  return picture.width == width && picture.height == height;
}

Color colorAt(const std::uint8_t* pixel) { return rgb(pixel[0], pixel[1], pixel[2]); }
std::uint8_t alphaAt(const std::uint8_t* pixel) { return pixel[kRgbaBytes - 1]; }

IconImage iconOf(const PngPicture& picture) {
  const int width = picture.width, height = picture.height;
  IconImage icon{Surface(width, height, kBlack), Surface(width, height, kWhite),
                 AlphaMatrix(width, height, kOpaqueAlpha)};
  const std::uint8_t* pixel = picture.rgba.data();
  for (int y = 0; y < height; ++y) {
    std::uint32_t* const image = icon.image.rowForWriting(y, 0, width);
    std::uint32_t* const mask = icon.mask.rowForWriting(y, 0, width);
    for (int x = 0; x < width; ++x, pixel += kRgbaBytes) {
      if (alphaAt(pixel) == 0) continue;
      image[x] = storedForm(colorAt(pixel));
      mask[x] = storedForm(kBlack);
      icon.alpha.at(x, y) = alphaAt(pixel);
    }
  }
  return icon;
}

}  // namespace

IconEntry shownEntry(const IconEntry& entry, std::span<const std::uint8_t> image) {
  const auto header = readPngHeader(image);
  if (!header) return entry;
  IconEntry shown = entry;
  shown.width = sideOf(entry.width, header->width);
  shown.height = sideOf(entry.height, header->height);
  shown.colorCount = 0;
  shown.bitCount = bitsOf(*header);
  return shown;
}

IconEntry shownEntry(const IconFile& file, const IconEntry& entry) { return shownEntry(entry, pictureOf(file, entry)); }

int pngBitCount(const IconFile& file, const IconEntry& entry) {
  const auto header = readPngHeader(pictureOf(file, entry));
  return header ? bitsOf(*header) : 0;
}

DecodedIcon decodePngEntry(const IconFile& file, const IconEntry& entry, int width, int height) {
  const DecodedPng decoded = decodePng(pictureOf(file, entry), kPngInIconFile);
  if (decoded.defect == PngDefect::TooLarge) return {IconDefect::SizeNotOffered, {}};
  if (!decoded.isRead()) return {IconDefect::DamagedPng, {}};
  if (!isOfSize(decoded.picture, width, height)) return {IconDefect::SizeNotOffered, {}};
  return {IconDefect::None, iconOf(decoded.picture)};
}

IconImage withoutAlpha(const IconImage& icon) {
  IconImage result{icon.image, icon.mask, AlphaMatrix()};
  if (!icon.hasAlphaValues()) return result;
  for (int y = 0; y < icon.height(); ++y)
    for (int x = 0; x < icon.width(); ++x) {
      if (icon.alpha.at(x, y) >= kLeastOpaque) continue;
      result.image.SetPixelV(x, y, kBlack);
      result.mask.SetPixelV(x, y, kWhite);
    }
  return result;
}

}  // namespace gp
