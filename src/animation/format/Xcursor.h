// Reads and writes X cursor files, which X11 and Wayland desktops use: a table of contents, and images with their hot
// spots and times. The bytes are untrusted.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace gp {

// The limits of the format and of its readers.
inline constexpr int kMostXcursorSide = 0x7FFF;
inline constexpr std::size_t kMostXcursorImages = 0x10000;
// The most bytes of all pixels of a file that is converted.
inline constexpr std::uint64_t kMostXcursorBytes = std::uint64_t{64} << 20;

// What a file states about an image. All images of one nominal size are played one after the other.
struct XcursorFacts {
  std::uint32_t nominalSize = 0;  // programs choose an image by this size; the sides can differ
  int width = 0;                  // pixels, 1 to kMostXcursorSide
  int height = 0;
  int hotspotX = 0;  // not beyond the sides
  int hotspotY = 0;
  std::uint32_t delayMs = 0;

  std::uint64_t pixelBytes() const {
    return std::uint64_t{4} * static_cast<unsigned>(width) * static_cast<unsigned>(height);
  }
};

// An image of a file that was read.
struct XcursorEntry {
  XcursorFacts facts;
  std::size_t offset = 0;  // of its pixels in the file, which contains all of them
};

enum class XcursorDefect {
  None,
  NotXcursor,
  Damaged,  // an image is cut short, or has sides or a hot spot outside the limits
  NoImages,
};

struct XcursorReading {
  XcursorDefect defect = XcursorDefect::None;
  std::vector<XcursorEntry> entries;  // in the order of the file; empty with a defect

  bool isRead() const { return defect == XcursorDefect::None; }
};

// The reason in one line; empty for None.
const char* describe(XcursorDefect defect);

// Reads the table of contents and the headers of all images. Comments and unknown entries are passed over.
XcursorReading readXcursor(std::span<const std::uint8_t> bytes);

// The pixels of an image row by row from the top, 0xAARRGGBB with colours multiplied by their alpha.
using PremultipliedPixels = std::vector<std::uint32_t>;
// Returns the pixels of an entry of the same file.
PremultipliedPixels pixelsOf(std::span<const std::uint8_t> bytes, const XcursorEntry& entry);

// The nominal size that is shown to a person who asks for `size`: the nearest, of two the first in the file. The
// entries must not be empty.
std::uint32_t nearestNominalSize(std::span<const XcursorEntry> entries, int size);

struct XcursorImage {
  XcursorFacts facts;
  PremultipliedPixels pixels;  // width x height
};
// Returns the bytes of a file with the images, grouped by their nominal sizes, the smallest first; within a size their
// order is kept. There are kMostXcursorImages at most.
std::vector<std::uint8_t> composeXcursor(std::span<const XcursorImage> images);

}  // namespace gp
