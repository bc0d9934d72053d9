#include "files/format/DepthTexts.h"

namespace gp {

std::string colorText(ColorDepth depth) {
  if (depth.isTrueColor()) return "True Color " + std::to_string(depth.bits) + " BPP";
  return std::to_string(depth.colors) + "-color";
}

std::string colorsInFileName(ColorDepth depth) {
  return depth.isTrueColor() ? std::to_string(depth.bits) + "bpp" : std::to_string(depth.colors);
}

}  // namespace gp
