// File access: files are read whole and written at once from memory. Paths are UTF-8 or any other bytes that the system
// allows. Only regular files are opened, so a pipe or a device cannot block a reader.
#pragma once

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
  FileBytes(Memory bytes, std::size_t size) : bytes_(std::move(bytes)), size_(size) {}
  std::span<const std::uint8_t> span() const { return {bytes_.get(), size_}; }

 private:
  Memory bytes_;
  std::size_t size_ = 0;
};

// The bytes [begin, end) of a file.
struct FileRange {
  std::uint64_t begin = 0;
  std::uint64_t end = 0;
};

// Returns the whole file; nullopt when it is not a regular file, cannot be read, or exceeds 256 MB.
std::optional<FileBytes> readFile(const std::string& path);
// Returns the first `count` bytes of a file, fewer if the file is shorter and 256 MB at most. nullopt when it is not a
// regular file or cannot be read.
std::optional<FileBytes> readFileStart(const std::string& path, std::size_t count);
// Reads only the given ranges, which must be ascending and disjoint. Returns the bytes up to the end of the last range
// or of the file; unread bytes are zero and use no memory. nullopt as for readFileStart.
std::optional<FileBytes> readFileRanges(const std::string& path, std::span<const FileRange> ranges);
// Writes a file, replacing the content of an existing one; permissions and links are kept. Returns false, without
// touching the file, when it is not a regular file, is read-only (no write permission for its owner) or cannot be
// opened. Returns false after removing the file when writing fails.
[[nodiscard]] bool replaceFile(const std::string& path, std::span<const std::uint8_t> bytes);
// The result of writing a file; converts to true when all bytes were written.
struct WriteOutcome {
  bool opened = false;  // false: the existing file was not touched
  bool whole = false;
  operator bool() const { return whole; }
};
// Like replaceFile, for content in pieces, 256 MB in total at most. A file that cannot grow to the new size keeps its
// content. After any other failure `former` is written back; when `former` is empty, which means that the former
// content is unknown, the file is removed.
[[nodiscard]] WriteOutcome rewriteFile(const std::string& path, std::span<const std::span<const std::uint8_t>> pieces,
                                       std::span<const std::uint8_t> former);

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

// Returns the folder of the program's settings files, without a trailing separator: the executable's folder if it is
// writable, otherwise "$XDG_CONFIG_HOME/Glimmerpane" (or "~/.config/Glimmerpane"), created if missing.
std::string programFolder();
// Makes the same choice among given folders; an empty folder means an unset variable. Without an absolute configuration
// folder it returns the executable's folder. Creates the folder that it returns.
std::string chooseProgramFolder(const std::string& executableFolder, const std::string& configHome,
                                const std::string& home);

}  // namespace gp
