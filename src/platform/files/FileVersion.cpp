#include "platform/files/FileVersion.h"

#include <sys/stat.h>

namespace gp {

FileVersion versionOf(const struct stat& status) {
  return {.device = status.st_dev,
          .inode = status.st_ino,
          .size = static_cast<std::uint64_t>(status.st_size),
          .seconds = status.st_mtim.tv_sec,
          .nanoseconds = status.st_mtim.tv_nsec};
}

std::optional<FileVersion> versionAt(const std::string& path) {
  struct stat status;
  return stat(path.c_str(), &status) == 0 ? std::optional(versionOf(status)) : std::nullopt;
}

}  // namespace gp
