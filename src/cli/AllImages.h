// Changes all images of many files, which are written to a folder.
#pragma once

#include "cli/EntryLoading.h"
#include "cli/OutputFolder.h"

#include <functional>
#include <string>

namespace gp::cli {

// Changes an icon and its record. Returns why it does not; null when it does.
using ImageChange = std::function<const char*(LoadedIcon& loaded)>;

// Writes each file under its name into the folder, with every image that takes the change replaced as `replace` does
// it. A file without such an image is refused with `noneTakesIt` and the reason of its first image. Returns the exit
// status.
int changeAllImages(const FolderArguments& given, const ImageChange& change, const std::string& noneTakesIt);

// Returns kBadUsage, after a complaint, when one of the files is a number: a call for all images has no INDEX.
int refuseIndex(const std::string& command, const Arguments& files);

}  // namespace gp::cli
