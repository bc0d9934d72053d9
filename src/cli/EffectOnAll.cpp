#include "cli/EffectOnAll.h"

#include "cli/AllImages.h"

namespace gp::cli {

int applyToAll(const ChosenEffect& effect, const FolderArguments& given) {
  if (effect.row.changesSize) return badUsage("effect: " + std::string(effect.row.name) + " does not go with --all");
  const auto apply = [&effect](LoadedIcon& loaded) {
    const char* const reason = reasonAgainst(effect, loaded);
    if (!reason) loaded.icon = applied(effect, loaded.icon);
    return reason;
  };
  return changeAllImages(given, apply, "no image of it takes the effect: ");
}

int runEffectOnAll(const Arguments& arguments, const GivenOptions& options) {
  FolderArguments given;
  if (const int status = parseFolderArguments("effect", arguments, given); status != kDone) return status;
  const std::string name = given.files.back();
  given.files.pop_back();
  if (given.files.empty()) return badUsage("effect: FILE... NAME is needed");
  if (const int status = refuseIndex("effect", given.files); status != kDone) return status;
  int refusal = kDone;
  const auto effect = chooseEffect(name, options, refusal);
  return effect ? applyToAll(*effect, given) : refusal;
}

}  // namespace gp::cli
