// Builds cursor files byte by byte; every field can be given a wrong value. Shares no code with the program's writers.
#pragma once

#include "files/IcoBuilder.h"

namespace gp::test {

struct CursorFile {
  Picture picture;
  int hotspotX = 0, hotspotY = 0;
  int colorCount = 0;  // bColorCount, which readers of cursors must ignore
  int type = 2;
  int count = 1;
  int width = 32, height = 32;
  std::uint32_t offset = 22;  // the image follows the entry directly, or zeros up to this offset
  std::optional<std::uint32_t> bytesInRes;
  std::optional<Bytes> image;  // replaces the picture
};

inline CursorFile cursorOf(const Picture& picture, int hotspotX = 0, int hotspotY = 0) {
  CursorFile cursor;
  cursor.picture = picture;
  cursor.hotspotX = hotspotX;
  cursor.hotspotY = hotspotY;
  return cursor;
}

inline Bytes build(const CursorFile& cursor) {
  const Bytes image = cursor.image.value_or(imageBytes(cursor.picture));
  Bytes out;
  for (const int value : {0, cursor.type, cursor.count}) put16(out, static_cast<std::uint32_t>(value));
  for (const int value : {cursor.width, cursor.height, cursor.colorCount, 0})
    out.push_back(static_cast<std::uint8_t>(value));
  put16(out, static_cast<std::uint32_t>(cursor.hotspotX));
  put16(out, static_cast<std::uint32_t>(cursor.hotspotY));
  put32(out, cursor.bytesInRes.value_or(static_cast<std::uint32_t>(image.size())));
  put32(out, cursor.offset);
  while (out.size() < cursor.offset) out.push_back(0);
  append(out, image);
  return out;
}

}  // namespace gp::test
