// Shift: moves the whole picture by single pixels, with wrap-around at the icon's size. Owns the offsets and a copy of
// the picture from when Shift was turned on, so that pixels pushed over the edge return. Shift is controlled with the
// pad, not on the Editing Area.
#pragma once

#include "document/Context.h"
#include "document/IconImage.h"
#include "drawing/DrawingTool.h"

namespace gp {

// The cells of imgShiftDirBase, by the index of their picture imgShiftDir. Rest is the pad that is not pressed.
enum class ShiftCell { Rest = 0, TopLeft, Top, TopRight, Left, Right, BottomLeft, Bottom, BottomRight };
inline constexpr int kShiftPictureCount = 9;
// Returns the cell at a position on a pad with that side, in its pixels. Rest for the middle cell and outside.
ShiftCell shiftCellAt(double x, double y, double side);

class EditingArea;
class Tools;
class UndoHistory;

class ShiftTool : public DrawingTool {
 public:
  ShiftTool(const Context& context, EditingArea& editingArea, UndoHistory& history, Tools& tools);

  void selected() override { turnOn(); }
  // Records the whole shift as a step of Undo.
  void cancel() override;
  // imgTool(15) Click has selected the tool: starts the Undo history again and copies the picture.
  void turnOn();

  // imgShiftDirBase MouseDown and MouseUp.
  void padPress(ShiftCell cell);
  void padRelease(ShiftCell cell);
  // Returns the index of the imgShiftDir picture that the pad shows.
  int shownPicture() const { return static_cast<int>(shown_); }

  // Moves the picture by one pixel towards a cell. Does nothing for Rest.
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
  // The picture is drawn at the negated offset: a positive mShiftX has moved it left.
  int mShiftX_ = 0;
  int mShiftY_ = 0;
};

}  // namespace gp
