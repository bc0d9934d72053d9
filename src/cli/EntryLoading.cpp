#include "cli/EntryLoading.h"

#include "cli/Console.h"
#include "cli/ImageFile.h"
#include "files/cursor/CursorLoading.h"
#include "files/format/IconProbe.h"
#include "files/format/IconWriter.h"
#include "files/opening/IconLoading.h"
#include "files/opening/IconMessages.h"

#include <utility>

namespace gp::cli {
namespace {

constexpr const char* kToBeNamed = "no image of it is chosen by itself, --image N names one";

// The entry that the editor would open, or the reason why it opens none.
struct ChosenEntry {
  IconDefect defect = IconDefect::None;
  int index = 0;
};

ChosenEntry chooseEntry(const IconFile& file) {
  const IconFacts facts = probeIcon(file, true);
  if (facts.kind == 0) return {IconDefect::NotAnIcon, 0};
  if (!facts.canBeOpened()) return {IconDefect::SizeNotOffered, 0};
  return {IconDefect::None, facts.chosen};
}

// The editor lets the user choose among the icons of such a file.
bool hasToBeNamed(const IconFile& file, IconDefect defect) {
  return (defect == IconDefect::NotAnIcon || defect == IconDefect::SizeNotOffered) && file.isIcon() &&
         countIconSizes(file) > 0;
}

std::optional<LoadedIcon> loadChosenEntry(const IconFile& file, const std::string& path) {
  auto [defect, index] = chooseEntry(file);
  if (defect == IconDefect::None)
    if (auto loaded = loadEntry(file, index, path, defect)) return loaded;
  complain(path, hasToBeNamed(file, defect) ? kToBeNamed : describe(defect));
  return std::nullopt;
}

std::optional<LoadedIcon> loadNamedEntry(const IconFile& file, int index, const std::string& path) {
  IconDefect defect = IconDefect::None;
  auto loaded = loadEntry(file, index, path, defect);
  if (!loaded) complain(path, describe(defect));
  return loaded;
}

const char* refusalOf(const CursorFacts& facts, const DecodedIcon& decoded) {
  if (!facts.valid) return kInvalidCursorFile;
  if (!decoded.isRead()) return kCursorNotLoaded;
  return facts.depth.isShown() ? nullptr : kStrangeTrueColor;
}

std::optional<LoadedIcon> loadOpenedCursor(const IconFile& file, const std::string& path) {
  const CursorFacts facts = probeCursor(file);
  DecodedIcon decoded = loadCursorImage(file);
  if (const char* const reason = refusalOf(facts, decoded)) {
    complain(path, reason);
    return std::nullopt;
  }
  const IconContainerRec record = recordOfLoadedCursor(facts, decoded.icon, path);
  return LoadedIcon{std::move(decoded.icon), record};
}

}  // namespace

std::optional<LoadedIcon> loadEntry(const IconFile& file, int index, const std::string& path, IconDefect& defect) {
  defect = index < file.directory.count ? defectOfEntry(file, file.entry(index)) : IconDefect::NoSuchEntry;
  if (defect != IconDefect::None) return std::nullopt;
  DecodedIcon decoded = loadIconImage(file, index, true);
  defect = decoded.defect;
  if (!decoded.isRead()) return std::nullopt;
  const IconContainerRec record = recordOfLoadedIcon(factsOfEntry(file, index), decoded.icon, path);
  return LoadedIcon{std::move(decoded.icon), record};
}

std::optional<LoadedIcon> loadOpenedIcon(const std::string& path) {
  const auto file = openImageFile(path);
  if (!file) return std::nullopt;
  return file->isCursor() ? loadOpenedCursor(*file, path) : loadChosenEntry(*file, path);
}

std::optional<NewIcon> newIconOf(const LoadedIcon& loaded) {
  const IconTraits traits = traitsToWrite(loaded.icon, loaded.record);
  auto image = imageOfSingleIcon(FileBytes(composeSingleIcon(loaded.icon, traits.depth)));
  if (!image) return std::nullopt;
  return NewIcon{traits, std::move(*image)};
}

std::optional<NewIcon> loadNewIcon(const std::string& path, std::optional<int> index) {
  const auto file = openIconFile(path);
  if (!file) return std::nullopt;
  const auto loaded = index ? loadNamedEntry(*file, *index, path) : loadChosenEntry(*file, path);
  return loaded ? newIconOf(*loaded) : std::nullopt;
}

}  // namespace gp::cli
