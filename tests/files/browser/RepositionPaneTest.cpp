#include "files/browser/MultiIconListing.h"
#include "files/browser/RepositionPane.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

using Order = std::vector<int>;

RepositionPane paneOf(int count) {
  std::vector<std::string> items;
  for (int ref = 1; ref <= count; ++ref)
    items.push_back(itemText(ref, {.width = 16, .height = 16, .directory = {16, 4}}, true));
  RepositionPane pane;
  pane.open(std::move(items));
  return pane;
}

TEST(RepositionPane, OpensInFileOrderWithTheFirstSelected) {
  const RepositionPane pane = paneOf(3);
  EXPECT_EQ(pane.selected(), 0);
  EXPECT_EQ(pane.order(), (Order{0, 1, 2}));
  EXPECT_TRUE(pane.isUnchanged());
}

TEST(RepositionPane, TheSelectionGoesWithTheItemThatIsMoved) {
  RepositionPane pane = paneOf(3);
  pane.shiftDown();
  EXPECT_EQ(pane.selected(), 1);
  EXPECT_EQ(pane.order(), (Order{1, 0, 2}));
  EXPECT_FALSE(pane.isUnchanged());
  pane.shiftDown();
  EXPECT_EQ(pane.order(), (Order{1, 2, 0}));
  pane.shiftUp();
  pane.shiftUp();
  EXPECT_EQ(pane.selected(), 0);
  EXPECT_TRUE(pane.isUnchanged());
}

TEST(RepositionPane, NothingMovesBeyondTheEnds) {
  RepositionPane pane = paneOf(2);
  pane.shiftUp();
  EXPECT_EQ(pane.order(), (Order{0, 1}));
  pane.select(1);
  pane.shiftDown();
  EXPECT_EQ(pane.order(), (Order{0, 1}));
  EXPECT_EQ(pane.selected(), 1);
}

TEST(RepositionPane, ShiftsAreOfferedWhereThereIsRoom) {
  RepositionPane pane = paneOf(3);
  const auto offered = [&pane](int item) {
    pane.select(item);
    return std::pair(pane.canShiftUp(), pane.canShiftDown());
  };
  EXPECT_EQ(offered(0), std::pair(false, true));
  EXPECT_EQ(offered(1), std::pair(true, true));
  EXPECT_EQ(offered(2), std::pair(true, false));
  EXPECT_EQ(offered(-1), std::pair(false, false));
}

TEST(RepositionPane, AnEmptyListHasNothingToShift) {
  RepositionPane pane = paneOf(0);
  EXPECT_EQ(pane.selected(), -1);
  pane.shiftUp();
  pane.shiftDown();
  EXPECT_FALSE(pane.canShiftUp());
  EXPECT_FALSE(pane.canShiftDown());
  EXPECT_TRUE(pane.order().empty());
}

TEST(RepositionPane, MovesNinetyNineItemsFromEndToEnd) {
  RepositionPane pane = paneOf(99);
  pane.select(98);
  while (pane.canShiftUp()) pane.shiftUp();
  EXPECT_EQ(pane.order().front(), 98);
  EXPECT_EQ(pane.order().back(), 97);
}

}  // namespace
}  // namespace gp::test
