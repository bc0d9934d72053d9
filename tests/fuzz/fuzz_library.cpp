// Programs and libraries: their groups in order, the places of their images, and the pictures of the first ones.
#include "FuzzInput.h"
#include "extraction/format/ExtractedIcon.h"
#include "extraction/format/IconHandle.h"
#include "files/format/IcoDirectory.h"

#include <algorithm>

namespace {

using gp::fuzz::require;

constexpr std::size_t kMostGroups = 100;

void checkLabel(const gp::IconGroup& group) {
  const std::string label = group.label();
  require(!label.empty() && std::ranges::none_of(label, [](unsigned char c) { return c < ' ' || c == 0x7F; }));
}

void checkPlace(const gp::ResourcePlace& place, std::size_t size) {
  require(place.size == 0 || (place.offset <= size && place.size <= size - place.offset));
}

// Names before numbers; numbers ascending, each once.
void checkOrder(const std::vector<gp::IconGroup>& groups) {
  const auto isNumber = [](const gp::IconGroup& group) { return group.name.empty(); };
  // A group with an empty name is the first one.
  const auto first = groups.begin() + (!groups.empty() && groups[0].name.empty() ? 1 : 0);
  require(std::is_partitioned(first, groups.end(), [&](const gp::IconGroup& group) { return !isNumber(group); }));
  const auto isAfter = [](const gp::IconGroup& a, const gp::IconGroup& b) { return a.id >= b.id; };
  require(std::adjacent_find(std::find_if(first, groups.end(), isNumber), groups.end(), isAfter) == groups.end());
}

void checkIcon(const gp::IconImage& icon, int size) {
  require(icon.width() == size && icon.height() == size && icon.mask.width() == size && icon.mask.height() == size);
  const gp::IconDirectory directory = gp::parseIconDirectory(gp::fileOfExtracted(icon));
  require(directory.isIcon() && directory.count == 1 && directory.entry(0).width == size);
  require(directory.entry(0).bitCount == gp::recordOfExtracted(icon, "").bitCount);
}

void drawGroup(const gp::IconLibrary& library, const gp::IconGroup& group) {
  for (const int size : {gp::kLargeIcon, gp::kSmallIcon}) {
    const auto handle = gp::libraryIcon(library, group, size);
    if (!handle) continue;
    require(gp::drawnOn(*handle, gp::kGround).width() == size);
    checkIcon(gp::surfacesOf(*handle), size);
    checkIcon(gp::surfacesWithoutAlpha(*handle), size);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const gp::MemorySource source({data, size});
  const auto library = gp::IconLibrary::parse(source);
  if (!library) return 0;
  checkOrder(library->groups());
  for (const gp::IconGroup& group : library->groups()) {
    checkLabel(group);
    checkPlace(group.place, size);
  }
  for (std::size_t i = 0; i < std::min(library->groups().size(), kMostGroups); ++i) {
    const gp::IconGroup& group = library->groups()[i];
    for (const gp::GroupImage& image : library->imagesOf(group)) checkPlace(image.place, size);
    drawGroup(*library, group);
  }
  return 0;
}
