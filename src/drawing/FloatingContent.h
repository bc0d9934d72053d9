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

// Draws content over image and Mask, its upper left corner at the pixel (x, y). Parts outside are left out.
void mergeContent(const IconImage& content, int x, int y, Surface& image, Surface& mask);

// Ends the region that there is and makes the content a floating one at the upper left corner of the Current Icon, with
// the Region tool selected. Opaque content covers what is beneath it, transparent pixels included.
void placeContent(Tools& tools, Regions& regions, IconImage content, bool opaque);

}  // namespace gp
