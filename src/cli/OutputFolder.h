// The folder that subcommands write their files to, with a different name for each.
#pragma once

#include "cli/Console.h"

#include <map>
#include <set>
#include <string>

namespace gp::cli {

// Makes names unique: NAME, NAME-2, NAME-3 ... Extensions are added by the caller.
class OutputNames {
 public:
  std::string nameFor(const std::string& bare);
  // Reserves a name, so that no file gets it.
  void keepOff(const std::string& name) { taken_.insert(name); }

 private:
  std::set<std::string> taken_;
  std::map<std::string, int> last_;  // the last number given to a bare name
};

// The file name in a path, without extension.
std::string stemOf(const std::string& path);

// The parsed arguments "FILE... -d DIR".
struct FolderArguments {
  Arguments files;
  std::string folder;
};
// Parses the arguments and creates the folder if necessary. Returns kDone, or another exit status after an error
// message.
int takeFolderArguments(const std::string& command, Arguments arguments, FolderArguments& given);

}  // namespace gp::cli
