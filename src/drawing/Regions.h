// The region: a rectangle of the Current Icon whose content is lifted, so that it can be moved over the rest. Owns the
// box, the phase and the content. While a region exists, picImage, picMask and picAlpha have its content merged at its
// place, so that ending a region loses nothing; only a drag whose mouse button is still down can be dropped. What a
// region has changed, it opens a step of Undo for; the step is recorded when the region ends.
//
// Other rooms read state.mRegionExists and, for floating content, state.mPendingPaint. Only this class writes them.
#pragma once

#include "document/Context.h"
#include "document/IconImage.h"
#include "drawing/DrawState.h"
#include "drawing/DrawingTool.h"
#include "drawing/RegionBox.h"
#include "drawing/RegionDrag.h"
#include "drawing/RegionPhase.h"

#include <optional>

namespace gp {

class EditingArea;
class UndoHistory;

class Regions {
 public:
  Regions(const Context& context, EditingArea& editingArea, UndoHistory& history, DrawState& draw);

  RegionPhase phase() const { return phase_; }
  // True from the end of the first drag until the region ends.
  bool exists() const { return phase_ != RegionPhase::None && phase_ != RegionPhase::Drawing; }
  // True while the mouse is down on a region or draws a box.
  bool isDragged() const { return phase_ != RegionPhase::None && phase_ != RegionPhase::Standing; }
  // True when the content did not come from its place on the icon: it was pasted or transformed.
  bool isFloating() const { return floating_; }
  bool isPasteOpaque() const { return opaque_; }
  // True when the content was placed by Paste or Text, so that the icon beneath it lacks nothing.
  bool isPasted() const { return pasted_; }
  // The pointer for a mouse position, in Editing Area pixels.
  RegionPointer pointerAt(double x, double y) const;
  // The side that the mouse moves; None in phases other than Sizing.
  RegionEdge pulledEdge() const { return pulledEdge_; }
  // The region in icon pixels, both corners included.
  const DrawRect& pixels() const { return draw_.draw; }
  // True when both sides of the box are 0.
  bool isEmpty() const { return draw_.region.x1 == draw_.region.x2 && draw_.region.y1 == draw_.region.y2; }
  // The lifted content: picImageRegion and picMaskRegion. Empty before anything was lifted.
  const IconImage& content() const { return content_; }

  // Events of the mouse with Region selected, in Editing Area pixels. They pump no messages.
  // False for a press outside a region, which the caller has to merge.
  [[nodiscard]] bool press(double x, double y);
  void move(double x, double y, int modifiers);
  void release();

  // The same by keyboard, on icon pixels, which need not exist. A box is drawn around the pixel of the press and that
  // of the last move, both included. A press on any pixel of a region takes hold of it; a move beyond the limits goes
  // as far as they allow.
  [[nodiscard]] bool pressPixel(int x, int y);
  void movePixel(int x, int y, int modifiers);
  // Moves the right side of the region by dx and its bottom side by dy icon pixels; it keeps at least one pixel and
  // ends at the edge of the icon. What the box then covers is lifted again; content that floats is merged first, as a
  // step of Undo. Nothing during a drag, and for a region that hangs over the edge, which would be cut off there.
  void sizeBy(int dx, int dy);
  // Gives a drag up: a box that is drawn is gone, and a region, icon and record are what they were at the press.
  void giveUp();
  // Draws a box that is being drawn on an Editing Area that was rebuilt at another magnification.
  void followMagnification();
  // The size of the box that is being drawn, none in other phases and for a box without sides.
  std::optional<DrawnSize> drawnSize() const;

  // The tool was taken away in the middle of a drag.
  void cancel();
  // Ends a drag of a region at its present place; a side that is moved goes back. Commands call it first.
  void finishDrag();
  // Ends the region, all strokes and the overlay, and drops a drag that the icon does not have yet. Pixels of the icon
  // stay, and what the region has changed is recorded as a step of Undo.
  void clearRegion();
  // The same, but the icon returns to what it is beneath the region, and no step is recorded.
  void dropContent();
  // Makes content a floating region at the top left corner. Opaque content covers what is beneath it, transparent
  // pixels included.
  void place(IconImage content, bool opaque);
  // Replaces the content, which then floats and is shown. The box takes its shape; its top left corner stays.
  void replaceContent(IconImage content);
  // Draws the box on an Editing Area that was rebuilt, also at another magnification. Nothing without a region.
  void redrawRegion();

  // Takes the content of the box from the icon. With blankSource only opaque pixels are taken, otherwise the block as
  // it is. picImageSnap and picMaskSnap become the icon with that place blanked.
  void liftRegion(bool blankSource);
  // Writes the content to the icon, at the box, and shows it. The icon counts as modified, and a step of Undo is open.
  // Nothing for an icon that the content was not lifted from.
  void renderRegion();

 private:
  struct Point {
    double x = 0;
    double y = 0;
  };

  struct Cell {
    int x = 0;
    int y = 0;
  };
  // What a drag that is given up brings back.
  struct AtPress {
    DrawRect pixels;
    IconImage icon;
    bool modified = false;
  };

  void enter(RegionPhase phase);
  void takeHold();
  void placeBox(double left, double top);
  void putBack();
  bool isInsideIcon() const;
  void beginBox(const Point& corner);
  void extendBox(const Point& corner, int modifiers);
  void finishBox();
  void announceSize();
  void pullEdge(double x, double y);
  void moveEdge(double x, double y);
  void finishEdge();
  void moveTo(const Point& corner);
  void settleAtNewMagnification();

  RegionScale scale() const;
  Point snapped(double x, double y) const;
  void regionToPixels();
  void pixelsToRegion();
  bool normalizeRegion();
  void setRegionLimits();
  void setRegionFromPicture(const Surface& picture, int x, int y);
  void drawRegionBox();
  void wipeRegionBox();
  void repaintBox();
  void updateRegionLabel();
  void setLabel(const std::string& text);
  void outlineBox(bool shown);

  void floatWith(bool opaque);
  bool isOfCurrentIcon() const;
  void keepIconBeneath();
  void mergeContent();
  void renderRegionFast();

  Context context_;
  EditState& state_;
  EditingArea& editingArea_;
  UndoHistory& history_;
  DrawState& draw_;
  RegionPhase phase_ = RegionPhase::None;
  bool floating_ = false;
  bool opaque_ = false;  // floating content covers what is beneath it, transparent pixels included
  bool pasted_ = false;

  IconImage content_;        // picImageRegion, picMaskRegion
  IconImage beneath_;        // picImageSnap, picMaskSnap: the icon without the content
  unsigned liftedFrom_ = 0;  // the iconSerial of the icon that both were taken from
  RegionDrag dragView_;

  bool byKeyboard_ = false;  // the drag under way
  Cell anchor_;              // by keyboard: the pixel of the press, or box corner minus pixel
  AtPress atPress_;
  Point grab_;                                // box corner minus mouse, when a move began
  RegionEdge pulledEdge_ = RegionEdge::None;  // None too where the pointer's bands reach beyond those of the press
  double mEdgeMouse_ = 0;                     // where the mouse was when the side last moved
  RegionLimits limits_;
  DrawRect shown_;         // the box as it was last drawn
  int magnification_ = 0;  // that the box is measured in
};

}  // namespace gp
