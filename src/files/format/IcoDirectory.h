// The directory of an icon file, taken out of its bytes, and the rules by which its entries tell colours. It owns
// nothing of the file. Entries that the file is too short to hold are not there: a count is believed only as far as
// the bytes go. Values are kept as the file tells them; whether they make sense is the callers' question.
#pragma once

#include "document/ColorDepth.h"

#include <cstdint>
#include <span>
#include <vector>

namespace gp {

// One ICONDIRENTRY.
struct IconEntry {
  int width = 0;
  int height = 0;
  int colorCount = 0;  // 0: none given
  int bitCount = 0;    // 0 in old icons
  std::uint32_t bytesInRes = 0;
  std::uint32_t imageOffset = 0;
  int reserved = 0;
  int planes = 0;

  bool operator==(const IconEntry&) const = default;

  // What planes and bit count mean in a cursor file.
  int hotspotX() const { return planes; }
  int hotspotY() const { return bitCount; }
};

struct IconDirectory {
  int reserved = 0;
  int type = 0;
  int count = 0;                   // as the file tells it, 0 to 65535
  std::vector<IconEntry> entries;  // those that the file holds, the last one perhaps in part, rest zero

  // True for an icon or cursor file with at least one entry told.
  bool isIcon() const;
  bool isCursor() const;
  // How many entries the file holds, at least in part; `count` may state more.
  int presentCount() const { return static_cast<int>(entries.size()); }
  // The entry, all zeros beyond what the file holds.
  IconEntry entry(int index) const;
};

IconDirectory parseIconDirectory(std::span<const std::uint8_t> file);

// The number of colours an entry has, given a bit count (its own or the bitmap header's): -1 for true colour. A colour
// count in the entry comes first and counts as 2 or 16, whatever it is.
int ColorsForEntry(const IconEntry& entry, int bitCount);
// The same with the entry's colour count as it stands.
int RawColorsForEntry(const IconEntry& entry, int bitCount);
// The depth that an entry has by its own bit count, and by another one.
ColorDepth depthOfEntry(const IconEntry& entry);
ColorDepth depthOfEntry(const IconEntry& entry, int bitCount);

}  // namespace gp
