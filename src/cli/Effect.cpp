#include "cli/ChosenEffect.h"
#include "cli/EffectOnAll.h"
#include "cli/OneImage.h"
#include "cli/Subcommands.h"

namespace gp::cli {
namespace {

int makeEffect(const ChosenEffect& effect, const ImageArguments& arguments) {
  const auto loaded = loadImage(arguments);
  if (!loaded) return kRefused;
  if (const char* const reason = reasonAgainst(effect, *loaded)) {
    complain(arguments.input, reason);
    return kRefused;
  }
  return writeIcon(applied(effect, loaded->icon), loaded->record, arguments.output);
}

int runOnOneImage(const Arguments& arguments, const GivenOptions& options) {
  ImageArguments image;
  const int status = takeImageArguments("effect", "IN.ico INDEX OUT.ico NAME", arguments, 1, image);
  if (status != kDone) return status;
  const auto effect = chooseEffect(image.more.front(), options);
  return effect ? makeEffect(*effect, image) : kBadUsage;
}

}  // namespace

int runEffect(const Arguments& arguments) {
  Arguments rest = arguments;
  const std::optional<GivenOptions> options = takeEffectOptions(rest);
  if (!options) return kBadUsage;
  return takeFlag(rest, "--all") ? runEffectOnAll(rest, *options) : runOnOneImage(rest, *options);
}

}  // namespace gp::cli
