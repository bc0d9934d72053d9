#include "platform/files/TemporaryFile.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace gp {
namespace {

constexpr mode_t kPermissionBits = 07777;
constexpr int kMostTries = 100;

// A name that no other call gives. One that is taken all the same is noticed: names are only taken exclusively.
std::string newName() {
  static int count = 0;
  const auto now = std::chrono::system_clock::now().time_since_epoch().count();
  return ".glimmerpane-" + std::to_string(getpid()) + "-" + std::to_string(now) + "-" + std::to_string(++count);
}

// Calls `attempt` with new names until one is free.
template <class Attempt>
bool tryNames(Attempt attempt) {
  for (int i = 0; i < kMostTries; ++i) {
    if (attempt(newName())) return true;
    if (errno != EEXIST) return false;
  }
  return false;
}

// Errors of systems that cannot make a file without a name.
bool needsName(int error) {
  return error == EOPNOTSUPP || error == EISDIR || error == EINVAL || error == ENOENT || error == ENOSYS;
}

// One call for a file without attributes, which most are.
std::vector<char> attributeNames(const std::string& path) {
  const ssize_t size = llistxattr(path.c_str(), nullptr, 0);
  if (size <= 0) return {};
  std::vector<char> names(static_cast<std::size_t>(size));
  const ssize_t read = llistxattr(path.c_str(), names.data(), names.size());
  names.resize(read > 0 ? static_cast<std::size_t>(read) : 0);
  return names;
}

}  // namespace

TemporaryFile::TemporaryFile(const Descriptor& folder, mode_t permissions) : folder_(folder) {
  file_ = Descriptor(systemCalls().open(folder.number(), ".", O_TMPFILE | O_WRONLY, permissions));
  if (!file_.isOpen() && needsName(errno)) openNamed(permissions);
}

TemporaryFile::~TemporaryFile() {
  if (!name_.empty()) systemCalls().remove(folder_.number(), name_.c_str());
}

bool TemporaryFile::openNamed(mode_t mode) {
  return tryNames([this, mode](const std::string& name) {
    file_ = Descriptor(systemCalls().open(folder_.number(), name.c_str(), O_CREAT | O_EXCL | O_WRONLY, mode));
    if (file_.isOpen()) name_ = name;
    return file_.isOpen();
  });
}

bool TemporaryFile::takeOwnerAndMode(const struct stat& status, mode_t permissions) {
  struct stat own;
  if (fstat(file_.number(), &own) != 0) return false;
  const bool isOwned = own.st_uid == status.st_uid && own.st_gid == status.st_gid;
  if (!isOwned && systemCalls().changeOwner(file_.number(), status.st_uid, status.st_gid) != 0) return false;
  const bool hasPermissions = isOwned && (own.st_mode & kPermissionBits) == permissions;
  return hasPermissions || systemCalls().changeMode(file_.number(), permissions) == 0;
}

void TemporaryFile::takeAttributes(const std::string& path) {
  const std::vector<char> names = attributeNames(path);
  for (std::size_t at = 0; at < names.size(); at += std::string_view(&names[at]).size() + 1) {
    const ssize_t size = lgetxattr(path.c_str(), &names[at], nullptr, 0);
    std::vector<char> value(size > 0 ? static_cast<std::size_t>(size) : 0);
    const ssize_t read = lgetxattr(path.c_str(), &names[at], value.data(), value.size());
    if (read >= 0) systemCalls().setAttribute(file_.number(), &names[at], value.data(), static_cast<std::size_t>(read));
  }
}

bool TemporaryFile::takeInterimName() {
  return tryNames([this](const std::string& name) {
    if (systemCalls().link(file_.number(), folder_.number(), name.c_str()) != 0) return false;
    name_ = name;
    return true;
  });
}

bool TemporaryFile::takeName(const std::string& name) {
  if (name_.empty() && !takeInterimName()) return false;
  if (systemCalls().rename(folder_.number(), name_.c_str(), name.c_str()) != 0) return false;
  name_.clear();
  return true;
}

bool TemporaryFile::takeNewName(const std::string& name) {
  if (name_.empty()) return systemCalls().link(file_.number(), folder_.number(), name.c_str()) == 0;
  if (systemCalls().renameToNew(folder_.number(), name_.c_str(), name.c_str()) != 0) return false;
  name_.clear();
  return true;
}

std::string TemporaryFile::takeAnyName(const std::string& extension) {
  std::string taken;
  tryNames([this, &extension, &taken](const std::string& name) {
    if (!takeNewName(name + extension)) return false;
    taken = name + extension;
    return true;
  });
  return taken;
}

}  // namespace gp
