// What the entries of one file have in common that they must not. It takes no longer than sorting them, whatever a file
// claims.
#pragma once

#include "files/format/IconFile.h"

#include <vector>

namespace gp::cli {

// How many entries the file holds in full.
int wholeEntries(const IconFile& file);
// For each of the first `count` entries another one with which it shares bytes, or -1. Of two such entries the one that
// begins later, or else comes later, is told; an entry may be told to share with one that shares with others.
std::vector<int> entriesSharedWith(const IconFile& file, int count);
// For each the first entry before it of the same size and colours, or -1.
std::vector<int> entriesLike(const IconFile& file, int count);

}  // namespace gp::cli
