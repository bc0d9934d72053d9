#include "files/format/IconWriter.h"

#include "colour/ColorCount.h"
#include "files/format/IcoLayout.h"
#include "files/format/IconRows.h"
#include "platform/files/ByteWriter.h"
#include "platform/files/FileWriting.h"

namespace gp {
namespace {

constexpr const char* kIcoLabel = "ICO file";

// The number of palette entries, 0 for true colour.
int paletteEntries(int colors) { return isPaletteSize(colors) ? colors : 0; }

// The differences between icon and cursor files: the type, two words of the entry, and the bits that the image's byte
// count is computed with.
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

void writeEntry(const IconImage& icon, int colors, const FileKind& kind, ByteWriter& out) {
  out.u8(static_cast<std::uint8_t>(icon.width()));
  out.u8(static_cast<std::uint8_t>(icon.height()));
  out.u8(static_cast<std::uint8_t>(colors == kMonoDepth.colors || colors == kStandardDepth.colors ? colors : 0));
  out.u8(0);
  out.u16(static_cast<std::uint16_t>(kind.planes));
  out.u16(static_cast<std::uint16_t>(kind.bitCount));
  out.u32(IconByteSize(colors, kind.sizeBits, icon.width(), icon.height()));
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

void writePicture(const IconImage& icon, ColorDepth depth, ByteWriter& out) {
  if (depth.colors == kMonoDepth.colors) {
    writePalette(mPalMono, out);
    WriteMaskRows(icon.image, out);
  } else if (depth.colors == kStandardDepth.colors) {
    writePalette(mPal16, out);
    WriteRows16(icon.image, out);
  } else if (const auto palette = depth.colors == kPaletteDepth.colors ? BuildPal256(icon.image) : std::nullopt) {
    palette->write(out);
    WriteRows256(icon.image, *palette, out);
  } else {
    WriteRowsTrue(icon.image, icon.mask, depth.hasAlpha() ? &icon.alpha : nullptr, out);
  }
}

std::vector<std::uint8_t> composeFile(const IconImage& icon, ColorDepth depth, const FileKind& kind) {
  ByteWriter out(ico::kSingleImageOffset + IconByteSize(depth.colors, depth.bits, icon.width(), icon.height()));
  writeDirectory(kind.type, out);
  writeEntry(icon, depth.colors, kind, out);
  writeBitmapHeader(icon.width(), icon.height(), depth.bits, out);
  writePicture(icon, depth, out);
  WriteMaskRows(icon.mask, out);
  return out.take();
}

bool hasAlphaToWrite(const IconImage& icon, ColorDepth depth) { return !depth.hasAlpha() || icon.hasAlphaValues(); }

int colorsToWrite(const Surface& image, const IconContainerRec& record) {
  if (record.isTrueColor()) return kTrueColor;
  int colors = 0;
  GetColorBitCount_Image(image, colors);
  return colors == kPaletteDepth.colors && !BuildPal256(image) ? kTrueColor : colors;
}

}  // namespace

std::uint32_t IconByteSize(int colors, int bitCount, int width, int height) {
  const int palette = paletteEntries(colors);
  const int bits = palette == 0 && bitCount == kBitsWithAlpha ? kBitsWithAlpha : convBPP_Upto24(colors);
  const std::size_t header = ico::kBitmapHeaderSize + static_cast<std::size_t>(palette) * ico::kPaletteEntrySize;
  const std::size_t rows = ico::rowStride(width, bits) + ico::rowStride(width, 1);
  return static_cast<std::uint32_t>(header + rows * static_cast<std::size_t>(height));
}

ColorDepth depthToWrite(const IconImage& icon, const IconContainerRec& record) {
  return depthOfColors(colorsToWrite(icon.image, record), record.hasAlpha && record.bitCount == kBitsWithAlpha);
}

std::vector<std::uint8_t> composeSingleIcon(const IconImage& icon, ColorDepth depth) {
  return composeFile(icon, depth, {ico::kTypeIcon, 1, depth.bits, depth.bits});
}

// The byte count is computed for 24 bits even with an alpha channel. Intended.
std::vector<std::uint8_t> composeCursor(const IconImage& icon, ColorDepth depth, int hotspotX, int hotspotY) {
  return composeFile(icon, depth, {ico::kTypeCursor, hotspotX, hotspotY, kBitsWithoutAlpha});
}

void WriteSingleIconFile(const IconImage& icon, ColorDepth depth, const std::string& path, bool& ok,
                         const std::optional<FileVersion>& read) {
  ok = hasAlphaToWrite(icon, depth);
  if (!ok) return;
  const std::vector<std::uint8_t> bytes = composeSingleIcon(icon, depth);
  const Piece piece(bytes);
  ok = writeFile(path, {&piece, 1}, read) == WriteDefect::None;
}

void WriteCursorFile(const IconImage& icon, ColorDepth depth, int hotspotX, int hotspotY, const std::string& path,
                     bool& ok) {
  ok = hasAlphaToWrite(icon, depth) && replaceFile(path, composeCursor(icon, depth, hotspotX, hotspotY));
}

IconContainerRec recordOfSavedIcon(IconContainerRec record, ColorDepth written, const std::string& path) {
  if (!record.isTrueColor()) record.setDepth(written);
  record.setHeaderDepth(record.depth());
  record.path = path;
  record.sourceLabel = kIcoLabel;
  record.clearOrigin();
  return record;
}

}  // namespace gp
