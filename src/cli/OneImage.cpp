#include "cli/OneImage.h"

#include "cli/EntryLoading.h"
#include "effects/EffectTexts.h"
#include "files/format/IconWriter.h"

#include <utility>

namespace gp::cli {
namespace {

enum ImageArgument { kInput, kIndex, kOutput, kArgumentCount };

}  // namespace

int takeImageArguments(const std::string& command, const std::string& needed, const Arguments& arguments,
                       std::size_t more, ImageArguments& told) {
  const Split split = splitOptions(arguments);
  if (!split.options.empty()) return badUsage(command + ": unknown option " + split.options.front());
  if (split.files.size() != kArgumentCount + more) return badUsage(command + ": " + needed + " is needed");
  if (!parseNumber(split.files[kIndex], told.index)) return badUsage(command + ": the index is no number");
  told.input = split.files[kInput];
  told.output = split.files[kOutput];
  told.more.assign(split.files.begin() + kArgumentCount, split.files.end());
  return kDone;
}

bool loadImage(const ImageArguments& told, EditState& state) {
  const auto file = openIconFile(told.input);
  if (!file) return false;
  const IconDefect defect = loadEntry(*file, told.index, told.input, state);
  if (defect != IconDefect::None) complain(told.input, describe(defect));
  return defect == IconDefect::None;
}

bool loadImageForEffect(const ImageArguments& told, EditState& state) {
  if (!loadImage(told, state)) return false;
  if (state.current().hasAlpha) complain(told.input, kIconIsWithAlpha);
  return !state.current().hasAlpha;
}

int answerToWriting(bool isWritten, const std::string& output) {
  if (isWritten) return kDone;
  complain(output, "cannot be written");
  return kRefused;
}

int writeIcon(const EditState& state, const std::string& output) {
  return answerToWriting(writeCurrentIcon(state, output), output);
}

int writeIcon(EditState& state, IconImage made, const std::string& output) {
  state.picImage = std::move(made.image);
  state.picMask = std::move(made.mask);
  return writeIcon(state, output);
}

}  // namespace gp::cli
