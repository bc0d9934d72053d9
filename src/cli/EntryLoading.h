// Loads one icon as the editor loads it when it opens a file, and makes of it the image that the editor would save.
#pragma once

#include "document/IconContainerRec.h"
#include "document/IconImage.h"
#include "files/format/IconDecoder.h"
#include "files/format/IconUpdates.h"

#include <optional>
#include <string>

namespace gp::cli {

// An icon with the record that the editor would keep of it.
struct LoadedIcon {
  IconImage icon;
  IconContainerRec record;
};
// Loads an entry of an icon file. Empty for one that the editor does not open; `defect` then tells why. `path` goes
// into the record.
std::optional<LoadedIcon> loadEntry(const IconFile& file, int index, const std::string& path, IconDefect& defect);

// An icon that is to go into a file of several.
struct NewIcon {
  IconTraits traits;
  NewImage image;
};
// Of a file with several entries the one that the editor opens without asking. Empty for what the editor does not open,
// after a complaint.
std::optional<NewIcon> loadNewIcon(const std::string& path);

}  // namespace gp::cli
