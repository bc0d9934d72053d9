#include "cli/EffectFiles.h"
#include "cli/EffectOptions.h"
#include "cli/OneImage.h"
#include "cli/Subcommands.h"
#include "effects/Resize.h"

namespace gp::cli {
namespace {

int makeEffect(const EffectRow& effect, const EffectValues& values, const ImageArguments& arguments) {
  const auto loaded = loadImageForEffect(arguments);
  if (!loaded) return kRefused;
  if (const Refusal refusal = refusalOf(effect, loaded->icon, values); refusal.text) {
    complain(arguments.input, refusal.text);
    return kRefused;
  }
  const IconImage result = effect.apply(loaded->icon, values);
  const IconContainerRec record = effect.changesSize ? recordOfResized(loaded->record, result) : loaded->record;
  return writeIcon(result, record, arguments.output);
}

}  // namespace

int runEffect(const Arguments& arguments) {
  Arguments rest = arguments;
  const std::optional<GivenOptions> options = takeEffectOptions(rest);
  if (!options) return kBadUsage;
  ImageArguments image;
  if (const int status = takeImageArguments("effect", "IN.ico INDEX OUT.ico NAME", rest, 1, image); status != kDone)
    return status;
  const std::string& name = image.more.front();
  const EffectRow* effect = findEffect(name);
  if (!effect) return badUsage("effect: no effect is named " + name);
  std::optional<EffectValues> values = valuesOf(*effect, *options);
  if (!values) return kBadUsage;
  return readEffectFile(*effect, *options, *values) ? makeEffect(*effect, *values, image) : kRefused;
}

}  // namespace gp::cli
