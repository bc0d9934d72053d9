// What is read and written reads back: all entries and images of a file, each entry as a separate file, and each
// decoded icon through the writer of single icons.
#include "FuzzIcons.h"
#include "document/IconSizes.h"
#include "files/format/IconUpdates.h"
#include "files/format/IconWriter.h"
#include "files/format/SingleEntryFile.h"
#include "files/opening/IconLoading.h"

namespace {

using gp::fuzz::Bytes;
using gp::fuzz::require;

constexpr std::size_t kLargestSum = 1 << 18;  // of the images

gp::IconFile parsed(const Bytes& bytes) { return gp::parseIconFile(gp::FileBytes(bytes)); }

bool sameButForOffset(gp::IconEntry a, const gp::IconEntry& b) {
  a.imageOffset = b.imageOffset;
  return a == b;
}

void requireWholeFile(gp::IconArrays& arrays) {
  const Bytes written = gp::composeWholeFile(arrays);
  gp::IconArrays again;
  require(gp::takeIconArrays(parsed(written), gp::ReservedField::Any, again) == gp::ArraysDefect::None);
  require(again.reserved == arrays.reserved && again.type == arrays.type && again.entries == arrays.entries);
  for (std::size_t i = 0; i < arrays.images.size(); ++i) require(std::ranges::equal(again.images[i], arrays.images[i]));
  require(gp::composeWholeFile(again) == written);
}

void requireSingleFile(const gp::IconArrays& arrays, int index) {
  const auto at = static_cast<std::size_t>(index);
  const auto single = gp::imageOfSingleIcon(gp::FileBytes(gp::composeSingleEntryFile(arrays, index)));
  require(single && sameButForOffset(single->entry, arrays.entries[at]));
  require(std::ranges::equal(single->bytes, arrays.images[at]));
}

// Whole images contain what their entries stated, and are what the entries state now.
void requireWholeImages(gp::IconArrays& arrays) {
  const std::vector<gp::ImageBytes> stated = arrays.images;
  gp::takeWholeImages(arrays);
  for (std::size_t i = 0; i < stated.size(); ++i) {
    const gp::ImageBytes image = arrays.images[i];
    require(image.size() >= stated[i].size() && image.size() == arrays.entries[i].bytesInRes);
    require(std::ranges::equal(image.first(stated[i].size()), stated[i]));
  }
}

void rewriteFile(gp::IconFile file) {
  gp::IconArrays arrays;
  if (gp::takeIconArrays(std::move(file), gp::ReservedField::Any, arrays) != gp::ArraysDefect::None) return;
  if (gp::fuzz::sumOfImages(arrays) > kLargestSum) return;
  requireWholeImages(arrays);
  if (gp::fuzz::sumOfImages(arrays) > kLargestSum) return;
  requireWholeFile(arrays);
  for (int i = 0; i < std::min(arrays.count(), gp::fuzz::kMostEntries); ++i) requireSingleFile(arrays, i);
}

void rewriteIcon(const gp::IconFile& file, int index) {
  const gp::DecodedIcon decoded = gp::loadIconImage(file, index, true);
  if (!decoded.isRead()) return;
  const gp::IconContainerRec record = gp::recordOfLoadedIcon(gp::factsOfEntry(file, index), decoded.icon, "/a/b.ico");
  const gp::ColorDepth depth = gp::depthToWrite(decoded.icon, record);
  const Bytes written = gp::composeSingleIcon(decoded.icon, depth);
  const gp::IconFile single = parsed(written);
  const gp::DecodedIcon again = gp::loadIconImage(single, 0, true);
  require(again.isRead() && gp::fuzz::sameIcon(again.icon, gp::fuzz::asWritten(decoded.icon, depth)));
  require(gp::factsOfEntry(single, 0).directory == depth && gp::factsOfEntry(single, 0).header == depth);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  gp::IconFile file = gp::parseIconFile(gp::FileBytes(std::span(data, size)));
  for (int i = 0; i < gp::fuzz::entriesToDecode(file); ++i) rewriteIcon(file, i);
  rewriteFile(std::move(file));
  return 0;
}
