// Builds bitmap files byte by byte, as IcoBuilder.h builds icons.
#pragma once

#include "files/IcoBuilder.h"

namespace gp::test {

// A bitmap file with the picture's header, palette and rows. Its height is that of the picture unless `headerHeight` is
// set; a negative one only reverses the order in which the rows are read.
inline Bytes bitmapFileOf(Picture p) {
  if (!p.headerHeight) p.headerHeight = p.height;
  const Bytes header = bitmapHeader(p), palette = paletteBytes(p);
  const Bytes rows = p.bits <= 8 ? packedRows(p.width, p.height, p.bits, p.index) : trueRows(p);
  const std::size_t rowsAt = 14 + header.size() + palette.size();
  Bytes out{'B', 'M'};
  for (const std::size_t field : {rowsAt + rows.size(), std::size_t{0}, rowsAt})
    put32(out, static_cast<std::uint32_t>(field));
  for (const Bytes& part : {header, palette, rows}) append(out, part);
  return out;
}

}  // namespace gp::test
