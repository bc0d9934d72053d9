#include "extraction/ListPick.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

struct Move {
  ListMove move;
  int from, to;
};

class ListMark : public testing::TestWithParam<Move> {};

TEST_P(ListMark, MovesThroughAListOfSixty) {
  EXPECT_EQ(movedMark(GetParam().move, GetParam().from, 48, 60), GetParam().to);
}

INSTANTIATE_TEST_SUITE_P(
    Moves, ListMark,
    testing::Values(Move{ListMove::Right, 4, 5}, Move{ListMove::Right, 59, 59}, Move{ListMove::Right, 47, 48},
                    Move{ListMove::Left, 4, 3}, Move{ListMove::Left, 0, 0}, Move{ListMove::Left, 48, 47},
                    Move{ListMove::Up, 4, 1}, Move{ListMove::Up, 1, 1}, Move{ListMove::Down, 4, 7},
                    Move{ListMove::Down, 58, 58}, Move{ListMove::PageDown, 4, 16}, Move{ListMove::PageDown, 55, 59},
                    Move{ListMove::PageUp, 16, 4}, Move{ListMove::PageUp, 5, 0}, Move{ListMove::Home, 33, 0},
                    Move{ListMove::End, 33, 59}, Move{ListMove::Home, -1, 0}, Move{ListMove::End, -1, 59},
                    Move{ListMove::Right, -1, 48}, Move{ListMove::Down, -1, 48}, Move{ListMove::PageDown, -1, 48}));

}  // namespace
}  // namespace gp
