// The running processes of the machine, read from /proc.
#pragma once

#include <optional>
#include <string>

namespace gp {

// Returns the lowest process number of this person whose executable has exactly that file name, case ignored. Skips the
// calling process and terminated ones that wait for their parent. nullopt for an empty name.
std::optional<int> findProcess(const std::string& executable);
// Returns true when the process runs and belongs to this person.
bool isOwnProcess(int process);

}  // namespace gp
