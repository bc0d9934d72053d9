// Decodes an entry in one call, for tests.
#pragma once

#include "files/IcoBuilder.h"
#include "files/IconFileOf.h"
#include "files/format/IconDecoder.h"

#include <algorithm>
#include <string>

namespace gp::test {

struct Decoded : IconImage {
  IconDefect defect = IconDefect::None;
};

inline Decoded decode(const Bytes& file, int index = 0) {
  const IconFile held = iconFileOf(file);
  const IconEntry entry = held.entry(index);
  DecodedIcon decoded = decodeEntry(held, entry, entry.width, entry.height);
  return {std::move(decoded.icon), decoded.defect};
}

inline bool samePixels(const Surface& a, const Surface& b) {
  return a.width() == b.width() && a.height() == b.height() && std::ranges::equal(a.pixels(), b.pixels());
}

inline Color colorOf(const Rgb& c) { return rgb(c.r, c.g, c.b); }

}  // namespace gp::test
