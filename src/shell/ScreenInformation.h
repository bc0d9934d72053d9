// The about screen's information about the machine.
#pragma once

#include "platform/ports/SystemInfo.h"

#include <string>

namespace gp {

// Returns the lines of the screen information box, separated by line breaks.
std::string screenInformation(SystemInfo& system);

}  // namespace gp
