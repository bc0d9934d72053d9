#include "cli/Discrepancies.h"

#include "cli/EntryRelations.h"
#include "cli/ImageFile.h"
#include "cli/ImagePixels.h"
#include "files/format/IcoLayout.h"
#include "files/format/ImageHeader.h"
#include "files/format/PngEntry.h"
#include "platform/files/ByteReader.h"
#include "platform/files/WholePicture.h"

#include <array>
#include <cstdlib>

namespace gp::cli {
namespace {

// One entry and what is known about it.
struct Inspection {
  const IconFile& file;
  int index;
  IconEntry entry;
  std::optional<ImageHeader> header;  // empty when the file ends before it
  bool sharesBytes;

  std::size_t fileSize() const { return file.span().size(); }
  bool isBitmap() const { return header && !header->isPng; }
};

template <class Number>
std::string text(Number number) {
  return std::to_string(number);
}

std::string halfText(std::int64_t halves) {
  const std::string sign = halves < 0 ? "-" : "";
  return sign + text(std::abs(halves) / 2) + (halves % 2 != 0 ? ".5" : "");
}

void findOtherSize(const Inspection& image, const DiscrepancySink& report) {
  if (!image.header) return;
  const int width = sideOf(image.entry.width), height = sideOf(image.entry.height);
  if (image.header->width != width) report({image.index, "width", text(width), text(image.header->width)});
  if (image.header->heightInHalves() != 2 * height)
    report({image.index, "height", text(height), halfText(image.header->heightInHalves())});
}

// The depth that the pixels need. Not measured for shared bytes, which could otherwise be read many times.
std::optional<ColorDepth> depthOfPixels(const Inspection& image) {
  if (image.sharesBytes) return std::nullopt;
  return measureDepth(image.file, image.entry, *image.header);
}

// A colour count that the editor does not support may still be correct.
bool colorsFit(const IconEntry& entry, int headerColors) {
  return ColorsForEntry(entry, entry.bitCount) == headerColors ||
         RawColorsForEntry(entry, entry.bitCount) == headerColors;
}

// An entry without a bit count states its depth by the colour count.
bool bitsFit(const IconEntry& entry, int headerBits, bool fittingColors) {
  return entry.bitCount == 0 ? fittingColors : entry.bitCount == headerBits;
}

void findOtherDepth(const Inspection& image, const DiscrepancySink& report) {
  if (!image.isBitmap() || image.file.isCursor()) return;
  IconEntry uncounted = image.entry;
  uncounted.colorCount = 0;
  const int headerBits = image.header->bits, headerColors = ColorsForEntry(uncounted, headerBits);
  const bool sameColors = colorsFit(image.entry, headerColors);
  const bool sameBits = bitsFit(image.entry, headerBits, sameColors);
  if (sameColors && sameBits) return;
  const auto depth = depthOfPixels(image);
  const std::string colors = depth ? text(depth->colors) : kNothingStated;
  const std::string bits = depth ? text(depth->bits) : kNothingStated;
  if (!sameColors) {
    const int stated = ColorsForEntry(image.entry, image.entry.bitCount);
    report({image.index, "colors", text(stated), text(headerColors), colors});
  }
  if (!sameBits) report({image.index, "bits", text(image.entry.bitCount), text(headerBits), bits});
}

void findMissingBytes(const Inspection& image, const DiscrepancySink& report) {
  const std::uint32_t stated = image.entry.bytesInRes;
  if (stated < ico::kBitmapHeaderSize || !image.header) {
    if (stated < ico::kBitmapHeaderSize) report({image.index, "bytes", text(stated), text(ico::kBitmapHeaderSize)});
  } else if (image.header->isPng) {
    const auto picture = ByteReader(image.file.span()).bytesAt(image.entry.imageOffset, stated);
    if (!isWholePng(picture)) report({image.index, "bytes", text(stated), kNothingStated, "incomplete"});
  } else if (const auto needed = image.header->bytesNeeded(image.header->paletteStated()); stated < needed) {
    report({image.index, "bytes", text(stated), text(needed)});
  }
}

// Nothing of such an image is shown. One that ends inside is reported by its bytes.
void findDamagedPng(const Inspection& image, const DiscrepancySink& report) {
  if (image.sharesBytes || !isPngImage(image.file, image.entry)) return;
  if (image.header &&
      !isWholePng(ByteReader(image.file.span()).bytesAt(image.entry.imageOffset, image.entry.bytesInRes)))
    return;
  const IconEntry shown = shownEntry(image.file, image.entry);
  const DecodedIcon decoded = decodePngEntry(image.file, shown, sideOf(shown.width), sideOf(shown.height));
  if (decoded.defect == IconDefect::DamagedPng) report({image.index, "png", kNothingStated, kNothingStated, "damaged"});
}

void findWrongPlace(const Inspection& image, const DiscrepancySink& report) {
  const std::uint64_t end = std::uint64_t{image.entry.imageOffset} + image.entry.bytesInRes;
  const std::size_t directoryEnd =
      ico::kDirSize + static_cast<std::size_t>(image.file.directory.count) * ico::kEntrySize;
  if (image.entry.imageOffset < directoryEnd)
    report({image.index, "offset", text(image.entry.imageOffset), kNothingStated, text(directoryEnd)});
  if (end > image.fileSize()) report({image.index, "end", text(end), kNothingStated, text(image.fileSize())});
}

void findStrayIndex(const Inspection& image, const DiscrepancySink& report) {
  if (!image.isBitmap() || image.sharesBytes) return;
  const auto highest = highestIndex(image.file, image.entry, *image.header);
  if (highest && *highest >= image.header->colorsUsed)
    report({image.index, "pixels", kNothingStated, text(image.header->colorsUsed), text(*highest)});
}

// The editor opens such pixels opaque.
void findMaskBesideAlpha(const Inspection& image, const DiscrepancySink& report) {
  if (!image.isBitmap() || image.sharesBytes) return;
  if (const int count = countOpenedOpaque(image.file, image.entry, *image.header); count > 0)
    report({image.index, "alpha", kNothingStated, kNothingStated, text(count)});
}

void findStrayHotspot(const Inspection& image, const DiscrepancySink& report) {
  if (!image.file.isCursor()) return;
  const int width = sideOf(image.entry.width), height = sideOf(image.entry.height);
  if (image.entry.hotspotX() >= width)
    report({image.index, "hotspotX", text(image.entry.hotspotX()), kNothingStated, text(width)});
  if (image.entry.hotspotY() >= height)
    report({image.index, "hotspotY", text(image.entry.hotspotY()), kNothingStated, text(height)});
}

constexpr std::array kRules{findOtherSize,  findOtherDepth, findMissingBytes,    findDamagedPng,
                            findWrongPlace, findStrayIndex, findMaskBesideAlpha, findStrayHotspot};

void reportRelation(int index, const char* what, int other, const DiscrepancySink& report) {
  if (other >= 0) report({index, what, "image " + text(other)});
}

}  // namespace

void findDiscrepancies(const IconFile& file, const DiscrepancySink& report) {
  const int count = wholeEntries(file);
  if (count < file.directory.count) report({-1, "count", text(file.directory.count), kNothingStated, text(count)});
  const std::vector<int> sharing = entriesSharedWith(file, count);
  const std::vector<int> alike = entriesLike(file, count);
  for (int i = 0; i < count; ++i) {
    const IconEntry entry = file.entry(i);
    const auto at = static_cast<std::size_t>(i);
    const Inspection image{file, i, entry, readImageHeader(file, entry), sharing[at] >= 0};
    for (const auto rule : kRules) rule(image, report);
    reportRelation(i, "shared", sharing[at], report);
    reportRelation(i, "same", alike[at], report);
  }
}

}  // namespace gp::cli
