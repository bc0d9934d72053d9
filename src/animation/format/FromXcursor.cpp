#include "animation/format/FromXcursor.h"

#include "animation/format/AniWriter.h"
#include "animation/format/Premultiplied.h"
#include "animation/format/StepTimes.h"
#include "animation/format/Xcursor.h"
#include "document/ColorDepth.h"
#include "files/format/IcoLayout.h"
#include "files/making/MadeFile.h"

#include <algorithm>
#include <map>

namespace gp {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr const char* kTooLarge = "too large to be converted";
constexpr const char* kTooManySizes = "more sizes than a cursor file can have";
constexpr const char* kMoves = "a moving cursor, which only an .ani file can hold";
constexpr const char* kDiffer = "sizes with different times, of which --size chooses one";
// Bitmaps for all sizes: few programs read PNG pictures in cursors.
constexpr MakeSettings kAllBitmaps{.bits = kBitsWithAlpha, .pngAbove = kLargestMadeSide};

// The images of a nominal size, in the order of play.
using Sizes = std::map<std::uint32_t, std::vector<XcursorEntry>>;

ConvertedCursor refused(const std::string& reason) { return {{}, reason}; }

Sizes sizesOf(const std::vector<XcursorEntry>& entries, std::optional<int> size) {
  const std::uint32_t only = size ? nearestNominalSize(entries, *size) : 0;
  Sizes sizes;
  for (const XcursorEntry& entry : entries)
    if (!size || entry.facts.nominalSize == only) sizes[entry.facts.nominalSize].push_back(entry);
  return sizes;
}

std::string tooLargeSide(const XcursorFacts& facts) {
  return "an image of " + std::to_string(facts.width) + "x" + std::to_string(facts.height) +
         " pixels, more than 256x256";
}

bool moves(const Sizes& sizes) {
  return std::ranges::any_of(sizes, [](const auto& size) { return size.second.size() > 1; });
}

bool haveSameTimes(const std::vector<XcursorEntry>& a, const std::vector<XcursorEntry>& b) {
  const auto delayOf = [](const XcursorEntry& entry) { return entry.facts.delayMs; };
  return std::ranges::equal(a, b, {}, delayOf, delayOf);
}

// The reason why the images cannot be stored, or an empty text.
std::string refusalOf(const Sizes& sizes, CursorKind kind) {
  if (sizes.size() > ico::kMaxEntries) return kTooManySizes;
  std::uint64_t bytes = 0;
  for (const auto& [nominalSize, entries] : sizes) {
    if (kind == CursorKind::Still && entries.size() > 1) return kMoves;
    if (kind == CursorKind::Animated && !haveSameTimes(entries, sizes.begin()->second)) return kDiffer;
    for (const XcursorEntry& entry : entries) {
      if (std::max(entry.facts.width, entry.facts.height) > kLargestMadeSide) return tooLargeSide(entry.facts);
      bytes += entry.facts.pixelBytes();
    }
  }
  return bytes > kMostXcursorBytes ? kTooLarge : "";
}

PngPicture pictureOf(Bytes file, const XcursorEntry& entry) {
  PngPicture picture{entry.facts.width, entry.facts.height, true, {}};
  picture.rgba.reserve(entry.facts.pixelBytes());
  for (const std::uint32_t pixel : pixelsOf(file, entry)) {
    const int alpha = static_cast<int>(pixel >> 24);
    for (const int shift : {16, 8, 0}) {
      const int product = static_cast<int>(pixel >> shift & 0xFF);
      picture.rgba.push_back(static_cast<std::uint8_t>(unpremultiplied(product, alpha)));
    }
    picture.rgba.push_back(static_cast<std::uint8_t>(alpha));
  }
  return picture;
}

// The cursor file of a step, with an image of each size.
std::vector<std::uint8_t> cursorOf(Bytes file, const Sizes& sizes, std::size_t step) {
  std::vector<MadeImage> images;
  std::vector<Hotspot> hotspots;
  for (const auto& [nominalSize, entries] : sizes) {
    const XcursorEntry& entry = entries[step];
    images.push_back(makeImage(pictureOf(file, entry), kAllBitmaps));
    hotspots.push_back({entry.facts.hotspotX, entry.facts.hotspotY});
  }
  return composeCursorFile(images, hotspots);
}

std::vector<std::uint8_t> animationOf(Bytes file, const Sizes& sizes) {
  std::vector<std::uint32_t> delaysMs;
  for (const XcursorEntry& entry : sizes.begin()->second) delaysMs.push_back(entry.facts.delayMs);
  const std::vector<std::uint32_t> jiffies = jiffiesOf(delaysMs);
  std::vector<AniStep> steps;
  for (std::size_t i = 0; i < delaysMs.size(); ++i)
    steps.push_back({cursorOf(file, sizes, i), jiffies[i], delaysMs[i]});
  return composeConvertedAni(steps);
}

}  // namespace

ConvertedCursor fromXcursor(Bytes file, CursorKind kind, std::optional<int> size) {
  const XcursorReading reading = readXcursor(file);
  if (!reading.isRead()) return refused(describe(reading.defect));
  const Sizes sizes = sizesOf(reading.entries, size);
  if (kind == CursorKind::ByContent) kind = moves(sizes) ? CursorKind::Animated : CursorKind::Still;
  if (const std::string refusal = refusalOf(sizes, kind); !refusal.empty()) return refused(refusal);
  return {kind == CursorKind::Still ? cursorOf(file, sizes, 0) : animationOf(file, sizes), {}};
}

}  // namespace gp
