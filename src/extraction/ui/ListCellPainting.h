// Paints the cells of the Icons List in device pixels: pictures in whole device pixels, on a ground and in colours that
// do not change with the theme.
#pragma once

#include <QFont>
#include <QRect>
#include <QString>

class QPainter;
class QPalette;

namespace gp {

struct ListCell;

// Where a cell is painted, in device pixels.
struct CellSpot {
  QRect cell;
  QRect label;  // one line, up to the end of the cell
  QPoint icon;
  QFont font;
  double ratio = 1;  // device pixels per pixel
};

// The label as a cell shows it: elided in the given width, without characters that cannot be shown.
QString shownLabel(const ListCell& cell, const QFont& font, int width);

void paintCell(QPainter& painter, const ListCell& cell, const CellSpot& spot);
// The mark of a cell: a rectangle that is visible on the ground of the list.
void paintMark(QPainter& painter, const CellSpot& spot, const QPalette& palette);

}  // namespace gp
