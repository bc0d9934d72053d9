// Shortcuts of Windows (.lnk) and of free desktops (.desktop). What they name is read; nothing is run, expanded or
// fetched.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace gp {

struct ShellLink {
  std::string target;  // as stored, UTF-8; empty for a link without one
  std::string iconFile;
  int iconIndex = 0;
};

// Empty for bytes that are no shell link.
std::optional<ShellLink> readShellLink(std::span<const std::uint8_t> bytes);

// The value of the key Icon in the group [Desktop Entry]; empty without one. A path or the name of an icon of the
// theme.
std::string iconOfDesktopEntry(std::span<const std::uint8_t> bytes);

// True for a name that ends in .lnk, in any case; the same for .desktop.
bool isNamedShellLink(const std::string& path);
bool isNamedDesktopEntry(const std::string& path);

// The path that a shortcut's stored path means on this machine; empty when that is no file of it. No path of a network
// is looked at.
std::string localFile(const std::string& stored);

// Sets `target` to the target of a shell link as a file of this machine; empty when it has none. ".lnk" is added to a
// path that does not end so.
void ResolveShortcut(const std::string& path, std::string& target);

// The icon file that a dropped file means: the file itself, or for a shortcut its target or its icon file when that is
// an .ico file of this machine; otherwise empty.
std::string droppedIconFile(const std::string& path);

}  // namespace gp
