// The system calls that change files. Everything that writes goes through them, so that tests can make any call fail,
// or let the program die before it. Each returns what the system returns, with the reason of a failure in errno.
#pragma once

#include <cstddef>
#include <sys/types.h>
#include <sys/uio.h>

namespace gp {

class SystemCalls {
 public:
  virtual ~SystemCalls() = default;
  // A name is relative to the folder, which may be AT_FDCWD.
  virtual int open(int folder, const char* name, int flags, mode_t mode);
  // Writes the pieces one after another.
  virtual ssize_t write(int file, const iovec* pieces, int count, off_t position);
  virtual int resize(int file, off_t size);
  virtual int sync(int file);
  virtual int close(int file);
  virtual int rename(int folder, const char* from, const char* to);
  // Gives a file that has no name one; fails with EEXIST when the name exists.
  virtual int link(int file, int folder, const char* name);
  // Fails with EEXIST when the new name exists.
  virtual int renameToNew(int folder, const char* from, const char* to);
  virtual int remove(int folder, const char* name);
  virtual int changeOwner(int file, uid_t owner, gid_t group);
  virtual int changeMode(int file, mode_t mode);
  virtual int setAttribute(int file, const char* name, const void* value, std::size_t size);
};

// Returns the calls in use: those of the system, except while a SystemCallsFor exists.
SystemCalls& systemCalls();

// Replaces the calls during its life. For one thread.
class SystemCallsFor {
 public:
  explicit SystemCallsFor(SystemCalls& calls);
  ~SystemCallsFor();
  SystemCallsFor(const SystemCallsFor&) = delete;
  SystemCallsFor& operator=(const SystemCallsFor&) = delete;

 private:
  SystemCalls* const before_;
};

}  // namespace gp
