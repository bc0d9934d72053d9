// Resources used by this process. Bytes are the same on every machine, fast or slow, busy or not; seconds are not.
#pragma once

#include <cstddef>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace gp::test {

inline constexpr std::size_t kMegabyte = std::size_t{1} << 20;

// The number after a key such as "VmHWM:" in a file such as "/proc/self/status". Throws if the key is missing.
inline std::size_t processNumber(const std::string& path, std::string_view key) {
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);)
    if (line.starts_with(key)) return std::stoull(line.substr(key.size()));
  throw std::runtime_error("no " + std::string(key) + " in " + path);
}

// Peak memory so far, in bytes; restartPeakMemory() starts the measurement again.
inline std::size_t peakMemory() { return processNumber("/proc/self/status", "VmHWM:") * 1024; }
inline void restartPeakMemory() { std::ofstream("/proc/self/clear_refs") << '5'; }

// Bytes returned by all reads of files so far.
inline std::size_t bytesRead() { return processNumber("/proc/self/io", "rchar:"); }

}  // namespace gp::test
