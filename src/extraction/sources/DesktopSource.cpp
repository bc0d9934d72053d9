#include "extraction/sources/DesktopSource.h"

#include "extraction/format/IconHandle.h"
#include "extraction/sources/DesktopIcon.h"
#include "platform/files/Files.h"
#include "platform/ports/FileTypeIcons.h"
#include "platform/resources/ShellLink.h"

#include <filesystem>

namespace gp {
namespace {

constexpr const char* kPattern = "*.*";
// The odd spelling is intended: it is that of the message.
constexpr const char* kNotRetrieved = "Unable to retieve this one.";
constexpr int kLongestLabel = 10;
constexpr std::size_t kMostEntryBytes = 1U << 16;  // of a .desktop file

std::string resolved(const std::string& path) {
  std::string target;
  if (isNamedShellLink(path)) ResolveShortcut(path, target);
  return target.empty() ? path : target;
}

std::string iconNameOf(const std::string& path) {
  const auto bytes = isNamedDesktopEntry(path) ? readFileStart(path, kMostEntryBytes) : std::nullopt;
  return bytes ? iconOfDesktopEntry(bytes->span()) : std::string();
}

}  // namespace

DesktopSource::DesktopSource(const std::string& folder, FileTypeIcons& icons) : icons_(icons) {
  for (const std::string& name : filesInFolder(folder, kPattern))
    files_.push_back(resolved((std::filesystem::path(folder) / name).string()));
}

// An icon file of this machine is read as any icon; the desktop has all others.
std::optional<IconImage> DesktopSource::namedIcon(const std::string& name) const {
  const std::string file = name.starts_with('/') ? droppedIconFile(localFile(name)) : std::string();
  const auto bytes = file.empty() ? std::nullopt : readFile(file);
  if (bytes) return fileIcon(bytes->span(), kLargeIcon);
  return name.empty() ? std::nullopt : handleOf(icons_.namedIcon(name, kLargeIcon));
}

std::optional<IconImage> DesktopSource::handle(int index) const {
  const std::string path = fileOf(index);
  if (auto icon = namedIcon(iconNameOf(path))) return icon;
  return handleOf(icons_.iconOfFile(path, kLargeIcon));
}

ListCell DesktopSource::cell(int index) {
  const std::string label = fileLabel(fileOf(index), kLongestLabel);
  const auto icon = handle(index);
  return icon ? drawnCell(*icon, label) : invalidCell(label);
}

FetchedIcon DesktopSource::fetch(int index) {
  const auto icon = handle(index);
  if (!icon) return kNotRetrieved;
  return surfacesOf(*icon);
}

}  // namespace gp
