// Animated cursor files, chunk by chunk.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace gp::test {

inline std::string u32Text(std::uint32_t value) {
  std::string text;
  for (int i = 0; i < 4; ++i) text += static_cast<char>(value >> (8 * i));
  return text;
}
// A chunk without a byte behind an odd size.
inline std::string chunkOf(const std::string& tag, const std::string& content) {
  return tag + u32Text(static_cast<std::uint32_t>(content.size())) + content;
}
inline std::string padded(std::string chunk) {
  if (chunk.size() % 2 != 0) chunk += '\0';
  return chunk;
}
inline std::string listOf(const std::string& type, const std::string& content) {
  return chunkOf("LIST", type + content);
}
inline std::string numbersOf(const std::vector<std::uint32_t>& numbers) {
  std::string text;
  for (const std::uint32_t number : numbers) text += u32Text(number);
  return text;
}
inline std::string headerOf(std::uint32_t frames, std::uint32_t rate = 10, std::uint32_t flags = 1) {
  return chunkOf("anih", numbersOf({36, frames, frames, 0, 0, 0, 0, rate, flags}));
}
inline std::string aniOf(const std::string& chunks) { return chunkOf("RIFF", "ACON" + chunks); }
// The first bytes of a frame's file: its type and the hot spot.
inline std::string frameOf(int type, int x, int y) {
  std::string file(22, '\0');
  file[2] = static_cast<char>(type);
  file[10] = static_cast<char>(x);
  file[12] = static_cast<char>(y);
  return file;
}

inline std::vector<std::uint8_t> bytesOfText(const std::string& text) { return {text.begin(), text.end()}; }

}  // namespace gp::test
