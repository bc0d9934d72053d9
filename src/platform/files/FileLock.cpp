#include "platform/files/FileLock.h"

#include "platform/files/FileVersion.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>

namespace gp {
namespace {

constexpr std::chrono::milliseconds kPause{5};

// A writer gives the name to a new file, so the lock of the former one is worth nothing.
bool hasName(const Descriptor& file, const std::string& path) {
  struct stat locked;
  struct stat named;
  return fstat(file.number(), &locked) == 0 && stat(path.c_str(), &named) == 0 && locked.st_dev == named.st_dev &&
         locked.st_ino == named.st_ino;
}

}  // namespace

std::optional<FileLock> FileLock::take(const std::string& path, std::chrono::milliseconds longest) {
  const auto end = std::chrono::steady_clock::now() + longest;
  for (;;) {
    Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file.isOpen()) return FileLock(Descriptor());
    const bool isFree = flock(file.number(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
    if (isFree && hasName(file, path)) return FileLock(std::move(file));
    if (std::chrono::steady_clock::now() >= end) return std::nullopt;
    if (!isFree) std::this_thread::sleep_for(kPause);
  }
}

}  // namespace gp
