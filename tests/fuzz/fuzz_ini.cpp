// Settings files.
#include "FuzzInput.h"
#include "platform/text/ProfileFile.h"
#include "platform/text/ProfileText.h"
#include "shell/History.h"
#include "shell/Settings.h"

#include <cstdint>
#include <string>

namespace {

// A long file takes long and finds no more.
constexpr std::size_t kLargestSettings = 2048;

void useSettings(const std::string& file) {
  gp::Options options;
  gp::Settings settings(options, file);
  settings.LoadOptions();
  gp::StoredPlace place;
  settings.GetScreenPos(place);
  (void)settings.GetLastFolder();
  gp::History history(gp::kFileHistorySection, gp::kFileHistoryLimit, file);
  history.load();
  history.add("/a/b.ico");
  options.promptToSave = true;
  gp::ProfileFile profile(file);
  settings.SaveOptions(profile);
  (void)profile.save();
}

// What is set can be found, and what is removed cannot, whatever else the text holds.
void changeText(std::string text) {
  gp::setValue(text, "Options", "GridLines", "3");
  gp::fuzz::require(gp::findValue(text, "Options", "GridLines") == "3");
  gp::setValue(text, "Last Folder", "LastFolder", "/a");
  gp::fuzz::require(gp::findValue(text, "Options", "GridLines") == "3");
  gp::removeValue(text, "Last Folder", "LastFolder");
  gp::fuzz::require(gp::findValue(text, "Options", "GridLines") == "3");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  changeText(std::string(reinterpret_cast<const char*>(data), size));
  static const gp::fuzz::ScratchFolder folder;
  if (size <= kLargestSettings) useSettings(folder.holding("settings", {data, size}));
  return 0;
}
