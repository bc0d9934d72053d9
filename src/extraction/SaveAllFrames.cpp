#include "extraction/SaveAllFrames.h"

#include "document/Announcements.h"
#include "document/Display.h"
#include "document/EditState.h"
#include "extraction/format/ExtractedIcon.h"
#include "extraction/format/IconHandle.h"
#include "extraction/sources/AniSource.h"
#include "files/FileQuestions.h"
#include "files/saving/BitmapSaving.h"
#include "files/saving/HeldFiles.h"
#include "platform/dialogs/StartFolder.h"
#include "platform/dialogs/clsGPDialog.h"
#include "platform/files/FileWriting.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/text/Paths.h"

#include <filesystem>
#include <system_error>

namespace gp {
namespace {

std::vector<NumberedFrame> drawableFrames(const AniSource& source) {
  std::vector<NumberedFrame> frames;
  for (int i = 0; i < source.count(); ++i)
    if (auto handle = source.frame(i)) frames.push_back({i, std::move(*handle)});
  return frames;
}

std::string fileNameOf(const std::string& stem, int index, SavedFrames kind) {
  return stem + "_" + std::to_string(index + 1) + (kind == SavedFrames::Icons ? ".ico" : ".bmp");
}

std::vector<std::string> filesThere(const std::string& stem, const std::vector<NumberedFrame>& frames,
                                    SavedFrames kind) {
  std::vector<std::string> paths;
  std::error_code ignored;
  for (const NumberedFrame& frame : frames) {
    const std::string path = fileNameOf(stem, frame.index, kind);
    if (std::filesystem::exists(std::filesystem::symlink_status(path, ignored))) paths.push_back(path);
  }
  return paths;
}

bool write(const std::string& path, const IconImage& handle, SavedFrames kind) {
  if (kind == SavedFrames::Icons) return replaceFile(path, fileOfExtracted(surfacesWithoutAlpha(handle)));
  return saveByColors(drawnOn(handle, kGround), path);
}

}  // namespace

void SaveAllFrames::run(AniSource* source, SavedFrames kind) {
  if (!source || source->count() < 1) return context_.boxes.tell("Failed to obtained count of frames");
  const std::string file = source->fileOf(0);
  if (file.empty()) return context_.boxes.tell("Failed to obtained current file spec");
  const bool isRead = source->begin();
  const std::vector<NumberedFrame> frames = drawableFrames(*source);
  const std::string stem = askForStem(file);
  if (stem.empty()) return;
  if (!isRead) return context_.boxes.tell("Failed to read the data from current list");
  if (agrees(stem, frames, kind)) save(stem, frames, kind);
}

std::string SaveAllFrames::askForStem(const std::string& file) {
  const std::string start = existingStartFolder(context_.boxes, context_.process.mLastFolder);
  const std::string folder = context_.dialog.chooseFolder("", start);
  if (folder.empty()) return {};
  const std::string withSeparator = isSeparator(folder.back()) ? folder : folder + "/";
  context_.process.mLastFolder = withSeparator;
  return withSeparator + std::filesystem::path(file).stem().string();
}

bool SaveAllFrames::agrees(const std::string& stem, const std::vector<NumberedFrame>& frames, SavedFrames kind) {
  const std::string count = std::to_string(frames.size());
  if (!context_.boxes.ask("Frames will be saved as " + stem + "_1, _2 and _3, etc.\n\nTotally " + count +
                          " files.   Proceed?\n"))
    return false;
  const std::vector<std::string> there = filesThere(stem, frames, kind);
  if (there.empty()) return true;
  const std::string more = there.size() == 1 ? "" : "\nand " + std::to_string(there.size() - 1) + " more";
  return context_.boxes.ask(there.front() + more + kOverwriteQuestion) && mayWriteOver(context_, there, Saved::Other);
}

void SaveAllFrames::save(const std::string& stem, const std::vector<NumberedFrame>& frames, SavedFrames kind) {
  std::string failure;
  const bool isWhole = work_.run(static_cast<int>(frames.size()), [&](int i) {
    const NumberedFrame& frame = frames.at(static_cast<std::size_t>(i));
    if (write(fileNameOf(stem, frame.index, kind), frame.handle, kind)) return true;
    failure = "Failed to save frame " + std::to_string(frame.index + 1);
    return false;
  });
  if (!failure.empty()) return context_.boxes.tell(failure, BoxIcon::Exclamation);
  if (isWhole) context_.display.announce(news::kSaved);
}

}  // namespace gp
