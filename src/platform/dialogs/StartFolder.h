// Where a dialog that saves starts when its folder has been removed.
#pragma once

#include <string>

namespace gp {

class MessageBoxes;

// Returns `folder` if it exists. Otherwise reports to the user that it does not, and returns the nearest folder above
// it. An empty or relative path is returned unchanged.
std::string existingStartFolder(MessageBoxes& boxes, const std::string& folder);

}  // namespace gp
