// Other processes and their windows. The instance that asks first holds a file lock for as long as it lives; the system
// drops the lock with the process, however it ends, so that none is ever left behind by a crash.
#pragma once

#include "platform/ports/SystemInfo.h"

#include <string>

namespace gp {

class QtProcesses final : public Processes {
 public:
  explicit QtProcesses(std::string lockFile = userLockFile());
  ~QtProcesses() override;
  QtProcesses(const QtProcesses&) = delete;
  QtProcesses& operator=(const QtProcesses&) = delete;

  // One per user: in $XDG_RUNTIME_DIR, or with the user's number in the folder of temporary files.
  static std::string userLockFile();

  // Where no lock can be made at all, there is no other instance.
  bool IsPrevInstance() override;
  // Knows the windows of an X server only.
  void CloseWindowByTitle(const std::string& title) override;
  bool IsProcessRunning(const std::string& executable) override;
  void TerminateProcessByName(const std::string& executable) override;
  bool start(const std::string& path) override;
  bool openDocument(const std::string& path) override;

 private:
  std::string lockFile_;
  int lock_ = -1;
};

}  // namespace gp
