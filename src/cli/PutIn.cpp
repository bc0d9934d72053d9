// The subcommands that put an icon into files with several icons: replacing one, or adding to them.
#include "cli/EntryLoading.h"
#include "cli/Streams.h"
#include "cli/Subcommands.h"
#include "cli/Updating.h"
#include "document/Messages.h"
#include "files/format/IconDecoder.h"
#include "files/saving/MultiIconTexts.h"

namespace gp::cli {
namespace {

enum ReplaceArgument { kFile, kIndex, kIcon, kReplaceArguments };

// False, after an error message, when the file has another icon of this size and colours, other than at `except`.
bool isNew(const IconArrays& arrays, const NewIcon& icon, int except, const std::string& path, SaveInto save) {
  const int same = findSameIcon(arrays, icon.traits, except);
  if (same < 0) return true;
  return refuse(path, sameIconText(traitsOfEntry(arrays, same), save));
}

bool replaceIn(const std::string& path, int index, NewIcon icon, const std::string& output) {
  if (!isStream(path) && !FileExists(path)) return refuse(path, kFileGone);
  const auto lock = lockForUpdate(path);
  if (!lock) return false;
  IconArrays arrays;
  if (readArraysInput(path, ReservedField::MustBeZero, arrays) != ArraysDefect::None)
    return refuse(path, kReplaceNotRead);
  if (index >= arrays.count()) return refuse(path, describe(IconDefect::NoSuchEntry));
  if (!isNew(arrays, icon, index, path, SaveInto::Replace)) return false;
  takeWholeImages(arrays);
  replaceImage(arrays, index, std::move(icon.image));
  return writeUpdate(arrays, path, output, [&] { return notWrittenText(targetOf(path, output), SaveInto::Replace); });
}

// `ref` counts from 1.
struct Place {
  int ref = 0;
  bool isGiven = false;
};

bool readForAdding(const std::string& path, IconArrays& arrays) {
  auto file = readWholeIconInput(path);
  if (!file) return refuse(path, addNotReadText(path, ArraysDefect::NotReadable));
  if (!file->isIcon()) return refuse(path, kAddToNoIcon);
  const ArraysDefect defect = takeIconArrays(std::move(*file), ReservedField::MustBeZero, arrays);
  return defect == ArraysDefect::None || refuse(path, addNotReadText(path, defect));
}

bool addTo(const std::string& path, const NewIcon& icon, const Place& place, const std::string& output) {
  const auto lock = lockForUpdate(path);
  IconArrays arrays;
  if (!lock || !readForAdding(path, arrays) || !isNew(arrays, icon, -1, path, SaveInto::Add)) return false;
  const int index = place.isGiven ? place.ref - 1 : arrays.count();
  if (index < 0 || index > arrays.count()) return refuse(path, addNoPositionText(path));
  takeWholeImages(arrays);
  insertImage(arrays, index, icon.image);
  return writeUpdate(arrays, path, output, [&] { return notWrittenText(targetOf(path, output), SaveInto::Add); });
}

// False for an --image that is not a number.
bool parseImage(const UpdateArguments& given, std::optional<int>& image) {
  int number = 0;
  if (given.image.empty()) return true;
  if (!parseNumber(given.image, number)) return false;
  image = number;
  return true;
}

}  // namespace

int runReplace(const Arguments& arguments) {
  const auto given = parseUpdate("replace", arguments, {.image = true});
  int index = 0;
  if (!given) return kBadUsage;
  if (given->files.size() != kReplaceArguments) return badUsage("replace: FILE INDEX ICON.ico is needed");
  if (!parseNumber(given->files[kIndex], index)) return badUsage("replace: the index is no number");
  std::optional<int> image;
  if (!parseImage(*given, image)) return badUsage("replace: --image takes a number");
  auto icon = loadNewIcon(given->files[kIcon], image);
  return icon && replaceIn(given->files[kFile], index, std::move(*icon), given->output) ? kDone : kRefused;
}

int runAdd(const Arguments& arguments) {
  const auto given = parseUpdate("add", arguments, {.at = true, .image = true});
  if (!given) return kBadUsage;
  Place place;
  place.isGiven = !given->position.empty();
  if (given->files.size() < 2) return badUsage("add: FILE... ICON.ico is needed");
  if (place.isGiven && !parseNumber(given->position, place.ref)) return badUsage("add: --at takes a number");
  if (!given->output.empty() && given->files.size() != 2) return badUsage("add: -o goes with one FILE only");

  std::optional<int> image;
  if (!parseImage(*given, image)) return badUsage("add: --image takes a number");
  const auto icon = loadNewIcon(given->files.back(), image);
  if (!icon) return kRefused;
  int status = kDone;
  for (std::size_t i = 0; i + 1 < given->files.size(); ++i)
    if (!addTo(given->files[i], *icon, place, given->output)) status = kRefused;
  return status;
}

}  // namespace gp::cli
