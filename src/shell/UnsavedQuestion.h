// The question shown when the program is closed with unsaved icons.
#pragma once

#include "document/EditState.h"

#include <string>

namespace gp {

// The question, with a line for each container that counts as unsaved; empty when there is none.
std::string unsavedQuestion(const EditState& state);

}  // namespace gp
