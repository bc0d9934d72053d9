// Shared by the fuzz targets: files in memory, choices taken from the input, and assertions.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <random>
#include <span>
#include <string>
#include <vector>

namespace gp::fuzz {

using Bytes = std::vector<std::uint8_t>;

// A failed assertion counts like a crash.
inline void require(bool holds) {
  if (!holds) __builtin_trap();
}

// The choices of a run: the last bytes of the input, from the end. They are part of the file under test too, after the
// part that most files use; so every file of a corpus is a valid input.
class Choices {
 public:
  Choices(std::span<const std::uint8_t> input, std::size_t most) : input_(input), left_(most) {}

  bool more() const { return left_ > 0 && !input_.empty(); }
  int next() {
    if (!more()) return 0;
    const int byte = input_.back();
    input_ = input_.first(input_.size() - 1);
    --left_;
    return byte;
  }
  // A number from 0 to count - 1.
  int below(int count) { return next() % count; }

 private:
  std::span<const std::uint8_t> input_;
  std::size_t left_;
};

// A folder of this process, removed at its end. In memory if possible: on a disk, each file that is rewritten may take
// milliseconds.
class ScratchFolder {
 public:
  ScratchFolder() { std::filesystem::create_directory(folder_); }
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  std::string path(const std::string& name) const { return folder_ + "/" + name; }
  // Writes the file again.
  std::string holding(const std::string& name, std::span<const std::uint8_t> content) const {
    std::ofstream(path(name), std::ios::binary)
        .write(reinterpret_cast<const char*>(content.data()), static_cast<std::streamsize>(content.size()));
    return path(name);
  }

 private:
  static std::filesystem::path parent() {
    return std::filesystem::exists("/dev/shm") ? "/dev/shm" : std::filesystem::temp_directory_path();
  }

  const std::string folder_ = (parent() / ("glimmerpane-fuzz-" + std::to_string(std::random_device{}()))).string();
};

inline Bytes contentOf(const std::string& path) {
  Bytes content(std::filesystem::file_size(path));
  std::ifstream(path, std::ios::binary)
      .read(reinterpret_cast<char*>(content.data()), static_cast<std::streamsize>(content.size()));
  return content;
}

}  // namespace gp::fuzz
