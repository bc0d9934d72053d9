#include "cli/OneImage.h"

#include "cli/ImageFile.h"
#include "cli/Streams.h"
#include "effects/EffectTexts.h"
#include "files/format/IconWriter.h"

namespace gp::cli {
namespace {

enum ImageArgument { kInput, kIndex, kOutput, kArgumentCount };

}  // namespace

int takeImageArguments(const std::string& command, const std::string& needed, const Arguments& arguments,
                       std::size_t more, ImageArguments& given) {
  const Split split = splitOptions(arguments);
  if (!split.options.empty()) return badUsage(command + ": unknown option " + split.options.front());
  if (split.files.size() != kArgumentCount + more) return badUsage(command + ": " + needed + " is needed");
  if (!parseNumber(split.files[kIndex], given.index)) return badUsage(command + ": the index is no number");
  given.input = split.files[kInput];
  given.output = split.files[kOutput];
  given.more.assign(split.files.begin() + kArgumentCount, split.files.end());
  return kDone;
}

std::optional<LoadedIcon> loadImage(const ImageArguments& given) {
  const auto file = openIconFile(given.input);
  if (!file) return std::nullopt;
  IconDefect defect = IconDefect::None;
  auto loaded = loadEntry(*file, given.index, given.input, defect);
  if (!loaded) complain(given.input, describe(defect));
  return loaded;
}

std::optional<LoadedIcon> loadImageWithoutAlpha(const ImageArguments& given) {
  auto loaded = loadImage(given);
  if (!loaded || !loaded->record.hasAlpha) return loaded;
  complain(given.input, kIconIsWithAlpha);
  return std::nullopt;
}

int answerToWriting(bool isWritten, const std::string& output) {
  if (isWritten) return kDone;
  complain(output, "cannot be written");
  return kRefused;
}

int writeIcon(const IconImage& icon, const IconContainerRec& record, const std::string& output) {
  const ColorDepth depth = depthToWrite(icon, record);
  const bool isComplete = !depth.hasAlpha() || icon.hasAlphaValues();
  return answerToWriting(isComplete && writeOutput(output, composeSingleIcon(icon, depth)), output);
}

}  // namespace gp::cli
