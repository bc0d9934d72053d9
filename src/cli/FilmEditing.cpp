#include "cli/FilmEditing.h"

#include "animation/AniTexts.h"
#include "animation/FrameExchange.h"
#include "animation/format/FilmReading.h"
#include "animation/format/FilmWriting.h"
#include "cli/Console.h"
#include "cli/EntryLoading.h"
#include "document/Compositing.h"

namespace gp::cli {

std::optional<NamedFilm> filmOf(const std::string& path, const FileBytes& bytes) {
  ReadFilm film = ReadANIFileFrames(bytes.span());
  if (film.isRead()) return NamedFilm{path, AniFrames(std::move(film.frames)), film.losses.notice()};
  complain(path, describe(film));
  return std::nullopt;
}

bool selectFrame(NamedFilm& film, int n) {
  if (n < 1 || n > film.frames.count()) return refuse(film.path, "no frame " + std::to_string(n));
  film.frames.select(n);
  return true;
}

bool addBlankBelow(NamedFilm& film) {
  if (film.frames.isFull()) return refuse(film.path, kFullFilm);
  film.frames.addBelow();
  return true;
}

bool addBlankAbove(NamedFilm& film) {
  if (film.frames.isFull()) return refuse(film.path, kFullFilm);
  film.frames.addAbove();
  return true;
}

bool loadDirectly(NamedFilm& film, const std::string& path) {
  const LoadedPicture loaded = loadIconFile(path);
  // The message begins with the path in most cases.
  if (!loaded.isLoaded())
    return refuse(path, loaded.refusal.starts_with(path) ? loaded.refusal.substr(path.size()) : loaded.refusal);
  film.frames.loadPicture(loaded.picture);
  return true;
}

bool loadByEditingArea(NamedFilm& film, const std::string& path) {
  const auto loaded = loadOpenedIcon(path);
  if (!loaded) return false;
  if (loaded->record.depth().hasAlpha()) return refuse(path, kNoAlphaInFrames);
  const Surface &image = loaded->icon.image, &mask = loaded->icon.mask;
  if (image.width() != kFrameSide || image.height() != kFrameSide) return refuse(path, kIconOfOtherSize);
  film.frames.setPicture(pictureOfIcon(composedIcon(image, mask), mask));
  return true;
}

std::optional<std::vector<std::uint8_t>> fileOf(const NamedFilm& film) {
  const AniFrames& frames = film.frames;
  const bool isEmpty = frames.count() == 0;
  if (isEmpty || isBlank(frames.frame(1).picture)) {
    complain(film.path, isEmpty ? kNoFrames : kBlankFirstFrame);
    return std::nullopt;
  }
  return composeFilm(frames.all(), frames.frame(1).hotspotX, frames.frame(1).hotspotY);
}

}  // namespace gp::cli
