// The region: a rectangle of the Current Icon whose content is lifted, so that it can be moved over the rest. Owns the
// box, its flags and the region Surfaces. While a region stands, picImage and picMask show it merged at the place where
// it was last put down, so that ending a region, however that comes about, loses nothing of it; only a drag whose mouse
// button is still down can be dropped.
//
// state.mRegionActive is the same as state.mRegionExists. state.mPendingPaint tells that the content is floating: it
// did not come from its place on the icon, and the icon must be taken over by its container before a tool is changed.
#pragma once

#include "document/Context.h"
#include "document/EditState.h"
#include "document/IconImage.h"
#include "drawing/DrawState.h"
#include "drawing/RegionBox.h"
#include "drawing/RegionDrag.h"

namespace gp {

class EditingArea;

class Regions {
 public:
  Regions(const Context& context, EditingArea& editingArea, DrawState& draw);

  // Ends the region: box, flags of all strokes, overlay and label go, and a drag that the icon has not seen is dropped.
  // Pixels of the icon stay.
  void clearRegion();
  // Draws the box on an Editing Area that was built anew, also at a new magnification. Nothing without a region.
  void redrawRegion();

  bool exists() const { return state_.mRegionExists; }
  bool isFloating() const { return mRegionFloating; }
  bool isPasteOpaque() const { return mPasteOpaque; }
  // The pointer for a mouse position, in Editing Area pixels.
  RegionPointer pointerAt(double x, double y) const;
  const RegionLimits& limits() const { return limits_; }
  // The region in icon pixels, both corners included.
  const DrawRect& pixels() const { return draw_.draw; }
  // True when both sides of the box are 0.
  bool isEmpty() const { return draw_.region.x1 == draw_.region.x2 && draw_.region.y1 == draw_.region.y2; }

  // From the box to icon pixels and back.
  void regionToPixels();
  void pixelsToRegion();
  // Puts the sides in order, then regionToPixels(). True when they were not.
  bool normalizeRegion();
  // Draws the box on the overlay of picDisp and writes the label.
  void drawRegionBox();
  // Takes it away again.
  void wipeRegionBox();
  void updateRegionLabel();
  void setRegionLimits();
  // Sets the box around a picture at an icon pixel.
  void setRegionFromPicture(const Surface& picture, int x, int y);

  // The box becomes a region that stands.
  void setExists();
  // Takes the content of the box from the icon. With blankSource only opaque pixels are taken, otherwise the block as
  // it is. picImageSnap and picMaskSnap become the icon with that place blanked.
  void liftRegion(bool blankSource);
  // Makes a picture a floating region at the top left corner. Unless it is opaque, pixels of PicIcon's back colour are
  // transparent in it.
  void placePicture(const Surface& picture, bool opaque);
  // Writes the content to the icon, at the box, and shows it. The icon counts as modified.
  void renderRegion();
  // The same on picDisp alone; renderRegion() must follow.
  void renderRegionFast();

  // The lifted content: picImageRegion and picMaskRegion. Empty before anything was lifted.
  const IconImage& content() const { return content_; }
  // Replaces the content, which then floats and is shown. The box takes its shape; its top left corner stays.
  void replaceContent(IconImage content);
  // The icon returns to what it is beneath the region; the region ends.
  void dropContent();
  // What a command in the middle of a drag finds is a drag that has ended where it is; a side being moved goes back.
  void finishDrag();

  // One drag of the mouse, told by RegionTool.
  struct Drag {
    double mRegionStartX = 0;  // the box's corner when the drag began, and after each move
    double mRegionStartY = 0;
    double mRegionGrabX = 0;  // box corner minus mouse at the press
    double mRegionGrabY = 0;
    bool mEdgeDrag = false;
    RegionEdge mEdgeIndex = RegionEdge::None;
    double mEdgeMouse = 0;  // where the mouse was when the side last moved
  };
  Drag& drag() { return drag_; }

 private:
  RegionScale scale() const;
  void setFloating(bool floating);
  void keepIconBeneath();
  void setLifted();
  void liftOpaquePixels();
  void liftBlock(int width, int height);
  void maskPicture();
  void mergeContent();
  void startDragAtBox();
  bool isLifted() const;
  void setLabel(const std::string& text);
  void repaintBox();

  Context context_;
  EditState& state_;
  EditingArea& editingArea_;
  DrawState& draw_;
  IconImage content_;  // picImageRegion, picMaskRegion
  IconImage beneath_;  // picImageSnap, picMaskSnap: the icon without the content
  RegionDrag dragView_;
  Drag drag_;
  RegionLimits limits_;
  DrawRect shown_;         // the box as it was last drawn
  int magnification_ = 0;  // that the box is measured in
  bool mRegionFloating = false;
  bool mPasteOpaque = false;
  bool mRegionLifted = false;  // content_ is that of this box
  unsigned liftedFrom_ = 0;    // the iconSerial of the icon it was lifted from
  bool unrendered_ = false;    // the content was moved on the Editing Area only
};

}  // namespace gp
