#include "cli/AniValues.h"

#include "animation/format/AniLayout.h"
#include "cli/Console.h"

#include <algorithm>

namespace gp::cli {

std::optional<std::vector<int>> jiffiesOf(const std::string& text) {
  std::vector<int> numbers;
  const auto isOutside = [](int number) { return number < ani::kLeastJiffies || number > ani::kMostJiffies; };
  if (!parseNumbers(text, numbers) || std::ranges::any_of(numbers, isOutside)) return std::nullopt;
  return numbers;
}

std::optional<Hotspot> hotspotOf(const std::string& text) {
  std::vector<int> numbers;
  if (!parseNumbers(text, numbers) || numbers.size() != 2 || std::ranges::max(numbers) > ani::kMostHotspot)
    return std::nullopt;
  return Hotspot{numbers[0], numbers[1]};
}

}  // namespace gp::cli
