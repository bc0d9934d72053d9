#include "files/cursor/CursorLoading.h"

#include "files/format/PngEntry.h"

namespace gp {
namespace {

constexpr const char* kCurLabel = "CUR file";

// The entry of a cursor file states no depth; that of the bitmap header is used instead. Images without a palette that
// are not of 24 bits are read as four bytes per pixel.
IconEntry entryByHeader(const IconFile& file) {
  IconEntry entry = shownEntry(file, file.entry(0));
  const int bits = headerBitCount(file, entry);
  entry.colorCount = 0;
  entry.bitCount = depthOfBits(bits).hasPalette() || bits == kBitsWithoutAlpha ? bits : kBitsWithAlpha;
  return entry;
}

}  // namespace

DecodedIcon loadCursorImage(const IconFile& file) {
  if (!file.isCursor()) return {IconDefect::NotAnIcon, {}};
  const IconEntry entry = entryByHeader(file);
  if (entry.width != kCursorSide || entry.height != kCursorSide) return {IconDefect::SizeNotOffered, {}};
  return decodeEntry(file, entry, kCursorSide, kCursorSide);
}

IconContainerRec recordOfLoadedCursor(const CursorFacts& facts, const IconImage& icon, const std::string& path) {
  IconContainerRec record;
  record.used = true;
  record.sourceLabel = kCurLabel;
  record.setDepth(icon.hasAlphaValues() ? facts.depth : facts.depth.withoutAlpha());
  record.setHeaderDepth(record.depth());
  record.hasAlpha = record.depth().hasAlpha();
  record.present = true;
  record.path = path;
  record.isCursor = true;
  record.hotspotX = static_cast<std::int16_t>(facts.hotspotX);
  record.hotspotY = static_cast<std::int16_t>(facts.hotspotY);
  return record;
}

}  // namespace gp
