// What gpicon lists of an animated cursor: the film as a whole, and each of its images.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace gp::cli {

// Print an animated cursor of any content. The text has a line for the film and one for each image, JSON is one object.
void printAniAsText(const std::string& path, std::span<const std::uint8_t> file);
void printAniAsJson(const std::string& path, std::span<const std::uint8_t> file);

}  // namespace gp::cli
