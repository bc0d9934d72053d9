#include "cli/EffectOptions.h"

#include <algorithm>
#include <vector>

namespace gp::cli {
namespace {

constexpr std::size_t kNameWidth = 11;  // of the help's first column

bool takesValue(const Setting& setting) { return setting.kind != SettingKind::Flag; }

// All options, each once, in alphabetical order.
std::map<std::string, const Setting*> allOptions() {
  std::map<std::string, const Setting*> options;
  for (const EffectRow* effect : commandLineEffects())
    for (const Setting& setting : effect->settings) options.emplace(setting.option, &setting);
  return options;
}

// "a", "a and b", "a, b and c".
std::string listed(const std::vector<std::string>& words) {
  std::string text;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (i > 0) text += i + 1 == words.size() ? " and " : ", ";
    text += words[i];
  }
  return text;
}

bool hasOption(const EffectRow& effect, std::string_view name) {
  return std::ranges::any_of(effect.settings, [name](const Setting& setting) { return setting.option == name; });
}

std::string effectsWith(std::string_view option) {
  std::vector<std::string> names;
  for (const EffectRow* effect : commandLineEffects())
    if (hasOption(*effect, option)) names.emplace_back(effect->name);
  return listed(names);
}

void complainAboutValues() {
  std::vector<std::string> names;
  for (const auto& [name, setting] : allOptions())
    if (takesValue(*setting)) names.push_back("--" + name);
  badUsage("effect: " + listed(names) + " take one value each");
}

// False when the option is given twice or without its value.
bool takeSetting(const Setting& setting, Arguments& arguments, GivenOptions& given) {
  const std::string option = "--" + std::string(setting.option);
  std::string text;
  if (!takesValue(setting)) {
    if (takeFlag(arguments, option)) given.emplace(setting.option, text);
    return true;
  }
  if (!takeOption(arguments, option, text)) return false;
  if (!text.empty()) given.emplace(setting.option, text);
  return true;
}

bool areEnough(const GivenOptions& options, NeededOptions needed) {
  return needed == NeededOptions::None ||
         (needed == NeededOptions::AtLeastOne ? !options.empty() : options.size() == 1);
}

// False, after a complaint, when an option that the effect needs is not given.
bool hasRequired(const EffectRow& effect, const GivenOptions& options) {
  std::vector<std::string> names;
  bool areGiven = areEnough(options, effect.needs);
  for (const Setting& setting : effect.settings) {
    if (!setting.isRequired) continue;
    names.push_back("--" + std::string(setting.option));
    areGiven = areGiven && options.contains(setting.option);
  }
  if (areGiven) return true;
  constexpr const char* kNeeded[] = {"", "at least one of its options", "exactly one of its options"};
  if (effect.needs != NeededOptions::None) names = {kNeeded[static_cast<std::size_t>(effect.needs)]};
  badUsage("effect: " + std::string(effect.name) + " needs " + listed(names));
  return false;
}

// False, after a complaint, when a given option has no part in the result.
bool allApply(const EffectRow& effect, const EffectValues& values, const GivenOptions& options) {
  for (const Setting& setting : effect.settings) {
    if (!setting.applies || setting.applies(values) || !options.contains(setting.option)) continue;
    badUsage("effect: --" + std::string(setting.option) + " goes with " + setting.goesWith + " only");
    return false;
  }
  return true;
}

std::optional<int> valueOf(const Setting& setting, const GivenOptions& options) {
  const auto given = options.find(setting.option);
  if (given == options.end()) return setting.first;
  return takesValue(setting) ? valueOfText(setting, given->second) : 1;
}

// Adds a value to those before it, "RRGGBB|N", unless it is there.
void addAlternative(std::string& alternatives, const std::string& value) {
  if (("|" + alternatives + "|").find("|" + value + "|") != std::string::npos) return;
  alternatives += (alternatives.empty() ? "" : "|") + value;
}

std::string optionText(const Setting& setting) {
  const std::string value = placeholderOf(setting);
  return "--" + std::string(setting.option) + (value.empty() ? "" : " " + value);
}

std::string helpOf(const Setting& setting) {
  std::string text = optionText(setting) + "  " + setting.help;
  if (!takesValue(setting)) return text;
  text += " (" + allowedValues(setting);
  return text + (setting.isRequired ? ")" : ", without it " + textOfValue(setting, setting.first) + ")");
}

std::string column(std::string text) {
  text.resize(std::max(text.size() + 1, kNameWidth), ' ');
  return "  " + text;
}

}  // namespace

std::optional<GivenOptions> takeEffectOptions(Arguments& arguments) {
  GivenOptions given;
  for (const auto& [name, setting] : allOptions()) {
    if (takeSetting(*setting, arguments, given)) continue;
    complainAboutValues();
    return std::nullopt;
  }
  return given;
}

std::optional<EffectValues> valuesOf(const EffectRow& effect, const GivenOptions& options) {
  for (const auto& [name, text] : options) {
    if (hasOption(effect, name)) continue;
    badUsage("effect: --" + name + " goes with " + effectsWith(name) + " only");
    return std::nullopt;
  }
  if (!hasRequired(effect, options)) return std::nullopt;
  EffectValues values;
  for (const Setting& setting : effect.settings) {
    const std::optional<int> value = valueOf(setting, options);
    if (!value) {
      badUsage("effect: --" + std::string(setting.option) + " takes " + allowedValues(setting));
      return std::nullopt;
    }
    values.append(*value);
  }
  if (!allApply(effect, values, options)) return std::nullopt;
  return values;
}

std::string effectUsage() {
  // Effects may take different values after the same option.
  std::map<std::string, std::string> values;
  for (const EffectRow* effect : commandLineEffects())
    for (const Setting& setting : effect->settings) addAlternative(values[setting.option], placeholderOf(setting));
  std::string usage;
  for (const auto& [name, value] : values) usage += " [--" + name + (value.empty() ? "" : " " + value) + "]";
  return usage;
}

std::string effectHelp() {
  std::string help;
  for (const EffectRow* effect : commandLineEffects()) {
    help += "\n" + column(effect->name) + effect->help;
    for (const Setting& setting : effect->settings) help += "\n" + column("") + helpOf(setting);
  }
  return help;
}

}  // namespace gp::cli
