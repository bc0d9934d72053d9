// The program's folders, all of them the folder of a test.
#pragma once

#include "platform/files/ProgramFolders.h"

#include <string>

namespace gp::test {

inline ProgramFolders foldersIn(const std::string& path) {
  return {.settings = path, .scratch = path, .state = path, .data = {path}};
}

}  // namespace gp::test
