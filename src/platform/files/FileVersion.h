// Which content of which file was read. A later comparison shows whether another program has written or replaced the
// file since.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

struct stat;

namespace gp {

struct FileVersion {
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  std::uint64_t size = 0;
  std::int64_t seconds = 0;  // of the last change of the content
  std::int64_t nanoseconds = 0;

  bool operator==(const FileVersion&) const = default;
};

FileVersion versionOf(const struct stat& status);
// Returns the version of the file at a path, links resolved; nullopt without a file.
std::optional<FileVersion> versionAt(const std::string& path);

}  // namespace gp
