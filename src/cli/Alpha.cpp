// The subcommands about alpha values: setting them, converting an icon that has them, and showing them as shades.
#include "alpha/AlphaConversion.h"
#include "alpha/AlphaShade.h"
#include "cli/AllImages.h"
#include "cli/Netpbm.h"
#include "cli/OneImage.h"
#include "cli/Streams.h"
#include "cli/Subcommands.h"

namespace gp::cli {
namespace {

constexpr const char* kNoAlpha = "the icon has no alpha channel";
constexpr int kMostAlpha = 255;

struct Area {
  int left = 0, top = 0, width = 0, height = 0;

  bool isInside(const IconImage& icon) const {
    return left < icon.width() && width <= icon.width() - left && top < icon.height() && height <= icon.height() - top;
  }
};

// Empty for anything but four numbers, of which width and height are at least 1.
std::optional<Area> parseArea(const std::string& text) {
  constexpr std::size_t kNumbers = 4;
  std::vector<int> numbers;
  if (!parseNumbers(text, numbers) || numbers.size() != kNumbers || numbers[2] < 1 || numbers[3] < 1)
    return std::nullopt;
  return Area{numbers[0], numbers[1], numbers[2], numbers[3]};
}

void setAlpha(IconImage& icon, const Area& area, int value) {
  for (int y = area.top; y < area.top + area.height; ++y)
    for (int x = area.left; x < area.left + area.width; ++x)
      if (icon.mask.GetPixel(x, y) == kBlack) icon.alpha.at(x, y) = static_cast<std::uint8_t>(value);
}

int changeAlpha(const ImageArguments& given, int value, const std::optional<Area>& area) {
  const auto loaded = loadImage(given);
  if (!loaded) return kRefused;
  IconImage icon = withAlphaValues(loaded->icon);
  const Area whole{0, 0, icon.width(), icon.height()};
  if (area && !area->isInside(icon)) {
    complain(given.input, "the area is not inside the icon");
    return kRefused;
  }
  setAlpha(icon, area.value_or(whole), value);
  return writeIcon(icon, recordWithAlpha(loaded->record), given.output);
}

bool hasAlpha(const LoadedIcon& loaded) { return loaded.record.hasAlpha && loaded.icon.hasAlphaValues(); }

// Loads an icon with alpha values. Empty after an error message.
std::optional<LoadedIcon> loadWithAlpha(const ImageArguments& given) {
  auto loaded = loadImage(given);
  if (!loaded || hasAlpha(*loaded)) return loaded;
  complain(given.input, kNoAlpha);
  return std::nullopt;
}

void convertTo24(LoadedIcon& loaded, bool asPalette) {
  loaded.icon = convertRetainAlpha(loaded.icon);
  loaded.record = recordWithoutAlpha(loaded.record, loaded.icon, asPalette);
}

int convertOne(const Arguments& arguments, bool asPalette) {
  ImageArguments given;
  if (const int status = takeImageArguments("to24", "IN.ico INDEX OUT.ico", arguments, 0, given); status != kDone)
    return status;
  auto loaded = loadWithAlpha(given);
  if (!loaded) return kRefused;
  convertTo24(*loaded, asPalette);
  return writeIcon(loaded->icon, loaded->record, given.output);
}

int convertAll(const Arguments& arguments, bool asPalette) {
  FolderArguments given;
  if (const int status = parseFolderArguments("to24", arguments, given); status != kDone) return status;
  if (const int status = refuseIndex("to24", given.files); status != kDone) return status;
  const auto convert = [asPalette](LoadedIcon& loaded) -> const char* {
    if (!hasAlpha(loaded)) return kNoAlpha;
    convertTo24(loaded, asPalette);
    return nullptr;
  };
  return changeAllImages(given, convert, "no image of it can be converted: ");
}

}  // namespace

int runAlpha(const Arguments& arguments) {
  Arguments rest = arguments;
  std::string set, areaText;
  ImageArguments given;
  if (!takeOption(rest, "--set", set) || !takeOption(rest, "--area", areaText))
    return badUsage("alpha: --set and --area take one value each");
  int value = 0;
  if (!parseNumber(set, value) || value > kMostAlpha) return badUsage("alpha: --set takes a number from 0 to 255");
  const std::optional<Area> area = parseArea(areaText);
  if (!areaText.empty() && !area) return badUsage("alpha: --area takes X,Y,W,H");
  if (const int status = takeImageArguments("alpha", "IN.ico INDEX OUT.ico", rest, 0, given); status != kDone)
    return status;
  return changeAlpha(given, value, area);
}

int runTo24(const Arguments& arguments) {
  Arguments rest = arguments;
  const bool asPalette = takeFlag(rest, "--palette");
  return takeFlag(rest, "--all") ? convertAll(rest, asPalette) : convertOne(rest, asPalette);
}

int runShades(const Arguments& arguments) {
  ImageArguments given;
  if (const int status = takeImageArguments("shades", "IN.ico INDEX OUT.pgm", arguments, 0, given); status != kDone)
    return status;
  const auto loaded = loadWithAlpha(given);
  if (!loaded) return kRefused;
  const IconImage& icon = loaded->icon;
  Surface shades(icon.width(), icon.height(), kWhite);
  shadeAlpha(icon.mask, icon.alpha, shades);
  Netpbm file("P5", shades.width(), shades.height(), 1);
  for (const std::uint32_t pixel : shades.pixels()) file.add(redOf(static_cast<Color>(pixel & kColorBits)));
  return answerToWriting(writeOutput(given.output, file.bytes()), given.output);
}

}  // namespace gp::cli
