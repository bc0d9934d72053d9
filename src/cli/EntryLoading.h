// Loads one icon as the editor does when it opens a file, and composes the image that the editor would save.
#pragma once

#include "document/IconContainerRec.h"
#include "document/IconImage.h"
#include "files/format/IconDecoder.h"
#include "files/format/IconUpdates.h"

#include <optional>
#include <string>

namespace gp::cli {

// An icon with the record that the editor would store for it.
struct LoadedIcon {
  IconImage icon;
  IconContainerRec record;
};
// Loads an entry of an icon file. Empty for one that the editor does not open; `defect` then states the reason. `path`
// is stored in the record.
std::optional<LoadedIcon> loadEntry(const IconFile& file, int index, const std::string& path, IconDefect& defect);

// Loads the icon or cursor that the editor opens without asking. Empty, after an error message, for a file that it does
// not open.
std::optional<LoadedIcon> loadOpenedIcon(const std::string& path);

// An icon to put into a file with several icons.
struct NewIcon {
  IconTraits traits;
  NewImage image;
};
// The image of an icon as a save writes it. Empty when it cannot be saved.
std::optional<NewIcon> newIconOf(const LoadedIcon& loaded);
// Loads a file's icon: entry `index`, or without an index the one that the editor opens without asking. Empty, after an
// error message, for a file or an entry that the editor does not open.
std::optional<NewIcon> loadNewIcon(const std::string& path, std::optional<int> index);

}  // namespace gp::cli
