// X cursor files: what is read lies inside the file, and what is converted comes back with the same pixels and times.
#include "FuzzInput.h"
#include "animation/format/FromXcursor.h"
#include "animation/format/Xcursor.h"

#include <algorithm>

namespace {

using gp::fuzz::require;

constexpr std::uint64_t kMostBytes = 1 << 20;  // so that one input takes milliseconds

std::uint64_t checkedBytes(const gp::XcursorReading& reading, std::size_t size) {
  std::uint64_t sum = 0;
  for (const gp::XcursorEntry& entry : reading.entries) {
    const std::uint64_t bytes = entry.facts.pixelBytes();
    require(bytes > 0 && entry.offset <= size && bytes <= size - entry.offset);
    require(entry.facts.hotspotX <= entry.facts.width && entry.facts.hotspotY <= entry.facts.height);
    sum += bytes;
  }
  return sum;
}

// Colours above their alpha do not come back.
bool isPremultiplied(std::uint32_t pixel) {
  return std::max({pixel & 0xFF, pixel >> 8 & 0xFF, pixel >> 16 & 0xFF}) <= pixel >> 24;
}

std::vector<gp::PremultipliedPixels> sortedPixels(std::span<const std::uint8_t> bytes) {
  std::vector<gp::PremultipliedPixels> all;
  for (const gp::XcursorEntry& entry : gp::readXcursor(bytes).entries) all.push_back(gp::pixelsOf(bytes, entry));
  std::ranges::sort(all);
  return all;
}

void checkWayBack(std::span<const std::uint8_t> bytes, const std::vector<std::uint8_t>& converted) {
  const gp::ConvertedCursor back = gp::toXcursor(converted);
  require(back.isConverted());
  const auto pixels = sortedPixels(bytes);
  const bool arePremultiplied = std::ranges::all_of(
      pixels, [](const gp::PremultipliedPixels& image) { return std::ranges::all_of(image, isPremultiplied); });
  if (arePremultiplied) require(sortedPixels(back.bytes) == pixels);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::span<const std::uint8_t> bytes(data, size);
  const gp::XcursorReading reading = gp::readXcursor(bytes);
  require(reading.isRead() != reading.entries.empty());
  if (checkedBytes(reading, size) > kMostBytes) return 0;
  for (const gp::CursorKind kind : {gp::CursorKind::Still, gp::CursorKind::Animated}) {
    const gp::ConvertedCursor converted = gp::fromXcursor(bytes, kind, {});
    require(converted.isConverted() != converted.bytes.empty());
    if (converted.isConverted()) checkWayBack(bytes, converted.bytes);
    gp::fromXcursor(bytes, kind, 24);
  }
  return 0;
}
