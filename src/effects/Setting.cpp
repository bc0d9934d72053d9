#include "effects/Setting.h"

#include "platform/text/ColorDigits.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <vector>

namespace gp {
namespace {

constexpr int kTen = 10;
constexpr int kHighestLevel = 255;

std::optional<int> wholeNumber(std::string_view text) {
  int number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || stop != end) return std::nullopt;
  return number;
}

// "1", "0.5", "-0.3": a count of tenths.
std::optional<int> tenths(std::string_view text) {
  const std::size_t point = text.find('.');
  if (point == std::string_view::npos) return wholeNumber(text) ? wholeNumber(std::string(text) + "0") : std::nullopt;
  if (point + 2 != text.size()) return std::nullopt;
  return wholeNumber(std::string(text).erase(point, 1));
}

// "12,-3": that many whole numbers with commas between them.
std::optional<std::vector<int>> wholeNumbers(std::string_view text, std::size_t count) {
  std::vector<int> numbers;
  for (std::size_t start = 0, end = 0; end < text.size(); start = end + 1) {
    end = std::min(text.find(',', start), text.size());
    const std::optional<int> number = wholeNumber(text.substr(start, end - start));
    if (!number) return std::nullopt;
    numbers.push_back(*number);
  }
  if (numbers.size() != count) return std::nullopt;
  return numbers;
}

// Coordinates that are too large are limited.
std::optional<int> point(std::string_view text) {
  constexpr std::size_t kCoordinates = 2;
  const auto numbers = wholeNumbers(text, kCoordinates);
  if (!numbers) return std::nullopt;
  const auto limited = [&numbers](std::size_t i) { return std::clamp(numbers->at(i), -kFarthest, kFarthest); };
  return pointValue(limited(0), limited(1));
}

std::string textOfPoint(int value) {
  if (value == kMiddlePoint) return "the middle";
  return std::to_string(xOfPoint(value)) + "," + std::to_string(yOfPoint(value));
}

std::string textOfTenths(int value) {
  const std::string sign = value < 0 ? "-" : "";
  const std::string whole = std::to_string(std::abs(value) / kTen);
  const int decimal = std::abs(value) % kTen;
  return sign + whole + (decimal == 0 ? "" : "." + std::to_string(decimal));
}

std::optional<int> indexOfWord(std::span<const char* const> words, std::string_view text) {
  const auto found = std::ranges::find(words, text, [](const char* word) { return std::string_view(word); });
  if (found == words.end()) return std::nullopt;
  return static_cast<int>(found - words.begin());
}

// "a", "a or b", "a, b or c".
std::string alternatives(std::span<const char* const> words) {
  std::string text;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (i > 0) text += i + 1 == words.size() ? " or " : ", ";
    text += words[i];
  }
  return text;
}

std::string joined(std::span<const char* const> words) {
  std::string text;
  for (const char* word : words) text += (text.empty() ? "" : "|") + std::string(word);
  return text;
}

std::string rangeOf(const Setting& setting) {
  return "a number from " + textOfValue(setting, setting.from) + " to " + textOfValue(setting, setting.to);
}

std::optional<int> levelsOf(std::string_view text) {
  constexpr std::size_t kLevels = 3;
  const auto levels = wholeNumbers(text, kLevels);
  if (!levels || std::ranges::any_of(*levels, [](int level) { return level < 0 || level > kHighestLevel; }))
    return std::nullopt;
  return rgb(levels->at(0), levels->at(1), levels->at(2));
}

std::string textOfLevels(Color levels) {
  return std::to_string(redOf(levels)) + "," + std::to_string(greenOf(levels)) + "," + std::to_string(blueOf(levels));
}

// What the kinds of settings differ in. Functions that take a text or a value do not check its range.
struct Kind {
  bool hasList;
  int (*lowest)(const Setting& setting);
  int (*highest)(const Setting& setting);
  std::string (*placeholder)(const Setting& setting);
  std::string (*allowed)(const Setting& setting);
  std::optional<int> (*parse)(const Setting& setting, std::string_view text);
  std::string (*write)(const Setting& setting, int value);
};

int zero(const Setting&) { return 0; }
int countOfWords(const Setting& setting) { return static_cast<int>(setting.words.size()); }
int lowestNumber(const Setting& setting) { return setting.from; }
int highestNumber(const Setting& setting) { return setting.to; }
std::string numberPlaceholder(const Setting&) { return "N"; }

constexpr Kind kNumber{.hasList = true,
                       .lowest = lowestNumber,
                       .highest = highestNumber,
                       .placeholder = numberPlaceholder,
                       .allowed = rangeOf,
                       .parse = [](const Setting&, std::string_view text) { return wholeNumber(text); },
                       .write = [](const Setting&, int value) { return std::to_string(value); }};
constexpr Kind kTenths{.hasList = true,
                       .lowest = lowestNumber,
                       .highest = highestNumber,
                       .placeholder = numberPlaceholder,
                       .allowed = rangeOf,
                       .parse = [](const Setting&, std::string_view text) { return tenths(text); },
                       .write = [](const Setting&, int value) { return textOfTenths(value); }};
constexpr Kind kWord{
    .hasList = true,
    .lowest = zero,
    .highest = [](const Setting& setting) { return countOfWords(setting) - 1; },
    .placeholder = [](const Setting& setting) { return joined(setting.words); },
    .allowed = [](const Setting& setting) { return alternatives(setting.words); },
    .parse = [](const Setting& setting, std::string_view text) { return indexOfWord(setting.words, text); },
    .write = [](const Setting& setting,
                int value) { return std::string(setting.words[static_cast<std::size_t>(value)]); }};
constexpr Kind kRgb{.hasList = false,
                    .lowest = zero,
                    .highest = [](const Setting&) { return kWhite; },
                    .placeholder = [](const Setting&) { return std::string("RRGGBB"); },
                    .allowed = [](const Setting&) { return std::string("six hexadecimal digits"); },
                    .parse = [](const Setting&, std::string_view text) { return colorOfDigits(text); },
                    .write = [](const Setting&, int value) { return digitsOfColor(value); }};
constexpr Kind kLevelsKind{
    .hasList = false,
    .lowest = zero,
    .highest = [](const Setting&) { return kWhite; },
    .placeholder = [](const Setting&) { return std::string("R,G,B"); },
    .allowed = [](const Setting&) { return std::string("three numbers from 0 to 255 with commas between them"); },
    .parse = [](const Setting&, std::string_view text) { return levelsOf(text); },
    .write = [](const Setting&, int value) { return textOfLevels(value); }};
constexpr Kind kFlag{.hasList = false,
                     .lowest = zero,
                     .highest = [](const Setting&) { return 1; },
                     .placeholder = [](const Setting&) { return std::string(); },
                     .allowed = [](const Setting&) { return std::string("no value"); },
                     .parse = [](const Setting&, std::string_view) { return std::optional<int>(); },
                     .write = [](const Setting&, int value) { return std::to_string(value); }};
constexpr Kind kPoint{.hasList = false,
                      .lowest = [](const Setting&) { return std::numeric_limits<int>::min(); },
                      .highest = [](const Setting&) { return std::numeric_limits<int>::max(); },
                      .placeholder = [](const Setting&) { return std::string("X,Y"); },
                      .allowed = [](const Setting&) { return std::string("two whole numbers, X,Y"); },
                      .parse = [](const Setting&, std::string_view text) { return point(text); },
                      .write = [](const Setting&, int value) { return textOfPoint(value); }};

constexpr const char* kIconFileName = "OTHER.ico";
constexpr const char* kPictureFileName = "FILE.bmp";

constexpr Kind kIconFile{.hasList = false,
                         .lowest = zero,
                         .highest = zero,
                         .placeholder = [](const Setting&) { return std::string(kIconFileName); },
                         .allowed = [](const Setting&) { return std::string("an icon file"); },
                         .parse = [](const Setting&, std::string_view) { return std::optional(0); },
                         .write = [](const Setting&, int) { return std::string(kIconFileName); }};
constexpr Kind kPictureFile{
    .hasList = false,
    .lowest = zero,
    .highest = countOfWords,
    .placeholder = [](const Setting& setting) { return std::string(kPictureFileName) + "|" + joined(setting.words); },
    .allowed = [](const Setting& setting) { return "a bitmap file, " + alternatives(setting.words); },
    .parse =
        [](const Setting& setting, std::string_view text) {
          return std::optional(indexOfWord(setting.words, text).value_or(countOfWords(setting)));
        },
    .write =
        [](const Setting& setting, int value) {
          return isFile(setting, value) ? kPictureFileName
                                        : std::string(setting.words[static_cast<std::size_t>(value)]);
        }};

// In the order of SettingKind.
constexpr const Kind* kKinds[] = {&kNumber, &kTenths, &kWord,     &kRgb,        &kLevelsKind,
                                  &kFlag,   &kPoint,  &kIconFile, &kPictureFile};

const Kind& kindOf(const Setting& setting) { return *kKinds[static_cast<std::size_t>(setting.kind)]; }

int listValue(const Setting& setting, int choice) {
  return (setting.step > 0 ? lowestValue(setting) : highestValue(setting)) + choice * setting.step;
}

}  // namespace

int lowestValue(const Setting& setting) { return kindOf(setting).lowest(setting); }
int highestValue(const Setting& setting) { return kindOf(setting).highest(setting); }
bool hasList(const Setting& setting) { return kindOf(setting).hasList; }

bool isFile(const Setting& setting, int value) {
  if (setting.kind == SettingKind::IconFile) return true;
  return setting.kind == SettingKind::PictureFile && value == countOfWords(setting);
}

FilledList listOf(const Setting& setting) {
  FilledList list = fillList(setting.control);
  if (!list.entries.empty()) return list;
  const int count = (highestValue(setting) - lowestValue(setting)) / std::abs(setting.step) + 1;
  for (int choice = 0; choice < count; ++choice) {
    if (listValue(setting, choice) == setting.first) list.first = choice;
    list.entries.push_back(textOfValue(setting, listValue(setting, choice)));
  }
  return list;
}

int choiceCount(const Setting& setting) {
  constexpr int kOffAndOn = 2;
  if (setting.kind == SettingKind::Levels) return highestValue(setting) + 1;
  return hasList(setting) ? static_cast<int>(listOf(setting).entries.size()) : kOffAndOn;
}

int firstChoice(const Setting& setting) {
  if (hasList(setting)) return listOf(setting).first;
  return setting.kind == SettingKind::Rgb ? 0 : setting.first;
}

int valueOfChoice(const Setting& setting, int choice, Color currentColor) {
  if (setting.kind == SettingKind::Point) return setting.first;
  if (setting.kind == SettingKind::Rgb) return choice == 0 ? setting.first : currentColor;
  return listValue(setting, choice);
}

std::string placeholderOf(const Setting& setting) { return kindOf(setting).placeholder(setting); }
std::string allowedValues(const Setting& setting) { return kindOf(setting).allowed(setting); }

std::optional<int> valueOfText(const Setting& setting, std::string_view text) {
  const std::optional<int> value = kindOf(setting).parse(setting, text);
  if (!value || *value < lowestValue(setting) || *value > highestValue(setting)) return std::nullopt;
  return value;
}

std::string textOfValue(const Setting& setting, int value) { return kindOf(setting).write(setting, value); }

EffectValues firstValues(std::span<const Setting> settings) {
  EffectValues values;
  for (const Setting& setting : settings) values.append(setting.first);
  return values;
}

}  // namespace gp
