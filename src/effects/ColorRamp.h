// Colours in even steps from one to another, and pictures made of them: rings around a point, in which sphere and
// gradient agree.
#pragma once

#include "platform/gdi/Surface.h"

#include <utility>
#include <vector>

namespace gp {

// The entries of a ramp are counted from 1.
class ColorRamp {
 public:
  // `entries` are those from 1 on; `before` is the colour from which the ramp starts.
  ColorRamp(Color before, std::vector<Color> entries) : before_(before), entries_(std::move(entries)) {}

  int size() const { return static_cast<int>(entries_.size()); }
  // Returns the entry at index i, or the nearest one that there is; without entries the colour before the first.
  Color at(int i) const;

 private:
  Color before_;
  std::vector<Color> entries_;
};

// Returns a ramp of |steps| entries. Entry i is colorA plus i steps, rounded per channel, ties to even; so the last
// entry of a positive number of steps is colorB, and colorA is not in the ramp. Negative steps lead away from colorB.
ColorRamp makeColorRamp(Color colorA, Color colorB, int steps);

// Returns the distance of two points, rounded to the nearest integer, halves up.
int pointDistance(double x1, double y1, double x2, double y2);

// Gives each pixel of `target` the entry of its rounded distance from the point, but at least entry 1 and at most entry
// `last`.
void drawRings(Surface& target, double x, double y, const ColorRamp& ramp, int last);

}  // namespace gp
