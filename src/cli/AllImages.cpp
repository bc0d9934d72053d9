#include "cli/AllImages.h"

#include "cli/Streams.h"
#include "cli/Updating.h"
#include "files/format/IconUpdates.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace gp::cli {
namespace {

constexpr const char* kNameTaken = "a file of this name was given before it, so it is not written";
constexpr const char* kTooLarge = "too large to be written";

bool isIndex(const std::string& word) {
  return !word.empty() && std::ranges::all_of(word, [](char c) { return c >= '0' && c <= '9'; });
}

std::string ownName(const std::string& path) {
  return isStream(path) ? stemOf(path) + ".ico" : std::filesystem::path(path).filename().string();
}

// Why a file with images of that many bytes cannot be written; null when it can.
const char* reasonAgainstSize(std::uint64_t size, const OutputFolder& folder) {
  if (size > kMaxFileBytes) return kTooLarge;
  return folder.hasRoomFor(1, size) ? nullptr : kTooMuch;
}

// Replaces an image by the changed one. Returns why it does not take the change; null when it is replaced.
const char* changeEntry(const ImageChange& change, int index, const std::string& path, IconArrays& arrays) {
  IconDefect defect = IconDefect::None;
  auto loaded = loadEntry(arrays.file, index, path, defect);
  if (!loaded) return describe(defect);
  if (const char* const reason = change(*loaded)) return reason;
  auto icon = newIconOf(*loaded);
  if (!icon) return describe(WriteDefect::NotWritten);
  replaceImage(arrays, index, std::move(icon->image));
  return nullptr;
}

// What a change came to in one file.
struct Outcome {
  bool isTaken = false;                // by at least one image
  const char* refusal = nullptr;       // of the first image that does not take it
  const char* tooManyBytes = nullptr;  // the reason why no further image was tried
};

// The size is checked before each image, because few bytes of a file can be many images.
Outcome changeImages(const ImageChange& change, const std::string& path, const OutputFolder& folder,
                     IconArrays& arrays) {
  Outcome outcome;
  std::uint64_t size = totalSize(arrays.images);
  for (int i = 0; i < arrays.count(); ++i) {
    outcome.tooManyBytes = reasonAgainstSize(size, folder);
    if (outcome.tooManyBytes) break;
    const ImageBytes& image = arrays.images[static_cast<std::size_t>(i)];
    size -= image.size();
    const char* const refusal = changeEntry(change, i, path, arrays);
    size += image.size();
    if (!refusal) outcome.isTaken = true;
    if (!outcome.refusal) outcome.refusal = refusal;
  }
  return outcome;
}

bool changeFile(const ImageChange& change, const std::string& noneTakesIt, const std::string& path,
                OutputFolder& folder) {
  IconArrays arrays;
  if (!readForUpdate(path, arrays)) return false;
  takeWholeImages(arrays);
  const Outcome outcome = changeImages(change, path, folder, arrays);
  if (outcome.tooManyBytes) return refuse(path, outcome.tooManyBytes);
  if (!outcome.isTaken) return refuse(path, noneTakesIt + outcome.refusal);
  return folder.write(ownName(path), composeWholeFile(arrays));
}

}  // namespace

int changeAllImages(const FolderArguments& given, const ImageChange& change, const std::string& noneTakesIt) {
  if (const int status = makeFolderFor(given); status != kDone) return status;
  OutputFolder folder(given);
  std::set<std::string> names;
  int status = kDone;
  for (const std::string& path : given.files) {
    const bool isNew = names.insert(ownName(path)).second;
    if (!(isNew ? changeFile(change, noneTakesIt, path, folder) : refuse(path, kNameTaken))) status = kRefused;
  }
  return status;
}

int refuseIndex(const std::string& command, const Arguments& files) {
  const auto index = std::ranges::find_if(files, isIndex);
  if (index == files.end()) return kDone;
  return badUsage(command + ": --all takes no INDEX; the file of this name is ./" + *index);
}

}  // namespace gp::cli
