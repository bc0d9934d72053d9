#include "files/cursor/CursorLoading.h"

namespace gp {
namespace {

constexpr const char* kCurLabel = "CUR file";

// In a cursor file the entry tells no depth: the bitmap header's takes its place. What has no palette and is not of 24
// bits is read as four bytes a pixel.
IconEntry entryByHeader(const IconFile& file) {
  IconEntry entry = file.entry(0);
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
