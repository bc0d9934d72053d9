// The icon groups and images that a library's resource directory lists, the same for all formats.
#pragma once

#include "platform/resources/IconLibrary.h"

#include <cstdint>
#include <string>
#include <vector>

namespace gp {

// A group as the directory has it: with a name or a number.
struct FoundGroup {
  bool isNamed = false;
  std::u16string name;
  IconGroup group;
};

// An image: the target of the numbers in a group's directory.
struct IconResource {
  std::uint16_t id = 0;
  ResourcePlace place;
};

struct ResourceTable {
  std::vector<IconGroup> groups;    // in order, see IconLibrary::groups
  std::vector<IconResource> icons;  // by number, each once
};

// The most groups that are kept, and the most characters of all their names.
inline constexpr std::size_t kMostGroups = 65536;
inline constexpr std::size_t kMostNameUnits = std::size_t{1} << 22;

// Names before numbers, both ascending. Of several with the same name or number the first one counts.
std::vector<IconGroup> groupsInOrder(std::vector<FoundGroup> found);
std::vector<IconResource> iconsInOrder(std::vector<IconResource> found);

}  // namespace gp
