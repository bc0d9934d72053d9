// What holds for every effect of the table, on the command line.
#include "cli/WrittenPicture.h"
#include "effects/EffectCases.h"
#include "files/BitmapBuilder.h"

namespace gp::test {
namespace {

// A picture that has a Surface's pixels, in 24 bits.
Picture pictureOf(const Surface& surface) {
  Picture p;
  p.width = p.height = surface.width();
  p.bits = 24;
  p.color = [surface](int x, int y) {
    const Color color = surface.GetPixel(x, y);
    return Rgb{redOf(color), greenOf(color), blueOf(color)};
  };
  return p;
}

// The image of a file that has an icon's pixels, in 24 bits.
Picture pictureOf(const IconImage& icon) {
  Picture p = pictureOf(icon.image);
  p.transparent = [icon](int x, int y) { return icon.mask.GetPixel(x, y) != kBlack; };
  return p;
}

bool hasOption(const EffectRow& effect, std::string_view option) {
  return std::ranges::any_of(effect.settings, [option](const Setting& own) { return own.option == option; });
}

// "a", "a and b", "a, b and c".
std::string listed(const std::vector<std::string>& words) {
  std::string text = words.front();
  for (std::size_t i = 1; i < words.size(); ++i) text += (i + 1 < words.size() ? ", " : " and ") + words[i];
  return text;
}

// What the usage offers behind an option, each alternative between bars: "|RRGGBB|16|24|", "||" for nothing.
std::string valuesInUsage(const std::string& usage, const std::string& option) {
  const std::size_t begin = usage.find("[" + option) + option.size() + 1;
  const std::string values = usage.substr(begin, usage.find(']', begin) - begin);
  return "|" + (values.empty() ? values : values.substr(1)) + "|";
}

class GpiconEffectTable : public GpiconOneImage {
 protected:
  std::string write(const IconImage& icon) const { return folder.write("in.ico", build(entryOf(pictureOf(icon)))); }
  std::vector<std::string> call(const std::string& input, const EffectRow& effect,
                                const std::vector<std::string>& options) const {
    std::vector<std::string> arguments{"effect", input, "0", out, effect.name};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return arguments;
  }
  // Writes what the values have for the file of a setting: the icons of an icon file, or a pattern.
  std::string fileFor(const Setting& setting, const EffectValues& values) const {
    if (setting.kind == SettingKind::PictureFile)
      return folder.write("pattern.bmp", bitmapFileOf(pictureOf(values.pictures().front().image)));
    std::vector<Entry> entries;
    for (const IconImage& other : values.pictures()) entries.push_back(entryOf(pictureOf(other)));
    return folder.write("other.ico", fileOf(entries));
  }
  FileFor files() const {
    return [this](const Setting& setting, const EffectValues& values) { return fileFor(setting, values); };
  }
  // Texts that a setting must refuse: one value beyond each end, and no value at all.
  static std::vector<std::string> refusedTexts(const Setting& setting) {
    // The name of a file can be any text.
    if (setting.kind == SettingKind::IconFile || setting.kind == SettingKind::PictureFile) return {};
    std::vector<std::string> texts{"x", "1.23"};
    if (setting.kind != SettingKind::Number && setting.kind != SettingKind::Tenths) return texts;
    texts.push_back(textOfValue(setting, lowestValue(setting) - 1));
    texts.push_back(textOfValue(setting, highestValue(setting) + 1));
    return texts;
  }
};

TEST_F(GpiconEffectTable, EachValueMakesWhatTheFunctionMakes) {
  for (const int size : kIconSides)
    for (const IconImage& icon : generatedIcons(size)) {
      const std::string input = write(icon);
      for (const EffectRow* effect : commandLineEffects())
        for (const EffectValues& values : valuesToTry(*effect)) {
          const std::vector<std::string> options = optionsFor(*effect, values, files());
          SCOPED_TRACE(effect->name + testing::PrintToString(options) + std::to_string(size));
          std::filesystem::remove(out);
          if (const Refusal refusal = refusalOf(*effect, icon, values); refusal.text) {
            expectRefusal(call(input, *effect, options), input + ": " + refusal.text);
            continue;
          }
          expectDone(call(input, *effect, options));
          expectPixels(writtenIcon(out), effect->apply(icon, values));
        }
    }
}

TEST_F(GpiconEffectTable, WithoutTheirOptionsTheFirstValuesApply) {
  const IconImage icon = generatedIcons(32).back();
  const std::string input = write(icon);
  for (const EffectRow* effect : commandLineEffects()) {
    SCOPED_TRACE(effect->name);
    expectDone(call(input, *effect, neededOptions(*effect, files())));
    expectPixels(writtenIcon(out), effect->apply(icon, usualValues(*effect)));
  }
}

TEST_F(GpiconEffectTable, AValueThatASettingDoesNotAllowIsRefused) {
  const std::string input = write(transparentIcon(16));
  for (const EffectRow* effect : commandLineEffects())
    for (const Setting& setting : effect->settings) {
      if (setting.kind == SettingKind::Flag) continue;
      const std::string option = "--" + std::string(setting.option);
      for (const std::string& text : refusedTexts(setting)) {
        std::vector<std::string> words = neededOptions(*effect, files());
        const auto given = std::ranges::find(words, option);
        if (given == words.end())
          words.insert(words.end(), {option, text});
        else
          *(given + 1) = text;
        expectBadUsage(call(input, *effect, words), "effect: " + option + " takes " + allowedValues(setting));
      }
    }
}

TEST_F(GpiconEffectTable, AnOptionThatTheEffectRequiresMustBeGiven) {
  const std::string input = write(transparentIcon(16));
  for (const EffectRow* effect : commandLineEffects()) {
    if (effect->needs != NeededOptions::None) continue;
    const std::vector<std::string> needed = neededOptions(*effect, files());
    std::vector<std::string> names;
    for (std::size_t i = 0; i < needed.size(); i += 2) names.push_back(needed[i]);
    for (std::size_t i = 0; i < needed.size(); i += 2) {
      std::vector<std::string> others = needed;
      const auto left = others.begin() + static_cast<std::ptrdiff_t>(i);
      others.erase(left, left + 2);
      expectBadUsage(call(input, *effect, others), "effect: " + std::string(effect->name) + " needs " + listed(names));
    }
  }
}

TEST_F(GpiconEffectTable, AsManyOptionsAsTheEffectNeedsMustBeGiven) {
  const std::string input = write(transparentIcon(16));
  std::set<std::string> atLeastOne, exactlyOne;
  for (const EffectRow* effect : commandLineEffects()) {
    if (effect->needs == NeededOptions::None) continue;
    const bool takesMore = effect->needs == NeededOptions::AtLeastOne;
    (takesMore ? atLeastOne : exactlyOne).insert(effect->name);
    const std::string text = "effect: " + std::string(effect->name) + " needs " + (takesMore ? "at least" : "exactly") +
                             " one of its options";
    expectBadUsage(call(input, *effect, {}), text);
    std::vector<std::string> all;
    for (const Setting& setting : effect->settings) {
      all.push_back("--" + std::string(setting.option));
      if (setting.kind != SettingKind::Flag) all.push_back(textOfValue(setting, setting.first));
    }
    if (takesMore)
      expectDone(call(input, *effect, all));
    else
      expectBadUsage(call(input, *effect, all), text);
    std::filesystem::remove(out);
  }
  EXPECT_EQ(atLeastOne, (std::set<std::string>{"brightness"}));
  EXPECT_EQ(exactlyOne, (std::set<std::string>{"flip", "turn"}));
}

TEST_F(GpiconEffectTable, AnOptionOfAnotherEffectIsRefused) {
  const std::string input = write(transparentIcon(16));
  for (const EffectRow* other : commandLineEffects())
    for (const Setting& setting : other->settings) {
      const std::string option = "--" + std::string(setting.option);
      std::vector<std::string> owners;
      for (const EffectRow* effect : commandLineEffects())
        if (hasOption(*effect, setting.option)) owners.emplace_back(effect->name);
      for (const EffectRow* effect : commandLineEffects()) {
        if (hasOption(*effect, setting.option)) continue;
        std::vector<std::string> words{option};
        if (setting.kind != SettingKind::Flag) words.push_back(textOfValue(setting, setting.first));
        expectBadUsage(call(input, *effect, words), "effect: " + option + " goes with " + listed(owners) + " only");
      }
    }
}

TEST_F(GpiconEffectTable, AnOptionTakesOneValue) {
  const std::string input = write(transparentIcon(16));
  std::set<std::string> options;
  for (const EffectRow* effect : commandLineEffects())
    for (const Setting& setting : effect->settings)
      if (setting.kind != SettingKind::Flag) options.insert("--" + std::string(setting.option));
  const std::string once = "effect: " + listed({options.begin(), options.end()}) + " take one value each";
  for (const EffectRow* effect : commandLineEffects())
    for (const Setting& setting : effect->settings) {
      if (setting.kind == SettingKind::Flag) continue;
      const std::string option = "--" + std::string(setting.option), value = textOfValue(setting, setting.first);
      expectBadUsage(call(input, *effect, {option}), once);
      expectBadUsage(call(input, *effect, {option, ""}), once);
      expectBadUsage(call(input, *effect, {option, value, option, value}), once);
    }
}

TEST_F(GpiconEffectTable, AlphaIsRefusedUnlessTheEffectTakesIt) {
  const std::string input = icon("alpha.ico", 16, 32);
  std::set<std::string> taking;
  for (const EffectRow* effect : commandLineEffects()) {
    if (effect->takesAlpha) {
      taking.insert(effect->name);
      expectDone(call(input, *effect, neededOptions(*effect, files())));
      std::filesystem::remove(out);
      continue;
    }
    expectRefusal(
        call(input, *effect, neededOptions(*effect, files())),
        input + ": Current icon is with alpha, please run Convert 32 To 24 BPP to convert it to 24-BPP first.");
  }
  EXPECT_EQ(taking, (std::set<std::string>{"rotate", "flip", "turn"}));
}

TEST_F(GpiconEffectTable, TheHelpNamesEveryEffectAndItsOptions) {
  const std::string help = run({"--help"}).out, usage = run({"help", "effect"}).out;
  for (const EffectRow* effect : commandLineEffects()) {
    EXPECT_NE(help.find("\n  " + std::string(effect->name) + " "), std::string::npos) << effect->name;
    EXPECT_NE(help.find(effect->help), std::string::npos) << effect->name;
    for (const Setting& setting : effect->settings) {
      const std::string option = "--" + std::string(setting.option);
      EXPECT_NE(valuesInUsage(usage, option).find("|" + placeholderOf(setting) + "|"), std::string::npos) << option;
      EXPECT_NE(help.find(setting.help), std::string::npos) << option;
    }
  }
}

TEST_F(GpiconEffectTable, ANameThatTheTableDoesNotHaveIsRefused) {
  const std::string input = write(transparentIcon(16));
  for (const std::string name : {"nosuch", "Embossed", ""})
    expectBadUsage({"effect", input, "0", out, name}, "effect: no effect is named " + name);
}

}  // namespace
}  // namespace gp::test
