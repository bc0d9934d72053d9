// Describes an icon file by nine numbers, which decide whether and how it can be opened. Reads only the directory, the
// bitmap headers and PNG pictures. Accepts any file; one that is not an icon has kind 0.
#pragma once

#include "files/format/IconDecoder.h"
#include "files/format/IconFile.h"

#include <string>

namespace gp {

struct IconFacts {
  int kind = 0;    // 0 no icon file, 1 one entry, 2 several
  int usable = 0;  // usable entries up to the end of the scan
  int chosen = 0;  // index of the chosen entry
  int width = 0;
  int height = 0;
  ColorDepth directory;  // by the directory's bit count
  ColorDepth header;     // by the bitmap header's bit count

  bool canBeOpened() const { return kind != 0 && usable != 0; }
  bool hasSeveralEntries() const { return kind == 2; }
  // The depth that the icon is treated as.
  ColorDepth depth() const { return corrected(directory); }
  // The nine numbers joined by "/".
  std::string joined() const;
};

// The numbers of one entry, usable or not.
IconFacts factsOfEntry(const IconFile& file, int index);
// Of several entries, chooses the first one of 32x32, or a later one of 8 bits; with `preferEightBit` that one ends the
// scan.
IconFacts probeIcon(const IconFile& file, bool preferEightBit);
// The same for a file on disk. One that cannot be read counts as not an icon file.
IconFacts ProbeIconFile(const std::string& path, bool preferEightBit);

// The number of entries of one of the icon sizes, whether or not they can be decoded.
int countIconSizes(const IconFile& file);
// Decodes an entry that the editor can show; a defect otherwise.
[[nodiscard]] DecodedIcon decodeUsableEntry(const IconFile& file, const IconEntry& entry);
// True when the editor can show the entry: a square image of an icon size; a bitmap of a supported depth, or a PNG
// picture that can be decoded.
bool isUsableEntry(const IconFile& file, const IconEntry& entry);

}  // namespace gp
