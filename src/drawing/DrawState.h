// State that the tools share while the mouse is down: the rectangle being drawn, in three measures, and the freehand
// stroke under way. Tools and Regions write it.
#pragma once

namespace gp {

// Opposite corners, in any order during a drag. Integers, except for the region box while an edge is dragged.
struct DrawRect {
  double x1 = 0;
  double y1 = 0;
  double x2 = 0;
  double y2 = 0;
};

struct DrawState {
  // A stroke lasts from press to release; nested events see the flags unchanged.
  bool mPainting = false;
  bool mErasing = false;
  bool mRestoring = false;

  DrawRect draw;    // mDrawX1, mDrawY1, mDrawX2, mDrawY2: icon pixels, both corners included
  DrawRect band;    // mBandX1 and so on: the same in Editing Area pixels, at the centres of cells
  DrawRect region;  // mRegionLeft, mRegionTop, mRegionRight, mRegionBottom: Editing Area pixels

  bool isStroke() const { return mPainting || mErasing || mRestoring; }
};

}  // namespace gp
