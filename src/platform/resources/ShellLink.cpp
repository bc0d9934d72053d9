#include "platform/resources/ShellLink.h"

namespace gp {

std::optional<ShellLink> readShellLink(std::span<const std::uint8_t>) { return std::nullopt; }
std::string iconOfDesktopEntry(std::span<const std::uint8_t>) { return {}; }
bool isNamedShellLink(const std::string&) { return false; }
bool isNamedDesktopEntry(const std::string&) { return false; }
std::string localFile(const std::string&) { return {}; }
void ResolveShortcut(const std::string&, std::string& target) { target.clear(); }
std::string droppedIconFile(const std::string& path) { return path; }

}  // namespace gp
