// What a cursor file holds, as far as the editor takes cursors: one picture of 32x32 at offset 22 with a hot spot
// inside. Refuses nothing; a file that is no such cursor is an answer too.
#pragma once

#include "files/format/IconFile.h"

#include <string>

namespace gp {

inline constexpr int kCursorSide = 32;  // pixels; a hot spot lies in 0 to 31

struct CursorFacts {
  bool valid = false;
  ColorDepth depth;  // by the bitmap header alone
  int hotspotX = 0;
  int hotspotY = 0;

  // "1/", colours, "/", bits; "0/0/0" for what is no cursor.
  std::string joined() const;
};

CursorFacts probeCursor(const IconFile& file);
// The same for a file; one that cannot be read counts as no cursor.
CursorFacts ProbeCursorFile(const std::string& path);

}  // namespace gp
