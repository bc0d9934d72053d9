#include "animation/FilmCells.h"

#include "animation/AniFilm.h"
#include "platform/gdi/Pens.h"

namespace gp {
namespace {

constexpr Color kFilmColor = rgb(40, 40, 44);
constexpr Color kHoleColor = rgb(150, 150, 154);
constexpr Color kSelectedColor = rgb(255, 200, 40);
// Of the holes at both sides.
constexpr int kHoleWidth = 4, kHoleHeight = 6, kHoleStep = 10, kHoleMargin = 2;
// Of the frame around the picture, with a line of film between them.
constexpr int kFrameWidth = 3, kFrameGap = 1;

struct CellColors {
  Color holes;
  Color frame;
};
constexpr CellColors kNormal{kHoleColor, kFilmColor}, kSelected{kSelectedColor, kSelectedColor};

// A box that exceeds the place of the picture by some pixels on each side.
void fillAround(Surface& cell, int pixels, Color color) {
  FillBox(cell, AniFilm::kImageX - pixels, AniFilm::kImageY - pixels, AniFilm::kImageX + kFrameSide - 1 + pixels,
          AniFilm::kImageY + kFrameSide - 1 + pixels, color);
}

void drawHoles(Surface& cell, int x, Color color) {
  for (int y = kHoleMargin; y < AniFilm::kCellHeight; y += kHoleStep)
    FillBox(cell, x, y, x + kHoleWidth - 1, y + kHoleHeight - 1, color);
}

Surface filmCell(const CellColors& colors) {
  Surface cell(AniFilm::kCellWidth, AniFilm::kCellHeight, kFilmColor);
  drawHoles(cell, kHoleMargin, colors.holes);
  drawHoles(cell, AniFilm::kCellWidth - kHoleMargin - kHoleWidth, colors.holes);
  fillAround(cell, kFrameGap + kFrameWidth, colors.frame);
  fillAround(cell, kFrameGap, kFilmColor);
  fillAround(cell, 0, kWhite);
  return cell;
}

}  // namespace

std::array<Surface, 2> filmCells() { return {filmCell(kNormal), filmCell(kSelected)}; }

}  // namespace gp
