#include "cli/EntryPicture.h"

#include "platform/codec/BitmapPicture.h"
#include "platform/files/ByteReader.h"
#include "platform/files/WholePicture.h"

#include <algorithm>

namespace gp::cli {
namespace {

// Some files have pictures of 512 pixels, whose entries state 256.
constexpr PngLimits kLargestEntry{512, 512};

}  // namespace

std::optional<EntryPicture> pictureOfEntry(const IconFile& file, int index) {
  const IconEntry entry = file.entry(index);
  ByteReader reader(file.span());
  const auto image = reader.bytesAt(entry.imageOffset, reader.size());
  if (!isPng(image)) {
    DecodedBitmap decoded = decodeIconBitmap(image, entry.bytesInRes, kLargestEntry);
    return decoded.isRead() ? std::optional(EntryPicture{std::move(decoded.picture), {}}) : std::nullopt;
  }
  DecodedPng decoded = decodePng(image, kLargestEntry);
  if (!decoded.isRead()) return std::nullopt;
  const std::size_t stated = std::min<std::size_t>(entry.bytesInRes, image.size());
  return EntryPicture{std::move(decoded.picture), image.first(std::max(stated, wholePngSize(image)))};
}

std::string undecodedText(int undecoded, int count) {
  return std::to_string(undecoded) + " of its " + std::to_string(count) + " images cannot be decoded";
}

}  // namespace gp::cli
