// The running processes of the machine, read from /proc.
#pragma once

#include <optional>
#include <string>

namespace gp {

// Returns the lowest process number whose executable's path or name ends with `executable`, case ignored. Skips the
// calling process and terminated ones that wait for their parent. nullopt for an empty name.
std::optional<int> findProcess(const std::string& executable);

}  // namespace gp
