// Where the subcommands put the files that they make of others: a folder, and names in it of which no two are alike.
#pragma once

#include "cli/Console.h"

#include <map>
#include <set>
#include <string>

namespace gp::cli {

// Gives each file a name of its own: NAME, NAME-2, NAME-3 ... Extensions are not its business.
class OutputNames {
 public:
  std::string nameFor(const std::string& bare);
  // Nothing gets this name.
  void keepOff(const std::string& name) { taken_.insert(name); }

 private:
  std::set<std::string> taken_;
  std::map<std::string, int> last_;  // the number that a bare name got last
};

// A path's name without folder and extension.
std::string stemOf(const std::string& path);

// What "FILE... -d DIR" told.
struct FolderArguments {
  Arguments files;
  std::string folder;
};
// Takes them apart and makes the folder if it is not there. Otherwise gives the exit status, after a complaint.
int takeFolderArguments(const std::string& command, Arguments arguments, FolderArguments& told);

}  // namespace gp::cli
