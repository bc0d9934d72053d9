#include "files/IconWriter.h"

#include "document/IconContainerRec.h"
#include "files/ColorCount.h"
#include "files/IcoLayout.h"
#include "files/IconRows.h"
#include "platform/files/ByteWriter.h"
#include "platform/files/Files.h"

namespace gp {
namespace {

constexpr int kMono = 2;
constexpr int kStandard = 16;
constexpr int kPalette = 256;
constexpr int kBitsWithAlpha = 32;
constexpr std::uint32_t kSingleImageOffset = ico::kDirSize + ico::kEntrySize;
constexpr const char* kIcoLabel = "ICO file";

int paletteColors(int colors) { return colors == kMono || colors == kStandard || colors == kPalette ? colors : 0; }

int bitsFor(int colors, bool withAlpha) {
  return paletteColors(colors) == 0 && withAlpha ? kBitsWithAlpha : convBPP_Upto24(colors);
}

void writeDirectory(ByteWriter& out) {
  out.u16(0);
  out.u16(ico::kTypeIcon);
  out.u16(1);
}

void writeEntry(int width, int height, int colors, int bits, ByteWriter& out) {
  out.u8(static_cast<std::uint8_t>(width));
  out.u8(static_cast<std::uint8_t>(height));
  out.u8(static_cast<std::uint8_t>(colors == kMono || colors == kStandard ? colors : 0));
  out.u8(0);
  out.u16(1);  // planes
  out.u16(static_cast<std::uint16_t>(bits));
  out.u32(IconByteSize(colors, bits, width, height));
  out.u32(kSingleImageOffset);
}

void writeBitmapHeader(int width, int height, int bits, ByteWriter& out) {
  const std::size_t start = out.size();
  out.u32(ico::kBitmapHeaderSize);
  out.i32(width);
  out.i32(2 * height);  // picture and Mask
  out.u16(1);           // planes
  out.u16(static_cast<std::uint16_t>(bits));
  out.zeros(start + ico::kBitmapHeaderSize - out.size());
}

void writePicture(const Surface& image, const Surface& mask, int colors, const AlphaMatrix* alpha, ByteWriter& out) {
  if (colors == kMono) {
    writePalette(mPalMono, out);
    WriteMaskRows(image, out);
  } else if (colors == kStandard) {
    writePalette(mPal16, out);
    WriteRows16(image, out);
  } else if (const auto palette = colors == kPalette ? BuildPal256(image) : std::nullopt) {
    palette->write(out);
    WriteRows256(image, *palette, out);
  } else {
    WriteRowsTrue(image, mask, alpha, out);
  }
}

}  // namespace

std::uint32_t IconByteSize(int colors, int bitCount, int width, int height) {
  const int palette = paletteColors(colors);
  const int bits = palette ? convBPP_Upto24(colors) : bitCount == kBitsWithAlpha ? kBitsWithAlpha : 24;
  const std::size_t header = ico::kBitmapHeaderSize + static_cast<std::size_t>(palette) * ico::kPaletteEntrySize;
  const std::size_t rows = ico::rowStride(width, bits) + ico::rowStride(width, 1);
  return static_cast<std::uint32_t>(header + rows * static_cast<std::size_t>(height));
}

int colorsToWrite(const Surface& image, int dirColors) {
  if (dirColors == kTrueColor) return kTrueColor;
  int colors = 0;
  GetColorBitCount_Image(image, colors);
  return colors == kPalette && !BuildPal256(image) ? kTrueColor : colors;
}

std::vector<std::uint8_t> composeSingleIcon(const Surface& image, const Surface& mask, int colors,
                                            const AlphaMatrix* alpha) {
  const int bits = bitsFor(colors, alpha != nullptr);
  ByteWriter out(kSingleImageOffset + IconByteSize(colors, bits, image.width(), image.height()));
  writeDirectory(out);
  writeEntry(image.width(), image.height(), colors, bits, out);
  writeBitmapHeader(image.width(), image.height(), bits, out);
  writePicture(image, mask, colors, alpha, out);
  WriteMaskRows(mask, out);
  return out.take();
}

void WriteSingleIconFile(const EditState& state, const Surface& imageSurface, const Surface& maskSurface,
                         const std::string& path, bool withAlpha, bool& ok) {
  const AlphaMatrix& alpha = state.mAlphaRecs.at(static_cast<std::size_t>(state.mCurContainer));
  ok = false;
  if (withAlpha && (alpha.width() != imageSurface.width() || alpha.height() != imageSurface.height())) return;
  const int colors = colorsToWrite(imageSurface, state.current().dirColors);
  ok = replaceFile(path, composeSingleIcon(imageSurface, maskSurface, colors, withAlpha ? &alpha : nullptr));
}

bool writeCurrentIcon(const EditState& state, const std::string& path) {
  const IconContainerRec& record = state.current();
  bool ok = false;
  WriteSingleIconFile(state, state.picImage, state.picMask, path, record.bitCount == kBitsWithAlpha && record.hasAlpha,
                      ok);
  return ok;
}

void describeSavedIcon(EditState& state, const std::string& path) {
  IconContainerRec& record = state.current();
  if (!record.isTrueColor()) {
    record.dirColors = colorsToWrite(state.picImage, record.dirColors);
    record.bitCount = static_cast<std::int16_t>(convBPP_Upto24(record.dirColors));
  }
  record.path = path;
  record.sourceLabel = kIcoLabel;
  record.bihColors = record.dirColors;
  record.bihBitCount = record.bitCount;
  record.clearOrigin();
}

}  // namespace gp
