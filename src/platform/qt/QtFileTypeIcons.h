// FileTypeIcons over Qt: the icons of the desktop's theme by the type of a file, which follows from its name and, where
// the name does not decide, from its first bytes. A type without an icon has that of a document or folder. Pictures by
// their path are PNG, XPM and SVG; drawings that refer to other files are refused.
#pragma once

#include "platform/ports/FileTypeIcons.h"

namespace gp {

class QtFileTypeIcons final : public FileTypeIcons {
 public:
  std::optional<FileTypeIcon> iconOfFile(const std::string& path, int size) override;
  std::optional<FileTypeIcon> namedIcon(const std::string& name, int size) override;
};

}  // namespace gp
