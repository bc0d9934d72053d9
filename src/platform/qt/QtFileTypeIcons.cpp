#include "platform/qt/QtFileTypeIcons.h"

namespace gp {

std::optional<FileTypeIcon> QtFileTypeIcons::iconOfFile(const std::string&, int) { return std::nullopt; }
std::optional<FileTypeIcon> QtFileTypeIcons::namedIcon(const std::string&, int) { return std::nullopt; }

}  // namespace gp
