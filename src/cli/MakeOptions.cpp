#include "cli/MakeOptions.h"

#include "cli/Streams.h"
#include "platform/text/Utf8.h"

#include <algorithm>
#include <array>

namespace gp::cli {
namespace {

constexpr const char* kAllSizes = "16,24,32,48,64,128,256";

// The texts of the options that take a value; empty for those that are not given.
struct Given {
  std::string from, sizes, bits, pngAbove, filter, dither, hotspot;
};

// A value of an option by its name.
template <class Value>
struct Named {
  std::string_view name;
  Value value;
};

constexpr std::array<Named<int>, 6> kBits{{{"auto", kAutoBits}, {"32", 32}, {"24", 24}, {"8", 8}, {"4", 4}, {"1", 1}}};
constexpr std::array<Named<ScalingFilter>, 2> kFilters{
    {{"box", ScalingFilter::Box}, {"lanczos", ScalingFilter::Lanczos}}};
constexpr std::array<Named<bool>, 2> kDithers{{{"none", false}, {"floyd", true}}};

// The usage of each option for error messages.
struct OptionText {
  const char* name;
  const char* takes;
  std::string Given::*text;
};
constexpr std::array<OptionText, 7> kOptions{{{"--from", "a PICTURE", &Given::from},
                                              {"--sizes", "numbers from 1 to 256, each once", &Given::sizes},
                                              {"--bits", "auto, 32, 24, 8, 4 or 1", &Given::bits},
                                              {"--png-above", "a number of pixels", &Given::pngAbove},
                                              {"--filter", "box or lanczos", &Given::filter},
                                              {"--dither", "none or floyd", &Given::dither},
                                              {"--hotspot", "X,Y", &Given::hotspot}}};

bool refuse(const std::string& text) {
  badUsage("make: " + text);
  return false;
}

bool refuseValue(std::string Given::*option) {
  const auto& row = *std::ranges::find(kOptions, option, &OptionText::text);
  return refuse(std::string(row.name) + " takes " + row.takes);
}

bool takeOptions(Arguments& arguments, Given& given) {
  return std::ranges::all_of(kOptions, [&](const OptionText& option) {
    return takeOption(arguments, option.name, given.*option.text) || refuseValue(option.text);
  });
}

// Leaves `value` as it is for an empty text. False for a text that is no name.
template <class Names, class Value>
bool chooseNamed(const Names& names, const std::string& text, Value& value) {
  if (text.empty()) return true;
  const auto found = std::ranges::find_if(names, [&](const auto& row) { return row.name == text; });
  if (found == names.end()) return false;
  value = found->value;
  return true;
}

bool areSizes(std::vector<int> sizes) {
  std::ranges::sort(sizes);
  return sizes.front() >= 1 && sizes.back() <= kLargestMadeSide && std::ranges::adjacent_find(sizes) == sizes.end();
}

bool parseSizes(const Given& given, MakeArguments& arguments) {
  arguments.from = given.from;
  if (given.from.empty()) return given.sizes.empty() || refuse("--sizes goes with --from only");
  const std::string& text = given.sizes.empty() ? kAllSizes : given.sizes;
  return (parseNumbers(text, arguments.sizes) && areSizes(arguments.sizes)) || refuseValue(&Given::sizes);
}

bool parseHotspot(const Given& given, MakeArguments& arguments) {
  if (given.hotspot.empty()) return true;
  std::vector<int> numbers;
  if (!parseNumbers(given.hotspot, numbers) || numbers.size() != 2) return refuseValue(&Given::hotspot);
  if (!arguments.isCursor) return refuse("--hotspot goes with OUT.cur only");
  arguments.hotspot = {numbers[0], numbers[1]};
  return true;
}

bool parseValues(const Given& given, MakeArguments& arguments) {
  if (!chooseNamed(kBits, given.bits, arguments.settings.bits)) return refuseValue(&Given::bits);
  if (!chooseNamed(kFilters, given.filter, arguments.filter)) return refuseValue(&Given::filter);
  if (!chooseNamed(kDithers, given.dither, arguments.settings.dithers)) return refuseValue(&Given::dither);
  if (!given.pngAbove.empty() && !parseNumber(given.pngAbove, arguments.settings.pngAbove))
    return refuseValue(&Given::pngAbove);
  return parseSizes(given, arguments) && parseHotspot(given, arguments);
}

// The ending decides between an icon and a cursor; standard output is a cursor if it has a hot spot.
bool parseOutput(const Given& given, MakeArguments& arguments) {
  arguments.isCursor = isStream(arguments.output) ? !given.hotspot.empty() : endsWithAnyCase(arguments.output, ".cur");
  return isStream(arguments.output) || arguments.isCursor || endsWithAnyCase(arguments.output, ".ico") ||
         refuse("the name of OUT ends with .ico or .cur");
}

}  // namespace

std::optional<MakeArguments> parseMake(Arguments rest) {
  MakeArguments arguments;
  Given given;
  arguments.replaces = takeFlag(rest, "--force");
  arguments.asJson = takeFlag(rest, "--json");
  if (!takeOptions(rest, given)) return std::nullopt;
  Split split = splitOptions(rest);
  const bool isComplete =
      (split.options.empty() || refuse("unknown option " + split.options.front())) &&
      (split.files.size() + (given.from.empty() ? 0 : 1) >= 2 || refuse("OUT.ico and a PICTURE are needed"));
  if (!isComplete) return std::nullopt;
  arguments.output = split.files.front();
  arguments.pictures.assign(split.files.begin() + 1, split.files.end());
  if (!parseOutput(given, arguments) || !parseValues(given, arguments)) return std::nullopt;
  return arguments;
}

}  // namespace gp::cli
