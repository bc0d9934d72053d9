// The times of the steps of an animation, in jiffies of 1/60 second and in milliseconds. What is lost when a step is
// rounded is added to the next one, so that errors do not add up.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace gp {

// Returns the milliseconds of steps of so many jiffies. A step of 0 jiffies counts as 1; no step gets more than
// 2^31 - 1 milliseconds.
std::vector<std::uint32_t> delaysOf(std::span<const std::uint32_t> jiffies);
// Returns the jiffies of steps of so many milliseconds, at least 1.
std::vector<std::uint32_t> jiffiesOf(std::span<const std::uint32_t> delaysMs);

}  // namespace gp
