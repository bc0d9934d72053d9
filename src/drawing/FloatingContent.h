// Content of a region that was not lifted from the icon: its image and Mask, how it becomes a floating region, and how
// it looks on the icon.
#pragma once

#include "document/IconImage.h"

namespace gp {

class Regions;
class Tools;

// Returns a picture as content, in which pixels of the colour `transparent` are transparent.
IconImage contentOf(const Surface& picture, Color transparent);
// Returns a picture as content without transparent pixels.
IconImage opaqueContentOf(const Surface& picture);

// Returns a picture with alpha values, given as greys, as content. Pixels of alpha 0 are transparent, or with `opaque`
// painted like the others.
IconImage contentWithAlpha(const Surface& picture, const Surface& alpha, bool opaque);

// Draws content over image and Mask, its upper left corner at the pixel (x, y). Parts outside are left out.
void mergeContent(const IconImage& content, int x, int y, Surface& image, Surface& mask);

// The same for alpha values as greys: painted pixels of the content bring theirs, or are opaque without alpha values.
// Opaque content also brings those of its transparent pixels.
void mergeAlpha(const IconImage& content, int x, int y, bool opaque, Surface& alpha);

// Ends the region that there is and makes the content a floating one at the upper left corner of the Current Icon, with
// the Region tool selected. Opaque content covers what is beneath it, transparent pixels included.
void placeContent(Tools& tools, Regions& regions, IconImage content, bool opaque);

}  // namespace gp
