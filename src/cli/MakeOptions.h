// The arguments of gpicon make.
#pragma once

#include "cli/Console.h"
#include "files/making/MadeFile.h"
#include "platform/scaling/FilterTaps.h"

#include <optional>
#include <string>
#include <vector>

namespace gp::cli {

struct MakeArguments {
  std::string output;
  Arguments pictures;      // one image of each
  std::string from;        // the picture to scale, or empty
  std::vector<int> sizes;  // of the images that are made from it
  ScalingFilter filter = ScalingFilter::Box;
  MakeSettings settings;
  bool isCursor = false;
  Hotspot hotspot;
  bool replaces = false;  // an existing file
  bool asJson = false;
};

// Parses the arguments. Empty after an error message.
std::optional<MakeArguments> parseMake(Arguments arguments);

}  // namespace gp::cli
