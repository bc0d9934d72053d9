// The user's settings in the program's profile file. Settings changes the given Options and keeps no copy of the file:
// each call reads it. What is saved goes into a ProfileFile, which the caller writes once. An absent or damaged file
// yields the defaults.
#pragma once

#include "document/Options.h"

#include <optional>
#include <span>
#include <string>

namespace gp {

class ProfileFile;

// The window's stored place in twips; absent values are empty.
struct StoredPlace {
  std::optional<int> left, top, width, height;
  std::optional<bool> maximized;

  bool isComplete() const { return left && top && width && height; }
};

// A boolean option: its entry of mnuOptionsSub, its key and its member of Options.
struct BooleanOption {
  int menuIndex;
  const char* key;
  bool Options::*member;
};
std::span<const BooleanOption> booleanOptions();
// Returns the option of an entry of mnuOptionsSub; null for other entries.
const BooleanOption* findBooleanOption(int menuIndex);

class Settings {
 public:
  // `options` must outlive this object. `file` need not exist.
  Settings(Options& options, std::string file) : options_(options), file_(std::move(file)) {}

  const std::string& file() const { return file_; }

  // Reads the options. Returns false when there is no file: the options do not change and there is no history to load.
  bool LoadOptions();
  // Puts the options that differ from the file into it.
  void SaveOptions(ProfileFile& profile) const;
  void resetToDefaults() { options_ = Options(); }

  // Returns the folder of the last file dialog; empty when none is stored or it no longer exists.
  std::string GetLastFolder() const;
  void SaveLastFolder(ProfileFile& profile, const std::string& folder) const;

  // Changes only the members for which the file has a value.
  void GetScreenPos(StoredPlace& place) const;
  // The values are in twips.
  void SaveScreenPos(ProfileFile& profile, int left, int top, int width, int height, bool maximized) const;

 private:
  Options& options_;
  std::string file_;
};

}  // namespace gp
