// The file system as the program uses it: files are read whole and written once from memory. Paths are UTF-8 or
// whatever bytes the system has. Only regular files are ever opened, so that a pipe or a device cannot hang a reader.
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

// The bytes of one file.
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

// The places [begin, end) of a file.
struct FileRange {
  std::uint64_t begin = 0;
  std::uint64_t end = 0;
};

// The whole file; nothing when it is no regular file, cannot be read, or has more than 256 MB.
std::optional<FileBytes> readFile(const std::string& path);
// The first `count` bytes of a file, or fewer if it is shorter; nothing as above.
std::optional<FileBytes> readFileStart(const std::string& path, std::size_t count);
// A file up to the end of the last range, of which only the ranges are read; they are in ascending order and apart from
// each other. What lies between them is zero and takes no memory. Shorter if the file is; nothing as above.
std::optional<FileBytes> readFileRanges(const std::string& path, std::span<const FileRange> ranges);
// Writes a file in place of an existing one, whose permissions and links it keeps. False when the old one is read-only
// (no write permission for its owner) or no regular file, and then it stays as it is; false too when the new one cannot
// be written whole, and then neither is left.
[[nodiscard]] bool replaceFile(const std::string& path, std::span<const std::uint8_t> bytes);
// How the writing of a file went; it counts as true when all was written.
struct WriteOutcome {
  bool opened = false;  // false: what stood there stays as it was
  bool whole = false;
  operator bool() const { return whole; }
};
// Like replaceFile, with a content that stands in pieces, of 256 MB at most. When there is no room for more than the
// file already has, it stays as it is. After any other failure the former content is put back; an empty one stands for
// one that is not known, and then no file is left.
[[nodiscard]] WriteOutcome rewriteFile(const std::string& path, std::span<const std::span<const std::uint8_t>> pieces,
                                       std::span<const std::uint8_t> former);

// True when the path is a regular file that can be opened for reading.
bool FileExists(const std::string& path);
bool directoryExists(const std::string& path);
// True when both paths are there and lead to one file, links included.
bool isSameFile(const std::string& first, const std::string& second);
// True when the file is there and is read-only (no write permission for its owner), hidden, or a directory.
bool HasFileAttribute(const std::string& path);
// Names of the regular files directly in a folder that match a pattern, sorted by name with case ignored.
std::vector<std::string> filesInFolder(const std::string& folder, const std::string& pattern);
std::vector<std::string> foldersInFolder(const std::string& folder);

// The folder of the program's own files, with no trailing separator: the executable's folder if it can be written to,
// otherwise "$XDG_CONFIG_HOME/Glimmerpane" (or "~/.config/Glimmerpane"), made on first need.
std::string programFolder();
// The same choice among given folders, an empty one standing for an unset variable. The executable's folder when there
// is no other. Makes the folder that it tells.
std::string chooseProgramFolder(const std::string& executableFolder, const std::string& configHome,
                                const std::string& home);

}  // namespace gp
