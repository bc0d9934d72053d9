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
constexpr const char* kNotRetrieved = "Unable to retrieve this one.";
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

std::optional<IconImage> DesktopSource::handle(int index) const {
  const std::string path = fileOf(index);
  if (const std::string name = iconNameOf(path); !name.empty())
    if (auto icon = handleOf(icons_.namedIcon(name, kLargeIcon))) return icon;
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
