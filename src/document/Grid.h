// The grids of the Editing Area, as values.
#pragma once

#include "document/Options.h"
#include "platform/gdi/Surface.h"

#include <array>

namespace gp {

// gGridColor of each entry of mnuOptionsSubGrid: a colour of lines, of dots, or the number of a pattern.
inline constexpr Color kNoGrid = kGround;
inline constexpr Color kDottedGrid = 0x800000;
inline constexpr Color kFirstPattern = -1;  // the next patterns follow downwards
inline constexpr std::array<Color, kGridCount> kGridColors = {0x606060, 0x000000, kDottedGrid, -1, -2, -3, kNoGrid};

constexpr Color gridColorOf(int index) { return kGridColors.at(static_cast<std::size_t>(index)); }

enum class GridKind {
  None,
  Lines,    // between all icon pixels
  Dots,     // where the lines would cross
  Pattern,  // lines, and a pattern instead of the ground behind transparent pixels
};

struct Grid {
  GridKind kind = GridKind::None;
  Color color = kWhite;  // of lines or dots; the Editing Area is combined with it by AND
  int pattern = 0;       // for patternCell()

  bool hasLines() const { return kind == GridKind::Lines || kind == GridKind::Pattern; }
};

// The grid that a value of gGridColor selects. A colour that is no entry of the menu gives lines of this colour; a
// negative number below the last pattern gives the first one.
Grid gridOf(Color gGridColor);

}  // namespace gp
