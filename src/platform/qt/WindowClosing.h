// Windows of other programs on an X server.
#pragma once

#include <string>

namespace gp {

// Asks every window of a process with exactly that title to close, as its own close button would. Does nothing without
// an X server.
void closeWindowsTitled(const std::string& title, int process);

}  // namespace gp
