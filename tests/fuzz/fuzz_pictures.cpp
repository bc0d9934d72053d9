// Pictures from the clipboard and from palette files: the checks before they are decoded. And bitmaps that the program
// writes, which must pass these checks.
#include "FuzzInput.h"
#include "platform/files/BitmapFile.h"
#include "platform/files/WholePicture.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

namespace {

using gp::fuzz::Bytes;
using gp::fuzz::require;
using Span = std::span<const std::uint8_t>;

constexpr std::size_t kBitCount = 28;  // offset of the bits per pixel
constexpr int kMostRows = 16;

constexpr bool (*kIsWhole[])(Span) = {gp::isWholeJpeg, gp::isWholeGif, gp::isWholePng, gp::isWholeBitmap};

// A complete picture remains complete when bytes follow it.
void requireOneEnd(Span bytes) {
  const Span fewer = bytes.first(bytes.size() - bytes.size() / 2);
  for (const auto isWhole : kIsWhole)
    if (isWhole(fewer)) require(isWhole(bytes));
}

void requirePngEnd(Span bytes) {
  const std::size_t size = gp::wholePngSize(bytes);
  require(gp::isWholePng(bytes) == (size != 0) && size <= bytes.size());
  if (size == 0) return;
  require(gp::wholePngSize(bytes.first(size)) == size);
  require(!gp::isWholePng(bytes.first(size - 1)));
}

void requireRows(Span bytes) {
  const int rows = gp::rowsFromTheTop(bytes);
  require(rows >= 0);
  // Each row takes bytes, unless a pixel has no bits.
  if (gp::isWholeBitmap(bytes) && rows > 0 && bytes[kBitCount] != 0)
    require(static_cast<std::size_t>(rows) <= bytes.size());
}

// A Surface with the bytes as pixels.
gp::Surface surfaceOf(Span bytes) {
  if (bytes.empty()) return gp::Surface();
  const int height = 1 + bytes[0] % kMostRows;
  const int width = static_cast<int>(bytes.size()) / height;
  gp::Surface surface(width, height);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) {
      const int value = bytes[static_cast<std::size_t>(y * width + x)];
      surface.SetPixelV(x, y, gp::rgb(value, x & 0xFF, y));
    }
  return surface;
}

void requireWrittenWhole(const gp::Surface& surface) {
  if (surface.width() == 0) return;
  const Bytes written = gp::composeBitmap(surface);
  require(gp::isWholeBitmap(written) && gp::rowsFromTheTop(written) == 0);
  require(!gp::isWholeBitmap(Span(written).first(written.size() - 1)));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Span bytes(data, size);
  requireOneEnd(bytes);
  requirePngEnd(bytes);
  requireRows(bytes);
  requireWrittenWhole(surfaceOf(bytes));
  return 0;
}
