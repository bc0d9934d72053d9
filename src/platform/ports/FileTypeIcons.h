// The port for the icons that the desktop shows for files.
#pragma once

#include "platform/gdi/Surface.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace gp {

struct FileTypeIcon {
  Surface colors = Surface();       // not multiplied by alpha
  std::vector<std::uint8_t> alpha;  // row by row from the top
};

class FileTypeIcons {
 public:
  virtual ~FileTypeIcons() = default;
  // The icon for a file by its type, of size x size pixels. Empty when the desktop has none. The file is not opened
  // beyond what its type needs.
  virtual std::optional<FileTypeIcon> iconOfFile(const std::string& path, int size) = 0;
  // The icon of the desktop's theme with that name, or a picture file by its full path.
  virtual std::optional<FileTypeIcon> namedIcon(const std::string& name, int size) = 0;
};

}  // namespace gp
