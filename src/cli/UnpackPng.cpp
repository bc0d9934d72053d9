#include "cli/UnpackPng.h"

#include "cli/EntryPicture.h"
#include "cli/Streams.h"
#include "files/format/IconDecoder.h"

namespace gp::cli {
namespace {

bool writePicture(const EntryPicture& entry, const std::string& name, OutputFolder& folder) {
  if (!entry.png.empty()) return folder.write(name, entry.png);
  return folder.write(name, encodePng(entry.picture, PngEffort::Fast));
}

}  // namespace

bool unpackPictures(const std::string& path, const std::string& name, OutputFolder& folder) {
  const auto file = readWholeIconInput(path);
  if (!file) return refuse(path, gp::describe(IconDefect::NotReadable));
  const int count = file->directory.presentCount();
  if (!(file->isIcon() || file->isCursor()) || count == 0) return refuse(path, gp::describe(IconDefect::NotAnIcon));
  int undecoded = 0;
  for (int i = 0; i < count; ++i) {
    const auto entry = pictureOfEntry(*file, i);
    if (!entry)
      ++undecoded;
    else if (!writePicture(*entry, name + "_" + std::to_string(i) + ".png", folder))
      return false;
  }
  return undecoded == 0 || refuse(path, undecodedText(undecoded, count));
}

}  // namespace gp::cli
