// The surgery on a file of icons: one image replaced, put in, taken out, or all put in another order. It changes the
// arrays only; images stay opaque bytes. Nothing is asked or told here. Indices count from 0 and must be valid.
#pragma once

#include "document/ColorDepth.h"
#include "document/IconContainerRec.h"
#include "document/IconImage.h"
#include "files/format/IconArrays.h"

#include <compare>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace gp {

// What two icons of one file must not have in common.
struct IconTraits {
  int width = 0;
  int height = 0;
  ColorDepth depth;
  auto operator<=>(const IconTraits&) const = default;
};

// Of an icon as it will be written, see depthToWrite.
IconTraits traitsToWrite(const IconImage& icon, const IconContainerRec& record);
// Of an entry, by the directory.
IconTraits traitsOfEntry(const IconEntry& entry);
// The first entry of these traits, passing over index `except` (-1 for none); -1 when there is none.
int findSameIcon(const IconArrays& arrays, const IconTraits& traits, int except);

// An image to go in: its bytes, and an entry that tells the truth about them.
struct NewImage {
  IconEntry entry;
  std::vector<std::uint8_t> bytes;
};
// The only image of a single-icon file; nothing when it is none.
std::optional<NewImage> imageOfSingleIcon(FileBytes file);

// The entry takes size, colours, bits and byte count of the new image, and keeps what else it told.
void replaceImage(IconArrays& arrays, int index, NewImage image);
// The new image gets the index; 0 to count().
void insertImage(IconArrays& arrays, int index, NewImage image);
void removeImage(IconArrays& arrays, int index);
// `order` holds every index once: where the image at each new place stood before.
void reorderImages(IconArrays& arrays, std::span<const int> order);

}  // namespace gp
