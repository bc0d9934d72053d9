#include "cli/EntryPicture.h"
#include "cli/HalfBlocks.h"
#include "cli/ImageFile.h"
#include "cli/Streams.h"
#include "cli/Subcommands.h"
#include "platform/files/Terminal.h"
#include "platform/scaling/PictureScaling.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

namespace gp::cli {
namespace {

constexpr int kUsualWidth = 80;
constexpr int kMostImages = 1000;  // of one file

struct ShowOptions {
  int width = kUsualWidth;  // columns
  bool withColors = false;
};

bool isColorTerminal() {
  const char* const refused = std::getenv("NO_COLOR");
  return isTerminal(stdout) && (!refused || *refused == '\0');
}

bool parseColor(const std::string& text, bool& withColors) {
  withColors = text == "always" || (text != "never" && isColorTerminal());
  return text.empty() || text == "auto" || text == "always" || text == "never";
}

bool parseWidth(const std::string& text, int& width) {
  return text.empty() || (parseNumber(text, width) && width >= 1 && width <= kPngInIconFile.width);
}

// The picture, or a smaller one that is so many columns wide.
PngPicture fitted(const PngPicture& picture, int width) {
  if (picture.width <= width) return picture;
  const std::array size{PictureSize{width, std::max(1, picture.height * width / picture.width)}};
  return std::move(scaledPictures(picture, size, ScalingFilter::Box).front());
}

void printEntry(const std::string& path, int index, const PngPicture& picture, const ShowOptions& options) {
  std::printf("%s\t%d\t%dx%d\n%s", printable(path).c_str(), index, picture.width, picture.height,
              halfBlocks(fitted(picture, options.width), options.withColors).c_str());
}

bool refuse(const std::string& path, const std::string& reason) {
  complain(path, reason);
  return false;
}

bool showFile(const std::string& path, const ShowOptions& options) {
  const auto file = readWholeIconInput(path);
  if (!file) return refuse(path, gp::describe(IconDefect::NotReadable));
  const int count = file->directory.presentCount();
  if (!(file->isIcon() || file->isCursor()) || count == 0) return refuse(path, gp::describe(IconDefect::NotAnIcon));
  if (count > kMostImages) return refuse(path, "more than " + std::to_string(kMostImages) + " images, and not shown");
  int undecoded = 0;
  for (int i = 0; i < count; ++i) {
    const auto entry = pictureOfEntry(*file, i);
    if (entry)
      printEntry(path, i, entry->picture, options);
    else
      ++undecoded;
  }
  return undecoded == 0 || refuse(path, undecodedText(undecoded, count));
}

}  // namespace

int runShow(const Arguments& arguments) {
  Arguments rest = arguments;
  std::string color, width;
  ShowOptions options;
  if (!takeOption(rest, "--color", color) || !parseColor(color, options.withColors))
    return badUsage("show: --color takes auto, always or never");
  if (!takeOption(rest, "--width", width) || !parseWidth(width, options.width))
    return badUsage("show: --width takes a number from 1 to 256");
  const Split split = splitOptions(rest);
  if (!split.options.empty()) return badUsage("show: unknown option " + split.options.front());
  if (split.files.empty()) return badUsage("show: no file given");
  int status = kDone;
  for (const std::string& path : split.files)
    if (!showFile(path, options)) status = kRefused;
  return status;
}

}  // namespace gp::cli
