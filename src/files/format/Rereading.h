// Before a command rewrites an icon file, it reads the file again: another program may have changed it since it was
// read first. What the command is about to change must still be what it was then; everything else is taken from the
// second reading, so that nothing is lost that another program has added.
#pragma once

#include "document/EntryOrigin.h"
#include "files/format/IconArrays.h"

#include <optional>
#include <span>
#include <string>

namespace gp {

// The origin of an icon that is read from `image`. Only as much of the image counts as a decoder can use.
EntryOrigin originOf(const IconEntry& entry, ImageBytes image);
// The same for an entry of a file.
EntryOrigin originOf(const IconFile& file, const IconEntry& entry);

// The entry of a file that an icon came from: `index`, or if the entry there is another one, the only one that equals
// the origin. Empty when there is none, or more than one.
std::optional<int> findOrigin(const IconArrays& arrays, const EntryOrigin& origin, int index);

// True when the bytes of a file are those that were read before.
bool isAsRead(const IconArrays& arrays, std::span<const std::uint8_t> before);

// The version of a file on disk that is an icon file with one entry, so that an icon can replace all of it. Empty for
// any other file.
std::optional<FileVersion> findFileOfOneIcon(const std::string& path);

}  // namespace gp
