// Parses the directory of an icon file and interprets the colour counts of its entries. Contains only entries that the
// file is long enough to hold, whatever its count states. Values are kept as stored; callers validate them.
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
  int colorCount = 0;  // 0: not stated
  int bitCount = 0;    // 0 in old icons
  std::uint32_t bytesInRes = 0;
  std::uint32_t imageOffset = 0;
  int reserved = 0;
  int planes = 0;

  bool operator==(const IconEntry&) const = default;

  // The meaning of planes and bit count in a cursor file.
  int hotspotX() const { return planes; }
  int hotspotY() const { return bitCount; }
};

class ByteWriter;

struct IconDirectory {
  int reserved = 0;
  int type = 0;
  int count = 0;                   // as the file states it, 0 to 65535
  std::vector<IconEntry> entries;  // those that the file holds; missing bytes of the last one are zero

  // True for an icon or cursor file that states at least one entry.
  bool isIcon() const;
  bool isCursor() const;
  // The number of entries that the file holds, at least in part; `count` may be larger.
  int presentCount() const { return static_cast<int>(entries.size()); }
  // The entry at `index`; all zeros beyond what the file holds.
  IconEntry entry(int index) const;
};

IconDirectory parseIconDirectory(std::span<const std::uint8_t> file);
// Appends an entry as a file has it.
void writeEntry(const IconEntry& entry, ByteWriter& out);

// The number of colours of an entry for a bit count (its own or the bitmap header's); -1 for true colour. A colour
// count in the entry has priority and is rounded to 2 or 16.
int ColorsForEntry(const IconEntry& entry, int bitCount);
// The same with the entry's colour count as stored.
int RawColorsForEntry(const IconEntry& entry, int bitCount);
// The depth of an entry by its own bit count, or by another one.
ColorDepth depthOfEntry(const IconEntry& entry);
ColorDepth depthOfEntry(const IconEntry& entry, int bitCount);

}  // namespace gp
