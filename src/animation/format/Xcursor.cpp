#include "animation/format/Xcursor.h"

#include "platform/files/ByteReader.h"
#include "platform/files/ByteWriter.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <string_view>

namespace gp {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::string_view kMagic = "Xcur";
constexpr std::uint32_t kFileVersion = 0x10000;
constexpr std::uint32_t kImageVersion = 1;
constexpr std::uint32_t kImageType = 0xFFFD0002;
constexpr std::size_t kPixelSize = 4;

// The file header: magic, size of this header, version, number of entries.
constexpr std::uint32_t kFileHeaderSize = 16;
constexpr std::size_t kHeaderSizeAt = 4, kCountAt = 12;
// An entry of the table of contents: type, nominal size, position of the image.
constexpr std::size_t kEntrySize = 12;
// An image: size of this header, type, nominal size, version, width, height, hot spot x and y, delay; then the pixels.
constexpr std::uint32_t kImageHeaderSize = 36;

// The facts of the image at a position. Empty when something there contradicts the format.
std::optional<XcursorEntry> readImage(Bytes bytes, std::uint32_t nominalSize, std::size_t at) {
  ByteReader reader(bytes, at);
  const std::uint32_t headerSize = reader.u32(), type = reader.u32(), size = reader.u32();
  reader.u32();  // version
  const std::uint32_t width = reader.u32(), height = reader.u32(), x = reader.u32(), y = reader.u32();
  const std::uint32_t delayMs = reader.u32();
  const auto isSide = [](std::uint32_t side) { return side > 0 && side <= kMostXcursorSide; };
  if (headerSize != kImageHeaderSize || type != kImageType || size != nominalSize) return std::nullopt;
  if (!isSide(width) || !isSide(height) || x > width || y > height) return std::nullopt;
  XcursorEntry entry{{nominalSize, static_cast<int>(width), static_cast<int>(height), static_cast<int>(x),
                      static_cast<int>(y), delayMs},
                     at + kImageHeaderSize};
  if (!reader.contains(entry.offset, entry.facts.pixelBytes())) return std::nullopt;
  return entry;
}

bool isXcursor(Bytes bytes) {
  ByteReader reader(bytes);
  return reader.contains(0, kFileHeaderSize) && std::equal(kMagic.begin(), kMagic.end(), bytes.begin()) &&
         reader.u32At(kHeaderSizeAt) >= kFileHeaderSize;
}

XcursorReading failed(XcursorDefect defect) { return {defect, {}}; }

// Positions of the images by nominal size; within a size in their order.
std::vector<std::size_t> groupedOrder(std::span<const XcursorImage> images) {
  std::vector<std::size_t> order(images.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::stable_sort(order, {}, [&](std::size_t i) { return images[i].facts.nominalSize; });
  return order;
}

std::size_t chunkSize(const XcursorImage& image) { return kImageHeaderSize + kPixelSize * image.pixels.size(); }

void writeTable(std::span<const XcursorImage> images, const std::vector<std::size_t>& order, ByteWriter& out) {
  std::size_t at = kFileHeaderSize + kEntrySize * images.size();
  for (const std::size_t i : order) {
    for (const std::size_t field : {std::size_t{kImageType}, std::size_t{images[i].facts.nominalSize}, at})
      out.u32(static_cast<std::uint32_t>(field));
    at += chunkSize(images[i]);
  }
}

void writeImage(const XcursorImage& image, ByteWriter& out) {
  const XcursorFacts& facts = image.facts;
  for (const std::uint32_t field : {kImageHeaderSize, kImageType, facts.nominalSize, kImageVersion}) out.u32(field);
  for (const int field : {facts.width, facts.height, facts.hotspotX, facts.hotspotY}) out.i32(field);
  out.u32(facts.delayMs);
  for (const std::uint32_t pixel : image.pixels) out.u32(pixel);
}

}  // namespace

const char* describe(XcursorDefect defect) {
  switch (defect) {
    case XcursorDefect::None:
      break;
    case XcursorDefect::NotXcursor:
      return "not an X cursor file";
    case XcursorDefect::Damaged:
      return "a damaged X cursor file";
    case XcursorDefect::NoImages:
      return "an X cursor file without images";
  }
  return "";
}

XcursorReading readXcursor(Bytes bytes) {
  if (!isXcursor(bytes)) return failed(XcursorDefect::NotXcursor);
  ByteReader reader(bytes);
  const std::uint32_t count = reader.u32At(kCountAt), headerSize = reader.u32At(kHeaderSizeAt);
  if (count > kMostXcursorImages || !reader.contains(headerSize, kEntrySize * count))
    return failed(XcursorDefect::Damaged);
  XcursorReading reading;
  reader.seek(headerSize);
  for (std::uint32_t i = 0; i < count; ++i) {
    const std::uint32_t type = reader.u32(), nominalSize = reader.u32(), at = reader.u32();
    if (type != kImageType) continue;
    const auto entry = readImage(bytes, nominalSize, at);
    if (!entry) return failed(XcursorDefect::Damaged);
    reading.entries.push_back(*entry);
  }
  return reading.entries.empty() ? failed(XcursorDefect::NoImages) : reading;
}

PremultipliedPixels pixelsOf(Bytes bytes, const XcursorEntry& entry) {
  ByteReader reader(bytes, entry.offset);
  PremultipliedPixels pixels(entry.facts.pixelBytes() / kPixelSize);
  for (std::uint32_t& pixel : pixels) pixel = reader.u32();
  return pixels;
}

std::uint32_t nearestNominalSize(std::span<const XcursorEntry> entries, int size) {
  const auto distance = [size](const XcursorEntry& entry) {
    return std::abs(std::int64_t{entry.facts.nominalSize} - size);
  };
  return std::ranges::min_element(entries, {}, distance)->facts.nominalSize;
}

std::vector<std::uint8_t> composeXcursor(std::span<const XcursorImage> images) {
  const std::vector<std::size_t> order = groupedOrder(images);
  ByteWriter out;
  out.text(kMagic);
  for (const std::uint32_t field : {kFileHeaderSize, kFileVersion, static_cast<std::uint32_t>(images.size())})
    out.u32(field);
  writeTable(images, order, out);
  for (const std::size_t i : order) writeImage(images[i], out);
  return out.take();
}

}  // namespace gp
