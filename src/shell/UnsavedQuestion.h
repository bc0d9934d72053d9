// The question shown when the program is closed with unsaved icons.
#pragma once

#include <string>

namespace gp {

struct EditState;

// Returns the question, with a line for each unsaved container; empty when there is none.
std::string unsavedQuestion(const EditState& state);

}  // namespace gp
