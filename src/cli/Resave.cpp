#include "cli/EntryLoading.h"
#include "cli/Subcommands.h"
#include "files/IconWriter.h"

namespace gp::cli {
namespace {

enum ResaveArgument { kInput, kIndex, kOutput, kArgumentCount };

}  // namespace

int runResave(const Arguments& arguments) {
  const Split split = splitOptions(arguments);
  int index = 0;
  if (!split.options.empty()) return badUsage("resave: unknown option " + split.options.front());
  if (split.files.size() != kArgumentCount) return badUsage("resave: IN.ico INDEX OUT.ico is needed");
  if (!parseNumber(split.files[kIndex], index)) return badUsage("resave: the index is no number");

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
