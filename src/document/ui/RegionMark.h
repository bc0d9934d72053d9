// How the view marks a region over the icon: a white and a black line round its box, visible on any colour, and handles
// where the mouse can move its sides. Positions are device pixels of the view.
#pragma once

#include "document/ScreenScale.h"
#include "document/ScreenState.h"

#include <QRect>

#include <vector>

class QPainter;

namespace gp {

// The rectangle of the black line, for lines of that width. The white line goes round it. The black line is on the
// lines of the grid; where the box ends at the edge of the icon, both are moved inside.
QRect regionFrame(const RegionOutline& outline, const ScreenScale& scale, int line);
// The handles at corners and sides, where a press takes hold of a side. Only corners for a box that is too small for
// more, and none for one that they would hide.
std::vector<QRect> regionHandles(const RegionOutline& outline, const ScreenScale& scale);
// `line` is the width of each line.
void paintRegionMark(QPainter& painter, const RegionOutline& outline, const ScreenScale& scale, int line);

}  // namespace gp
