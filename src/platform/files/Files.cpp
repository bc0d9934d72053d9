#include "platform/files/Files.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <new>
#include <system_error>

namespace gp {
namespace {

namespace fs = std::filesystem;

// Above any icon file and nearly any program, and still read in a fraction of a second.
constexpr std::uintmax_t kMaxFileBytes = std::uintmax_t{256} << 20;

bool isRegularFile(const fs::path& path) {
  std::error_code error;
  return fs::is_regular_file(path, error);
}

std::optional<std::uintmax_t> sizeOf(const fs::path& path) {
  if (!isRegularFile(path)) return std::nullopt;
  std::error_code error;
  const std::uintmax_t size = fs::file_size(path, error);
  return error ? std::nullopt : std::optional(size);
}

std::optional<FileBytes> readBytes(const fs::path& path, std::size_t size) {
  std::ifstream stream(path, std::ios::binary);
  // Not zeroed: every byte that is handed out has been read.
  std::unique_ptr<std::uint8_t[]> bytes(new (std::nothrow) std::uint8_t[size]);
  if (!stream || !bytes) return std::nullopt;
  stream.read(reinterpret_cast<char*>(bytes.get()), static_cast<std::streamsize>(size));
  if (stream.bad()) return std::nullopt;
  return FileBytes(std::move(bytes), static_cast<std::size_t>(stream.gcount()));
}

bool mayReplace(const fs::path& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (!fs::exists(status)) return true;
  return fs::is_regular_file(status) && (status.permissions() & fs::perms::owner_write) != fs::perms::none;
}

bool writeBytes(const fs::path& path, std::span<const std::uint8_t> bytes) {
  std::ofstream stream(path, std::ios::binary | std::ios::trunc);
  if (!stream) return false;
  stream.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  stream.close();
  if (stream) return true;
  std::error_code ignored;
  fs::remove(path, ignored);
  return false;
}

}  // namespace

FileBytes::FileBytes(std::vector<std::uint8_t> bytes)
    : bytes_(std::make_unique_for_overwrite<std::uint8_t[]>(bytes.size())), size_(bytes.size()) {
  std::copy(bytes.begin(), bytes.end(), bytes_.get());
}

std::optional<FileBytes> readFile(const std::string& path) {
  const auto size = sizeOf(path);
  return size && *size <= kMaxFileBytes ? readBytes(path, static_cast<std::size_t>(*size)) : std::nullopt;
}

std::optional<FileBytes> readFileStart(const std::string& path, std::size_t count) {
  const auto size = sizeOf(path);
  return size ? readBytes(path, static_cast<std::size_t>(std::min({*size, std::uintmax_t{count}, kMaxFileBytes})))
              : std::nullopt;
}

bool replaceFile(const std::string& path, std::span<const std::uint8_t> bytes) {
  return mayReplace(path) && writeBytes(path, bytes);
}

bool FileExists(const std::string& path) {
  return isRegularFile(path) && std::ifstream(path, std::ios::binary).is_open();
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
