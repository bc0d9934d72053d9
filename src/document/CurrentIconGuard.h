// Whether the Current Icon may be replaced: the one question before a command brings up another icon.
#pragma once

#include "document/Context.h"

#include <string>

namespace gp {

// True when the Current Icon holds nothing unsaved, or the user agreed to save it or to lose it. `message` is added to
// the question.
[[nodiscard]] bool mayCurrentIconGo(const Context& context, const std::string& message = {});

}  // namespace gp
