#include "animation/format/AniFile.h"
#include "cli/ImageFile.h"
#include "cli/OutputFolder.h"
#include "cli/PresentImages.h"
#include "cli/Streams.h"
#include "cli/Subcommands.h"
#include "files/format/DepthTexts.h"
#include "files/format/IcoLayout.h"
#include "files/format/SingleEntryFile.h"
#include "platform/files/ByteReader.h"

#include <filesystem>

namespace gp::cli {
namespace {

namespace fs = std::filesystem;

// An input file in the output folder must not be overwritten: its name is reserved.
void keepOffInputs(const FolderArguments& given, OutputNames& names) {
  std::map<fs::path, bool> isOutput;
  for (const std::string& path : given.files) {
    const fs::path above = fs::path(path).parent_path();
    const auto [known, isUnknown] = isOutput.try_emplace(above, false);
    std::error_code error;
    if (isUnknown) known->second = fs::equivalent(above.empty() ? fs::path(".") : above, given.folder, error);
    if (known->second) names.keepOff(stemOf(path));
  }
}

std::string nameOf(const std::string& stem, const IconEntry& entry) {
  return stem + "_" + std::to_string(sideOf(entry.height)) + "_" + colorsInFileName(depthOfEntry(entry));
}

// The folder that the entries of all files go to, and the names that are taken in it.
struct Output {
  OutputFolder folder;
  OutputNames names;
};

bool saveEntries(const IconArrays& arrays, const std::string& path, Output& output) {
  const std::string stem = stemOf(path);
  for (int i = 0; i < arrays.count(); ++i) {
    const std::string name = output.names.nameFor(nameOf(stem, arrays.entries[static_cast<std::size_t>(i)]));
    if (!output.folder.write(name + ".ico", composeSingleEntryFile(arrays, i))) return false;
  }
  return true;
}

std::string reachBehind(std::size_t lacking, std::size_t count) {
  return std::to_string(lacking) + " of its " + std::to_string(count) + " images reach behind the end of the file";
}

bool refuse(const std::string& path, const std::string& reason) {
  complain(path, reason);
  return false;
}

// The name of a frame, from 1, and its ending: that of an icon, or of a cursor for all other types.
std::string frameName(const std::string& stem, std::size_t index, std::span<const std::uint8_t> frame, Output& output) {
  constexpr std::size_t kTypeAt = 2;
  const bool isIcon = ByteReader(frame).u16At(kTypeAt) == ico::kTypeIcon;
  return output.names.nameFor(stem + "_" + std::to_string(index + 1)) + (isIcon ? ".ico" : ".cur");
}

bool splitFrames(const std::string& path, std::span<const std::uint8_t> bytes, Output& output) {
  const AniReading reading = readAniFile(bytes);
  if (!reading.isRead()) return refuse(path, describe(reading.defect));
  const std::vector<AniImage>& images = reading.file.images;
  // Frames do not share bytes, so that the files are no larger than this one.
  if (!output.folder.hasRoomFor(images.size(), bytes.size())) return refuse(path, kTooMuch);
  const std::string stem = stemOf(path);
  std::size_t lacking = 0;
  for (std::size_t i = 0; i < images.size(); ++i) {
    const auto frame = bytes.subspan(images[i].offset, images[i].size);
    if (!images[i].isWhole)
      ++lacking;
    else if (!output.folder.write(frameName(stem, i, frame, output), frame))
      return false;
  }
  return lacking == 0 || refuse(path, reachBehind(lacking, images.size()));
}

bool splitFile(const std::string& path, Output& output) {
  auto file = readWholeIconInput(path);
  if (!file) return refuse(path, describe(IconDefect::NotReadable));
  if (isRiffFile(file->span())) return splitFrames(path, file->span(), output);
  if (!file->isIcon() || file->directory.presentCount() == 0) return refuse(path, describe(IconDefect::NotAnIcon));
  const IconArrays arrays = takePresentImages(std::move(*file));
  if (!output.folder.hasRoomFor(arrays.images.size(), totalSize(arrays.images))) return refuse(path, kTooMuch);
  if (!saveEntries(arrays, path, output)) return false;
  const int count = arrays.file.directory.count;
  const int lacking = count - arrays.count();
  return lacking == 0 || refuse(path, reachBehind(static_cast<std::size_t>(lacking), static_cast<std::size_t>(count)));
}

}  // namespace

int runSplit(const Arguments& arguments) {
  FolderArguments given;
  if (const int status = takeFolderArguments("split", arguments, given); status != kDone) return status;
  Output output{.folder = OutputFolder(given), .names = {}};
  keepOffInputs(given, output.names);
  int status = kDone;
  for (const std::string& path : given.files)
    if (!splitFile(path, output)) status = kRefused;
  return status;
}

}  // namespace gp::cli
