#include "cli/Subcommands.h"
#include "document/EditState.h"
#include "files/IconLoading.h"
#include "files/IconWriter.h"

#include <charconv>

namespace gp::cli {
namespace {

enum ResaveArgument { kInput, kIndex, kOutput, kArgumentCount };

bool parseIndex(const std::string& text, int& index) {
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, index);
  return error == std::errc() && stop == end && index >= 0;
}

// Loads an entry into the Current Icon, as opening a file does.
IconDefect loadEntry(const IconFile& file, int index, const std::string& path, EditState& state) {
  if (index >= file.directory.count) return IconDefect::NoSuchEntry;
  const IconEntry entry = file.directory.entry(index);
  if (const IconDefect defect = defectOfEntry(file.bytes.span(), entry); defect != IconDefect::None) return defect;
  const IconFacts facts = factsOfEntry(file.bytes.span(), file.directory, index);
  state.current().size = static_cast<std::int16_t>(facts.width);
  state.picImage.resize(facts.width, facts.height);
  state.picMask.resize(facts.width, facts.height);
  const IconDefect defect =
      loadIconPixels(file.bytes.span(), index, SizeSource::Surface, true, state, state.picImage, state.picMask);
  if (defect != IconDefect::None) return defect;
  describeLoadedIcon(state, facts, path);
  return keepLoadedAlpha(state) ? IconDefect::None : IconDefect::StrangeTrueColor;
}

}  // namespace

int runResave(const Arguments& arguments) {
  const Split split = splitOptions(arguments);
  int index = 0;
  if (!split.options.empty()) return badUsage("resave: unknown option " + split.options.front());
  if (split.files.size() != kArgumentCount) return badUsage("resave: IN.ico INDEX OUT.ico is needed");
  if (!parseIndex(split.files[kIndex], index)) return badUsage("resave: the index is no number");

  const std::string& input = split.files[kInput];
  const auto file = openIconFile(input);
  if (!file) return kRefused;
  EditState state;
  if (const IconDefect defect = loadEntry(*file, index, input, state); defect != IconDefect::None) {
    complain(input, describe(defect));
    return kRefused;
  }
  if (writeCurrentIcon(state, split.files[kOutput])) return kDone;
  complain(split.files[kOutput], "cannot be written");
  return kRefused;
}

}  // namespace gp::cli
