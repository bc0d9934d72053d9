#include "animation/format/AniSteps.h"

#include "animation/format/AniLayout.h"
#include "animation/format/StepTimes.h"

#include <algorithm>
#include <numeric>

namespace gp {

bool hasPlayedSequence(const AniFile& file) {
  return (file.header.flags & ani::kHasSequence) != 0 && file.sequence && !file.sequence->empty();
}

std::vector<std::size_t> stepsOf(const AniFile& file) {
  if (hasPlayedSequence(file)) {
    const std::size_t stated = file.header.steps == 0 ? file.images.size() : file.header.steps;
    const auto end = file.sequence->begin() + static_cast<std::ptrdiff_t>(std::min(stated, file.sequence->size()));
    return {file.sequence->begin(), end};
  }
  std::vector<std::size_t> steps(file.images.size());
  std::iota(steps.begin(), steps.end(), std::size_t{0});
  return steps;
}

std::vector<std::uint32_t> delaysOfSteps(const AniFile& file, std::size_t steps) {
  std::vector<std::uint32_t> jiffies(steps, file.header.rate);
  if (file.rates) std::copy_n(file.rates->begin(), std::min(steps, file.rates->size()), jiffies.begin());
  // Another program can have changed the jiffies and kept the delays.
  const bool areExact = file.delaysMs && jiffiesOf(*file.delaysMs) == jiffies;
  return areExact ? *file.delaysMs : delaysOf(jiffies);
}

}  // namespace gp
