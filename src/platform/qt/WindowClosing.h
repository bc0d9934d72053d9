// Windows of other programs on an X server.
#pragma once

#include <string>

namespace gp {

// Asks every window of exactly that title to close, as its own close button would. Nothing without an X server.
void closeWindowsTitled(const std::string& title);

}  // namespace gp
