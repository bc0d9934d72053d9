#include "animation/FrameExchange.h"
#include "cli/AniOperations.h"
#include "cli/ImageFile.h"
#include "cli/OneImage.h"
#include "cli/Streams.h"
#include "cli/Subcommands.h"
#include "cli/Updating.h"

#include <array>

namespace gp::cli {
namespace {

constexpr int kUsualJiffies = 30;
constexpr const char* kNotWritten = "cannot be written";

// Building.

struct BuildArguments {
  Arguments frames;
  std::string output;
  std::vector<int> jiffies{kUsualJiffies};  // of all frames, or of each
  Hotspot hotspot;
};

// Returns kDone, or kBadUsage after an error message.
int parseValues(const std::string& jiffiesText, const std::string& hotspotText, BuildArguments& given) {
  if (!jiffiesText.empty()) {
    const auto jiffies = jiffiesOf(jiffiesText);
    if (!jiffies || (jiffies->size() != 1 && jiffies->size() != given.frames.size()))
      return badUsage("ani build: --jiffies takes " + std::string(kJiffiesUsage) + ", once or for each frame");
    given.jiffies = *jiffies;
  }
  if (hotspotText.empty()) return kDone;
  const auto hotspot = hotspotOf(hotspotText);
  if (!hotspot) return badUsage("ani build: --hotspot takes " + std::string(kHotspotUsage));
  given.hotspot = *hotspot;
  return kDone;
}

int parseBuild(Arguments arguments, BuildArguments& given) {
  std::string jiffies, hotspot;
  for (const auto& [name, value] : {std::pair{"-o", &given.output}, {"--jiffies", &jiffies}, {"--hotspot", &hotspot}})
    if (!takeOption(arguments, name, *value))
      return badUsage("ani build: " + std::string(name) + " takes one value, once");
  Split split = splitOptions(arguments);
  if (!split.options.empty()) return badUsage("ani build: unknown option " + split.options.front());
  given.frames = std::move(split.files);
  if (given.frames.empty() || given.output.empty()) return badUsage("ani build: FRAME... -o OUT.ani is needed");
  return parseValues(jiffies, hotspot, given);
}

bool loadFrame(NamedFilm& film, const std::string& path) {
  const auto bytes = readFile(path);
  const bool isCursor = bytes && parseIconDirectory(bytes->span()).isCursor();
  return isCursor ? loadByEditingArea(film, path) : loadDirectly(film, path);
}

int build(const Arguments& arguments) {
  BuildArguments given;
  if (const int status = parseBuild(arguments, given); status != kDone) return status;
  NamedFilm film{given.output, AniFrames({FilmFrame()}), {}};
  for (std::size_t i = 0; i < given.frames.size(); ++i) {
    if (i > 0 && !addBlankBelow(film)) return kRefused;
    if (!loadFrame(film, given.frames[i])) return kRefused;
    film.frames.setJiffiesOfCurrent(given.jiffies.size() == 1 ? given.jiffies.front() : given.jiffies[i]);
  }
  film.frames.setHotspot(given.hotspot.x, given.hotspot.y);
  const auto bytes = fileOf(film);
  return bytes ? answerToWriting(writeOutput(given.output, *bytes), given.output) : kRefused;
}

// Changing.

// The film of a file, with its bytes. Empty after an error message.
std::optional<std::pair<NamedFilm, FileBytes>> readFilm(const std::string& path) {
  auto bytes = readInput(path);
  if (!bytes) {
    complain(path, describe(IconDefect::NotReadable));
    return std::nullopt;
  }
  auto film = filmOf(path, *bytes);
  if (!film) return std::nullopt;
  return std::pair(std::move(*film), std::move(*bytes));
}

int setIn(const std::string& path, const std::vector<AniOperation>& operations, const std::string& output) {
  const auto lock = lockForUpdate(path);
  auto read = lock ? readFilm(path) : std::nullopt;
  if (!read) return kRefused;
  auto& [film, former] = *read;
  for (const AniOperation& operation : operations)
    if (!operation.apply(film, operation)) return kRefused;
  const auto bytes = fileOf(film);
  const auto failure = [] { return std::string(kNotWritten); };
  if (!bytes || !writeUpdate(*bytes, former, path, output, failure)) return kRefused;
  if (!film.losses.empty()) complain(path, film.losses);
  return kDone;
}

int set(const Arguments& arguments) {
  Arguments rest = arguments;
  std::string output;
  if (!takeOption(rest, "-o", output)) return badUsage("ani set: -o takes one value, once");
  const auto words = parseAniSet(rest);
  if (!words) return kBadUsage;
  if (words->files.size() != 1) return badUsage("ani set: one FILE.ani is needed");
  return setIn(words->files.front(), words->operations, output);
}

// Taking a frame out.

int icon(const Arguments& arguments) {
  ImageArguments given;
  if (const int status = takeImageArguments("ani icon", "FILE.ani N OUT.ico", arguments, 0, given); status != kDone)
    return status;
  auto read = readFilm(given.input);
  if (!read || !selectFrame(read->first, given.index)) return kRefused;
  const IconOfFrame made = iconOfFrame(read->first.frames.currentFrame().picture, given.index);
  return writeIcon(made.icon, made.record, given.output);
}

}  // namespace

int runAni(const Arguments& arguments) {
  const std::string name = arguments.empty() ? "" : arguments.front();
  const Arguments rest(arguments.begin() + (arguments.empty() ? 0 : 1), arguments.end());
  if (name == "build") return build(rest);
  if (name == "set") return set(rest);
  if (name == "icon") return icon(rest);
  return badUsage("ani: build, set or icon is needed");
}

}  // namespace gp::cli
