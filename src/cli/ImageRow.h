// What gpicon prints about one image of an icon or cursor file.
#pragma once

#include "document/ColorDepth.h"
#include "files/format/IconFile.h"

#include <cstdint>
#include <optional>
#include <string>

namespace gp::cli {

struct ImageRow {
  int index = 0;
  int width = 0;  // pixels, by the directory
  int height = 0;
  ColorDepth directory;
  ColorDepth header;  // zeros for a PNG picture, which has no bitmap header
  std::uint64_t bytes = 0;
  std::uint64_t offset = 0;
  const char* encoding = "bmp";  // "png", or "none" for an image that is missing
  bool usable = false;
  std::optional<int> id;  // in a library
  bool hasHotspot = false;
  int hotspotX = 0, hotspotY = 0;
};

ImageRow rowOf(const IconFile& file, int index);
// The row as a JSON object.
std::string jsonOf(const ImageRow& row);
// "32x32x4": width, height and bits by the directory.
std::string shortText(const ImageRow& row);

}  // namespace gp::cli
