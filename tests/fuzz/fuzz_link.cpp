// Any bytes as a shell link and as a desktop entry: no path has an end mark inside, and none is longer than the file.
#include "FuzzInput.h"
#include "platform/resources/ShellLink.h"

namespace {

using gp::fuzz::require;

// A byte of the file is at most three bytes of UTF-8, and base and suffix are joined by a separator.
constexpr std::size_t kMostBytesPerByte = 3;

void requirePath(const std::string& path, std::size_t fileSize) {
  require(path.find('\0') == path.npos);
  require(path.size() <= 2 * kMostBytesPerByte * fileSize + 1);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::span<const std::uint8_t> file(data, size);
  if (const auto link = gp::readShellLink(file)) {
    requirePath(link->target, size);
    requirePath(link->iconFile, size);
  }
  const std::string icon = gp::iconOfDesktopEntry(file);
  requirePath(icon, size);
  return 0;
}
