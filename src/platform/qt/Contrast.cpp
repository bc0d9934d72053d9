#include "platform/qt/Contrast.h"

#include <algorithm>
#include <cmath>

namespace gp {
namespace {

constexpr int kWhole = 8;  // eighths

double linear(double channel) {
  return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

// Relative luminance, 0 to 1.
double luminanceOf(const QColor& color) {
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

}  // namespace

double contrastOf(const QColor& a, const QColor& b) {
  constexpr double kFlare = 0.05;
  const auto [darker, lighter] = std::minmax({luminanceOf(a), luminanceOf(b)});
  return (lighter + kFlare) / (darker + kFlare);
}

QColor between(const QColor& from, const QColor& to, int eighths) {
  const auto mixed = [eighths](int a, int b) { return (a * (kWhole - eighths) + b * eighths) / kWhole; };
  return {mixed(from.red(), to.red()), mixed(from.green(), to.green()), mixed(from.blue(), to.blue())};
}

QColor visibleOn(const QColor& ground, const QColor& wanted) {
  const QColor end = contrastOf(ground, Qt::black) > contrastOf(ground, Qt::white) ? Qt::black : Qt::white;
  for (int eighths = 0; eighths < kWhole; ++eighths) {
    const QColor color = between(wanted, end, eighths);
    if (contrastOf(ground, color) >= kLeastContrast) return color;
  }
  return end;
}

}  // namespace gp
