// Pictures of the kinds that icons are made from, drawn by formulas.
#pragma once

#include "platform/codec/Png.h"

#include <cmath>
#include <cstdint>
#include <functional>

namespace gp::test {

struct Rgba {
  int r = 0, g = 0, b = 0, a = 255;
};

inline PngPicture drawn(int width, int height, bool hasAlpha, const std::function<Rgba(int, int)>& colorAt) {
  PngPicture picture{width, height, hasAlpha, {}};
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) {
      const Rgba c = colorAt(x, y);
      for (const int value : {c.r, c.g, c.b, hasAlpha ? c.a : 255})
        picture.rgba.push_back(static_cast<std::uint8_t>(value));
    }
  return picture;
}

// A disc with a soft edge on transparent ground, and a bright wedge in it.
inline PngPicture logoPicture(int side) {
  return drawn(side, side, true, [side](int x, int y) {
    const double dx = x + 0.5 - side / 2.0, dy = y + 0.5 - side / 2.0, edge = side * 0.45 - std::hypot(dx, dy);
    if (edge <= 0) return Rgba{0, 0, 0, 0};
    const int alpha = static_cast<int>(std::min(1.0, edge / 2) * 255);
    if (std::abs(dy) < dx + side * 0.2 && dx < side * 0.2) return Rgba{250, 240, 90, alpha};
    return Rgba{30, 110, 220, alpha};
  });
}

// Smooth shades with fine grain, opaque.
inline PngPicture photoPicture(int width, int height) {
  std::uint32_t state = 12345;
  const auto grain = [&state] {
    state = state * 1664525 + 1013904223;
    return static_cast<int>(state >> 24) % 25 - 12;
  };
  return drawn(width, height, false, [&](int x, int y) {
    const auto shade = [&](double value) { return std::clamp(static_cast<int>(128 + 110 * value) + grain(), 0, 255); };
    const int red = shade(std::sin(x / 17.0)), green = shade(std::cos(y / 23.0 + x / 91.0));
    return Rgba{red, green, shade(std::sin((x + y) / 31.0)), 255};
  });
}

// Thin dark lines on white, opaque.
inline PngPicture linePicture(int side) {
  return drawn(side, side, false, [](int x, int y) {
    const bool isLine = x % 13 == 0 || y % 17 == 3 || (x + 2 * y) % 29 == 0;
    return isLine ? Rgba{20, 20, 60, 255} : Rgba{255, 255, 255, 255};
  });
}

}  // namespace gp::test
