// Rotates a picture about its middle by any angle, by nearest pixel or smoothed. Pure functions on Surfaces.
#pragma once

#include "platform/gdi/Surface.h"

namespace gp {

struct RotateSettings {
  double angleDegrees = 0;      // positive angles turn counter-clockwise
  bool skipBackground = false;  // pixels of the background colour are not written
  Color backgroundColor = kBlack;
  bool antialias = false;
  int centerX = 0;  // the position in the target of the source's middle; 0 for the target's middle
  int centerY = 0;
};

// Writes the rotated picture over dst, which must be another Surface. Pixels of dst outside the picture are unchanged.
void rotateSurface(const Surface& src, Surface& dst, const RotateSettings& settings);

// Returns the colour at a position between pixels, interpolated from up to four of them. Pixels outside are ignored;
// kNoColor when all are outside.
Color sampleBilinear(const Surface& surface, double x, double y);
// The same along column x only.
Color sampleColumn(const Surface& surface, double x, double y);
// Returns the weighted sum of two colours per channel, each rounded to the nearest integer.
Color mixColors(Color a, double weightA, Color b, double weightB);

// Returns the side in pixels of a square into which a picture fits at any angle.
int diagonalOf(int width, int height);

}  // namespace gp
