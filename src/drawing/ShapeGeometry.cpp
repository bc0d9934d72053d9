#include "drawing/ShapeGeometry.h"

#include <algorithm>
#include <cmath>

namespace gp {

namespace {

double signOf(double value) { return value > 0 ? 1 : value < 0 ? -1 : 0; }

double widthOf(const DrawRect& rect) { return std::abs(rect.x2 - rect.x1); }
double heightOf(const DrawRect& rect) { return std::abs(rect.y2 - rect.y1); }

void setSides(DrawRect& rect, double side) {
  rect.x2 = rect.x1 + signOf(rect.x2 - rect.x1) * side;
  rect.y2 = rect.y1 + signOf(rect.y2 - rect.y1) * side;
}

}  // namespace

void constrainToSquare(DrawRect& rect, double limit) {
  setSides(rect, std::max(widthOf(rect), heightOf(rect)));
  if (rect.x2 <= limit && rect.y2 <= limit) return;
  rect.x2 = std::min(rect.x2, limit);
  rect.y2 = std::min(rect.y2, limit);
  setSides(rect, std::min(widthOf(rect), heightOf(rect)));
}

void constrainToSquare(DrawState& state, int size, int magnification) {
  constrainToSquare(state.draw, size - 1);
  constrainToSquare(state.band, size * magnification - 1);
  constrainToSquare(state.region, size * magnification - 1);
}

double ovalGeometry(const DrawRect& rect, OvalGeometry& oval) {
  const double width = widthOf(rect);
  if (width == 0) return 0;
  const double height = heightOf(rect);
  oval.mOvalAspect = height / width;
  oval.mOvalRadius = std::max(width, height) / 2;
  oval.mOvalCenterX = (rect.x2 - rect.x1) / 2 + rect.x1;
  oval.mOvalCenterY = (rect.y2 - rect.y1) / 2 + rect.y1;
  return width;
}

}  // namespace gp
