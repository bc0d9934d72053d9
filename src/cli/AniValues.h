// The values that gpicon ani takes, and their limits.
#pragma once

#include "files/making/MadeFile.h"

#include <optional>
#include <string>
#include <vector>

namespace gp::cli {

inline constexpr const char* kJiffiesUsage = "1 to 90 jiffies";
inline constexpr const char* kHotspotUsage = "X,Y, each 0 to 31";

// Numbers with commas between them, each 1 to 90. Empty for any other text.
std::optional<std::vector<int>> jiffiesOf(const std::string& text);
// "X,Y", each 0 to 31. Empty for any other text.
std::optional<Hotspot> hotspotOf(const std::string& text);

}  // namespace gp::cli
