// Describes a cursor file. The editor supports one image of 32x32 at offset 22 with a hot spot inside. Accepts any
// file; one that is not such a cursor is not valid.
#pragma once

#include "files/format/IconFile.h"

#include <string>

namespace gp {

inline constexpr int kCursorSide = 32;  // pixels; a hot spot lies in 0 to 31

struct CursorFacts {
  bool valid = false;
  ColorDepth depth;  // by the bitmap header or PNG picture alone
  int hotspotX = 0;
  int hotspotY = 0;

  // "1/", colours, "/", bits; "0/0/0" if not valid.
  std::string joined() const;
};

CursorFacts probeCursor(const IconFile& file);
// The same for a file on disk. One that cannot be read is not valid.
CursorFacts ProbeCursorFile(const std::string& path);

}  // namespace gp
