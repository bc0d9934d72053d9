// What the about screen tells of the machine.
#pragma once

#include "platform/ports/SystemInfo.h"

#include <string>

namespace gp {

// The lines of the screen information box, joined by line breaks.
std::string screenInformation(SystemInfo& system);

}  // namespace gp
