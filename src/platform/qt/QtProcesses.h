// Other processes and their windows. The first instance holds a file lock until it ends; the system releases the lock
// with the process, so a crash leaves none behind. The file has the number of the process.
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

  // One file per user: in $XDG_RUNTIME_DIR, or in the private folder for scratch files.
  static std::string userLockFile();

  // Returns false when no lock can be created.
  bool IsPrevInstance() override;
  // Finds only windows of an X server, and only those of the instance that holds the lock.
  void CloseWindowByTitle(const std::string& title) override;
  bool IsProcessRunning(const std::string& executable) override;
  // Asks the process to end, and ends it when it has not within three seconds.
  void TerminateProcessByName(const std::string& executable) override;
  bool start(const std::string& path) override;
  bool openDocument(const std::string& path) override;

 private:
  std::string lockFile_;
  int lock_ = -1;
};

}  // namespace gp
