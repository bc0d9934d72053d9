// What the two saves into files of several icons have in common.
#pragma once

#include "files/FilesContext.h"
#include "platform/files/Files.h"

#include <string>

namespace gp {

// Ends whatever is open on the Current Icon, and brings its container up to date.
void finishCurrentIcon(FilesContext& context);
// What stands in a file that is about to be overwritten, if it can be held in memory beside the new content; otherwise
// nothing.
FileBytes contentToPutBack(const std::string& path);
// A failure, as opposed to a refusal.
void tellFailure(FilesContext& context, const std::string& text);

}  // namespace gp
