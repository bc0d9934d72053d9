// Asks whether the Current Icon may be replaced. Every command calls this before it shows another icon.
#pragma once

#include "document/Context.h"

#include <string>

namespace gp {

// Returns true when the Current Icon has no unsaved changes, or when the user agreed to save or to lose them. `message`
// is added to the question.
[[nodiscard]] bool mayCurrentIconGo(const Context& context, const std::string& message = {});

}  // namespace gp
