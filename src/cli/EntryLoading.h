// Loading one icon as the editor loads it when it opens a file, and turning it into the image that the editor would
// save.
#pragma once

#include "cli/ImageFile.h"
#include "document/EditState.h"
#include "files/format/IconUpdates.h"

#include <optional>
#include <string>

namespace gp::cli {

// Loads an entry into the Current Icon.
[[nodiscard]] IconDefect loadEntry(const IconFile& file, int index, const std::string& path, EditState& state);

// An icon that is to go into a file of several.
struct NewIcon {
  IconTraits traits;
  NewImage image;
};
// Of a file with several entries the one that the editor opens without asking. Nothing for what the editor does not
// open, which has then been complained about.
std::optional<NewIcon> loadNewIcon(const std::string& path);

}  // namespace gp::cli
