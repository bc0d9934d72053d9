// The question before the program ends with icons that are not saved.
#pragma once

#include <string>

namespace gp {

struct EditState;

// The question, with a line for each container that counts as unsaved; empty when there is none.
std::string unsavedQuestion(const EditState& state);

}  // namespace gp
