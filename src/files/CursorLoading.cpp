#include "files/CursorLoading.h"

#include "files/IcoDirectory.h"

namespace gp {
namespace {

constexpr int kBitsWithAlpha = 32;
constexpr int kBitsWithoutAlpha = 24;
constexpr const char* kCurLabel = "CUR file";

// In a cursor file the entry tells no depth: the bitmap header's takes its place. What has no palette and is not of 24
// bits is read as four bytes a pixel.
IconEntry entryByHeader(std::span<const std::uint8_t> file, const IconDirectory& directory) {
  IconEntry entry = directory.entry(0);
  const int bits = headerBitCount(file, entry);
  entry.colorCount = 0;
  entry.bitCount = ColorsForBitCount(bits) == kTrueColor && bits != kBitsWithoutAlpha ? kBitsWithAlpha : bits;
  return entry;
}

int keptBitCount(const EditState& state, int bits) {
  return bits == kBitsWithAlpha && state.gAlphaValues.width() != kCursorSide ? kBitsWithoutAlpha : bits;
}

}  // namespace

IconDefect loadCursorPixels(std::span<const std::uint8_t> file, EditState& state, Surface& image, Surface& mask) {
  const IconDirectory directory = parseIconDirectory(file);
  if (!directory.isCursor()) return IconDefect::NotAnIcon;
  const IconEntry entry = entryByHeader(file, directory);
  if (entry.width != kCursorSide || entry.height != kCursorSide) return IconDefect::SizeNotOffered;
  const IconDefect defect = decodeEntry(file, entry, kCursorSide, kCursorSide, {image, mask, state.gAlphaValues});
  if (defect != IconDefect::None) return defect;
  image.makePersistent();
  mask.makePersistent();
  return defect;
}

void describeLoadedCursor(EditState& state, const CursorFacts& facts, const std::string& path) {
  IconContainerRec& record = state.current();
  record.used = true;
  record.sourceLabel = kCurLabel;
  record.size = kCursorSide;
  record.dirColors = record.bihColors = facts.colors;
  record.bitCount = record.bihBitCount = static_cast<std::int16_t>(keptBitCount(state, facts.bits));
  record.hasAlpha = record.bitCount == kBitsWithAlpha;
  record.present = true;
  record.path = path;
  record.clearOrigin();
  record.isCursor = true;
  record.hotspotX = static_cast<std::int16_t>(facts.hotspotX);
  record.hotspotY = static_cast<std::int16_t>(facts.hotspotY);
}

}  // namespace gp
