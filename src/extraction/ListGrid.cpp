#include "extraction/ListGrid.h"

namespace gp {

ListGrid::ListGrid(int width, int baseHeight, int lineHeight)
    : width_(width), baseHeight_(baseHeight), lineHeight_(lineHeight) {}
int ListGrid::scrollMaximum() const { return 0; }
CellPlace ListGrid::cellPlace(int) const { return {}; }
CellPlace ListGrid::labelPlace(int) const { return {}; }
CellPlace ListGrid::iconPlace(int) const { return {}; }
int ListGrid::cellAt(int, int) const { return -1; }

}  // namespace gp
