#include "platform/files/SystemCalls.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <utility>

namespace gp {
namespace {

SystemCalls* replacement = nullptr;

// For file systems that cannot rename without replacing. A second name is as exclusive as the creation of a file; file
// systems without links are left with a check.
int renameByLink(int folder, const char* from, const char* to) {
  if (linkat(folder, from, folder, to, 0) == 0) return unlinkat(folder, from, 0);
  if (errno != EPERM && errno != EOPNOTSUPP && errno != EMLINK) return -1;
  struct stat status;
  if (fstatat(folder, to, &status, AT_SYMLINK_NOFOLLOW) == 0) {
    errno = EEXIST;
    return -1;
  }
  return renameat(folder, from, folder, to);
}

}  // namespace

int SystemCalls::open(int folder, const char* name, int flags, mode_t mode) {
  return openat(folder, name, flags | O_CLOEXEC, mode);
}

ssize_t SystemCalls::write(int file, const iovec* pieces, int count, off_t position) {
  return pwritev(file, pieces, count, position);
}

int SystemCalls::resize(int file, off_t size) { return ftruncate(file, size); }

int SystemCalls::sync(int file) { return fsync(file); }

int SystemCalls::close(int file) { return ::close(file); }

int SystemCalls::rename(int folder, const char* from, const char* to) { return renameat(folder, from, folder, to); }

int SystemCalls::link(int file, int folder, const char* name) {
  return linkat(AT_FDCWD, ("/proc/self/fd/" + std::to_string(file)).c_str(), folder, name, AT_SYMLINK_FOLLOW);
}

int SystemCalls::renameToNew(int folder, const char* from, const char* to) {
  if (renameat2(folder, from, folder, to, RENAME_NOREPLACE) == 0) return 0;
  return errno == EINVAL || errno == ENOSYS ? renameByLink(folder, from, to) : -1;
}

int SystemCalls::remove(int folder, const char* name) { return unlinkat(folder, name, 0); }

int SystemCalls::changeOwner(int file, uid_t owner, gid_t group) { return fchown(file, owner, group); }

int SystemCalls::changeMode(int file, mode_t mode) { return fchmod(file, mode); }

int SystemCalls::setAttribute(int file, const char* name, const void* value, std::size_t size) {
  return fsetxattr(file, name, value, size, 0);
}

SystemCalls& systemCalls() {
  static SystemCalls real;
  return replacement ? *replacement : real;
}

SystemCallsFor::SystemCallsFor(SystemCalls& calls) : before_(std::exchange(replacement, &calls)) {}
SystemCallsFor::~SystemCallsFor() { replacement = before_; }

}  // namespace gp
