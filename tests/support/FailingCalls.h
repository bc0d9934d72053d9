// System calls that fail at a chosen moment: like a device with an error, or like a program that is killed.
#pragma once

#include "platform/files/SystemCalls.h"

#include <cerrno>
#include <fcntl.h>

namespace gp::test {

enum class Failure {
  Once,     // the call fails, later ones work
  Lasting,  // this and all later calls that need the disk fail; files can still be closed and removed
  Death     // this and all later calls have no effect, as after a kill
};

class FailingCalls : public SystemCalls {
 public:
  // Calls are counted from 1. With `first` 0 none fails.
  FailingCalls(int first, Failure failure, int error = ENOSPC) : first_(first), failure_(failure), error_(error) {}

  int count() const { return count_; }

  int open(int folder, const char* name, int flags, mode_t mode) override {
    return fails() ? -1 : SystemCalls::open(folder, name, flags, mode);
  }
  ssize_t write(int file, const iovec* pieces, int count, off_t position) override {
    if (isNext()) writeHalf(file, *pieces, position);
    return fails() ? -1 : SystemCalls::write(file, pieces, count, position);
  }
  int resize(int file, off_t size) override { return fails() ? -1 : SystemCalls::resize(file, size); }
  int sync(int file) override { return fails() ? -1 : SystemCalls::sync(file); }
  int rename(int folder, const char* from, const char* to) override {
    return fails() ? -1 : SystemCalls::rename(folder, from, to);
  }
  int link(int file, int folder, const char* name) override {
    return fails() ? -1 : SystemCalls::link(file, folder, name);
  }
  int renameToNew(int folder, const char* from, const char* to) override {
    return fails() ? -1 : SystemCalls::renameToNew(folder, from, to);
  }
  int changeOwner(int file, uid_t owner, gid_t group) override {
    return fails() ? -1 : SystemCalls::changeOwner(file, owner, group);
  }
  int changeMode(int file, mode_t mode) override { return fails() ? -1 : SystemCalls::changeMode(file, mode); }
  int setAttribute(int file, const char* name, const void* value, std::size_t size) override {
    return fails() ? -1 : SystemCalls::setAttribute(file, name, value, size);
  }
  int remove(int folder, const char* name) override { return isDead() ? -1 : SystemCalls::remove(folder, name); }
  int close(int file) override {
    SystemCalls::close(file);  // the system closes the files of a program that dies
    return isDead() ? -1 : 0;
  }

 private:
  // Some bytes arrive before the failure.
  void writeHalf(int file, iovec piece, off_t position) {
    piece.iov_len /= 2;
    SystemCalls::write(file, &piece, 1, position);
  }
  bool isNext() const { return count_ + 1 == first_; }
  bool isDead() const { return failure_ == Failure::Death && first_ != 0 && count_ >= first_; }
  bool fails() {
    ++count_;
    const bool is = first_ != 0 && (failure_ == Failure::Once ? count_ == first_ : count_ >= first_);
    if (is) errno = error_;
    return is;
  }

  const int first_;
  const Failure failure_;
  const int error_;
  int count_ = 0;
};

}  // namespace gp::test
