#include "platform/files/WriteTarget.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <system_error>

namespace gp {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kPermissionBits = 07777;
constexpr mode_t kUsualPermissions = 0666;  // less the mask of the process
constexpr mode_t kOwnerOnly = 0700;
constexpr int kMostLinks = 40;  // as many as the system follows

std::optional<fs::path> resolved(fs::path path) {
  std::error_code error;
  for (int links = 0; links <= kMostLinks; ++links) {
    if (!fs::is_symlink(path, error)) return path;
    const fs::path next = fs::read_symlink(path, error);
    if (error) return std::nullopt;
    path = path.parent_path() / next;
  }
  return std::nullopt;
}

// A folder that may be entered but not listed cannot be opened for reading, and then cannot be synced.
Descriptor openFolder(const std::string& path) {
  Descriptor folder(systemCalls().open(AT_FDCWD, path.c_str(), O_RDONLY | O_DIRECTORY, 0));
  if (folder.isOpen()) return folder;
  return Descriptor(systemCalls().open(AT_FDCWD, path.c_str(), O_PATH | O_DIRECTORY, 0));
}

}  // namespace

mode_t WriteTarget::permissions() const {
  const mode_t former = status ? status->st_mode & kPermissionBits : kUsualPermissions;
  return isPrivate ? former & kOwnerOnly : former;
}

bool WriteTarget::mayBeWritten() const {
  return !status || (S_ISREG(status->st_mode) && (status->st_mode & S_IWUSR) != 0);
}

std::optional<WriteTarget> findWriteTarget(const std::string& path) {
  const auto file = resolved(path);
  if (!file) return std::nullopt;
  const std::string folder = file->parent_path().native();
  return findWriteTarget(folder.empty() ? "." : folder, file->filename().native());
}

std::optional<WriteTarget> findWriteTarget(const std::string& folder, const std::string& name) {
  if (name.empty() || name == "." || name == ".." || name.find('/') != std::string::npos) return std::nullopt;
  WriteTarget target{.folder = openFolder(folder), .folderPath = folder, .name = name, .status = {}};
  if (!target.folder.isOpen()) return std::nullopt;
  target.status = statusOf(target);
  const bool isKnown = target.exists() || errno == ENOENT;  // and not, for example, a name that is too long
  return isKnown ? std::optional(std::move(target)) : std::nullopt;
}

std::optional<struct stat> statusOf(const WriteTarget& target) {
  struct stat status;
  const bool isThere = fstatat(target.folder.number(), target.name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0;
  return isThere ? std::optional(status) : std::nullopt;
}

bool syncFolder(const Descriptor& folder) {
  return systemCalls().sync(folder.number()) == 0 || (errno != EIO && errno != ENOSPC && errno != EDQUOT);
}

}  // namespace gp
