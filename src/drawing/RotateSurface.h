// Turning a picture about its middle by any angle, by nearest pixel or smoothly. Pure functions on Surfaces.
#pragma once

#include "platform/gdi/Surface.h"

namespace gp {

struct RotateSettings {
  double angleDegrees = 0;      // positive turns against the clock
  bool skipBackground = false;  // pixels of the background colour are not written
  Color backgroundColor = kBlack;
  bool antialias = false;
  int centerX = 0;  // where in the target the middle of the source goes; 0 for the target's own middle
  int centerY = 0;
};

// Writes the turned picture over dst, which must be another Surface. Pixels of dst that nothing is turned to stay.
void rotateSurface(const Surface& src, Surface& dst, const RotateSettings& settings);

// The colour at a position between pixels, from up to four of them; a whole coordinate needs one. Pixels outside do not
// count; kNoColor when all of them are.
Color sampleBilinear(const Surface& surface, double x, double y);
// The same along column x alone.
Color sampleColumn(const Surface& surface, double x, double y);
// The two colours by their weights, channel by channel, each sum rounded to the nearest.
Color mixColors(Color a, double weightA, Color b, double weightB);

// The side of a square that a picture fits in at any angle, in pixels.
int diagonalOf(int width, int height);

}  // namespace gp
