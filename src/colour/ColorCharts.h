// The two colour charts: their pictures, and which cell a position means. Positions are in chart units: a cell is 1
// x 1.
#pragma once

#include "colour/ColorTables.h"
#include "platform/gdi/Surface.h"

#include <string>

namespace gp {

// The values are the indices of picColorChart.
enum class ChartKind { Chart256 = 0, Chart16 = 1 };

struct ChartShape {
  int columns;
  int rows;
};
ChartShape shapeOf(ChartKind chart);

// The picture of a chart with cells of the given size in pixels.
Surface CreateColorChart256(int cellWidth, int cellHeight);
Surface CreateColorChart16(int cellWidth, int cellHeight);

// The table entry at a position; the border below the last row still counts to it. -1 outside.
int chartCellAt(ChartKind chart, double x, double y);
Color chartColor(ChartKind chart, int cell);
// The name of a colour of the small chart; "8080FFh  RGB(255, 128, 128) " with stars for a standard colour in the
// large.
std::string chartText(ChartKind chart, int cell);

}  // namespace gp
