#include "cli/OneImage.h"
#include "cli/Subcommands.h"
#include "effects/Buttonize.h"
#include "effects/DisabledImage.h"
#include "effects/Relief.h"

#include <algorithm>
#include <array>

namespace gp::cli {
namespace {

struct EffectSettings {
  Color color = kBlack;
  int style = 0;
};

template <ReliefKind kKind>
IconImage makeRelief(const Surface& image, const Surface& mask, const EffectSettings& settings) {
  return relief(image, mask, {kKind, settings.color});
}
IconImage makeButton(const Surface& image, const Surface& mask, const EffectSettings& settings) {
  return buttonize(image, mask, {settings.style});
}
IconImage makeDisabled(const Surface& image, const Surface& mask, const EffectSettings&) {
  return disabledImage(image, mask);
}

enum class EffectOption { None, Color, Style };

struct Effect {
  std::string_view name;
  EffectOption option;  // the one that goes with it
  IconImage (*make)(const Surface& image, const Surface& mask, const EffectSettings& settings);
};

constexpr std::array<Effect, 6> kEffects{{{"embossed", EffectOption::None, makeRelief<ReliefKind::Embossed>},
                                          {"engraved", EffectOption::None, makeRelief<ReliefKind::Engraved>},
                                          {"raised", EffectOption::None, makeRelief<ReliefKind::Raised>},
                                          {"shadowed", EffectOption::Color, makeRelief<ReliefKind::Shadowed>},
                                          {"buttonize", EffectOption::Style, makeButton},
                                          {"disabled", EffectOption::None, makeDisabled}}};

// Empty texts stand for options that are not there. Gives kDone, or kBadUsage after a complaint.
int parseSettings(const Effect& effect, const std::string& color, const std::string& style, EffectSettings& settings) {
  if (!color.empty() && effect.option != EffectOption::Color)
    return badUsage("effect: --color goes with shadowed only");
  if (!style.empty() && effect.option != EffectOption::Style)
    return badUsage("effect: --style goes with buttonize only");
  if (!color.empty() && !parseColor(color, settings.color))
    return badUsage("effect: --color takes six hexadecimal digits");
  if (!style.empty() && (!parseNumber(style, settings.style) || settings.style >= kButtonPatterns))
    return badUsage("effect: --style takes a number from 0 to " + std::to_string(kButtonPatterns - 1));
  return kDone;
}

int makeEffect(const Effect& effect, const EffectSettings& settings, const ImageArguments& told) {
  const auto loaded = loadImageForEffect(told);
  if (!loaded) return kRefused;
  return writeIcon(effect.make(loaded->icon.image, loaded->icon.mask, settings), loaded->record, told.output);
}

}  // namespace

int runEffect(const Arguments& arguments) {
  Arguments rest = arguments;
  std::string color, style;
  ImageArguments told;
  if (!takeOption(rest, "--color", color) || !takeOption(rest, "--style", style))
    return badUsage("effect: --color and --style take one value each");
  if (const int status = takeImageArguments("effect", "IN.ico INDEX OUT.ico NAME", rest, 1, told); status != kDone)
    return status;
  const auto effect = std::ranges::find(kEffects, told.more.front(), &Effect::name);
  if (effect == kEffects.end()) return badUsage("effect: no effect is named " + told.more.front());
  EffectSettings settings;
  const int status = parseSettings(*effect, color, style, settings);
  return status == kDone ? makeEffect(*effect, settings, told) : status;
}

}  // namespace gp::cli
