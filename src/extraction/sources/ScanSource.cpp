#include "extraction/sources/ScanSource.h"

#include "extraction/format/IconHandle.h"

namespace gp {
namespace {

constexpr const char* kNotRetrieved = "Failed to retrieve this one.";

}  // namespace

ScanSource::ScanSource(std::string path) : path_(std::move(path)) {
  auto file = readFile(path_);
  if (!file) return;
  mIclEntries_ = scanForIconImages(file->span());
  if (!mIclEntries_.empty()) mFileBytes_ = std::move(*file);
}

std::optional<IconImage> ScanSource::decoded(int index) const {
  return decodeIconBlob(mFileBytes_.span(), mIclEntries_.at(static_cast<std::size_t>(index)));
}

ListCell ScanSource::cell(int index) {
  const IclScanEntry& entry = mIclEntries_.at(static_cast<std::size_t>(index));
  const std::string label = entry.sizeText() + " (" + std::to_string(entry.bitCount) + ")";
  const auto icon = decoded(index);
  return icon ? drawnCell(*icon, label) : invalidCell(label);
}

FetchedIcon ScanSource::fetch(int index) {
  const auto icon = decoded(index);
  if (!icon) return kNotRetrieved;
  return surfacesOf(*icon);
}

}  // namespace gp
