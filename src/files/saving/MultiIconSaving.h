// Code that the two saves into files with several icons share.
#pragma once

#include "files/FilesContext.h"
#include "platform/files/Files.h"

#include <string>

namespace gp {

// Ends all unfinished input on the Current Icon, and updates its container.
void finishCurrentIcon(FilesContext& context);
// Reports a failure with an exclamation mark; refusals have none.
void tellFailure(FilesContext& context, const std::string& text);

}  // namespace gp
