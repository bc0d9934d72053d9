#include "platform/files/BitmapFile.h"

#include "platform/files/BitmapLayout.h"
#include "platform/files/ByteReader.h"
#include "platform/files/ByteWriter.h"
#include "platform/files/FileWriting.h"
#include "platform/files/Files.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace gp {
namespace {

constexpr int kBits = 24;
constexpr std::size_t kPixelsOffset = dib::kFileHeaderSize + dib::kHeaderSize;

// Values of the compression field.
constexpr std::uint32_t kUncompressed = 0;
constexpr std::uint32_t kBitFields = 3;

constexpr int kMostBits = 32;
constexpr std::uint64_t kEndless = std::numeric_limits<std::uint64_t>::max();

bool isUncompressed(std::uint32_t compression) { return compression == kUncompressed || compression == kBitFields; }

std::size_t pixelBytes(const Surface& surface) {
  return dib::rowStride(surface.width(), kBits) * static_cast<std::size_t>(surface.height());
}

void writeHeaders(const Surface& surface, ByteWriter& out) {
  out.text("BM");
  out.u32(static_cast<std::uint32_t>(kPixelsOffset + pixelBytes(surface)));
  out.u32(0);
  out.u32(kPixelsOffset);
  out.u32(dib::kHeaderSize);
  out.i32(surface.width());
  out.i32(surface.height());
  out.u16(1);  // planes
  out.u16(kBits);
  out.u32(kUncompressed);
  out.u32(static_cast<std::uint32_t>(pixelBytes(surface)));
  out.zeros(kPixelsOffset - out.size());
}

void writeRow(std::span<const std::uint32_t> row, ByteWriter& out) {
  for (const std::uint32_t pixel : row) {
    const auto color = static_cast<Color>(pixel & kColorBits);
    for (const int channel : {blueOf(color), greenOf(color), redOf(color)}) out.u8(static_cast<std::uint8_t>(channel));
  }
  const int width = static_cast<int>(row.size());
  out.zeros(dib::rowStride(width, kBits) - dib::rowBytes(width, kBits));
}

// Returns the size in bytes of all pixels of the bitmap whose header starts at the first byte of `header`.
std::uint64_t statedPixelBytes(ByteReader header) {
  const std::uint32_t compression = header.u32At(dib::kHeaderCompression);
  if (!isUncompressed(compression)) return header.u32At(dib::kHeaderSizeImage);
  const std::int32_t width = header.i32At(dib::kHeaderWidth);
  if (width <= 0) return kEndless;
  // A negative height reverses the row order. With at most kMostBits bits per pixel the product cannot wrap.
  const auto rows = static_cast<std::uint64_t>(std::llabs(header.i32At(dib::kHeaderHeight)));
  return rows * dib::rowStride(width, std::min<int>(header.u16At(dib::kHeaderBitCount), kMostBits));
}

}  // namespace

std::vector<std::uint8_t> composeBitmap(const Surface& surface) {
  ByteWriter out(kPixelsOffset + pixelBytes(surface));
  writeHeaders(surface, out);
  for (int y = surface.height() - 1; y >= 0; --y) writeRow(surface.row(y), out);
  return out.take();
}

bool writeBitmap(const Surface& surface, const std::string& path) { return replaceFile(path, composeBitmap(surface)); }

bool isWholeBitmap(std::span<const std::uint8_t> bytes) {
  ByteReader file(bytes);
  if (file.u8() != 'B' || file.u8() != 'M' || !file.contains(dib::kFileHeaderSize, sizeof(std::uint32_t))) return false;
  if (file.u32At(dib::kFileHeaderSize) < dib::kHeaderSize) return true;
  if (!file.contains(0, kPixelsOffset)) return false;
  return file.contains(file.u32At(dib::kFilePixelsOffset),
                       statedPixelBytes(ByteReader(bytes.subspan(dib::kFileHeaderSize))));
}

int rowsFromTheTop(std::span<const std::uint8_t> bytes) {
  ByteReader file(bytes);
  if (file.u8() != 'B' || file.u8() != 'M' || !file.contains(0, kPixelsOffset)) return 0;
  if (file.u32At(dib::kFileHeaderSize) < dib::kHeaderSize) return 0;
  if (!isUncompressed(file.u32At(dib::kFileHeaderSize + dib::kHeaderCompression))) return 0;
  const std::int32_t height = file.i32At(dib::kFileHeaderSize + dib::kHeaderHeight);
  return height >= 0 || height == std::numeric_limits<std::int32_t>::min() ? 0 : -height;
}

}  // namespace gp
