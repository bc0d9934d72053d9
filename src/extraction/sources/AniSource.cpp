#include "extraction/sources/AniSource.h"

#include "animation/format/AniFile.h"
#include "animation/format/AniSteps.h"
#include "animation/format/FilmFrame.h"
#include "animation/format/FilmReading.h"
#include "extraction/format/IconHandle.h"

#include <algorithm>

namespace gp {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr const char* kNotOpened = "Failed to open the animated cursor file.";
constexpr const char* kNotExtracted = "Failed to extract this icon from animated cursor file.";

// The bytes of each step's image, for as many steps as a film has at most.
std::vector<Bytes> stepsIn(Bytes file) {
  if (countAniFrames(file) == 0) return {};
  if (!isRiffFile(file)) return {file};
  const AniReading reading = readAniFile(file);
  std::vector<Bytes> steps;
  for (const std::size_t image : stepsOf(reading.file)) {
    if (steps.size() == static_cast<std::size_t>(cMaxAniFrames)) break;
    const bool isThere = image < reading.file.images.size();
    const AniImage place = isThere ? reading.file.images[image] : AniImage();
    steps.push_back(file.subspan(place.offset, place.size));
  }
  return steps;
}

}  // namespace

std::unique_ptr<AniSource> AniSource::open(const std::string& path) {
  std::unique_ptr<AniSource> source(new AniSource(path));
  if (!source->begin()) return nullptr;
  source->count_ = static_cast<int>(source->steps_.size());
  return source->count_ > 0 ? std::move(source) : nullptr;
}

bool AniSource::begin() {
  auto file = readFile(path_);
  file_ = file ? std::move(*file) : FileBytes();
  steps_ = stepsIn(file_.span());
  return !steps_.empty();
}

Bytes AniSource::bytesOf(int index) const {
  const auto step = static_cast<std::size_t>(index);
  return step < steps_.size() ? steps_[step] : Bytes();
}

std::optional<IconImage> AniSource::frame(int index) const { return fileIcon(bytesOf(index), kLargeIcon); }

ListCell AniSource::cell(int index) {
  const auto handle = frame(index);
  return handle ? drawnCell(*handle, numberLabel(index)) : invalidCell(numberLabel(index));
}

FetchedIcon AniSource::fetch(int index) {
  if (!begin()) return kNotOpened;
  const auto handle = frame(index);
  if (!handle) return kNotExtracted;
  return surfacesWithoutAlpha(*handle);
}

}  // namespace gp
