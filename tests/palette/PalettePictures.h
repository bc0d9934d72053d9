// Pictures to reduce: uniform ones, ramps, noise, odd sizes, as many colours as leaves.
#pragma once

#include "palette/SlowPalette.h"
#include "palette/clsGPDIB.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace gp::test {

struct NamedPicture {
  std::string name;
  SlowPicture pixels;
};

inline SlowPicture painted(int width, int height, const std::function<SlowColor(int, int)>& color) {
  SlowPicture p(static_cast<std::size_t>(height));
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) p[static_cast<std::size_t>(y)].push_back(color(x, y));
  return p;
}

inline SlowColor grey(int v) { return {v, v, v}; }

inline SlowColor ramp(int x, int y) { return {x * 5 % 256, y * 5 % 256, (x + y) * 3 % 256}; }

// Each colour reaches a leaf of its own.
inline auto leaves(int count) {
  return [count](int x, int y) {
    const int i = std::min(y * 32 + x, count - 1);
    return SlowColor{i % 8 * 32 + 4, i / 8 % 8 * 32 + 4, i / 64 * 32 + 4};
  };
}

inline std::vector<NamedPicture> palettePictures() {
  std::uint32_t state = 12345;
  auto noise = [&state](int, int) {
    state = state * 1664525 + 1013904223;
    return SlowColor{static_cast<int>(state >> 24), static_cast<int>(state >> 16 & 255),
                     static_cast<int>(state >> 8 & 255)};
  };
  return {
      {"one black pixel", painted(1, 1, [](int, int) { return SlowColor{}; })},
      {"one odd pixel", painted(1, 1,
                                [](int, int) {
                                  return SlowColor{200, 3, 77};
                                })},
      {"flat grey", painted(16, 16, [](int, int) { return grey(128); })},
      {"flat light", painted(7, 5,
                             [](int, int) {
                               return SlowColor{250, 251, 252};
                             })},
      {"black and white", painted(32, 32, [](int x, int y) { return grey((x + y) % 2 * 255); })},
      {"grey ramp", painted(48, 48, [](int x, int) { return grey(x * 255 / 47); })},
      {"colour ramp", painted(48, 48, ramp)},
      {"colour ramp of odd width", painted(33, 17, ramp)},
      {"noise", painted(48, 48, noise)},
      {"noise of odd size", painted(13, 11, noise)},
      {"noise in one row", painted(4096, 1, noise)},
      {"noise in one column", painted(1, 4096, noise)},
      {"noise in two rows", painted(31, 2, noise)},
      {"noise in three rows", painted(29, 3, noise)},
      {"noise two wide", painted(2, 31, noise)},
      {"256 leaves", painted(32, 9, leaves(256))},
      {"257 leaves", painted(32, 9, leaves(257))},
      {"288 leaves", painted(32, 9, leaves(288))},
      {"sixteen colours",
       painted(24, 24,
               [](int x, int y) {
                 const int i = (x / 6 + y / 6 * 4) % 16;
                 return SlowColor{(i & 1) * 255, (i >> 1 & 1) * 255, (i >> 2 & 1) * (i & 8 ? 128 : 255)};
               })},
      {"icon of flat areas", painted(32, 32,
                                     [](int x, int y) {
                                       if ((x - 16) * (x - 16) + (y - 16) * (y - 16) > 200) return SlowColor{};
                                       return x > y ? SlowColor{222, 120, 30} : SlowColor{40, 90, 200 + x};
                                     })},
      {"large ramp", painted(200, 150,
                             [](int x, int y) {
                               return SlowColor{x, y, (x * y) % 256};
                             })},
      {"large noise", painted(150, 100, noise)},
      {"differences within a leaf", painted(4, 4,
                                            [](int x, int y) {
                                              return SlowColor{x % 2, 50, y % 2};
                                            })},
  };
}

inline clsGPDIB dibOf(const SlowPicture& p) {
  clsGPDIB dib;
  dib.CreateBlankDIB(static_cast<int>(p[0].size()), static_cast<int>(p.size()));
  for (std::size_t y = 0; y < p.size(); ++y)
    for (std::size_t x = 0; x < p[y].size(); ++x)
      dib.row(static_cast<int>(y))[x] = {static_cast<std::uint8_t>(p[y][x].b), static_cast<std::uint8_t>(p[y][x].g),
                                         static_cast<std::uint8_t>(p[y][x].r), 0};
  return dib;
}

inline SlowPicture picturesOf(const clsGPDIB& dib) {
  return painted(dib.DIBWidth(), dib.DIBHeight(), [&](int x, int y) {
    const DibPixel pixel = dib.row(y)[static_cast<std::size_t>(x)];
    return SlowColor{pixel.red, pixel.green, pixel.blue};
  });
}

inline std::vector<SlowColor> colorsOf(std::span<const DibPixel> entries) {
  std::vector<SlowColor> colors;
  for (const DibPixel entry : entries) colors.push_back({entry.red, entry.green, entry.blue});
  return colors;
}

}  // namespace gp::test
