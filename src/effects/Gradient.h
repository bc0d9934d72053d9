// Gradients between two colours, and the effect that paints them behind the icon.
#pragma once

#include "effects/EffectTable.h"

namespace gp {

enum class GradientKind { Linear, Symmetric, Square, Spherical };
inline constexpr int kGradientKinds = 4;
// Whether the gradient runs in one direction, which an angle turns.
constexpr bool isStraight(GradientKind kind) { return kind == GradientKind::Linear || kind == GradientKind::Symmetric; }

// The places of the effect's settings in its values.
enum class GradientSetting : std::size_t { Kind, From, To, Angle, Center };
constexpr std::size_t indexOf(GradientSetting setting) { return static_cast<std::size_t>(setting); }

extern const EffectRow kGradient;

// Each fills `target` with a gradient. Angles are in degrees; at 0, linear gradients run from the top to the bottom,
// and a positive angle turns them counter-clockwise. A symmetric gradient runs from colorA on both sides towards
// colorB in the middle, without reaching it.
void drawLinearGradient(bool symmetric, Surface& target, int angle, Color colorA, Color colorB);
// From colorA at the edges to colorB in the middle.
void drawSquareGradient(Surface& target, Color colorA, Color colorB);
// From colorA at (x, y) to colorB at the farthest corner.
void drawSphericalGradient(Surface& target, int x, int y, Color colorA, Color colorB);

// Returns the gradient that the values of the effect describe, as a picture of that size in pixels.
Surface gradientPicture(int width, int height, const EffectValues& values);
// Returns the icon with each pixel that is white in its Mask replaced by that of a picture of its size, and all
// painted.
IconImage paintedBehind(const IconImage& icon, const Surface& picture);
// Whether an icon has a pixel that the gradient paints.
bool hasUnpaintedArea(const Surface& mask);

}  // namespace gp
