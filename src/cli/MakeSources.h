// The pictures that gpicon make turns into images: those of the files that are given, and scaled ones.
#pragma once

#include "cli/MakeOptions.h"
#include "platform/codec/Png.h"

#include <optional>
#include <string>
#include <vector>

namespace gp::cli {

struct MakeSource {
  std::string name;  // of the file
  bool isScaled = false;
  PngPicture picture;
  Hotspot hotspot;
};

// The pictures in the order of the arguments, then the scaled ones in that of their sizes. A size that one of the
// pictures has is not scaled. The hot spot counts in pixels of the first picture, or else of the one that is scaled;
// the others get it in proportion. Empty after an error message: for a picture that cannot be read or is larger than an
// image may be, and for a hot spot outside.
std::optional<std::vector<MakeSource>> readSources(const MakeArguments& arguments);

}  // namespace gp::cli
