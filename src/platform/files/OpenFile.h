// An ordinary file that is open for reading. Files and ByteSource share it.
#pragma once

#include "platform/files/Descriptor.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <sys/stat.h>

namespace gp {

// The file, and its status at the moment when it was opened.
struct OpenFile {
  Descriptor file;
  struct stat status = {};

  std::uint64_t size() const { return static_cast<std::uint64_t>(status.st_size); }
};

// nullopt for anything but an ordinary file that may be read. Never blocks.
std::optional<OpenFile> openToRead(const std::string& path);

// Returns the number of bytes that were read, fewer than `count` at the end of the file; nullopt after an error.
std::optional<std::size_t> readAt(int file, std::uint64_t position, std::uint8_t* bytes, std::size_t count);

}  // namespace gp
