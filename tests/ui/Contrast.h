// Measures what can be seen: the contrast of colours in rendered pictures. Computed apart from the program's own
// functions.
#pragma once

#include <QColor>
#include <QImage>
#include <QPalette>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace gp::test {

// The contrast with their background at which most people see the outlines of controls.
inline constexpr double kLeastContrast = 3;

// Relative luminance, 0 to 1.
inline double luminance(const QColor& color) {
  const auto linear = [](double v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

inline double contrast(const QColor& a, const QColor& b) {
  const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
  return (lighter + 0.05) / (darker + 0.05);
}

// The colours of a desktop whose windows have this lightness, 0 to 255.
inline QPalette paletteOf(int window) {
  const bool isDark = window < 128;
  QPalette palette(QColor(window, window, window));
  palette.setColor(QPalette::Base, isDark ? QColor(27, 27, 27) : QColor(255, 255, 255));
  palette.setColor(QPalette::Highlight, QColor(0x30, 0x8C, 0xC6));
  return palette;
}

// The picture of a widget at its place in its window, with the ground of the window.
inline QImage seen(QWidget& widget) {
  const QPoint corner = widget.mapTo(widget.window(), QPoint(0, 0));
  return widget.window()->grab(QRect(corner, widget.size())).toImage().convertToFormat(QImage::Format_RGB32);
}

// The smallest rectangle that contains all pixels in which two pictures of one size differ.
inline QRect differenceOf(const QImage& a, const QImage& b) {
  QRect all;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x)
      if (a.pixel(x, y) != b.pixel(x, y)) all |= QRect(x, y, 1, 1);
  return all;
}

// The least contrast of the pixels of a line to a colour.
inline double leastContrast(const QImage& image, const QRect& line, const QColor& ground) {
  double least = 21;
  for (int y = line.top(); y <= line.bottom(); ++y)
    for (int x = line.left(); x <= line.right(); ++x) least = std::min(least, contrast(image.pixelColor(x, y), ground));
  return least;
}

}  // namespace gp::test
