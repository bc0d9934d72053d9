// Icons of the desktop as handles.
#pragma once

#include "document/IconImage.h"

#include <optional>

namespace gp {

struct FileTypeIcon;

// Empty without an icon, and for one without a visible pixel.
std::optional<IconImage> handleOf(const std::optional<FileTypeIcon>& icon);

}  // namespace gp
