#include "effects/Setting.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

constexpr const char* kSizes[] = {"normal", "small", "tiny"};

constexpr Setting kNumber{.option = "red", .from = -90, .to = 90, .first = 5};
constexpr Setting kTenths{.option = "factor", .kind = SettingKind::Tenths, .from = 0, .to = 10, .first = 5};
constexpr Setting kWord{.option = "size", .kind = SettingKind::Word, .first = 1, .words = kSizes};
constexpr Setting kRgb{.option = "color", .kind = SettingKind::Rgb, .first = rgb(1, 2, 3)};
constexpr Setting kFlag{.option = "strong", .kind = SettingKind::Flag};

TEST(Setting, ANumberAllowsItsRangeOnly) {
  for (int value = -90; value <= 90; ++value) EXPECT_EQ(valueOfText(kNumber, std::to_string(value)), value);
  for (const char* text : {"-91", "91", "", "-", "x", "1x", " 1", "1 ", "+1", "0x1", "1.0", "99999999999"})
    EXPECT_EQ(valueOfText(kNumber, text), std::nullopt) << text;
  EXPECT_EQ(allowedValues(kNumber), "a number from -90 to 90");
  EXPECT_EQ(placeholderOf(kNumber), "N");
}

TEST(Setting, TenthsHaveOneDecimalAtMost) {
  const std::pair<const char*, int> texts[] = {{"0", 0}, {"0.0", 0}, {"0.1", 1}, {"0.9", 9}, {"1", 10}, {"1.0", 10}};
  for (const auto& [text, value] : texts) EXPECT_EQ(valueOfText(kTenths, text), value) << text;
  for (const char* text : {"1.1", "-0.1", "2", "0.55", "0.", ".", "", "-", "1.-", "-.", "0,5", "9999999999"})
    EXPECT_EQ(valueOfText(kTenths, text), std::nullopt) << text;
  EXPECT_EQ(allowedValues(kTenths), "a number from 0 to 1");
}

TEST(Setting, TenthsBelowZeroKeepTheirSign) {
  const Setting setting{.option = "x", .kind = SettingKind::Tenths, .from = -25, .to = 5};
  EXPECT_EQ(valueOfText(setting, "-0.3"), -3);
  EXPECT_EQ(valueOfText(setting, "-2.5"), -25);
  EXPECT_EQ(textOfValue(setting, -3), "-0.3");
  EXPECT_EQ(textOfValue(setting, -20), "-2");
  EXPECT_EQ(allowedValues(setting), "a number from -2.5 to 0.5");
}

TEST(Setting, AWordIsOneOfTheListAsItIsWritten) {
  EXPECT_EQ(valueOfText(kWord, "normal"), 0);
  EXPECT_EQ(valueOfText(kWord, "tiny"), 2);
  for (const char* text : {"Tiny", "tin", "tiny ", "", "0"}) EXPECT_EQ(valueOfText(kWord, text), std::nullopt) << text;
  EXPECT_EQ(allowedValues(kWord), "normal, small or tiny");
  EXPECT_EQ(placeholderOf(kWord), "normal|small|tiny");
}

TEST(Setting, AColorHasSixDigitsRedFirst) {
  EXPECT_EQ(valueOfText(kRgb, "Ff8001"), rgb(255, 128, 1));
  for (const char* text : {"12345", "1234567", "zzzzzz", "-00001", ""})
    EXPECT_EQ(valueOfText(kRgb, text), std::nullopt) << text;
  EXPECT_EQ(allowedValues(kRgb), "six hexadecimal digits");
  EXPECT_EQ(placeholderOf(kRgb), "RRGGBB");
}

TEST(Setting, AnIconFileIsAnyText) {
  const Setting file{.option = "with", .kind = SettingKind::IconFile};
  for (const char* text : {"a.ico", "1", "-", "a b"}) EXPECT_EQ(valueOfText(file, text), 0) << text;
  EXPECT_TRUE(isFile(file, 0));
  EXPECT_EQ(placeholderOf(file), "OTHER.ico");
  EXPECT_EQ(allowedValues(file), "an icon file");
  EXPECT_FALSE(hasList(file));
}

TEST(Setting, APictureFileIsAnyTextThatIsNoneOfItsWords) {
  const Setting file{.option = "pattern", .kind = SettingKind::PictureFile, .words = kSizes};
  const std::pair<const char*, int> texts[] = {{"normal", 0},   {"small", 1}, {"tiny", 2}, {"Tiny", 3},
                                               {"./normal", 3}, {"0", 3},     {"x.bmp", 3}};
  for (const auto& [text, value] : texts) {
    EXPECT_EQ(valueOfText(file, text), value) << text;
    EXPECT_EQ(isFile(file, value), value == 3) << text;
  }
  EXPECT_EQ(textOfValue(file, 1), "small");
  EXPECT_EQ(textOfValue(file, 3), "FILE.bmp");
  EXPECT_EQ(placeholderOf(file), "FILE.bmp|normal|small|tiny");
  EXPECT_EQ(allowedValues(file), "a bitmap file, normal, small or tiny");
  EXPECT_FALSE(isFile(kWord, 2));
}

TEST(Setting, AFlagTakesNoText) {
  for (const char* text : {"", "0", "1"}) EXPECT_EQ(valueOfText(kFlag, text), std::nullopt) << text;
  EXPECT_EQ(placeholderOf(kFlag), "");
  EXPECT_EQ(highestValue(kFlag), 1);
}

TEST(Setting, TheTextOfAValueGivesTheValueBack) {
  for (const Setting& setting : {kNumber, kTenths, kWord})
    for (int value = lowestValue(setting); value <= highestValue(setting); ++value)
      EXPECT_EQ(valueOfText(setting, textOfValue(setting, value)), value) << setting.option;
  for (const Color color : {kBlack, kWhite, rgb(1, 2, 3), rgb(0xAB, 0xCD, 0xEF)})
    EXPECT_EQ(valueOfText(kRgb, textOfValue(kRgb, color)), color);
}

TEST(Setting, AListThatTheTablesDoNotContainHasAnEntryForEachValue) {
  const FilledList numbers = listOf(kNumber);
  ASSERT_EQ(numbers.entries.size(), 181U);
  EXPECT_EQ(numbers.entries.front(), "-90");
  EXPECT_EQ(numbers.entries.at(static_cast<std::size_t>(numbers.first)), "5");
  EXPECT_EQ(listOf(kTenths).entries.at(5), "0.5");
  EXPECT_EQ(listOf(kTenths).first, 5);
  EXPECT_EQ(listOf(kWord).entries, (std::vector<std::string>{"normal", "small", "tiny"}));
  EXPECT_EQ(listOf(kWord).first, 1);
}

TEST(Setting, AListOfTheTablesComesFromThere) {
  const Setting theme{.option = "percent", .from = 0, .to = 100, .step = -10, .first = 100, .control = "cboColorTheme"};
  ASSERT_EQ(choiceCount(theme), 11);
  for (int choice = 0; choice < choiceCount(theme); ++choice)
    EXPECT_EQ(std::to_string(valueOfChoice(theme, choice, kBlack)),
              listOf(theme).entries.at(static_cast<std::size_t>(choice)));
  EXPECT_EQ(valueOfChoice(theme, firstChoice(theme), kBlack), 100);
  const Setting overall{.option = "overall", .from = -90, .to = 90, .step = 5, .control = "cboBrightnessOverall"};
  EXPECT_EQ(choiceCount(overall), 37);
  EXPECT_EQ(valueOfChoice(overall, firstChoice(overall), kBlack), 0);
}

TEST(Setting, ABoxOffersTwoChoices) {
  for (const Setting& setting : {kRgb, kFlag}) {
    EXPECT_FALSE(hasList(setting));
    EXPECT_EQ(choiceCount(setting), 2);
    EXPECT_EQ(firstChoice(setting), 0);
  }
  EXPECT_EQ(valueOfChoice(kRgb, 0, kWhite), rgb(1, 2, 3));
  EXPECT_EQ(valueOfChoice(kRgb, 1, kWhite), kWhite);
  EXPECT_EQ(valueOfChoice(kFlag, 1, kWhite), 1);
  const Setting ticked{.option = "soft", .kind = SettingKind::Flag, .first = 1};
  EXPECT_EQ(firstChoice(ticked), 1);
}

TEST(Setting, FirstValuesAreInTheOrderOfTheSettings) {
  const Setting settings[] = {kTenths, kRgb, kFlag};
  EXPECT_EQ(firstValues(settings), (EffectValues{5, rgb(1, 2, 3), 0}));
  EXPECT_EQ(firstValues({}), EffectValues());
}

TEST(Setting, APointIsTwoNumbersOrTheMiddle) {
  const Setting center{.option = "center", .kind = SettingKind::Point, .first = kMiddlePoint};
  EXPECT_EQ(placeholderOf(center), "X,Y");
  EXPECT_EQ(allowedValues(center), "two whole numbers, X,Y");
  EXPECT_EQ(textOfValue(center, kMiddlePoint), "the middle");
  EXPECT_EQ(textOfValue(center, pointValue(-3, 12)), "-3,12");
  EXPECT_EQ(valueOfText(center, "12,-3"), pointValue(12, -3));
  EXPECT_EQ(valueOfText(center, "99999,-99999"), pointValue(kFarthest, -kFarthest));
  EXPECT_EQ(valueOfChoice(center, 0, kBlack), kMiddlePoint);
  for (const char* text : {"", ",", "1", "1,", ",1", "1,2,3", "1, 2", "x,1", "1.5,2", "99999999999,1", "the middle"})
    EXPECT_EQ(valueOfText(center, text), std::nullopt) << text;
  for (const auto& [x, y] : {std::pair{0, 0}, {-1, -1}, {kFarthest, -kFarthest}, {-kFarthest, kFarthest}, {-1, 0}}) {
    EXPECT_EQ(xOfPoint(pointValue(x, y)), x);
    EXPECT_EQ(yOfPoint(pointValue(x, y)), y);
    EXPECT_NE(pointValue(x, y), kMiddlePoint);
  }
}

}  // namespace
}  // namespace gp::test
