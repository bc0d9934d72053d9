#include "platform/files/Files.h"
#include "platform/resources/ShellLink.h"
#include "platform/text/Paths.h"
#include "platform/text/Utf8.h"

#include <algorithm>

namespace gp {
namespace {

constexpr const char* kLinkEnding = ".lnk";
constexpr const char* kEntryEnding = ".desktop";
constexpr const char* kIconEnding = ".ico";
constexpr std::size_t kMostBytes = std::size_t{1} << 20;  // of a shortcut; its paths are near its start
constexpr std::size_t kDriveSize = 2;                     // "Z:"

std::optional<FileBytes> bytesOf(const std::string& shortcut) { return readFileStart(shortcut, kMostBytes); }

std::optional<ShellLink> linkIn(const std::string& path) {
  const auto bytes = bytesOf(path);
  return bytes ? readShellLink(bytes->span()) : std::nullopt;
}

// "Z:\home\ana" as "/home/ana": links that are made on this machine name its root so. Empty for another drive and for a
// path that is not absolute.
std::string pathOnDrive(const std::string& stored) {
  const bool isRootDrive = stored.size() > kDriveSize && (stored[0] == 'Z' || stored[0] == 'z') && stored[1] == ':' &&
                           isSeparator(stored[kDriveSize]);
  if (!isRootDrive) return {};
  std::string path = stored.substr(kDriveSize);
  std::ranges::replace(path, '\\', '/');
  return path;
}

bool isIconFile(const std::string& path) { return endsWithAnyCase(path, kIconEnding); }

std::string localIconFile(const std::string& stored) {
  const std::string file = localFile(stored);
  return isIconFile(file) ? file : std::string();
}

std::string iconFileOfLink(const std::string& path) {
  const auto link = linkIn(path);
  if (!link) return {};
  const std::string target = localIconFile(link->target);
  return target.empty() ? localIconFile(link->iconFile) : target;
}

// A file that is named by its path; a drive has no meaning in a desktop entry.
std::string iconFileOfEntry(const std::string& path) {
  const auto bytes = bytesOf(path);
  const std::string icon = bytes ? iconOfDesktopEntry(bytes->span()) : std::string();
  return icon.starts_with('/') ? localIconFile(icon) : std::string();
}

}  // namespace

bool isNamedShellLink(const std::string& path) { return endsWithAnyCase(path, kLinkEnding); }
bool isNamedDesktopEntry(const std::string& path) { return endsWithAnyCase(path, kEntryEnding); }

std::string localFile(const std::string& stored) {
  const std::string path = stored.starts_with('/') ? stored : pathOnDrive(stored);
  // Two separators begin the path of a network.
  const bool isLocal = path.size() > 1 && !isSeparator(path[1]);
  return isLocal && FileExists(path) ? path : std::string();
}

void ResolveShortcut(const std::string& path, std::string& target) {
  const auto link = linkIn(isNamedShellLink(path) ? path : path + kLinkEnding);
  target = link ? localFile(link->target) : std::string();
}

std::string droppedIconFile(const std::string& path) {
  if (isNamedShellLink(path)) return iconFileOfLink(path);
  if (isNamedDesktopEntry(path)) return iconFileOfEntry(path);
  return isIconFile(path) ? path : std::string();
}

}  // namespace gp
