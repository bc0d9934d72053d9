// Disks that run full. Limits and mounts end with the object.
#pragma once

#include <csignal>
#include <filesystem>
#include <fstream>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <sys/resource.h>

namespace gp::test {

// Limits the size of the files that this process can write, like a full disk.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : formerHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &former_);
    const rlimit limit{bytes, former_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &former_);
    std::signal(SIGXFSZ, formerHandler_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit former_{};
  void (*formerHandler_)(int);
};

// A real disk of 64 KB, mounted on an existing folder for this process only. Requires root.
class SmallDisk {
 public:
  explicit SmallDisk(const std::string& folder) : folder_(folder) {
    mounted_ = unshare(CLONE_NEWNS) == 0 && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
               mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=64k") == 0;
  }
  ~SmallDisk() {
    if (mounted_) umount2(folder_.c_str(), MNT_DETACH);
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;

  bool isMounted() const { return mounted_; }
  // Leaves room for at most this many bytes, counted in blocks of 4 KB.
  void fillUpTo(std::size_t room) const {
    const auto free = std::filesystem::space(folder_).available;
    if (free <= room) return;
    std::ofstream(folder_ + "/ballast", std::ios::binary) << std::string(free - room, 'b');
  }

 private:
  const std::string folder_;
  bool mounted_ = false;
};

}  // namespace gp::test
