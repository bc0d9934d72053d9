#include "animation/format/StepTimes.h"

#include <algorithm>
#include <limits>

namespace gp {
namespace {

// A jiffy is 50/3 milliseconds.
struct Ratio {
  std::int64_t numerator;
  std::int64_t denominator;
};
constexpr Ratio kDelayOfJiffy{50, 3}, kJiffiesOfDelay{3, 50};
constexpr std::int64_t kMostDelayMs = std::numeric_limits<std::int32_t>::max();
constexpr std::int64_t kMostJiffies = kMostDelayMs * kJiffiesOfDelay.numerator / kJiffiesOfDelay.denominator;

std::vector<std::uint32_t> scaled(std::span<const std::uint32_t> times, std::int64_t most, Ratio ratio) {
  std::vector<std::uint32_t> results;
  std::int64_t carry = 0;  // of the steps before, in parts of the denominator
  for (const std::uint32_t time : times) {
    const std::int64_t exact = std::clamp<std::int64_t>(time, 1, most) * ratio.numerator + carry;
    const std::int64_t rounded = (exact + ratio.denominator / 2) / ratio.denominator;
    // A step that is lifted to 1 is not made up for: a long step behind many short ones keeps its time.
    carry = rounded == 0 ? 0 : exact - rounded * ratio.denominator;
    results.push_back(static_cast<std::uint32_t>(std::max<std::int64_t>(rounded, 1)));
  }
  return results;
}

}  // namespace

std::vector<std::uint32_t> delaysOf(std::span<const std::uint32_t> jiffies) {
  return scaled(jiffies, kMostJiffies, kDelayOfJiffy);
}

std::vector<std::uint32_t> jiffiesOf(std::span<const std::uint32_t> delaysMs) {
  return scaled(delaysMs, kMostDelayMs, kJiffiesOfDelay);
}

}  // namespace gp
