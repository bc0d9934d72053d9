// Lets the program keep its state in a folder of the test.
#pragma once

#include <cstdlib>
#include <string>

namespace gp::test {

class StateFolder {
 public:
  explicit StateFolder(const std::string& folder) {
    if (const char* before = std::getenv("XDG_STATE_HOME")) before_ = before;
    setenv("XDG_STATE_HOME", folder.c_str(), 1);
  }
  ~StateFolder() {
    if (before_.empty())
      unsetenv("XDG_STATE_HOME");
    else
      setenv("XDG_STATE_HOME", before_.c_str(), 1);
  }
  StateFolder(const StateFolder&) = delete;
  StateFolder& operator=(const StateFolder&) = delete;

 private:
  std::string before_;
};

}  // namespace gp::test
