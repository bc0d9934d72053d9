// The icon of a file as an image for the desktop's widgets.
#pragma once

#include <QImage>

#include <string>

namespace gp {

// Returns the icon of a file for a row of `side` pixels, with its transparency; null for a file without an icon. Can be
// called in any thread.
QImage imageOfFile(const std::string& path, int side);

}  // namespace gp
