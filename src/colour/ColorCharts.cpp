#include "colour/ColorCharts.h"

#include "platform/gdi/Pens.h"
#include "platform/text/Numbers.h"

#include <algorithm>

namespace gp {

namespace {

constexpr ChartShape kShape256 = {16, 3};
constexpr ChartShape kShape16 = {8, 2};

Surface drawCells(ChartKind chart, int cellWidth, int cellHeight) {
  const ChartShape shape = shapeOf(chart);
  Surface picture(shape.columns * cellWidth, shape.rows * cellHeight);
  for (int k = 0; k < shape.columns * shape.rows; ++k) {
    const ChartPlace cell = chartPlaceOf(chart, k);
    const int x = cell.column * cellWidth;
    const int y = cell.row * cellHeight;
    FillBox(picture, x, y, x + cellWidth - 1, y + cellHeight - 1, chartColor(chart, k));
  }
  return picture;
}

void drawRowLines(Surface& picture, int rows, int cellHeight) {
  for (int row = 1; row < rows; ++row)
    FillBox(picture, 0, row * cellHeight, picture.width() - 1, row * cellHeight, kBlack);
}

}  // namespace

ChartShape shapeOf(ChartKind chart) { return chart == ChartKind::Chart256 ? kShape256 : kShape16; }

Surface CreateColorChart256(int cellWidth, int cellHeight) {
  Surface picture = drawCells(ChartKind::Chart256, cellWidth, cellHeight);
  drawRowLines(picture, kShape256.rows, cellHeight);
  picture.makePersistent();
  return picture;
}

Surface CreateColorChart16(int cellWidth, int cellHeight) {
  Surface picture = drawCells(ChartKind::Chart16, cellWidth, cellHeight);
  for (int column = 1; column < kShape16.columns; ++column)
    FillBox(picture, column * cellWidth, 0, column * cellWidth, picture.height() - 1, kBlack);
  drawRowLines(picture, kShape16.rows, cellHeight);
  picture.makePersistent();
  return picture;
}

int chartCellAt(ChartKind chart, double x, double y) {
  const ChartShape shape = shapeOf(chart);
  // The lower border belongs to the last row; the right border to no cell.
  if (x < 0 || y < 0 || x >= shape.columns || y > shape.rows) return -1;
  const int column = Fix(x);
  const int row = std::min(Fix(y), shape.rows - 1);
  return chart == ChartKind::Chart256 ? column * shape.rows + row : row * shape.columns + column;
}

Color chartColor(ChartKind chart, int cell) {
  const auto k = static_cast<std::size_t>(cell);
  return chart == ChartKind::Chart256 ? mChartColors256.at(k) : mChartColors16.at(k).color;
}

int chartCellOf(ChartKind chart, Color color) {
  const ChartShape shape = shapeOf(chart);
  for (int cell = 0; cell < shape.columns * shape.rows; ++cell)
    if (chartColor(chart, cell) == color) return cell;
  return -1;
}

ChartPlace chartPlaceOf(ChartKind chart, int cell) {
  if (chart == ChartKind::Chart256) return {cell / kShape256.rows, cell % kShape256.rows};
  return {cell % kShape16.columns, cell / kShape16.columns};
}

std::string chartText(ChartKind chart, int cell) {
  if (chart == ChartKind::Chart16) return mChartColors16.at(static_cast<std::size_t>(cell)).name;
  const Color color = chartColor(chart, cell);
  return Hex(color) + "h  RGB(" + std::to_string(redOf(color)) + ", " + std::to_string(greenOf(color)) + ", " +
         std::to_string(blueOf(color)) + (isStandardColor(color) ? ") ** " : ") ");
}

}  // namespace gp
