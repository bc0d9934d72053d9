#include "platform/resources/ResourceTable.h"

#include "platform/text/Utf16.h"

#include <algorithm>
#include <tuple>

namespace gp {
namespace {

auto keyOf(const FoundGroup& found) { return std::tie(found.name, found.group.id); }

// Names come first.
bool isBefore(const FoundGroup& a, const FoundGroup& b) {
  return a.isNamed != b.isNamed ? a.isNamed : keyOf(a) < keyOf(b);
}

bool isSame(const FoundGroup& a, const FoundGroup& b) { return a.isNamed == b.isNamed && keyOf(a) == keyOf(b); }

}  // namespace

std::vector<IconGroup> groupsInOrder(std::vector<FoundGroup> found) {
  std::ranges::stable_sort(found, isBefore);
  found.erase(std::unique(found.begin(), found.end(), isSame), found.end());
  std::vector<IconGroup> groups;
  groups.reserve(found.size());
  for (FoundGroup& each : found) {
    each.group.name = utf8Of(each.name);
    groups.push_back(std::move(each.group));
  }
  return groups;
}

std::vector<IconResource> iconsInOrder(std::vector<IconResource> found) {
  std::ranges::stable_sort(found, {}, &IconResource::id);
  const auto isSameNumber = [](const IconResource& a, const IconResource& b) { return a.id == b.id; };
  found.erase(std::unique(found.begin(), found.end(), isSameNumber), found.end());
  return found;
}

}  // namespace gp
