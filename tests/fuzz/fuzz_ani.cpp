// Animated cursor files: their chunks, the times and the hot spot that are searched for by tags, and the film, which is
// painted, written and read back.
#include "FuzzIcons.h"
#include "animation/AniFilm.h"
#include "animation/format/AniFile.h"
#include "animation/format/AniInfo.h"
#include "animation/format/AniLayout.h"
#include "animation/format/FilmReading.h"
#include "animation/format/FilmWriting.h"
#include "cli/AniDefects.h"

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

bool isOfFrameSize(const gp::Surface& surface) {
  return surface.width() == gp::kFrameSide && surface.height() == gp::kFrameSide;
}

void checkFrame(const gp::FilmFrame& frame) {
  require(isOfFrameSize(frame.picture.image) && isOfFrameSize(frame.picture.mask));
  require(frame.jiffies >= gp::ani::kLeastJiffies && frame.jiffies <= gp::ani::kMostJiffies);
  for (const int position : {frame.hotspotX, frame.hotspotY})
    require(position >= 0 && position <= gp::ani::kMostHotspot);
}

// What a film shows on white: white pixels of the picture and transparent ones look the same.
void requireSameFrame(const gp::FilmFrame& a, const gp::FilmFrame& b) {
  require(gp::fuzz::samePixels(a.picture.image, b.picture.image));
  require(a.jiffies == b.jiffies && a.hotspotX == b.hotspotX && a.hotspotY == b.hotspotY);
}

void checkReadBack(const gp::ReadFilm& film) {
  const gp::FilmFrame& first = film.frames.front();
  const auto bytes = gp::composeFilm(film.frames, first.hotspotX, first.hotspotY);
  const gp::ReadFilm again = gp::ReadANIFileFrames(bytes);
  require(again.isRead() && again.frames.size() == film.frames.size() && again.losses.text().empty());
  for (std::size_t i = 0; i < film.frames.size(); ++i) requireSameFrame(film.frames[i], again.frames[i]);
  require(gp::composeFilm(again.frames, first.hotspotX, first.hotspotY) == bytes);
}

void checkFilm(std::span<const std::uint8_t> bytes) {
  const int count = gp::countAniFrames(bytes);
  const gp::ReadFilm film = gp::ReadANIFileFrames(bytes);
  require(film.isRead() == gp::refusalOf(film, "").empty() && film.isRead() != film.frames.empty());
  if (!film.isRead()) return;
  require(count == static_cast<int>(film.frames.size()) && count <= gp::cMaxAniFrames);
  for (const gp::FilmFrame& frame : film.frames) checkFrame(frame);
  gp::AniFilm painted;
  painted.redraw(gp::AniFrames(film.frames));
  checkReadBack(film);
}

void checkDefects(std::span<const std::uint8_t> bytes) {
  gp::cli::findAniDefects(bytes, [](const gp::cli::Discrepancy& defect) { require(!defect.what.empty()); });
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
  checkFilm(bytes);
  checkDefects(bytes);
  return 0;
}
