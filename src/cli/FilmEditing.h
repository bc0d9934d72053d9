// A film under the commands of gpicon ani: reading it, changing its frames, and composing its file. Refusals are
// printed under the name of the file that they are about.
#pragma once

#include "animation/AniFrames.h"
#include "platform/files/Files.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace gp::cli {

// A film with the name of its file.
struct NamedFilm {
  std::string path;
  AniFrames frames;
  std::string losses;  // what the film does not keep of the file it was read from, as a notice; or empty
};

// The film of a file that was read. Empty after an error message.
std::optional<NamedFilm> filmOf(const std::string& path, const FileBytes& bytes);

// Each returns false after an error message; the film may have changed nevertheless.

// Makes frame n current.
[[nodiscard]] bool selectFrame(NamedFilm& film, int n);
// Refused for a film that is full.
[[nodiscard]] bool addBlankBelow(NamedFilm& film);
[[nodiscard]] bool addBlankAbove(NamedFilm& film);
// Load an icon file into the current frame: directly, or by way of the Editing Area, which also opens cursors.
[[nodiscard]] bool loadDirectly(NamedFilm& film, const std::string& path);
[[nodiscard]] bool loadByEditingArea(NamedFilm& film, const std::string& path);

// The bytes of the film's file, with the hot spot of its frames. Empty, after an error message, for a film that cannot
// be saved.
std::optional<std::vector<std::uint8_t>> fileOf(const NamedFilm& film);

}  // namespace gp::cli
