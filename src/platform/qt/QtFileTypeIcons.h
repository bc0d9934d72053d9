// FileTypeIcons over Qt: the icons of the desktop's theme by the type of a file.
#pragma once

#include "platform/ports/FileTypeIcons.h"

namespace gp {

class QtFileTypeIcons final : public FileTypeIcons {
 public:
  std::optional<FileTypeIcon> iconOfFile(const std::string& path, int size) override;
  std::optional<FileTypeIcon> namedIcon(const std::string& name, int size) override;
};

}  // namespace gp
