// The steps of an animated cursor as they are played.
#pragma once

#include "animation/format/AniFile.h"

#include <cstdint>
#include <vector>

namespace gp {

// Returns true when the flags announce a sequence and it is there.
bool hasPlayedSequence(const AniFile& file);
// Returns the image of each step, from 0; it may not exist. A sequence ends with the stated steps or with its table,
// whichever is first. Without one, all images are played.
std::vector<std::size_t> stepsOf(const AniFile& file);
// Returns the milliseconds of each of so many steps: the exact ones that the file states if they belong to its jiffies,
// otherwise those of the jiffies.
std::vector<std::uint32_t> delaysOfSteps(const AniFile& file, std::size_t steps);

}  // namespace gp
