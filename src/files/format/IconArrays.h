// A file of icons as its updates see it: the directory, and each image as opaque bytes. It owns the bytes of the file;
// the images are views into them, so that even entries which share bytes cost no more memory than the file has. A file
// that does not hold all that its directory promises is refused.
#pragma once

#include "files/format/IconFile.h"

#include <cstdint>
#include <deque>
#include <span>
#include <string>
#include <vector>

namespace gp {

using ImageBytes = std::span<const std::uint8_t>;

struct IconArrays {
  IconFile file;  // as it was read
  int reserved = 0;
  int type = 0;
  std::vector<IconEntry> entries;
  std::vector<ImageBytes> images;  // one for each entry, of its bytesInRes bytes
  // Images that are not from the file. Their places never change.
  std::deque<std::vector<std::uint8_t>> added;

  int count() const { return static_cast<int>(entries.size()); }
};

enum class ReservedField { Any, MustBeZero };
enum class ArraysDefect {
  None,
  NotReadable,
  NoIcons,  // not an icon file, or without entries
  CutShort  // the file ends before its directory, or before an image that the directory states
};

// Reads a file of the icon type. On a defect the arrays are empty.
[[nodiscard]] ArraysDefect readIconArrays(const std::string& path, ReservedField rule, IconArrays& arrays);
// The same for a file that has been read whole.
[[nodiscard]] ArraysDefect takeIconArrays(IconFile file, ReservedField rule, IconArrays& arrays);

// Lays the images one behind the other after the directory, in its order, and sets each entry's offset so. In a file
// that is laid out like this, offsets that need not change stay.
void layOutImages(IconArrays& arrays);
// Writes header, entries and images, laid out as above, over a file; `former` is what stands there now, empty if that
// is not known or worth nothing. What did not work is as in rewriteFile.
[[nodiscard]] WriteOutcome writeWholeFile(IconArrays& arrays, const std::string& path,
                                          std::span<const std::uint8_t> former);

}  // namespace gp
