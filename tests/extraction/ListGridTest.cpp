#include "extraction/ListGrid.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

TEST(ListGrid, ACellHasAThirdOfTheWidthAndAQuarterOfThePane) {
  const ListGrid grid(301, 402, 10);
  EXPECT_EQ(grid.cellPlace(0), (CellPlace{0, 0, 100, 100}));
  EXPECT_EQ(grid.cellPlace(5), (CellPlace{200, 100, 100, 100}));
  EXPECT_EQ(grid.cellPlace(47), (CellPlace{200, 1500, 100, 100}));
  EXPECT_EQ(grid.height(), 1600);
  EXPECT_EQ(grid.scrollMaximum(), 1600 - 402);
}

TEST(ListGrid, LabelAndIconAreInTheirCell) {
  const ListGrid grid(300, 400, 10);
  // The gaps are 52; less 1, a quarter of them is 12.
  EXPECT_EQ(grid.labelPlace(4), (CellPlace{113, 113, 87, 10}));
  EXPECT_EQ(grid.iconPlace(4), (CellPlace{119, 129, 32, 32}));
}

TEST(ListGrid, EachPixelBelongsToTheCellWhosePlaceHasIt) {
  const ListGrid grid(200, 300, 10);
  for (int cell = 0; cell < kCellsOnPanel; ++cell) {
    const CellPlace place = grid.cellPlace(cell);
    EXPECT_EQ(grid.cellAt(place.left, place.top), cell);
    EXPECT_EQ(grid.cellAt(place.left + place.width - 1, place.top + place.height - 1), cell);
  }
}

TEST(ListGrid, NoCellIsOutside) {
  const ListGrid grid(200, 300, 10);
  EXPECT_EQ(grid.cellAt(-1, 0), -1);
  EXPECT_EQ(grid.cellAt(0, -1), -1);
  EXPECT_EQ(grid.cellAt(198, 0), -1);  // the rest of a width that three columns do not share
  EXPECT_EQ(grid.cellAt(197, 0), 2);
  EXPECT_EQ(grid.cellAt(0, grid.height()), -1);
  EXPECT_EQ(grid.cellAt(0, grid.height() - 1), 45);
}

TEST(ListGrid, LowPanesDoNotCutIcons) {
  const ListGrid grid(150, 80, 14);
  EXPECT_EQ(grid.cellPlace(0).height, 48 + 14);
  const CellPlace icon = grid.iconPlace(0);
  EXPECT_LE(icon.top + icon.height, grid.cellPlace(3).top);
}

TEST(ListGrid, APaneHigherThanThePanelDoesNotScroll) {
  const ListGrid grid;
  EXPECT_EQ(grid.scrollMaximum(), 16);
  EXPECT_EQ(ListGrid(150, 400, 14).scrollMaximum(), 1200);
}

}  // namespace
}  // namespace gp
