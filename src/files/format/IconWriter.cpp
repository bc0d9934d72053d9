#include "files/format/IconWriter.h"

#include "colour/ColorCount.h"
#include "document/IconContainerRec.h"
#include "files/format/IcoLayout.h"
#include "files/format/IconRows.h"
#include "platform/files/ByteWriter.h"
#include "platform/files/Files.h"

namespace gp {
namespace {

constexpr int kMono = 2;
constexpr int kStandard = 16;
constexpr int kPalette = 256;
constexpr const char* kIcoLabel = "ICO file";

int paletteColors(int colors) { return colors == kMono || colors == kStandard || colors == kPalette ? colors : 0; }

int bitsFor(int colors, bool withAlpha) {
  return paletteColors(colors) == 0 && withAlpha ? kBitsWithAlpha : convBPP_Upto24(colors);
}

// What icon and cursor files tell in different ways: their type, two words of the entry, and the bits that the image's
// byte count is worked out for.
struct FileKind {
  int type;
  int planes;    // or the hot spot's x
  int bitCount;  // or the hot spot's y
  int sizeBits;
};

void writeDirectory(int type, ByteWriter& out) {
  out.u16(0);
  out.u16(static_cast<std::uint16_t>(type));
  out.u16(1);
}

void writeEntry(const Surface& image, int colors, const FileKind& kind, ByteWriter& out) {
  out.u8(static_cast<std::uint8_t>(image.width()));
  out.u8(static_cast<std::uint8_t>(image.height()));
  out.u8(static_cast<std::uint8_t>(colors == kMono || colors == kStandard ? colors : 0));
  out.u8(0);
  out.u16(static_cast<std::uint16_t>(kind.planes));
  out.u16(static_cast<std::uint16_t>(kind.bitCount));
  out.u32(IconByteSize(colors, kind.sizeBits, image.width(), image.height()));
  out.u32(ico::kSingleImageOffset);
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

std::vector<std::uint8_t> composeFile(const Surface& image, const Surface& mask, int colors, const AlphaMatrix* alpha,
                                      const FileKind& kind) {
  const int bits = bitsFor(colors, alpha != nullptr);
  ByteWriter out(ico::kSingleImageOffset + IconByteSize(colors, bits, image.width(), image.height()));
  writeDirectory(kind.type, out);
  writeEntry(image, colors, kind, out);
  writeBitmapHeader(image.width(), image.height(), bits, out);
  writePicture(image, mask, colors, alpha, out);
  WriteMaskRows(mask, out);
  return out.take();
}

bool hasSizeOf(const AlphaMatrix& alpha, const Surface& image) {
  return alpha.width() == image.width() && alpha.height() == image.height();
}

const AlphaMatrix& currentAlpha(const EditState& state) {
  return state.mAlphaRecs.at(static_cast<std::size_t>(state.mCurContainer));
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
  return composeFile(image, mask, colors, alpha, {ico::kTypeIcon, 1, bits, bits});
}

// The byte count is that of 24 bits whether there is alpha or not.
std::vector<std::uint8_t> composeCursor(const Surface& image, const Surface& mask, int colors, const AlphaMatrix* alpha,
                                        int hotspotX, int hotspotY) {
  return composeFile(image, mask, colors, alpha, {ico::kTypeCursor, hotspotX, hotspotY, 0});
}

void WriteSingleIconFile(const EditState& state, const Surface& imageSurface, const Surface& maskSurface,
                         const std::string& path, bool withAlpha, bool& ok) {
  const AlphaMatrix& alpha = currentAlpha(state);
  ok = false;
  if (withAlpha && !hasSizeOf(alpha, imageSurface)) return;
  const int colors = colorsToWrite(imageSurface, state.current().dirColors);
  ok = replaceFile(path, composeSingleIcon(imageSurface, maskSurface, colors, withAlpha ? &alpha : nullptr));
}

bool isWrittenWithAlpha(const IconContainerRec& record) { return record.bitCount == kBitsWithAlpha && record.hasAlpha; }

bool writeCurrentIcon(const EditState& state, const std::string& path) {
  bool ok = false;
  WriteSingleIconFile(state, state.picImage, state.picMask, path, isWrittenWithAlpha(state.current()), ok);
  return ok;
}

bool writeCurrentCursor(const EditState& state, int hotspotX, int hotspotY, const std::string& path) {
  const AlphaMatrix& alpha = currentAlpha(state);
  const int colors = colorsToWrite(state.picImage, state.current().dirColors);
  const bool withAlpha = state.current().hasAlpha && colors == kTrueColor;
  if (withAlpha && !hasSizeOf(alpha, state.picImage)) return false;
  return replaceFile(
      path, composeCursor(state.picImage, state.picMask, colors, withAlpha ? &alpha : nullptr, hotspotX, hotspotY));
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
