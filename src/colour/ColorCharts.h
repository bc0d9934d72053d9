// The two colour charts: their pictures, and the cell at a position. Positions are in chart units; a cell is 1 x 1.
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

// Return the picture of a chart whose cells have the given size in pixels.
Surface CreateColorChart256(int cellWidth, int cellHeight);
Surface CreateColorChart16(int cellWidth, int cellHeight);

// Returns the table index at a position, -1 outside. The border below the last row belongs to that row.
int chartCellAt(ChartKind chart, double x, double y);
Color chartColor(ChartKind chart, int cell);
// Returns the first table index of a colour, -1 when the chart does not have it.
int chartCellOf(ChartKind chart, Color color);
// Returns the column and row of a table index.
struct ChartPlace {
  int column;
  int row;
};
ChartPlace chartPlaceOf(ChartKind chart, int cell);
// Returns the name of a small chart's colour; for the large chart "8080FFh  RGB(255, 128, 128) ", with stars for a
// standard colour.
std::string chartText(ChartKind chart, int cell);

}  // namespace gp
