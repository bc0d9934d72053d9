// The question before the program ends with icons that are not saved.
#pragma once

#include "document/EditState.h"

#include <string>

namespace gp {

// The question, with a line for each container that counts as unsaved; empty when there is none.
std::string unsavedQuestion(const EditState& state);

}  // namespace gp
