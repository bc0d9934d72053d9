// An icon or cursor file in memory: its bytes and its directory, which is parsed once and passed on to every reader. A
// file of any other kind can be an IconFile too; see isIcon and isCursor.
#pragma once

#include "files/format/IcoDirectory.h"
#include "platform/files/Files.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace gp {

struct IconFile {
  FileBytes bytes;
  IconDirectory directory;

  std::span<const std::uint8_t> span() const { return bytes.span(); }
  bool isIcon() const { return directory.isIcon(); }
  bool isCursor() const { return directory.isCursor(); }
  IconEntry entry(int index) const { return directory.entry(index); }
};

IconFile parseIconFile(FileBytes bytes);
// Reads the parts of a file that its directory and images can occupy, which for a huge file is not all of it; bytes
// between these parts are zero. Empty when the file is not regular or cannot be read.
std::optional<IconFile> readIconFile(const std::string& path);
// Reads all bytes of a file, for callers that rewrite it or check its size. Empty as above.
std::optional<IconFile> readWholeIconFile(const std::string& path);

// biBitCount of the bitmap header of an entry's image; 0 when the file ends before it. For a PNG picture, 32 with alpha
// and 24 without.
int headerBitCount(const IconFile& file, const IconEntry& entry);
// True when the entry's image is a PNG picture.
bool isPngImage(const IconFile& file, const IconEntry& entry);

}  // namespace gp
