#include "cli/AniOperations.h"

#include <algorithm>
#include <array>
#include <span>

namespace gp::cli {
namespace {

using Operation = AniOperation;

bool setJiffies(NamedFilm& film, const Operation& operation) {
  film.frames.setJiffies(operation.jiffies);
  return true;
}
bool setJiffiesOfFrame(NamedFilm& film, const Operation& operation) {
  if (!selectFrame(film, operation.frame)) return false;
  film.frames.setJiffiesOfCurrent(operation.jiffies);
  return true;
}
bool addBelow(NamedFilm& film, const Operation& operation) {
  return selectFrame(film, operation.frame) && addBlankBelow(film);
}
bool addAbove(NamedFilm& film, const Operation& operation) {
  return selectFrame(film, operation.frame) && addBlankAbove(film);
}
bool remove(NamedFilm& film, const Operation& operation) {
  if (!selectFrame(film, operation.frame)) return false;
  film.frames.removeCurrent();
  return true;
}
// The neighbour, with which the frame is swapped, must exist too.
bool shiftUp(NamedFilm& film, const Operation& operation) {
  if (!selectFrame(film, operation.frame - 1) || !selectFrame(film, operation.frame)) return false;
  film.frames.shiftUp();
  return true;
}
bool shiftDown(NamedFilm& film, const Operation& operation) {
  if (!selectFrame(film, operation.frame + 1) || !selectFrame(film, operation.frame)) return false;
  film.frames.shiftDown();
  return true;
}
bool load(NamedFilm& film, const Operation& operation) {
  return selectFrame(film, operation.frame) && loadDirectly(film, operation.file);
}
bool take(NamedFilm& film, const Operation& operation) {
  return selectFrame(film, operation.frame) && loadByEditingArea(film, operation.file);
}
bool setHotspot(NamedFilm& film, const Operation& operation) {
  film.frames.setHotspot(operation.hotspot.x, operation.hotspot.y);
  return true;
}

// Each takes one value from a word. False for a word that is none.
bool takeFrame(const std::string& word, Operation& operation) { return parseNumber(word, operation.frame); }
bool takeJiffies(const std::string& word, Operation& operation) {
  const auto jiffies = jiffiesOf(word);
  if (!jiffies || jiffies->size() != 1) return false;
  operation.jiffies = jiffies->front();
  return true;
}
bool takeHotspot(const std::string& word, Operation& operation) {
  const auto hotspot = hotspotOf(word);
  if (hotspot) operation.hotspot = *hotspot;
  return hotspot.has_value();
}
bool takeFile(const std::string& word, Operation& operation) {
  operation.file = word;
  return !word.empty();
}

using Taker = bool (*)(const std::string& word, Operation& operation);

struct OperationRow {
  std::string_view name;
  const char* takes;
  bool (*apply)(NamedFilm& film, const Operation& operation);
  std::array<Taker, 2> values;  // null for no value
};

constexpr std::array<OperationRow, 10> kOperations{{
    {"--jiffies", kJiffiesUsage, setJiffies, {takeJiffies}},
    {"--jiffies-of", "N and 1 to 90 jiffies", setJiffiesOfFrame, {takeFrame, takeJiffies}},
    {"--below", "N", addBelow, {takeFrame}},
    {"--above", "N", addAbove, {takeFrame}},
    {"--remove", "N", remove, {takeFrame}},
    {"--up", "N", shiftUp, {takeFrame}},
    {"--down", "N", shiftDown, {takeFrame}},
    {"--load", "N and ICON.ico", load, {takeFrame, takeFile}},
    {"--take", "N and FILE", take, {takeFrame, takeFile}},
    {"--hotspot", kHotspotUsage, setHotspot, {takeHotspot}},
}};

// Takes an operation from the first words; its name is that of a row. Returns the number of words, 0 for bad usage.
std::size_t takeOperation(const OperationRow& row, std::span<const std::string> words, AniSetWords& parsed) {
  Operation operation;
  operation.apply = row.apply;
  std::size_t used = 1;
  for (const Taker taker : row.values) {
    if (!taker) continue;
    if (used >= words.size() || !taker(words[used], operation)) {
      badUsage("ani set: " + std::string(row.name) + " takes " + row.takes);
      return 0;
    }
    ++used;
  }
  parsed.operations.push_back(operation);
  return used;
}

bool isOption(const std::string& word) { return word.size() > 1 && word.front() == '-'; }

}  // namespace

std::optional<AniSetWords> parseAniSet(const Arguments& words) {
  AniSetWords parsed;
  for (std::size_t at = 0; at < words.size();) {
    const std::string& word = words[at];
    if (word == "--") {
      parsed.files.insert(parsed.files.end(), words.begin() + static_cast<std::ptrdiff_t>(at) + 1, words.end());
      break;
    }
    if (!isOption(word)) {
      parsed.files.push_back(word);
      ++at;
      continue;
    }
    const auto row = std::ranges::find(kOperations, word, &OperationRow::name);
    if (row == kOperations.end()) {
      badUsage("ani set: unknown option " + word);
      return std::nullopt;
    }
    const std::size_t used = takeOperation(*row, std::span(words).subspan(at), parsed);
    if (used == 0) return std::nullopt;
    at += used;
  }
  return parsed;
}

}  // namespace gp::cli
