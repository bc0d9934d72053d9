// A shaded ball, and the effect that replaces the icon by it.
#pragma once

#include "effects/EffectTable.h"

namespace gp {

extern const EffectRow kSphere;

enum class SphereSize { Normal, Small, Tiny };
inline constexpr int kSphereSizes = 3;
// The side in pixels of the sample, in which light points are measured.
inline constexpr int kSphereSampleSide = 32;

// A position in pixels of the sample; it may lie between them.
struct SamplePoint {
  double x, y;
};

struct SphereSettings {
  Color color;
  SamplePoint light;
  SphereSize size;
  int factorTenths;  // 0 to 10: how much a ball lit from the side darkens; only Normal does
};

// Returns the settings that the values of the effect describe.
SphereSettings sphereSettings(const EffectValues& values);
// Returns an empty icon of that size in pixels with the ball in its middle. What does not fit is lost.
IconImage sphereIcon(int width, int height, const SphereSettings& settings);
// Why an icon does not take a ball of that size.
Refusal refusalOfSize(const IconImage& icon, SphereSize size);
// The largest ball that an icon of this width takes; Tiny when it takes none.
SphereSize largestSphere(int width);

// Whether a pixel of the sample lies on the ball of that size.
bool isOnSphere(int x, int y, SphereSize size);
// The light point that a click on this pixel of the sample selects: the one that lights the ball there.
SamplePoint lightOfClick(int x, int y, SphereSize size);

inline constexpr Refusal kClickOnSphere("Please click a point on sphere");

}  // namespace gp
