// An icon file for updates: the directory, and each image as uninterpreted bytes. It owns the bytes of the file; the
// images are views of them, so that entries that share bytes take no additional memory. A file that does not contain
// all that its directory states is refused.
#pragma once

#include "files/format/IconFile.h"
#include "platform/files/FileWriting.h"

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
  // Images that are not from the file. A deque keeps their addresses valid.
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
// The same for a file that has been read completely.
[[nodiscard]] ArraysDefect takeIconArrays(IconFile file, ReservedField rule, IconArrays& arrays);

// Places the images one after another behind the directory, in its order, and sets the offsets of the entries. Offsets
// of a file with this layout do not change.
void layOutImages(IconArrays& arrays);
// The bytes of the file: header, entries and images, laid out as above.
std::vector<std::uint8_t> composeWholeFile(IconArrays& arrays);
// Writes header, entries and images to a file, laid out as above. When `read` is given, the file must still be that
// version. Returns what writeFile returns.
[[nodiscard]] WriteDefect writeWholeFile(IconArrays& arrays, const std::string& path,
                                         const std::optional<FileVersion>& read = std::nullopt);
// Writes the file that the arrays were read from, if it is still what was read.
[[nodiscard]] WriteDefect writeBack(IconArrays& arrays, const std::string& path);

}  // namespace gp
