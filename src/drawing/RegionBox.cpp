#include "drawing/RegionBox.h"

#include "platform/text/Numbers.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace gp {

namespace {

constexpr double kLeavingPercent = 70;
constexpr double kPercent = 100;

// How far a band reaches before and behind a side, both ends included.
struct Band {
  double before;
  double behind;
  bool holds(double side, double position) const { return position >= side - before && position <= side + behind; }
};
constexpr Band kFirstSidePointer = {8, 2};   // left and top
constexpr Band kSecondSidePointer = {2, 8};  // right and bottom
constexpr Band kPress = {4, 8};

// A corner off the grid, which the limit of squares can leave, belongs to the nearest grid line.
double cellOf(double position, int magnification) { return roundToInteger(position / magnification); }

double lastCell(double first, double last, double firstPixel, const RegionScale& scale, int dispLength,
                int iconLength) {
  if (last == dispLength - 1) return iconLength - 1;
  if (std::abs(last - first) < scale.magnification) return firstPixel;
  return cellOf(last, scale.magnification) - 1;
}

int extent(double first, double last, bool reversed) {
  return roundToInteger(std::abs(last - first)) + (reversed ? 0 : 1);
}

int leavingPart(double length) { return roundToInteger(-(kLeavingPercent * (length / kPercent))); }

}  // namespace

DrawRect pixelsOfRegion(const DrawRect& box, const RegionScale& scale) {
  DrawRect pixels;
  pixels.x1 = cellOf(box.x1, scale.magnification);
  pixels.y1 = cellOf(box.y1, scale.magnification);
  pixels.x2 = lastCell(box.x1, box.x2, pixels.x1, scale, scale.dispWidth, scale.iconWidth);
  pixels.y2 = lastCell(box.y1, box.y2, pixels.y1, scale, scale.dispHeight, scale.iconHeight);
  return pixels;
}

DrawRect boxOfPixels(const DrawRect& pixels, int magnification) {
  const double m = magnification;
  return {m * pixels.x1, m * pixels.y1, m * (pixels.x2 + 1), m * (pixels.y2 + 1)};
}

bool normalizeBox(DrawRect& box) {
  const bool horizontally = box.x1 > box.x2;
  const bool vertically = box.y1 > box.y2;
  if (horizontally) std::swap(box.x1, box.x2);
  if (vertically) std::swap(box.y1, box.y2);
  return horizontally || vertically;
}

bool isInBox(const DrawRect& box, double x, double y) {
  return x >= box.x1 && x <= box.x2 && y >= box.y1 && y <= box.y2;
}

bool isFlatBox(const DrawRect& box) { return std::abs(box.x2 - box.x1) < 1 || std::abs(box.y2 - box.y1) < 1; }

bool RegionLimits::allow(double left, double top) const {
  return left >= mRegionMinX && left <= mRegionMaxX && top >= mRegionMinY && top <= mRegionMaxY;
}

std::pair<double, double> RegionLimits::nearest(double left, double top, int magnification) const {
  const auto within = [m = static_cast<double>(magnification)](double position, int least, int most) {
    return std::clamp(position, std::ceil(least / m) * m, std::floor(most / m) * m);
  };
  return {within(left, mRegionMinX, mRegionMaxX), within(top, mRegionMinY, mRegionMaxY)};
}

RegionLimits limitsOfRegion(const DrawRect& box, const RegionScale& scale) {
  const double width = box.x2 - box.x1;
  const double height = box.y2 - box.y1;
  RegionLimits limits;
  limits.mRegionMinX = leavingPart(width);
  limits.mRegionMinY = leavingPart(height);
  limits.mRegionMaxX = roundToInteger((scale.dispWidth - width) - limits.mRegionMinX);
  limits.mRegionMaxY = roundToInteger((scale.dispHeight - height) - limits.mRegionMinY);
  return limits;
}

RegionPointer pointerOverRegion(const DrawRect& box, bool floating, double x, double y) {
  const bool inside = isInBox(box, x, y);
  if (floating) return inside ? RegionPointer::Custom : RegionPointer::Default;
  if (kFirstSidePointer.holds(box.x1, x) || kSecondSidePointer.holds(box.x2, x)) return RegionPointer::HorizontalResize;
  if (kFirstSidePointer.holds(box.y1, y) || kSecondSidePointer.holds(box.y2, y)) return RegionPointer::VerticalResize;
  return inside ? RegionPointer::Move : RegionPointer::Default;
}

RegionEdge edgeUnderPress(const DrawRect& box, double x, double y) {
  if (kPress.holds(box.x1, x)) return RegionEdge::Left;
  if (kPress.holds(box.x2, x)) return RegionEdge::Right;
  if (kPress.holds(box.y1, y)) return RegionEdge::Top;
  if (kPress.holds(box.y2, y)) return RegionEdge::Bottom;
  return RegionEdge::None;
}

std::string regionLabel(const DrawRect& box, const DrawRect& pixels) {
  if (std::abs(box.x2 - box.x1) < 1 && std::abs(box.y2 - box.y1) < 1) return {};
  auto text = [](double value) { return std::to_string(roundToInteger(value)); };
  return "Region: Start [" + text(pixels.x1 + 1) + ", " + text(pixels.y1 + 1) +
         "]   W=" + text(extent(pixels.x1, pixels.x2, box.x2 < box.x1)) +
         " H=" + text(extent(pixels.y1, pixels.y2, box.y2 < box.y1));
}

}  // namespace gp
