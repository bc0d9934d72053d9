#include "palette/clsGPPalSave.h"

#include "platform/files/BitmapLayout.h"
#include "platform/files/ByteWriter.h"
#include "platform/files/FileWriting.h"

namespace gp {
namespace {

constexpr int kMaxPaletteBits = 8;
constexpr int kTrueColorBits = 24;
constexpr int kMaxBits = 32;
constexpr std::size_t kEntrySize = 4;
constexpr std::size_t kHeaders = dib::kFileHeaderSize + dib::kHeaderSize;

std::size_t paletteEntries(int bits) { return bits <= kMaxPaletteBits ? std::size_t{1} << bits : 0; }

bool isDithered(int bits) { return bits == 1 || bits == 4 || bits == 8; }

void writeHeaders(const clsGPDIB& dib, std::size_t paletteBytes, std::size_t pixelBytes, int bits, ByteWriter& out) {
  out.text("BM");
  // Intended: the file size in the header does not include the file header.
  out.u32(static_cast<std::uint32_t>(pixelBytes + dib::kHeaderSize + paletteBytes));
  out.u32(0);  // reserved
  out.u32(static_cast<std::uint32_t>(kHeaders + paletteBytes));
  out.u32(dib::kHeaderSize);
  out.i32(dib.DIBWidth());
  out.i32(dib.DIBHeight());
  out.u16(1);  // planes
  out.u16(static_cast<std::uint16_t>(bits));
  out.zeros(kHeaders - out.size());
}

void writePalette(const clsGPPal& palette, std::size_t count, ByteWriter& out) {
  const auto entries = palette.PalettePtr();
  for (std::size_t i = 0; i < count; ++i) {
    const DibPixel entry = i < entries.size() ? entries[i] : DibPixel{};
    for (const std::uint8_t byte : {entry.blue, entry.green, entry.red, std::uint8_t{0}}) out.u8(byte);
  }
}

void writeTrueColor(const clsGPDIB& dib, std::size_t stride, ByteWriter& out) {
  std::vector<std::uint8_t> bytes(stride);
  for (int y = 0; y < dib.DIBHeight(); ++y) {
    auto at = bytes.begin();
    for (const DibPixel pixel : dib.row(y))
      for (const std::uint8_t byte : {pixel.blue, pixel.green, pixel.red}) *at++ = byte;
    out.bytes(bytes);
  }
}

}  // namespace

std::vector<std::uint8_t> clsGPPalSave::compose(const clsGPDIB& dib, const clsGPPal& palette,
                                                const clsGPPalDither& dither, int bits) const {
  if (dib.isEmpty() || bits < 1 || bits > kMaxBits) return {};
  const std::size_t count = paletteEntries(bits);
  const std::size_t stride = dib::rowStride(dib.DIBWidth(), bits);
  const std::size_t pixelBytes = stride * static_cast<std::size_t>(dib.DIBHeight());
  if (isDithered(bits) && dither.PalID().size() != pixelBytes) return {};
  ByteWriter out(kHeaders + count * kEntrySize + pixelBytes);
  writeHeaders(dib, count * kEntrySize, pixelBytes, bits, out);
  writePalette(palette, count, out);
  if (isDithered(bits))
    out.bytes(dither.PalID());
  else if (bits == kTrueColorBits)
    writeTrueColor(dib, stride, out);
  else
    out.zeros(pixelBytes);
  return out.take();
}

bool clsGPPalSave::Save_BMP(const std::string& path, const clsGPDIB& dib, const clsGPPal& palette,
                            const clsGPPalDither& dither, int bits) const {
  const std::vector<std::uint8_t> bytes = compose(dib, palette, dither, bits);
  return !bytes.empty() && replaceFile(path, bytes);
}

}  // namespace gp
