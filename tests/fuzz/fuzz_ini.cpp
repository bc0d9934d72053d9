// Settings files, and other texts from outside: profile files, paths, filters and typed numbers.
#include "FuzzInput.h"
#include "platform/dialogs/clsGPDialog.h"
#include "platform/text/FixedText.h"
#include "platform/text/Numbers.h"
#include "platform/text/Paths.h"
#include "shell/History.h"
#include "shell/Settings.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace {

// Each option that is saved reads and writes the file again, so a long file takes long and finds no more.
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
  (void)settings.SaveOptions();
}

void useText(const std::string& text) {
  for (int part = 0; part <= 6; ++part) (void)gp::ParseFileName(text, static_cast<gp::PathPart>(part));
  (void)gp::ShortenPath(text);
  (void)gp::matchesPattern(text, "*.ico");
  (void)gp::parseFilter(text);
  (void)gp::Val(text);
  (void)gp::valueOfHex(text);
  const gp::FixedText<32> field(text);
  gp::fuzz::require(gp::countCharacters(field.padded()) == 32);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  useText(text);
  static const gp::fuzz::ScratchFolder folder;
  if (size <= kLargestSettings) useSettings(folder.holding("settings", {data, size}));
  return 0;
}
