// Keeps two of our programs from updating a file at the same time. Other programs do not see the lock.
#pragma once

#include "platform/files/Descriptor.h"

#include <chrono>
#include <optional>
#include <string>

namespace gp {

class FileLock {
 public:
  // Waits for the lock of a file and returns it; nullopt when another program keeps it for longer than that. A file
  // that cannot be opened for reading needs no lock, and file systems without locks are used without.
  static std::optional<FileLock> take(const std::string& path, std::chrono::milliseconds longest);

 private:
  explicit FileLock(Descriptor file) : file_(std::move(file)) {}

  Descriptor file_;  // holds the lock until it is closed
};

}  // namespace gp
