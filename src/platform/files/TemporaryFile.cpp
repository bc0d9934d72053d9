#include "platform/files/TemporaryFile.h"

#include <cerrno>
#include <fcntl.h>
#include <random>
#include <sys/xattr.h>
#include <vector>

namespace gp {
namespace {

constexpr mode_t kOwnerOnly = 0600;
constexpr mode_t kAsUsual = 0666;  // less the mask of the process
constexpr int kMostTries = 100;

std::string randomName() {
  static constexpr char kLetters[] = "abcdefghijklmnopqrstuvwxyz0123456789";
  std::random_device random;
  std::uniform_int_distribution<std::size_t> place(0, sizeof(kLetters) - 2);
  std::string name = ".glimmerpane-";
  for (int i = 0; i < 12; ++i) name += kLetters[place(random)];
  return name;
}

// Calls `attempt` with random names until one is free.
template <class Attempt>
bool tryNames(Attempt attempt) {
  for (int i = 0; i < kMostTries; ++i) {
    if (attempt(randomName())) return true;
    if (errno != EEXIST) return false;
  }
  return false;
}

// Errors of systems that cannot make a file without a name.
bool needsName(int error) {
  return error == EOPNOTSUPP || error == EISDIR || error == EINVAL || error == ENOENT || error == ENOSYS;
}

std::vector<char> attributeNames(const std::string& path) {
  const ssize_t size = listxattr(path.c_str(), nullptr, 0);
  std::vector<char> names(size > 0 ? static_cast<std::size_t>(size) : 0);
  const ssize_t read = listxattr(path.c_str(), names.data(), names.size());
  names.resize(read > 0 ? static_cast<std::size_t>(read) : 0);
  return names;
}

}  // namespace

TemporaryFile::TemporaryFile(const Descriptor& folder, Access access) : folder_(folder) {
  const mode_t mode = access == Access::OwnerOnly ? kOwnerOnly : kAsUsual;
  file_ = Descriptor(systemCalls().open(folder.number(), ".", O_TMPFILE | O_WRONLY, mode));
  if (!file_.isOpen() && needsName(errno)) openNamed(mode);
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
  return systemCalls().changeMode(file_.number(), permissions) == 0;
}

void TemporaryFile::takeAttributes(const std::string& path) {
  const std::vector<char> names = attributeNames(path);
  for (std::size_t at = 0; at < names.size(); at += std::string_view(&names[at]).size() + 1) {
    const ssize_t size = getxattr(path.c_str(), &names[at], nullptr, 0);
    std::vector<char> value(size > 0 ? static_cast<std::size_t>(size) : 0);
    const ssize_t read = getxattr(path.c_str(), &names[at], value.data(), value.size());
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

std::string TemporaryFile::takeRandomName(const std::string& extension) {
  std::string taken;
  tryNames([this, &extension, &taken](const std::string& name) {
    if (!takeNewName(name + extension)) return false;
    taken = name + extension;
    return true;
  });
  return taken;
}

}  // namespace gp
