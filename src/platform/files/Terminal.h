// Whether output goes to a terminal.
#pragma once

#include <cstdio>

namespace gp {

bool isTerminal(std::FILE* stream);

}  // namespace gp
