// Frames of animated cursors, and files of them.
#pragma once

#include "animation/AniBytes.h"
#include "files/IcoBuilder.h"
#include "support/PngBuilder.h"

#include <string>
#include <vector>

namespace gp::test {

struct Hotspot {
  int x = 0, y = 0;
};

// A cursor file with these images; without a hot spot for each of them, the others are at 0, 0.
inline Bytes cursorFile(const std::vector<Entry>& images, const std::vector<Hotspot>& hotspots = {}) {
  IcoFile file{images, 0, 2, {}};
  Bytes bytes = build(file);
  for (std::size_t i = 0; i < images.size(); ++i) {
    const Hotspot hotspot = i < hotspots.size() ? hotspots[i] : Hotspot{};
    const std::size_t at = 6 + 16 * i + 4;
    bytes[at] = static_cast<std::uint8_t>(hotspot.x);
    bytes[at + 1] = static_cast<std::uint8_t>(hotspot.x >> 8);
    bytes[at + 2] = static_cast<std::uint8_t>(hotspot.y);
    bytes[at + 3] = static_cast<std::uint8_t>(hotspot.y >> 8);
  }
  return bytes;
}

// An opaque picture of one colour, in 24 bits or in 32 with an alpha.
inline Picture plainPicture(int size, Rgb color, int bits = 24) {
  Picture p;
  p.width = p.height = size;
  p.bits = bits;
  p.color = [color](int, int) { return color; };
  return p;
}
inline Entry plainEntry(int size, Rgb color, int bits = 24) {
  return entryOf(plainPicture(size, color, bits), 0, bits);
}
inline Entry pngEntry(const PngFile& file) {
  return {static_cast<int>(file.width) % 256, static_cast<int>(file.height) % 256, 0, 32, build(file), {}, {}};
}

// A frame of 32 x 32 pixels whose picture is one of 16 different ones.
inline Rgb frameColor(int number) { return {16 * number, 255 - 16 * number, number, 255}; }
inline std::string asText(const Bytes& bytes) { return {bytes.begin(), bytes.end()}; }
inline std::string plainFrame(int number, Hotspot hotspot = {}) {
  return asText(cursorFile({plainEntry(32, frameColor(number))}, {hotspot}));
}
// A small frame: of two colours, in 310 bytes.
inline std::string smallFrame(Hotspot hotspot = {}) { return asText(cursorFile({anyEntry(32, 1)}, {hotspot})); }

// A list of frames, with a pad byte behind odd ones.
inline std::string frameList(const std::vector<std::string>& frames) {
  std::string chunks;
  for (const std::string& frame : frames) chunks += padded(chunkOf("icon", frame));
  return listOf("fram", chunks);
}
inline std::string frameList(int count) {
  std::vector<std::string> frames;
  for (int i = 0; i < count; ++i) frames.push_back(plainFrame(i % 16));
  return frameList(frames);
}
// A header whose steps differ from its frames.
inline std::string headerWithSteps(std::uint32_t frames, std::uint32_t steps, std::uint32_t flags = 1) {
  return chunkOf("anih", numbersOf({36, frames, steps, 0, 0, 0, 0, 10, flags}));
}
inline std::string sequenceOf(const std::vector<std::uint32_t>& steps) { return chunkOf("seq ", numbersOf(steps)); }
inline std::string ratesOf(const std::vector<std::uint32_t>& rates) { return chunkOf("rate", numbersOf(rates)); }

}  // namespace gp::test
