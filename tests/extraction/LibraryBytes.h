// Libraries with icons of one colour, to see which image of an icon is drawn.
#pragma once

#include "animation/FilmBytes.h"
#include "extraction/format/IconHandle.h"
#include "support/PeBytes.h"

#include <memory>
#include <vector>

namespace gp::test {

// An image of a library and what its group's directory states.
struct LibraryImage {
  GroupEntry stated;
  Bytes bytes;
};

inline LibraryImage plainImage(int size, Rgb color, int bits = 24) {
  return {{size, size, 0, 1, bits}, imageBytes(plainPicture(size, color, bits))};
}

inline LibraryImage imageOf(const Picture& picture) {
  return {{picture.width, picture.height, 0, 1, picture.bits}, imageBytes(picture)};
}

inline LibraryImage pngImage(const PngFile& file) {
  const auto bytes = build(file);
  return {{static_cast<int>(file.width), static_cast<int>(file.height), 0, 1, 32}, Bytes(bytes.begin(), bytes.end())};
}

// The resources of one icon with the number 1.
inline std::vector<Resource> iconWith(const std::vector<LibraryImage>& images) {
  std::vector<Resource> resources;
  std::vector<GroupEntry> entries;
  for (const LibraryImage& image : images) {
    GroupEntry entry = image.stated;
    entry.id = static_cast<int>(entries.size()) + 1;
    resources.push_back(iconOf(entry.id, image.bytes));
    entries.push_back(entry);
  }
  resources.push_back(groupOf(1, entries));
  return resources;
}

// The first icon of a library, as the platform hands it out; empty if it cannot be drawn.
inline std::optional<IconImage> firstIconOf(const Bytes& file, int size = kLargeIcon) {
  const MemorySource source(file);
  const auto library = IconLibrary::parse(source);
  return libraryIcon(*library, library->groups().at(0), size);
}

inline std::optional<IconImage> handleOf(const std::vector<LibraryImage>& images, int size = kLargeIcon) {
  return firstIconOf(peWith(iconWith(images)), size);
}

}  // namespace gp::test
