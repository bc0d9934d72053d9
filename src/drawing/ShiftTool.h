// Shift: moves the whole picture by single pixels, wrapping after the icon's size. Owns the offsets; the picture as it
// was when Shift was turned on is kept, so that pixels pushed over the edge come back. Shift does nothing on the
// Editing Area itself: it is worked with the pad.
#pragma once

#include "document/Context.h"
#include "document/IconImage.h"
#include "drawing/DrawingTool.h"

namespace gp {

// The cells of imgShiftDirBase, by the index of their picture imgShiftDir; Rest is the pad without a press.
enum class ShiftCell { Rest = 0, TopLeft, Top, TopRight, Left, Right, BottomLeft, Bottom, BottomRight };
inline constexpr int kShiftPictureCount = 9;
// The cell at a position on a pad of that side, in its own pixels. The middle one, and what lies outside, is Rest.
ShiftCell shiftCellAt(double x, double y, double side);

class EditingArea;
class Tools;
class UndoHistory;

class ShiftTool : public DrawingTool {
 public:
  ShiftTool(const Context& context, EditingArea& editingArea, UndoHistory& history, Tools& tools);

  void selected() override { turnOn(); }
  // imgTool(15) Click has selected the tool: a new baseline of Undo, then the picture is kept.
  void turnOn();

  // imgShiftDirBase MouseDown and MouseUp.
  void padPress(ShiftCell cell);
  void padRelease(ShiftCell cell);
  // Index of the imgShiftDir picture that the pad shows.
  int shownPicture() const { return static_cast<int>(shown_); }

  // Moves the picture one pixel towards a cell. Nothing for Rest.
  void shift(ShiftCell cell);
  int mShiftX() const { return mShiftX_; }
  int mShiftY() const { return mShiftY_; }

 private:
  bool isPictureKept() const;
  void redraw();

  Context context_;
  EditState& state_;
  EditingArea& editingArea_;
  UndoHistory& history_;
  Tools& tools_;
  IconImage kept_;         // the picture when Shift was turned on
  unsigned keptFrom_ = 0;  // the iconSerial of its icon
  ShiftCell shown_ = ShiftCell::Rest;
  // The picture is drawn at minus these values: a positive mShiftX has moved it left.
  int mShiftX_ = 0;
  int mShiftY_ = 0;
};

}  // namespace gp
