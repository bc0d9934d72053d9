// The resources of an icon as a library has them: the directory of a group, and an image.
#pragma once

#include "files/IcoBuilder.h"

#include <string>
#include <vector>

namespace gp::test {

inline constexpr int kIconType = 3, kGroupType = 14, kCursorGroupType = 12;

// One resource of a library.
struct Resource {
  int type = 0;
  int id = 0;
  std::u16string name;  // in the place of the id, unless it is empty
  int language = 0;
  Bytes data;
};

// One image of a group's directory.
struct GroupEntry {
  int width = 32, height = 32, colors = 0, planes = 1, bits = 24;
  std::uint32_t size = 0;
  int id = 1;
};

inline Bytes groupDirectory(const std::vector<GroupEntry>& entries, int count = -1) {
  Bytes out;
  put16(out, 0);
  put16(out, 1);
  put16(out, static_cast<std::uint32_t>(count < 0 ? static_cast<int>(entries.size()) : count));
  for (const GroupEntry& e : entries) {
    for (const int v : {e.width, e.height, e.colors, 0}) out.push_back(static_cast<std::uint8_t>(v));
    put16(out, static_cast<std::uint32_t>(e.planes));
    put16(out, static_cast<std::uint32_t>(e.bits));
    put32(out, e.size);
    put16(out, static_cast<std::uint32_t>(e.id));
  }
  return out;
}

inline Resource groupOf(int id, const std::vector<GroupEntry>& entries, int language = 0) {
  return {kGroupType, id, {}, language, groupDirectory(entries)};
}
inline Resource namedGroup(const std::u16string& name, const std::vector<GroupEntry>& entries) {
  return {kGroupType, 0, name, 0, groupDirectory(entries)};
}
inline Resource iconOf(int id, const Bytes& image, int language = 0) { return {kIconType, id, {}, language, image}; }

}  // namespace gp::test
