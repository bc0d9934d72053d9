// The user's settings in the program's profile file. Settings changes the Options that it was given and owns no file:
// each call reads or writes it. A file that is absent or damaged yields the defaults.
#pragma once

#include "document/Options.h"

#include <optional>
#include <span>
#include <string>

namespace gp {

inline constexpr const char* kSettingsFileName = "Glimmerpane.ini";

// The window's place in twips as it was stored; what was absent has no value.
struct StoredPlace {
  std::optional<int> left, top, width, height;
  std::optional<bool> maximized;

  bool isComplete() const { return left && top && width && height; }
};

// One option that is on or off: its entry of mnuOptionsSub, its key and where it lives.
struct BooleanOption {
  int menuIndex;
  const char* key;
  bool Options::*member;
};
std::span<const BooleanOption> booleanOptions();
// The option behind an entry of mnuOptionsSub; null for entries that are no such option.
const BooleanOption* findBooleanOption(int menuIndex);

class Settings {
 public:
  // `options` must outlive this object. `file` need not exist.
  Settings(Options& options, std::string file) : options_(options), file_(std::move(file)) {}

  const std::string& file() const { return file_; }

  // Takes the options from the file. False when there is no file: the options stay and there is no history to show.
  bool LoadOptions();
  // Writes the options that differ from the file. False when one of them could not be written.
  bool SaveOptions() const;
  void resetToDefaults() { options_ = Options(); }

  // The folder of the last file dialog; empty when none is stored or it is no folder any more.
  std::string GetLastFolder() const;
  bool SaveLastFolder(const std::string& folder) const;

  // Each member changes only if the file has a value for it.
  void GetScreenPos(StoredPlace& place) const;
  bool SaveScreenPos(int left, int top, int width, int height, bool maximized) const;

 private:
  Options& options_;
  std::string file_;
};

}  // namespace gp
