// Changes a file of icons: replaces, inserts or removes one image, or reorders all. Works on the arrays in memory and
// does not interpret the images. Indices count from 0 and must be valid.
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

// Properties that no two icons of one file may share.
struct IconTraits {
  int width = 0;
  int height = 0;
  ColorDepth depth;
  auto operator<=>(const IconTraits&) const = default;  // NOLINT(modernize-use-nullptr): as for ColorDepth
};

// The traits of an icon as depthToWrite writes it.
IconTraits traitsToWrite(const IconImage& icon, const IconContainerRec& record);
// The traits of an entry as the directory states them; of a PNG picture as it states them itself.
IconTraits traitsOfEntry(const IconArrays& arrays, int index);
// The index of the first entry with these traits other than `except` (-1 for none); -1 when there is none.
int findSameIcon(const IconArrays& arrays, const IconTraits& traits, int except);

// An image to insert: its bytes, and an entry that describes them correctly.
struct NewImage {
  IconEntry entry;
  std::vector<std::uint8_t> bytes;
};
// The image of a file with a single icon; empty for any other file.
std::optional<NewImage> imageOfSingleIcon(FileBytes file);

// The first step of every update of arrays that were read: images whose entries state too few bytes become whole, and
// the byte counts correct, see ImageSizes. Readers show such images completely, so an update must not cut them.
void takeWholeImages(IconArrays& arrays);
// Size, colours, bits and byte count of the entry become those of the new image; its other fields are not changed.
void replaceImage(IconArrays& arrays, int index, NewImage image);
// The new image gets the index, which is 0 to count().
void insertImage(IconArrays& arrays, int index, NewImage image);
void removeImage(IconArrays& arrays, int index);
// `order` contains every index once: the former place of the image at each new place.
void reorderImages(IconArrays& arrays, std::span<const int> order);

}  // namespace gp
