// The question shown when the program is closed with unsaved icons.
#pragma once

#include <string>

namespace gp {

struct EditState;

// The question, with a line for each container that counts as unsaved; empty when there is none.
std::string unsavedQuestion(const EditState& state);

}  // namespace gp
