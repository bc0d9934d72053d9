#include "files/BitmapWriter.h"

#include "files/IcoLayout.h"
#include "platform/files/ByteWriter.h"
#include "platform/files/Files.h"

namespace gp {
namespace {

constexpr int kBits = 24;
constexpr std::size_t kFileHeaderSize = 14;
constexpr std::size_t kPixelsOffset = kFileHeaderSize + ico::kBitmapHeaderSize;

std::size_t pixelBytes(const Surface& surface) {
  return ico::rowStride(surface.width(), kBits) * static_cast<std::size_t>(surface.height());
}

void writeHeaders(const Surface& surface, ByteWriter& out) {
  out.text("BM");
  out.u32(static_cast<std::uint32_t>(kPixelsOffset + pixelBytes(surface)));
  out.u32(0);
  out.u32(kPixelsOffset);
  out.u32(ico::kBitmapHeaderSize);
  out.i32(surface.width());
  out.i32(surface.height());
  out.u16(1);  // planes
  out.u16(kBits);
  out.u32(0);  // no compression
  out.u32(static_cast<std::uint32_t>(pixelBytes(surface)));
  out.zeros(kPixelsOffset - out.size());
}

void writeRow(std::span<const std::uint32_t> row, ByteWriter& out) {
  for (const std::uint32_t pixel : row) {
    const auto color = static_cast<Color>(pixel & kColorBits);
    for (const int channel : {blueOf(color), greenOf(color), redOf(color)}) out.u8(static_cast<std::uint8_t>(channel));
  }
  const int width = static_cast<int>(row.size());
  out.zeros(ico::rowStride(width, kBits) - ico::rowBytes(width, kBits));
}

}  // namespace

std::vector<std::uint8_t> composeBitmap(const Surface& surface) {
  ByteWriter out(kPixelsOffset + pixelBytes(surface));
  writeHeaders(surface, out);
  for (int y = surface.height() - 1; y >= 0; --y) writeRow(surface.row(y), out);
  return out.take();
}

bool writeBitmap(const Surface& surface, const std::string& path) { return replaceFile(path, composeBitmap(surface)); }

}  // namespace gp
