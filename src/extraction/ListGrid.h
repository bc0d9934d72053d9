// The geometry of the Icons List: a panel of 16 rows and 3 columns of cells, of which four rows are seen at a time. All
// lengths are pixels of picIconsList.
#pragma once

namespace gp {

inline constexpr int kListColumns = 3;
inline constexpr int kListRows = 16;
inline constexpr int kCellsOnPanel = kListColumns * kListRows;
inline constexpr int kListPages = 4;
inline constexpr int kCellsOnPage = kCellsOnPanel / kListPages;

struct CellPlace {
  int left = 0, top = 0, width = 0, height = 0;
  bool operator==(const CellPlace&) const = default;
};

class ListGrid {
 public:
  ListGrid() = default;
  // The width of picIconsList, the height of the pane that shows a part of it, and the height of a line of its text.
  ListGrid(int width, int baseHeight, int lineHeight);

  int width() const { return width_; }
  int height() const { return rowHeight_ * kListRows; }
  int baseHeight() const { return baseHeight_; }
  // The largest value of the scroll bar.
  int scrollMaximum() const;
  // Cell 0 is the first of the first row. Its label begins at labelPlace; its icon, of at most 32 x 32 pixels, has its
  // top left corner at iconPlace.
  CellPlace cellPlace(int cell) const;
  CellPlace labelPlace(int cell) const;
  CellPlace iconPlace(int cell) const;
  // The cell at a point of the surface; -1 outside of all cells.
  int cellAt(int x, int y) const;

 private:
  int width_ = 0;
  int baseHeight_ = 0;
  int lineHeight_ = 0;
  int columnWidth_ = 1;
  int rowHeight_ = 1;
};

}  // namespace gp
