#include "effects/EffectCases.h"

#include <cctype>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace gp::test {
namespace {

TEST(EffectTable, EachMenuEntryIsThereOnceInTheOrderOfTheMenu) {
  std::set<std::string> captions, keys;
  std::set<int> accessLetters;
  int before = -1;
  for (const EffectRow* effect : effectTable()) {
    const EffectMenuEntry& entry = effect->menu;
    EXPECT_GT(entry.index, before) << entry.caption;
    before = entry.index;
    const std::size_t mark = std::string_view(entry.caption).find('&');
    ASSERT_LT(mark + 1, std::string_view(entry.caption).size()) << entry.caption;
    EXPECT_TRUE(accessLetters.insert(std::tolower(entry.caption[mark + 1])).second) << entry.caption;
    EXPECT_TRUE(captions.insert(entry.caption).second) << entry.caption;
    EXPECT_TRUE(!*entry.key || keys.insert(entry.key).second) << entry.caption;
  }
}

TEST(EffectTable, EachEffectIsFoundByItsNameAndItsMenuEntry) {
  std::set<std::string> names;
  for (const EffectRow* effect : commandLineEffects()) {
    EXPECT_TRUE(names.insert(effect->name).second) << effect->name;
    EXPECT_EQ(findEffect(effect->name), effect);
    EXPECT_STRNE(effect->help, "") << effect->name;
  }
  for (const EffectRow* effect : effectTable()) {
    EXPECT_EQ(findEffect(effect->menu.index), effect);
    EXPECT_STRNE(effect->title, "") << effect->menu.caption;
    EXPECT_STRNE(effect->panel.sample, "") << effect->menu.caption;
  }
  for (const char* name : {"", "Raised", "raise", "sharp"}) EXPECT_EQ(findEffect(name), nullptr) << name;
}

TEST(EffectTable, AnIndexWithoutAnEffectFindsNone) {
  for (const int index : {-1, 1, 5, 1000}) EXPECT_EQ(findEffect(index), nullptr);
}

TEST(EffectTable, EffectsOfOnePanelShareItsSample) {
  std::map<int, std::string> samples;
  for (const EffectRow* effect : pixelEffects()) {
    const std::string sample = std::string(effect->panel.sample) + "/" + effect->panel.sampleLabel;
    EXPECT_EQ(samples.emplace(effect->panel.number, sample).first->second, sample) << effect->name;
  }
}

TEST(EffectTable, EachSettingIsNamedForTheCommandLineAndTheScreen) {
  std::map<std::string, bool> isFlag;  // by option
  for (const EffectRow* effect : commandLineEffects())
    for (const Setting& setting : effect->settings) {
      EXPECT_STRNE(setting.option, "") << effect->name;
      EXPECT_STRNE(setting.help, "") << effect->name;
      EXPECT_EQ(setting.applies != nullptr, *setting.goesWith != 0) << effect->name;
      const bool flag = setting.kind == SettingKind::Flag;
      EXPECT_EQ(isFlag.emplace(setting.option, flag).first->second, flag) << setting.option;
    }
  std::map<std::string, const Setting*> controls;
  for (const EffectRow* effect : effectsOfGeneratedPanels())
    for (const Setting& setting : effect->settings) {
      EXPECT_STRNE(setting.label, "") << setting.control;
      EXPECT_TRUE(!hasList(setting) || std::string_view(setting.control).starts_with("cbo")) << setting.control;
      EXPECT_EQ(controls.emplace(setting.control, &setting).first->second, &setting) << setting.control;
    }
}

TEST(EffectTable, TheListOfASettingOffersAllowedValuesAndStartsWithTheFirst) {
  for (const EffectRow* effect : effectsOfGeneratedPanels())
    for (const Setting& setting : effect->settings) {
      EXPECT_GE(setting.first, lowestValue(setting)) << effect->name;
      EXPECT_LE(setting.first, highestValue(setting)) << effect->name;
      EXPECT_EQ(valueOfChoice(setting, firstChoice(setting), rgb(9, 8, 7)), setting.first) << effect->name;
      for (int choice = 0; hasList(setting) && choice < choiceCount(setting); ++choice) {
        EXPECT_GE(valueOfChoice(setting, choice, kBlack), lowestValue(setting)) << effect->name;
        EXPECT_LE(valueOfChoice(setting, choice, kBlack), highestValue(setting)) << effect->name;
      }
    }
}

TEST(EffectTable, TheResultHasTheSizeOfTheRowAndTheIconStaysAsItIs) {
  for (const EffectRow* effect : allEffects())
    for (const int size : kIconSides)
      for (const IconImage& icon : generatedIcons(size)) {
        const IconImage before = icon;
        for (const EffectValues& values : valuesToTry(*effect)) {
          const IconImage result = effect->apply(icon, values);
          const int after = sizeAfter(*effect, values, size);
          EXPECT_EQ(result.width(), after) << effect->name;
          EXPECT_EQ(result.height(), after) << effect->name;
          EXPECT_EQ(result.mask.width(), after) << effect->name;
          EXPECT_EQ(result.mask.height(), after) << effect->name;
          EXPECT_FALSE(result.hasAlphaValues()) << effect->name;
          EXPECT_TRUE(samePixels(effect->apply(icon, values), result)) << effect->name;
        }
        EXPECT_TRUE(samePixels(icon, before)) << effect->name;
      }
}

// A theme takes only the hue of its colour, and black and white have none.
bool isSameTheme(const EffectRow& effect, const EffectValues& a, const EffectValues& b) {
  return effect.name == std::string_view("theme") && a.color(0) == kBlack && b.color(0) == kWhite;
}

TEST(EffectTable, EachValueOfASettingMakesAnotherIconThanTheNext) {
  std::vector<IconImage> icons;
  for (const int size : kIconSides)
    for (const IconImage& icon : generatedIcons(size)) icons.push_back(icon);
  for (const EffectRow* effect : allEffects())
    for (std::size_t i = 0; i < effect->settings.size(); ++i) {
      const std::vector<int> all = valuesToTry(effect->settings[i]);
      for (std::size_t next = 1; next < all.size(); ++next) {
        const EffectValues one = valuesWith(*effect, i, all[next - 1]), other = valuesWith(*effect, i, all[next]);
        if (isSameTheme(*effect, one, other)) continue;
        EXPECT_TRUE(std::ranges::any_of(
            icons,
            [&](const IconImage& icon) { return !samePixels(effect->apply(icon, one), effect->apply(icon, other)); }))
            << effect->title << effect->name << " --" << effect->settings[i].option << " " << all[next - 1] << " and "
            << all[next];
      }
    }
}

}  // namespace
}  // namespace gp::test
