// Lists a folder of any size for a walk through a tree. The caller is asked whether to go on while it is read.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace gp {

using GoesOn = std::function<bool()>;

// Return the names in a folder, sorted by name, case ignored: of the regular files whose names match one of the
// patterns
// ("*.exe;*.dll"), links to such files among them; of the folders, without links to folders. Nothing is opened. Empty
// when the folder cannot be read, and when `goesOn` returned false.
std::vector<std::string> listFiles(const std::string& folder, const std::string& patterns, const GoesOn& goesOn);
std::vector<std::string> listSubfolders(const std::string& folder, const GoesOn& goesOn);

}  // namespace gp
