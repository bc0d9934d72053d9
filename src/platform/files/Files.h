// Reading files and folders. Paths are UTF-8 or any other bytes that the system allows. Only regular files are read,
// and opening one never blocks, so a pipe or a device cannot hold a reader up. FileWriting.h writes.
#pragma once

#include "platform/files/FileVersion.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace gp {

// The bytes of one file, owned.
class FileBytes {
 public:
  struct Free {
    void operator()(std::uint8_t* bytes) const { std::free(bytes); }
  };
  using Memory = std::unique_ptr<std::uint8_t[], Free>;

  FileBytes() = default;
  explicit FileBytes(std::span<const std::uint8_t> bytes);
  FileBytes(Memory bytes, std::size_t size, const FileVersion& version)
      : bytes_(std::move(bytes)), size_(size), version_(version) {}
  std::span<const std::uint8_t> span() const { return {bytes_.get(), size_}; }
  // Of the file that was read; nullopt for bytes from elsewhere.
  const std::optional<FileVersion>& version() const { return version_; }
  // Takes the version of another reading that gave the same bytes.
  void takeVersion(const FileBytes& other) { version_ = other.version_; }

 private:
  Memory bytes_;
  std::size_t size_ = 0;
  std::optional<FileVersion> version_;
};

// The bytes [begin, end) of a file.
struct FileRange {
  std::uint64_t begin = 0;
  std::uint64_t end = 0;
};

// No file that is read or written whole is larger: larger than any icon file and nearly any program, and still read in
// a fraction of a second.
inline constexpr std::uint64_t kMaxFileBytes = std::uint64_t{256} << 20;

// Returns the whole file; nullopt when it is not a regular file, cannot be read, or exceeds kMaxFileBytes.
std::optional<FileBytes> readFile(const std::string& path);
// The same for a file that is open for reading, from its start.
std::optional<FileBytes> readOpenFile(int file);
// Returns the first `count` bytes of a file, fewer if the file is shorter and kMaxFileBytes at most. nullopt when it is
// not a regular file or cannot be read.
std::optional<FileBytes> readFileStart(const std::string& path, std::size_t count);
// Reads only the given ranges, which must be ascending and disjoint. Returns the bytes up to the end of the last range
// or of the file; unread bytes are zero and use no memory. nullopt as for readFileStart.
std::optional<FileBytes> readFileRanges(const std::string& path, std::span<const FileRange> ranges);
// Returns true when the path is a regular file that can be opened for reading.
bool FileExists(const std::string& path);
bool directoryExists(const std::string& path);
// Returns true when both paths exist and refer to the same file, links resolved.
bool isSameFile(const std::string& first, const std::string& second);
// Returns true when the file exists and is read-only (no write permission for its owner), hidden, or a directory.
bool HasFileAttribute(const std::string& path);
// Returns the names of the regular files directly in a folder that match a pattern, sorted by name, case ignored.
std::vector<std::string> filesInFolder(const std::string& folder, const std::string& pattern);
// Returns the names of the folders directly in a folder, sorted in the same way.
std::vector<std::string> foldersInFolder(const std::string& folder);

}  // namespace gp
