// Animated cursor files: their chunks, and the times and the hot spot that are searched for by tags.
#include "FuzzInput.h"
#include "animation/format/AniFile.h"
#include "animation/format/AniInfo.h"
#include "animation/format/AniLayout.h"

#include <algorithm>

namespace {

using gp::fuzz::require;

constexpr std::size_t kMostFrames = 200;

// Frames do not overlap and lie inside the file, in its order.
void checkImages(const gp::AniFile& file, std::size_t size) {
  std::size_t end = gp::ani::kFileHeaderSize;
  for (const gp::AniImage& image : file.images) {
    require(image.offset >= end + gp::ani::kChunkHeaderSize && image.size <= size && image.offset <= size - image.size);
    end = image.offset + image.size;
  }
}

void checkNumbers(const std::optional<std::vector<std::uint32_t>>& numbers, std::size_t size) {
  if (numbers) require(numbers->size() <= size / 4);
}

void checkInfo(const gp::AniInfo& info, std::size_t frames) {
  require(info.jiffies.size() == frames);
  for (const int jiffies : info.jiffies) require(jiffies >= gp::ani::kLeastJiffies && jiffies <= gp::ani::kMostJiffies);
  for (const int position : {info.hotspotX, info.hotspotY}) require(position >= 0 && position <= gp::ani::kMostHotspot);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::span<const std::uint8_t> bytes(data, size);
  const gp::AniReading reading = gp::readAniFile(bytes);
  checkImages(reading.file, size);
  checkNumbers(reading.file.rates, size);
  checkNumbers(reading.file.sequence, size);
  require(!reading.isRead() || !reading.file.images.empty());
  const std::size_t frames = std::min(reading.file.images.size(), kMostFrames);
  const auto info = gp::readAniInfo(bytes, static_cast<int>(frames));
  if (info) checkInfo(*info, frames);
  require(!reading.isRead() || info.has_value());
  return 0;
}
