// Files of several icons as arrays: when images are replaced, inserted, removed, reordered or salvaged, the others do
// not change, and the file written at the end reads back as expected. The expected content is kept beside it in a
// simple form.
#include "FuzzIcons.h"
#include "files/browser/MultiIconListing.h"
#include "files/format/DepthTexts.h"
#include "files/format/IconSalvage.h"
#include "files/format/IconUpdates.h"

#include <algorithm>
#include <numeric>

namespace {

using gp::fuzz::Bytes;
using gp::fuzz::Choices;
using gp::fuzz::require;

constexpr std::size_t kMostChoices = 48;
constexpr std::size_t kLargestMeant =
    1 << 18;  // entries may share bytes, so that a small file can describe a large one
constexpr std::size_t kDirSize = 6;
constexpr std::size_t kEntrySize = 16;
constexpr int kRefsThatRead = 99;

struct Meant {
  gp::IconEntry entry;
  Bytes image;
};
using MeantFile = std::vector<Meant>;

bool sameButForOffset(gp::IconEntry a, const gp::IconEntry& b) {
  a.imageOffset = b.imageOffset;
  return a == b;
}

void requireMeant(const gp::IconArrays& arrays, const MeantFile& meant) {
  require(arrays.entries.size() == meant.size() && arrays.images.size() == meant.size());
  for (std::size_t i = 0; i < meant.size(); ++i) {
    require(sameButForOffset(arrays.entries[i], meant[i].entry));
    require(std::ranges::equal(arrays.images[i], meant[i].image));
  }
}

MeantFile copyOf(const gp::IconArrays& arrays) {
  MeantFile meant;
  for (std::size_t i = 0; i < arrays.entries.size(); ++i)
    meant.push_back({arrays.entries[i], {arrays.images[i].begin(), arrays.images[i].end()}});
  return meant;
}

gp::NewImage newImage(Choices& choices) {
  gp::NewImage image;
  image.entry = {.width = choices.next(), .height = choices.next(), .colorCount = choices.next()};
  image.entry.bitCount = choices.next();
  image.bytes.assign(static_cast<std::size_t>(choices.next()), static_cast<std::uint8_t>(choices.next()));
  image.entry.bytesInRes = static_cast<std::uint32_t>(image.bytes.size());
  return image;
}

void takeIn(Meant& place, const gp::NewImage& image) {
  place.entry.width = image.entry.width;
  place.entry.height = image.entry.height;
  place.entry.colorCount = image.entry.colorCount;
  place.entry.bitCount = image.entry.bitCount;
  place.entry.bytesInRes = image.entry.bytesInRes;
  place.image = image.bytes;
}

void replaceOne(gp::IconArrays& arrays, MeantFile& meant, Choices& choices) {
  const int index = choices.below(arrays.count());
  const gp::NewImage image = newImage(choices);
  gp::replaceImage(arrays, index, image);
  takeIn(meant[static_cast<std::size_t>(index)], image);
}

void insertOne(gp::IconArrays& arrays, MeantFile& meant, Choices& choices) {
  const int index = choices.below(arrays.count() + 1);
  const gp::NewImage image = newImage(choices);
  gp::insertImage(arrays, index, image);
  const auto place = meant.insert(meant.begin() + index, Meant{});
  place->entry.planes = 1;
  takeIn(*place, image);
}

void removeOne(gp::IconArrays& arrays, MeantFile& meant, Choices& choices) {
  if (arrays.count() == 1) return;
  const int index = choices.below(arrays.count());
  gp::removeImage(arrays, index);
  meant.erase(meant.begin() + index);
}

void reorder(gp::IconArrays& arrays, MeantFile& meant, Choices& choices) {
  std::vector<int> order(meant.size());
  std::iota(order.begin(), order.end(), 0);
  for (int swaps = choices.below(4); swaps >= 0; --swaps)
    std::swap(order[static_cast<std::size_t>(choices.below(arrays.count()))],
              order[static_cast<std::size_t>(choices.below(arrays.count()))]);
  gp::reorderImages(arrays, order);
  MeantFile ordered;
  for (const int from : order) ordered.push_back(meant[static_cast<std::size_t>(from)]);
  meant = std::move(ordered);
}

// After a salvage every image with a bitmap header is described by that header, and a second salvage changes nothing.
void salvage(gp::IconArrays& arrays, MeantFile& meant, Choices&) {
  gp::salvageEntries(arrays);
  for (std::size_t i = 0; i < meant.size(); ++i) {
    if (!gp::hasBitmapHeader(meant[i].image)) continue;
    const gp::IconEntry& repaired = arrays.entries[i];
    require(gp::headerFactsOf(meant[i].image) == gp::HeaderFacts{repaired.width, repaired.height, repaired.bitCount});
    meant[i].entry.width = repaired.width;
    meant[i].entry.height = repaired.height;
    meant[i].entry.bitCount = repaired.bitCount;
  }
}

constexpr void (*kUpdates[])(gp::IconArrays&, MeantFile&, Choices&) = {removeOne, reorder, replaceOne, insertOne,
                                                                       salvage};

// The images follow the directory without gaps, in its order.
void requireLaidOut(const gp::IconArrays& arrays) {
  std::size_t running = kDirSize + arrays.entries.size() * kEntrySize;
  for (const gp::IconEntry& entry : arrays.entries) {
    require(entry.imageOffset == running);
    running += entry.bytesInRes;
  }
}

void requireReadsBack(gp::IconArrays& arrays, const MeantFile& meant) {
  static const gp::fuzz::ScratchFolder folder;
  const std::string path = folder.path("written.ico");
  require(gp::writeWholeFile(arrays, path) == gp::WriteDefect::None);
  requireLaidOut(arrays);
  gp::IconArrays again;
  require(gp::readIconArrays(path, gp::ReservedField::Any, again) == gp::ArraysDefect::None);
  require(again.reserved == arrays.reserved && again.type == arrays.type && again.entries == arrays.entries);
  requireMeant(again, meant);
}

void requireListed(const gp::IconArrays& arrays) {
  const auto listed = gp::listEntries(arrays);
  require(listed.size() == arrays.entries.size());
  for (int ref = 1; ref <= std::min(arrays.count(), kRefsThatRead); ++ref) {
    const gp::ListedEntry& entry = listed[static_cast<std::size_t>(ref) - 1];
    const gp::ItemReading reading = gp::readItem(gp::itemText(ref, entry, true));
    require(reading.index == ref - 1);
    // A PNG picture can be wider than three digits.
    require(entry.isPng || (reading.width == entry.width && reading.height == entry.height));
  }
}

void requireFound(const gp::IconArrays& arrays) {
  const gp::IconTraits last = gp::traitsOfEntry(arrays, arrays.count() - 1);
  const int found = gp::findSameIcon(arrays, last, -1);
  require(found >= 0 && gp::traitsOfEntry(arrays, found) == last);
  require(gp::findSameIcon(arrays, last, found) != found && !gp::colorText(last.depth).empty());
}

void update(gp::IconArrays& arrays, Choices& choices) {
  MeantFile meant = copyOf(arrays);
  gp::layOutImages(arrays);
  requireLaidOut(arrays);
  requireMeant(arrays, meant);
  while (choices.more()) {
    kUpdates[choices.below(std::size(kUpdates))](arrays, meant, choices);
    requireMeant(arrays, meant);
  }
  requireReadsBack(arrays, meant);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::span input(data, size);
  (void)gp::imageOfSingleIcon(gp::FileBytes(input));
  gp::IconArrays arrays;
  gp::IconFile file = gp::parseIconFile(gp::FileBytes(input));
  if (gp::takeIconArrays(std::move(file), gp::ReservedField::Any, arrays) != gp::ArraysDefect::None) {
    require(arrays.count() == 0 && arrays.images.empty());
    return 0;
  }
  requireListed(arrays);
  requireFound(arrays);
  (void)gp::canBeSalvaged(arrays);
  Choices choices(input, kMostChoices);
  if (gp::fuzz::sumOfImages(arrays) <= kLargestMeant) update(arrays, choices);
  return 0;
}
