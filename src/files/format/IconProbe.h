// What a file holds, in nine numbers: the answer that decides whether and how it can be opened. Looks at the directory
// and the bitmap headers only; refuses nothing, a file that is no icon is an answer too.
#pragma once

#include "files/format/IconFile.h"

#include <string>

namespace gp {

struct IconFacts {
  int kind = 0;    // 0 no icon file, 1 one entry, 2 several
  int usable = 0;  // usable entries, as far as the scan went
  int chosen = 0;  // chosen entry, from 0
  int width = 0;
  int height = 0;
  ColorDepth directory;  // by the directory's bit count
  ColorDepth header;     // by the bitmap header's bit count

  bool canBeOpened() const { return kind != 0 && usable != 0; }
  bool hasSeveralEntries() const { return kind == 2; }
  // The depth that the icon counts as.
  ColorDepth depth() const { return corrected(directory); }
  // The nine numbers joined by "/".
  std::string joined() const;
};

// The numbers of one entry, whatever it is.
IconFacts factsOfEntry(const IconFile& file, int index);
// Chooses among several entries: the first of 32x32, or a later one of 8 bits, at which `preferEightBit` ends the scan.
IconFacts probeIcon(const IconFile& file, bool preferEightBit);
// The same for a file; one that cannot be read counts as no icon file.
IconFacts ProbeIconFile(const std::string& path, bool preferEightBit);

// True when the editor can show the entry: square, of an icon size, a bitmap, and of a depth that the reader knows.
bool isUsableEntry(const IconFile& file, const IconEntry& entry);

}  // namespace gp
