// Decoding in one call, for tests.
#pragma once

#include "files/IcoBuilder.h"
#include "files/format/IcoDirectory.h"
#include "files/format/IconDecoder.h"

#include <algorithm>
#include <string>

namespace gp::test {

struct Decoded {
  Surface image, mask;
  AlphaMatrix alpha;
  IconDefect defect = IconDefect::None;
};

inline Decoded decode(const Bytes& file, int index = 0) {
  const IconEntry entry = parseIconDirectory(file).entry(index);
  Decoded d{Surface(entry.width, entry.height), Surface(entry.width, entry.height), {}, {}};
  d.defect = decodeEntry(file, entry, entry.width, entry.height, {d.image, d.mask, d.alpha});
  return d;
}

inline bool samePixels(const Surface& a, const Surface& b) {
  return a.width() == b.width() && a.height() == b.height() && std::ranges::equal(a.pixels(), b.pixels());
}

inline Color colorOf(const Rgb& c) { return rgb(c.r, c.g, c.b); }

}  // namespace gp::test
