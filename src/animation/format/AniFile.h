// Reads the structure of animated cursor files. The bytes are untrusted: what a chunk states beyond the end of the file
// is cut off, and each chunk is looked at once.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace gp {

// The `anih` chunk, of which the program uses these fields.
struct AniHeader {
  std::uint32_t frames = 0;
  std::uint32_t steps = 0;
  std::uint32_t rate = 0;  // jiffies of each step, where no table states them
  std::uint32_t flags = 0;
};

// The content of an `icon` chunk: an icon or cursor file.
struct AniImage {
  std::size_t offset = 0;  // in the file
  std::size_t size = 0;    // of what is there
  bool isWhole = true;     // false when the chunk states more than is there
};

struct AniFile {
  AniHeader header;
  std::optional<std::string> title;  // up to the first NUL
  std::optional<std::string> artist;
  std::optional<std::vector<std::uint32_t>> rates;  // jiffies of each step
  std::optional<std::vector<std::uint32_t>> sequence;
  std::optional<std::vector<std::uint32_t>> delaysMs;  // of each step, in files that this program converted
  std::vector<AniImage> images;                        // in file order, whatever number the header states
};

enum class AniDefect {
  None,
  NotAnimated,  // not a RIFF file of the form ACON
  NoHeader,
  StrangeHeader,  // of another size than 36 bytes, or cut short
  RawFrames,      // the frames are bitmaps without headers
  NoFrames,
};

struct AniReading {
  AniDefect defect = AniDefect::None;
  AniFile file;  // what was found, also with a defect

  bool isRead() const { return defect == AniDefect::None; }
};

// The reason as the program states it; empty for None.
const char* describe(AniDefect defect);

// Returns true for bytes that begin as a RIFF file does, whatever it contains.
bool isRiffFile(std::span<const std::uint8_t> bytes);

// Reads an animated cursor file. The RIFF size does not count; chunks can come in any order, and unknown ones are
// passed over. Of chunks that should be there once, the first one holds; several lists of frames are read one after the
// other. A chunk of an odd size is followed by a byte that does not count, unless a known tag is at its place.
AniReading readAniFile(std::span<const std::uint8_t> bytes);

}  // namespace gp
