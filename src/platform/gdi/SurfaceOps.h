// What the program does with whole Surfaces: giving one the size of another, copying and stretching pictures, tiling.
// Nothing is kept between calls. Unless said otherwise, source and target must be two Surfaces.
#pragma once

#include "platform/gdi/Surface.h"

namespace gp {

// target loses its picture and takes source's size; its border stays.
void MakeSameSize(const Surface& source, Surface& target);
// The picture is lost, the size becomes width x height pixels.
void MakePicSize(Surface& surface, int width, int height);
// target loses its picture and gets source at its top left corner as the new one. target keeps its size: what of
// source does not fit is lost, what source does not cover has the back colour. True on success.
bool BitbltPic(const Surface& source, Surface& target);
// The same with the whole of source stretched over the whole of target; halftone averages and interpolates whatever
// target's own stretch mode is, which stays. True on success.
bool StretchbltPic(const Surface& source, Surface& target, bool halftone);
bool SurfaceSizeDiffers(const Surface& a, const Surface& b);
// Copies source over target's drawing through a memory surface of source's size, so that the two may be the same.
// True on success.
bool MakeMask_viaMemoryDC(const Surface& source, Surface& target);
// Lays source side by side over target's drawing until it is covered. An empty source lays nothing.
void TilePicture(const Surface& source, Surface& target);

}  // namespace gp
