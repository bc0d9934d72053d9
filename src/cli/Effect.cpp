#include "cli/ChosenEffect.h"
#include "cli/EffectOnAll.h"
#include "cli/OneImage.h"
#include "cli/Subcommands.h"
#include "effects/Resize.h"

namespace gp::cli {
namespace {

int makeEffect(const ChosenEffect& effect, const ImageArguments& arguments) {
  const auto loaded = loadImage(arguments);
  if (!loaded) return kRefused;
  if (const char* const reason = reasonAgainst(effect, *loaded)) {
    complain(arguments.input, reason);
    return kRefused;
  }
  const IconImage result = applied(effect, loaded->icon);
  const bool isResized = effect.row.changesSize;
  return writeIcon(result, isResized ? recordOfResized(loaded->record, result) : loaded->record, arguments.output);
}

int runOnOneImage(const Arguments& arguments, const GivenOptions& options) {
  ImageArguments image;
  const int status = takeImageArguments("effect", "IN.ico INDEX OUT.ico NAME", arguments, 1, image);
  if (status != kDone) return status;
  int refusal = kDone;
  const auto effect = chooseEffect(image.more.front(), options, refusal);
  return effect ? makeEffect(*effect, image) : refusal;
}

}  // namespace

int runEffect(const Arguments& arguments) {
  Arguments rest = arguments;
  const std::optional<GivenOptions> options = takeEffectOptions(rest);
  if (!options) return kBadUsage;
  return takeFlag(rest, "--all") ? runEffectOnAll(rest, *options) : runOnOneImage(rest, *options);
}

}  // namespace gp::cli
