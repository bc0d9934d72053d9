// Identifies the image that an icon was read from among those of its file, by what the file contained at that time. The
// files room computes origins and looks for them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace gp {

struct EntryOrigin {
  static constexpr std::size_t kEntryFields = 6;

  // The directory entry: width, height, colour count, reserved byte, planes, bit count. Its offset may change.
  std::array<int, kEntryFields> entry{};
  std::uint32_t imageSize = 0;  // in bytes
  std::size_t imageHash = 0;    // comparable during one run of the program

  bool operator==(const EntryOrigin&) const = default;
};

}  // namespace gp
