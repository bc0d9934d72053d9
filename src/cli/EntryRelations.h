// Finds entries of one file that share bytes, or are alike. Takes no longer than sorting them, whatever the file
// states.
#pragma once

#include "files/format/IconFile.h"

#include <vector>

namespace gp::cli {

// The number of entries that the file holds completely.
int wholeEntries(const IconFile& file);
// For each of the first `count` entries another one with which it shares bytes, or -1. Of two such entries, the one
// that starts later, or else has the higher index, gets the other. An entry may get one that shares bytes with others.
std::vector<int> entriesSharedWith(const IconFile& file, int count);
// For each entry the first one before it with the same size and colours, or -1.
std::vector<int> entriesLike(const IconFile& file, int count);

}  // namespace gp::cli
