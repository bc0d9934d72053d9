#include "platform/gdi/Pens.h"

#include "platform/gdi/Shapes.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace gp {
namespace {

// Returns the nearest pixel, halves rounded upwards; nullopt beyond kMaxPenPosition.
std::optional<int> toPixel(double v) {
  const double rounded = std::floor(v + 0.5);
  if (!(std::abs(rounded) < kMaxPenPosition)) return std::nullopt;
  return static_cast<int>(rounded);
}

std::optional<Pixel> toPixel(double x, double y) {
  const auto column = toPixel(x);
  const auto row = toPixel(y);
  if (!column || !row) return std::nullopt;
  return Pixel{*column, *row};
}

// An ellipse given by its centre and half axes.
struct Oval {
  double centerX, centerY, radiusX, radiusY;

  Oval(double x, double y, double radius, double aspect)
      : centerX(x),
        centerY(y),
        radiusX(aspect < 1 ? radius : radius / aspect),
        radiusY(aspect < 1 ? radius * aspect : radius) {}

  std::optional<ShapeBox> box() const {
    if (!(radiusX >= 0) || !(radiusY >= 0)) return std::nullopt;
    const auto first = toPixel(centerX - radiusX, centerY - radiusY);
    const auto last = toPixel(centerX + radiusX, centerY + radiusY);
    if (!first || !last) return std::nullopt;
    return boxFrom(*first, *last);
  }

  std::optional<Pixel> pixelAt(double angle) const {
    return toPixel(centerX + radiusX * std::cos(angle), centerY - radiusY * std::sin(angle));
  }

 private:
  static ShapeBox boxFrom(Pixel first, Pixel last) { return {first.x, first.y, last.x + 1, last.y + 1}; }
};

// Sets the band pen on a Surface for the lifetime of this object.
class BandPen {
 public:
  explicit BandPen(Surface& surface)
      : surface_(surface), formerWidth_(surface.penWidth), formerFill_(surface.fillMode) {
    surface.penWidth = 1;
    surface.fillMode = FillMode::Transparent;
    surface.penStyle = PenStyle::Dot;
    surface.drawMode = DrawMode::Invert;
  }
  BandPen(const BandPen&) = delete;
  BandPen& operator=(const BandPen&) = delete;
  ~BandPen() {
    surface_.penWidth = formerWidth_;
    surface_.fillMode = formerFill_;
    surface_.penStyle = PenStyle::Solid;
    surface_.drawMode = DrawMode::Copy;
  }

 private:
  Surface& surface_;
  const int formerWidth_;
  const FillMode formerFill_;
};

}  // namespace

void FillBox(Surface& surface, int x1, int y1, int x2, int y2, Color color) {
  const int left = std::max(std::min(x1, x2), 0);
  const int right = std::min(std::max(x1, x2), surface.width() - 1);
  const int top = std::max(std::min(y1, y2), 0);
  const int bottom = std::min(std::max(y1, y2), surface.height() - 1);
  if (left > right) return;
  for (int y = top; y <= bottom; ++y)
    std::fill_n(surface.rowForWriting(y, left, right + 1) + left, right + 1 - left, storedForm(color));
}

void DrawLine(Surface& surface, int x1, int y1, int x2, int y2, Color color) {
  LineTo(surface, {x1, y1}, {x2, y2}, color);
}

void DrawBox(Surface& surface, int x1, int y1, int x2, int y2, Color color) {
  const ShapeBox corners = {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2)};
  // The position one past a corner must not overflow; pens do not reach that far anyway.
  if (corners.right >= kMaxPenPosition || corners.bottom >= kMaxPenPosition) return;
  // The platform draws nothing for a rectangle of one pixel. A line one pixel to the right draws that pixel.
  if (x1 == x2 && y1 == y2 && surface.penWidth <= 1)
    LineTo(surface, {x1, y1}, {x1 + 1, y1}, color);
  else
    Rectangle(surface, {corners.left, corners.top, corners.right + 1, corners.bottom + 1}, color);
}

void DrawEllipse(Surface& surface, double centerX, double centerY, double radius, double aspect, Color color) {
  if (const auto box = Oval(centerX, centerY, radius, aspect).box()) Ellipse(surface, *box, color);
}

void DrawEllipseArc(Surface& surface, double centerX, double centerY, double radius, double aspect, Color color,
                    double startAngle, double endAngle) {
  const Oval oval(centerX, centerY, radius, aspect);
  const auto box = oval.box();
  const auto start = oval.pixelAt(startAngle);
  const auto end = oval.pixelAt(endAngle);
  if (box && start && end) Arc(surface, *box, *start, *end, color);
}

void BandLine(Surface& surface, int x1, int y1, int x2, int y2) {
  const BandPen pen(surface);
  DrawLine(surface, x1, y1, x2, y2, kBlack);
}

void BandBox(Surface& surface, int x1, int y1, int x2, int y2) {
  const BandPen pen(surface);
  DrawBox(surface, x1, y1, x2, y2, kBlack);
}

void BandEllipse(Surface& surface, double centerX, double centerY, double radius, double aspect) {
  const BandPen pen(surface);
  DrawEllipse(surface, centerX, centerY, radius, aspect, kBlack);
}

}  // namespace gp
