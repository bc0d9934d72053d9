#include "animation/format/FilmReading.h"

#include "animation/format/AniFile.h"
#include "animation/format/AniInfo.h"
#include "animation/format/AniLayout.h"
#include "animation/format/AniSteps.h"
#include "animation/format/FrameDrawing.h"
#include "animation/format/FrameImages.h"

#include <algorithm>
#include <optional>

namespace gp {
namespace {

using Bytes = std::span<const std::uint8_t>;
using Steps = std::vector<std::size_t>;

Bytes bytesOf(Bytes file, const AniImage& image) { return file.subspan(image.offset, image.size); }

// Draws images, each one once, however often it is played.
class ImageDrawer {
 public:
  ImageDrawer(Bytes file, const std::vector<AniImage>& images) : file_(file), images_(images), drawn_(images.size()) {}

  // Null for an image that is not there or cannot be drawn.
  const DrawnFrame* draw(std::size_t image) {
    if (image >= images_.size()) return nullptr;
    if (!drawn_[image]) drawn_[image] = drawFrame(bytesOf(file_, images_[image]));
    return drawn_[image] ? &*drawn_[image] : nullptr;
  }

 private:
  Bytes file_;
  const std::vector<AniImage>& images_;
  std::vector<std::optional<DrawnFrame>> drawn_;
};

bool isLongRate(std::uint32_t rate) { return rate > static_cast<std::uint32_t>(ani::kMostJiffies); }

// The times of all steps; the tables can be longer than the film.
bool hasLongRates(const AniFile& file, std::size_t steps) {
  if (!file.rates) return isLongRate(file.header.rate);
  return std::ranges::any_of(std::span(*file.rates).first(std::min(steps, file.rates->size())), isLongRate);
}

void addLosses(const DrawnFrame& frame, FilmLosses& losses) {
  losses.alpha = losses.alpha || frame.hasAlpha;
  losses.sizes = losses.sizes || !frame.isOneOfSize;
}

struct FilmHotspot {
  int x = 0, y = 0;
};

FilmHotspot hotspotOf(const DrawnFrame& first, const AniInfo& info) {
  if (first.isOneOfSize) return {info.hotspotX, info.hotspotY};
  return {std::min(first.hotspotX, ani::kMostHotspot), std::min(first.hotspotY, ani::kMostHotspot)};
}

FilmFrame frameOf(const DrawnFrame& drawn, std::size_t index, int jiffies, FilmHotspot hotspot) {
  return {drawn.picture, jiffies, hotspot.x, hotspot.y, static_cast<int>(index)};
}

ReadFilm failed(FilmDefect defect, int frame = 0) { return {defect, frame, {}, {}}; }

ReadFilm readSteps(Bytes bytes, const AniFile& file, const Steps& steps) {
  const auto info = readAniInfo(bytes, static_cast<int>(steps.size()));
  if (!info) return failed(FilmDefect::NoJiffies);
  ReadFilm film;
  film.losses.sequence = hasPlayedSequence(file);
  film.losses.rates = hasLongRates(file, steps.size());
  ImageDrawer drawer(bytes, file.images);
  FilmHotspot hotspot;
  for (std::size_t i = 0; i < steps.size(); ++i) {
    const DrawnFrame* const drawn = drawer.draw(steps[i]);
    if (!drawn) return failed(FilmDefect::FrameNotDrawn, static_cast<int>(i));
    addLosses(*drawn, film.losses);
    if (i == 0) hotspot = hotspotOf(*drawn, *info);
    film.frames.push_back(frameOf(*drawn, i, info->jiffies[i], hotspot));
  }
  return film;
}

FilmDefect defectOf(AniDefect defect) {
  if (defect == AniDefect::None) return FilmDefect::None;
  return defect == AniDefect::NoHeader ? FilmDefect::NoJiffies : FilmDefect::NoFrames;
}

std::string joined(std::initializer_list<const char*> texts) {
  std::string text;
  for (const char* part : texts)
    if (*part != '\0') text += text.empty() ? part : std::string(", ") + part;
  return text;
}

}  // namespace

std::string FilmLosses::text() const {
  return joined(
      {alpha ? "alpha" : "", sequence ? "sequence" : "", sizes ? "other sizes" : "", rates ? "rates above 90" : ""});
}

std::string FilmLosses::notice() const {
  const std::string losses = text();
  return losses.empty() ? losses : "Will not be kept: " + losses;
}

int countAniFrames(Bytes file) {
  if (!isRiffFile(file)) return frameImages(file).empty() ? 0 : 1;
  const AniReading reading = readAniFile(file);
  return reading.isRead() ? static_cast<int>(stepsOf(reading.file).size()) : 0;
}

ReadFilm ReadANIFileFrames(Bytes file) {
  if (!isRiffFile(file)) return failed(countAniFrames(file) == 0 ? FilmDefect::NoFrames : FilmDefect::NoJiffies);
  const AniReading reading = readAniFile(file);
  if (!reading.isRead()) return failed(defectOf(reading.defect));
  const Steps steps = stepsOf(reading.file);
  if (steps.size() > static_cast<std::size_t>(cMaxAniFrames)) return failed(FilmDefect::TooManyFrames);
  return readSteps(file, reading.file, steps);
}

std::string describe(const ReadFilm& film) {
  switch (film.defect) {
    case FilmDefect::None:
      break;
    case FilmDefect::NoFrames:
      return "Failed to read this ANI file";
    case FilmDefect::TooManyFrames:
      return "Either an invalid ANI file or number of frames exceeds limit of " + std::to_string(cMaxAniFrames) + ".";
    case FilmDefect::FrameNotDrawn:
      return "Failed to retrieve one of the frames, i.e. " + std::to_string(film.failedFrame);
    case FilmDefect::NoJiffies:
      return "Failed to read jiffies info of file.";
  }
  return "";
}

std::string refusalOf(const ReadFilm& film, const std::string& path) {
  if (film.isRead()) return "";
  return film.defect == FilmDefect::FrameNotDrawn ? describe(film) + "\n" : path + "\n" + describe(film);
}

}  // namespace gp
