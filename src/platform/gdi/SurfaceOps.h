// Operations on whole Surfaces: copying sizes, copying and stretching pictures, tiling. Unless stated otherwise, source
// and target must be two Surfaces.
#pragma once

#include "platform/gdi/Surface.h"

namespace gp {

// Gives target the size of source. target loses its picture and keeps its border.
void MakeSameSize(const Surface& source, Surface& target);
// Sets the size in pixels. The picture is lost.
void MakePicSize(Surface& surface, int width, int height);
// Replaces target's picture with source, at its top left corner. target keeps its size: source is cut off at its edges,
// and what source does not cover has the back colour. Returns true on success.
bool BitbltPic(const Surface& source, Surface& target);
// The same with the whole of source stretched over the whole of target. `halftone` uses the Halftone mode instead of
// target.stretchMode, which does not change. Returns true on success.
bool StretchbltPic(const Surface& source, Surface& target, bool halftone);
bool SurfaceSizeDiffers(const Surface& a, const Surface& b);
// Copies source over target's drawing through a temporary Surface of source's size, so that the two may be the same.
// Returns true on success.
bool MakeMask_viaMemoryDC(const Surface& source, Surface& target);
// Repeats source over target's drawing until it is covered. An empty source draws nothing.
void TilePicture(const Surface& source, Surface& target);

}  // namespace gp
