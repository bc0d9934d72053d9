#include "document/PatternCells.h"

#include <array>

namespace gp {
namespace {

// '.' is the ground, 'o' the mark on it. The marks differ, so that the cells are distinguishable without colours.
struct PatternDrawing {
  Color ground;
  Color mark;
  std::array<const char*, kPatternCellSize> rows;
};

constexpr std::array<PatternDrawing, kPatternCellCount> kDrawings = {{
    {rgb(0xD0, 0xD0, 0xD0),
     rgb(0xB4, 0xB4, 0xB4),
     {"oooo....",  //
      "oooo....",  //
      "oooo....",  //
      "oooo....",  //
      "....oooo",  //
      "....oooo",  //
      "....oooo",  //
      "....oooo"}},
    {rgb(0xD6, 0xE8, 0xFA),
     rgb(0xA8, 0xCB, 0xEE),
     {"oo......",  //
      ".oo.....",  //
      "..oo....",  //
      "...oo...",  //
      "....oo..",  //
      ".....oo.",  //
      "......oo",  //
      "o......o"}},
    {rgb(0xA6, 0xE6, 0xE0),
     rgb(0x6C, 0xC9, 0xC2),
     {"........",  //
      ".oo.....",  //
      ".oo.....",  //
      "........",  //
      "........",  //
      ".....oo.",  //
      ".....oo.",  //
      "........"}},
}};

Surface drawn(const PatternDrawing& drawing) {
  Surface cell(kPatternCellSize, kPatternCellSize, drawing.ground);
  for (int y = 0; y < kPatternCellSize; ++y) {
    for (int x = 0; x < kPatternCellSize; ++x) {
      if (drawing.rows[y][x] == 'o') cell.SetPixelV(x, y, drawing.mark);
    }
  }
  cell.makePersistent();
  return cell;
}

}  // namespace

const Surface& patternCell(int index) {
  static const std::array<Surface, kPatternCellCount> cells = {drawn(kDrawings[0]), drawn(kDrawings[1]),
                                                               drawn(kDrawings[2])};
  return cells[index >= 0 && index < kPatternCellCount ? index : 0];
}

}  // namespace gp
