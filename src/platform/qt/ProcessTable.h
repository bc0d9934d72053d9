// The running processes of the machine, read from /proc.
#pragma once

#include <optional>
#include <string>

namespace gp {

// The first process, by number, whose executable's path or name ends with a name, case ignored: its number. The calling
// process and dead ones that wait for their parent are never it; an empty name is nobody's.
std::optional<int> findProcess(const std::string& executable);

}  // namespace gp
