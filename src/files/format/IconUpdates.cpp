#include "files/format/IconUpdates.h"

#include "files/format/IconWriter.h"
#include "files/format/ImageSizes.h"
#include "files/format/PngEntry.h"
#include "platform/files/ByteReader.h"

#include <utility>

namespace gp {
namespace {

void setImage(IconArrays& arrays, int index, NewImage image) {
  const IconEntry& source = image.entry;
  IconEntry& entry = arrays.entries.at(static_cast<std::size_t>(index));
  entry.width = source.width;
  entry.height = source.height;
  entry.colorCount = source.colorCount;
  entry.bitCount = source.bitCount;
  entry.bytesInRes = static_cast<std::uint32_t>(image.bytes.size());
  arrays.images.at(static_cast<std::size_t>(index)) = arrays.added.emplace_back(std::move(image.bytes));
}

}  // namespace

IconTraits traitsToWrite(const IconImage& icon, const IconContainerRec& record) {
  return {icon.width(), icon.height(), depthToWrite(icon, record)};
}

IconTraits traitsOfEntry(const IconArrays& arrays, int index) {
  const auto at = static_cast<std::size_t>(index);
  const IconEntry entry = shownEntry(arrays.entries.at(at), arrays.images.at(at));
  return {entry.width, entry.height, depthOfEntry(entry)};
}

int findSameIcon(const IconArrays& arrays, const IconTraits& traits, int except) {
  for (int i = 0; i < arrays.count(); ++i)
    if (i != except && traitsOfEntry(arrays, i) == traits) return i;
  return -1;
}

std::optional<NewImage> imageOfSingleIcon(FileBytes file) {
  IconArrays arrays;
  if (takeIconArrays(parseIconFile(std::move(file)), ReservedField::MustBeZero, arrays) != ArraysDefect::None)
    return std::nullopt;
  if (arrays.count() != 1) return std::nullopt;
  const ImageBytes image = arrays.images.front();
  return NewImage{arrays.entries.front(), {image.begin(), image.end()}};
}

void takeWholeImages(IconArrays& arrays) {
  ImageSizes sizes(arrays.file);
  for (std::size_t i = 0; i < arrays.entries.size(); ++i) {
    IconEntry& entry = arrays.entries[i];
    entry.bytesInRes = sizes.sizeOf(entry);
    arrays.images[i] = ByteReader(arrays.file.span()).bytesAt(entry.imageOffset, entry.bytesInRes);
  }
}

void replaceImage(IconArrays& arrays, int index, NewImage image) { setImage(arrays, index, std::move(image)); }

void insertImage(IconArrays& arrays, int index, NewImage image) {
  arrays.entries.emplace(arrays.entries.begin() + index)->planes = 1;
  arrays.images.emplace(arrays.images.begin() + index);
  setImage(arrays, index, std::move(image));
}

void removeImage(IconArrays& arrays, int index) {
  arrays.entries.erase(arrays.entries.begin() + index);
  arrays.images.erase(arrays.images.begin() + index);
}

void reorderImages(IconArrays& arrays, std::span<const int> order) {
  const std::vector<IconEntry> entries = arrays.entries;
  const std::vector<ImageBytes> images = arrays.images;
  for (std::size_t place = 0; place < order.size(); ++place) {
    const auto from = static_cast<std::size_t>(order[place]);
    arrays.entries.at(place) = entries.at(from);
    arrays.images.at(place) = images.at(from);
  }
}

}  // namespace gp
