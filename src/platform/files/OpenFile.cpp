#include "platform/files/OpenFile.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace gp {

std::optional<OpenFile> openToRead(const std::string& path) {
  OpenFile open{.file = Descriptor(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC))};
  const bool isOrdinary =
      open.file.isOpen() && fstat(open.file.number(), &open.status) == 0 && S_ISREG(open.status.st_mode);
  return isOrdinary ? std::optional(std::move(open)) : std::nullopt;
}

std::optional<std::size_t> readAt(int file, std::uint64_t position, std::uint8_t* bytes, std::size_t count) {
  std::size_t done = 0;
  while (done < count) {
    const ssize_t read = pread(file, bytes + done, count - done, static_cast<off_t>(position + done));
    if (read < 0 && errno == EINTR) continue;
    if (read < 0) return std::nullopt;
    if (read == 0) break;
    done += static_cast<std::size_t>(read);
  }
  return done;
}

}  // namespace gp
