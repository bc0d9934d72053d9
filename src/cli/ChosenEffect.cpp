#include "cli/ChosenEffect.h"

#include "cli/EffectFiles.h"
#include "effects/EffectTexts.h"

namespace gp::cli {

std::optional<ChosenEffect> chooseEffect(const std::string& name, const GivenOptions& options, int& status) {
  status = kBadUsage;
  const EffectRow* const row = findEffect(name);
  if (!row) {
    badUsage("effect: no effect is named " + name);
    return std::nullopt;
  }
  std::optional<EffectValues> values = valuesOf(*row, options);
  if (!values) return std::nullopt;
  status = kRefused;
  if (!readEffectFile(*row, options, *values)) return std::nullopt;
  return ChosenEffect{*row, *values};
}

const char* reasonAgainst(const ChosenEffect& effect, const LoadedIcon& loaded) {
  if (loaded.record.hasAlpha && !effect.row.takesAlpha) return kIconIsWithAlpha;
  return refusalOf(effect.row, loaded.icon, effect.values).text;
}

IconImage applied(const ChosenEffect& effect, const IconImage& icon) { return effect.row.apply(icon, effect.values); }

}  // namespace gp::cli
