// Effects that change each painted pixel by itself: brightness, theme, grayscale, the negative, another order of
// channels.
#include "effects/Brightness.h"
#include "effects/ColorTheme.h"
#include "effects/EffectCases.h"
#include "effects/HueLightness.h"
#include "effects/Pictures.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

IconImage onePixel(Color color) { return {Surface(1, 1, color), Surface(1, 1, kBlack), {}}; }

Color made(std::string_view effect, Color color, const EffectValues& values = {}) {
  return applied(effect, onePixel(color), values).image.GetPixel(0, 0);
}

TEST(Grayscale, WeighsTheChannelsAndRounds) {
  const std::pair<Color, int> greys[] = {{rgb(255, 0, 0), 76},
                                         {rgb(0, 255, 0), 150},
                                         {rgb(0, 0, 255), 28},
                                         {rgb(32, 96, 152), 83},
                                         {rgb(255, 255, 0), 227}};
  for (const auto& [color, grey] : greys) EXPECT_EQ(made("grayscale", color), rgb(grey, grey, grey)) << grey;
}

TEST(Grayscale, GreysKeepTheirValue) {
  for (int level = 0; level < 256; ++level)
    EXPECT_EQ(made("grayscale", rgb(level, level, level)), rgb(level, level, level));
}

TEST(Invert, TwiceGivesTheOriginalPicture) {
  EXPECT_EQ(made("invert", rgb(0, 100, 255)), rgb(255, 155, 0));
  for (const Rows& rows : randomIcons(60)) EXPECT_EQ(rowsOf(applied("invert", applied("invert", iconOf(rows)))), rows);
}

TEST(Tone, TransparentAndInvertingPixelsStay) {
  const std::pair<const char*, EffectValues> effects[] = {{"invert", {}},
                                                          {"grayscale", {}},
                                                          {"brightness", {50, 50, 50, 50}},
                                                          {"theme", {rgb(0, 0, 255), 100}},
                                                          {"swap", {0}},
                                                          {"cast", {kWhite}},
                                                          {"sharpen", {1}},
                                                          {"soften", {1}},
                                                          {"antialias", {}}};
  const Rows rows{".^~/-", "-/~^.", "....."};
  for (const auto& [name, values] : effects) EXPECT_EQ(rowsOf(applied(name, iconOf(rows), values)), rows) << name;
}

TEST(Swap, EachOrderPutsTheChannelsInIt) {
  const Color color = rgb(1, 2, 3);
  const Color swapped[] = {rgb(3, 2, 1), rgb(2, 1, 3), rgb(3, 1, 2), rgb(2, 3, 1), rgb(1, 3, 2)};
  const char* const names[] = {"BGR", "GRB", "BRG", "GBR", "RBG"};
  const std::span<const Setting> options = findEffect("swap")->settings;
  const FilledList list = fillList("cboSwapElementsOfPixels");
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(made("swap", color, {i}), swapped[i]);
    EXPECT_EQ(valueOfText(options.front(), names[i]), i);
    const std::string letters = names[i];
    const std::string entry{letters[0], '.', letters[1], '.', letters[2], '.'};
    EXPECT_EQ(list.entries[static_cast<std::size_t>(i) + 1], entry);
    EXPECT_EQ(findEffect(20)->apply(onePixel(color), {i + 1}).image.GetPixel(0, 0), swapped[i]);
  }
  EXPECT_EQ(findEffect(20)->apply(onePixel(color), {0}).image.GetPixel(0, 0), color);
  EXPECT_EQ(valueOfText(options.front(), "RGB"), std::nullopt);
}

TEST(Swap, GreysDoNotChange) {
  for (int order = 0; order < 5; ++order) EXPECT_EQ(made("swap", rgb(77, 77, 77), {order}), rgb(77, 77, 77));
}

TEST(Brightness, IsCutToWholeNumbersAndLimited) {
  EXPECT_EQ(made("brightness", rgb(200, 101, 7), {100, -50, 0, 0}), rgb(255, 50, 7));
  EXPECT_EQ(made("brightness", rgb(200, 101, 7), {-100, 0, 90, 0}), rgb(0, 101, 13));
  EXPECT_EQ(made("brightness", rgb(200, 101, 7), {0, 0, 0, -100}), kBlack);
  EXPECT_EQ(made("brightness", rgb(200, 101, 7), {0, 0, 0, 100}), rgb(255, 202, 14));
}

TEST(Brightness, OverallComesLastAndWorksOnWhatIsThere) {
  // 101 by half is 50, 50 by half is 25; 200 doubled is 255, by half 127.
  EXPECT_EQ(made("brightness", rgb(200, 101, 8), {100, -50, 0, -50}), rgb(127, 25, 4));
}

TEST(Brightness, ChangesCompound) {
  const IconImage icon = onePixel(rgb(100, 100, 100));
  const auto look = [&icon](const BrightnessTable& table) { return table.on(icon).image.GetPixel(0, 0); };
  BrightnessTable table;
  EXPECT_EQ(look(table), rgb(100, 100, 100));
  table.change(BrightnessOf::Red, 10);
  EXPECT_EQ(look(table), rgb(110, 100, 100));
  table.change(BrightnessOf::Red, 10);
  EXPECT_EQ(look(table), rgb(121, 100, 100));
  table.change(BrightnessOf::Green, -50);
  EXPECT_EQ(look(table), rgb(121, 50, 100));
  table.change(BrightnessOf::Blue, 5);
  EXPECT_EQ(look(table), rgb(121, 50, 105));
  table.change(BrightnessOf::Overall, -50);
  EXPECT_EQ(look(table), rgb(60, 25, 52));
  table.change(BrightnessOf::Overall, 0);
  EXPECT_EQ(look(table), rgb(60, 25, 52));
}

TEST(HueLightness, KnowsTheCircle) {
  const std::pair<Color, float> hues[] = {{rgb(255, 0, 0), 0},     {rgb(255, 255, 0), 1}, {rgb(0, 255, 0), 2},
                                          {rgb(0, 255, 255), 3},   {rgb(0, 0, 255), 4},   {rgb(255, 0, 255), -1},
                                          {rgb(255, 51, 0), 0.2F}, {rgb(90, 90, 90), 0},  {kBlack, 0}};
  for (const auto& [color, hue] : hues) EXPECT_EQ(rgbToHLS(color).hue, hue) << color;
  EXPECT_EQ(rgbToHLS(rgb(255, 0, 0)).lightness, 0.5);
  EXPECT_EQ(rgbToHLS(rgb(255, 0, 0)).saturation, 1);
  EXPECT_EQ(rgbToHLS(kWhite).lightness, 1);
  EXPECT_EQ(rgbToHLS(kWhite).saturation, 0);
  EXPECT_EQ(rgbToHLS(rgb(255, 204, 204)).saturation, 1);
}

TEST(HueLightness, EachColorComesBack) {
  for (int red = 0; red < 256; red += 5)
    for (int green = 0; green < 256; green += 5)
      for (int blue = 0; blue < 256; blue += 5)
        ASSERT_EQ(hlsToRGB(rgbToHLS(rgb(red, green, blue))), rgb(red, green, blue));
}

TEST(ColorTheme, APixelTakesTheHueAndKeepsLightnessAndSaturation) {
  EXPECT_EQ(made("theme", rgb(255, 0, 0), {rgb(0, 0, 99), 100}), rgb(0, 0, 255));
  EXPECT_EQ(made("theme", rgb(200, 100, 50), {rgb(0, 10, 0), 100}), rgb(50, 200, 50));
  EXPECT_EQ(made("theme", rgb(128, 128, 128), {rgb(0, 0, 255), 100}), rgb(128, 128, 128));
  EXPECT_EQ(made("theme", kWhite, {rgb(0, 0, 255), 100}), kWhite);
}

TEST(ColorTheme, ThePercentageActsOnAThemeOfHueZeroOnly) {
  for (const Color theme : {kBlack, kWhite, rgb(9, 9, 9), rgb(255, 0, 0), rgb(200, 50, 50)}) {
    EXPECT_TRUE(hasPercent(theme)) << theme;
    EXPECT_EQ(made("theme", rgb(0, 200, 0), {theme, 100}), rgb(200, 0, 0));
    EXPECT_EQ(made("theme", rgb(0, 200, 0), {theme, 50}), rgb(150, 50, 50));
    EXPECT_EQ(made("theme", rgb(0, 200, 0), {theme, 0}), rgb(100, 100, 100));
  }
  for (const Color theme : {rgb(0, 0, 255), rgb(255, 1, 0), rgb(255, 0, 1)}) {
    EXPECT_FALSE(hasPercent(theme)) << theme;
    EXPECT_EQ(made("theme", rgb(0, 200, 0), {theme, 0}), made("theme", rgb(0, 200, 0), {theme, 100}));
  }
}

TEST(Tone, PicturesOfAnySizeAreTaken) {
  for (const OddSize& size : kOddSizes)
    for (const EffectRow* effect : commandLineEffects()) {
      const IconImage icon{Surface(size.width, size.height, kWhite), Surface(size.width, size.height, kBlack), {}};
      const EffectValues values = firstValues(effect->settings);
      const IconImage result = effect->apply(icon, values);
      EXPECT_EQ(result.width(), sizeAfter(*effect, values, size.width)) << effect->name;
      EXPECT_EQ(result.height(), sizeAfter(*effect, values, size.height)) << effect->name;
    }
}

}  // namespace
}  // namespace gp::test
