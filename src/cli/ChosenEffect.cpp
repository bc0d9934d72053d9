#include "cli/ChosenEffect.h"

#include "effects/EffectTexts.h"

namespace gp::cli {

std::optional<ChosenEffect> chooseEffect(const std::string& name, const GivenOptions& options) {
  const EffectRow* const row = findEffect(name);
  if (!row) {
    badUsage("effect: no effect is named " + name);
    return std::nullopt;
  }
  const std::optional<EffectValues> values = valuesOf(*row, options);
  return values ? std::optional(ChosenEffect{*row, *values}) : std::nullopt;
}

const char* reasonAgainst(const ChosenEffect& effect, const LoadedIcon& loaded) {
  if (loaded.record.hasAlpha && !effect.row.takesAlpha) return kIconIsWithAlpha;
  return refusalOf(effect.row, loaded.icon, effect.values).text;
}

IconImage applied(const ChosenEffect& effect, const IconImage& icon) { return effect.row.apply(icon, effect.values); }

}  // namespace gp::cli
