// Chooses among the images of one icon the one to draw at a size, as the platform does.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace gp {

struct ImageTrait {
  int width = 0;  // pixels
  int height = 0;
  int bits = 0;              // per pixel
  std::uint64_t offset = 0;  // of its bytes
};

// The indices of the images to try, the best one first: nearest to size x size by the sum of what width and height
// differ by, then with the most bits, then the first. Images that share their bytes count once. At most 16.
std::vector<std::size_t> imagesToTry(std::span<const ImageTrait> images, int size);

}  // namespace gp
