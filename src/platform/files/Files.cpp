#include "platform/files/Files.h"

#include "platform/files/OpenFile.h"

#include <algorithm>
#include <filesystem>
#include <new>
#include <sys/stat.h>
#include <system_error>

namespace gp {
namespace {

namespace fs = std::filesystem;

// Memory filled with zeros, which the system allocates only when it is touched. Null when there is not enough.
FileBytes::Memory zeros(std::size_t size) {
  return FileBytes::Memory(static_cast<std::uint8_t*>(std::calloc(std::max<std::size_t>(size, 1), 1)));
}

std::optional<FileBytes> readBytes(int file, const FileVersion& version, std::size_t size,
                                   std::span<const FileRange> ranges) {
  FileBytes::Memory bytes = zeros(size);
  if (!bytes) return std::nullopt;
  for (const auto& [begin, end] : ranges) {
    if (begin >= size) break;
    const std::size_t wanted = std::min<std::uint64_t>(end, size) - begin;
    const auto read = readAt(file, begin, bytes.get() + begin, wanted);
    if (!read) return std::nullopt;
    if (*read < wanted) return FileBytes(std::move(bytes), begin + *read, version);  // it was shortened meanwhile
  }
  return FileBytes(std::move(bytes), size, version);
}

std::optional<FileBytes> readStart(int file, const struct stat& status, std::uint64_t count) {
  const FileRange start{0, std::min<std::uint64_t>(count, static_cast<std::uint64_t>(status.st_size))};
  return readBytes(file, versionOf(status), static_cast<std::size_t>(start.end), {&start, 1});
}

}  // namespace

FileBytes::FileBytes(std::span<const std::uint8_t> bytes) : bytes_(zeros(bytes.size())), size_(bytes.size()) {
  if (!bytes_) throw std::bad_alloc();
  std::copy(bytes.begin(), bytes.end(), bytes_.get());
}

std::optional<FileBytes> readOpenFile(int file) {
  struct stat status;
  if (fstat(file, &status) != 0 || static_cast<std::uint64_t>(status.st_size) > kMaxFileBytes) return std::nullopt;
  return readStart(file, status, kMaxFileBytes);
}

std::optional<FileBytes> readFile(const std::string& path) {
  const auto open = openToRead(path);
  return open ? readOpenFile(open->file.number()) : std::nullopt;
}

std::optional<FileBytes> readFileStart(const std::string& path, std::size_t count) {
  const auto open = openToRead(path);
  return open ? readStart(open->file.number(), open->status, std::min<std::uint64_t>(count, kMaxFileBytes))
              : std::nullopt;
}

std::optional<FileBytes> readFileRanges(const std::string& path, std::span<const FileRange> ranges) {
  const auto open = openToRead(path);
  if (!open) return std::nullopt;
  const std::uint64_t extent = ranges.empty() ? 0 : ranges.back().end;
  return readBytes(open->file.number(), versionOf(open->status),
                   static_cast<std::size_t>(std::min(open->size(), extent)), ranges);
}

bool FileExists(const std::string& path) { return openToRead(path).has_value(); }

bool isSameFile(const std::string& first, const std::string& second) {
  std::error_code error;
  return fs::equivalent(first, second, error) && !error;
}

bool directoryExists(const std::string& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}

bool HasFileAttribute(const std::string& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (!fs::exists(status)) return false;
  const bool isReadOnly = (status.permissions() & fs::perms::owner_write) == fs::perms::none;
  const bool isHidden = fs::path(path).filename().native().starts_with('.');
  return isReadOnly || isHidden || fs::is_directory(status);
}

}  // namespace gp
