#include "shell/Settings.h"

#include "platform/files/Files.h"
#include "platform/text/Numbers.h"
#include "platform/text/ProfileFile.h"
#include "platform/text/ProfileText.h"

#include <algorithm>

namespace gp {
namespace {

constexpr const char* kOptionsSection = "Options";
constexpr const char* kLastFolderSection = "Last Folder";
constexpr const char* kLastFolderKey = "LastFolder";
constexpr const char* kScreenPosSection = "Screen Pos";
constexpr const char* kWindowStateKey = "WinState";
constexpr const char* kOn = "-1";
constexpr const char* kOff = "0";

struct IndexOption {
  const char* key;
  int Options::*member;
  int count;
};

constexpr IndexOption kIndexOptions[] = {
    {"GridLines", &Options::grid, kGridCount},
    {"OptedStartScreen", &Options::startScreen, kStartScreenCount},
};

constexpr BooleanOption kBooleanOptions[] = {
    {3, "UseEnlargedEditingArea", &Options::useEnlargedEditingArea},
    {5, "DisplayPixelRGB", &Options::displayPixelRgb},
    {7, "Tooltip256ColorChart", &Options::tooltip256ColorChart},
    {9, "UpdOnlyEditAreaDuringRegionDrag", &Options::updateOnlyEditingArea},
    {11, "PromptToSave", &Options::promptToSave},
    {12, "RemindIfBMP", &Options::remindIfBitmap},
    {13, "FlagMsgIfAlpha", &Options::flagMessageIfAlpha},
    {14, "AlertIfBadHeader", &Options::alertIfBadHeader},
};

struct PlaceKey {
  const char* key;
  std::optional<int> StoredPlace::*member;
};

constexpr PlaceKey kPlaceKeys[] = {
    {"Left", &StoredPlace::left},
    {"Top", &StoredPlace::top},
    {"Width", &StoredPlace::width},
    {"Height", &StoredPlace::height},
};

const char* textOf(bool value) { return value ? kOn : kOff; }

int indexOf(const std::string& text, int count) {
  const double value = Val(text);
  return value >= 0 && value < count && value == Fix(value) ? Fix(value) : 0;
}

bool booleanOf(const std::string& text, bool fallback) {
  if (text == kOn) return true;
  return text == kOff ? false : fallback;
}

void writeIfDifferent(const char* key, const std::string& value, ProfileFile& profile) {
  if (profile.find(kOptionsSection, key) != value) profile.write(kOptionsSection, key, value);
}

}  // namespace

std::span<const BooleanOption> booleanOptions() { return kBooleanOptions; }

const BooleanOption* findBooleanOption(int menuIndex) {
  const auto found = std::find_if(std::begin(kBooleanOptions), std::end(kBooleanOptions),
                                  [menuIndex](const BooleanOption& option) { return option.menuIndex == menuIndex; });
  return found == std::end(kBooleanOptions) ? nullptr : found;
}

bool Settings::LoadOptions() {
  if (!FileExists(file_)) return false;
  const ProfileFile profile(file_);
  for (const IndexOption& option : kIndexOptions)
    options_.*option.member = indexOf(profile.read(kOptionsSection, option.key), option.count);
  const Options defaults;
  for (const BooleanOption& option : kBooleanOptions)
    options_.*option.member = booleanOf(profile.read(kOptionsSection, option.key), defaults.*option.member);
  return true;
}

void Settings::SaveOptions(ProfileFile& profile) const {
  for (const IndexOption& option : kIndexOptions)
    writeIfDifferent(option.key, std::to_string(options_.*option.member), profile);
  for (const BooleanOption& option : kBooleanOptions)
    writeIfDifferent(option.key, textOf(options_.*option.member), profile);
}

std::string Settings::GetLastFolder() const {
  const std::string folder = ReadIniString(kLastFolderSection, kLastFolderKey, "", file_);
  return directoryExists(folder) ? folder : std::string();
}

void Settings::SaveLastFolder(ProfileFile& profile, const std::string& folder) const {
  if (fitsInIni(folder)) profile.write(kLastFolderSection, kLastFolderKey, folder);
}

void Settings::GetScreenPos(StoredPlace& place) const {
  const ProfileFile profile(file_);
  for (const PlaceKey& row : kPlaceKeys) {
    const std::string value = profile.read(kScreenPosSection, row.key);
    if (!value.empty()) place.*row.member = roundToInteger(Val(value));
  }
  const std::string state = profile.read(kScreenPosSection, kWindowStateKey);
  if (!state.empty()) place.maximized = state == kOn;
}

void Settings::SaveScreenPos(ProfileFile& profile, int left, int top, int width, int height, bool maximized) const {
  const StoredPlace place{left, top, width, height, maximized};
  for (const PlaceKey& row : kPlaceKeys)
    profile.write(kScreenPosSection, row.key, std::to_string(*(place.*row.member)));
  profile.write(kScreenPosSection, kWindowStateKey, textOf(maximized));
}

}  // namespace gp
