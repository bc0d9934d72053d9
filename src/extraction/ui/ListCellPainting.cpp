#include "extraction/ui/ListCellPainting.h"

#include "document/ScreenScale.h"
#include "document/ui/SurfacePainting.h"
#include "extraction/IconsList.h"
#include "platform/qt/Contrast.h"
#include "platform/qt/FocusRing.h"
#include "platform/qt/PathText.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace gp {
namespace {

constexpr const char* kMultiIconMark = "**";
constexpr int kDiagonal = 32;  // pixels

QColor ground() { return {toRgb(kGround)}; }

int markWidth(const ListCell& cell, const QFontMetrics& metrics) {
  return cell.isMultiIcon ? metrics.horizontalAdvance(kMultiIconMark) : 0;
}

void paintLabel(QPainter& painter, const ListCell& cell, const CellSpot& spot) {
  painter.setFont(spot.font);
  const QString label = shownLabel(cell, spot.font, spot.label.width());
  constexpr int kFlags = Qt::TextSingleLine | Qt::AlignLeft | Qt::AlignTop;
  painter.setPen(Qt::black);
  painter.drawText(spot.label, kFlags, label);
  if (!cell.isMultiIcon) return;
  painter.setPen(visibleOn(ground(), Qt::red));
  painter.drawText(spot.label.adjusted(QFontMetrics(spot.font).horizontalAdvance(label), 0, 0, 0), kFlags,
                   kMultiIconMark);
}

void paintDiagonal(QPainter& painter, const CellSpot& spot) {
  const int length = static_cast<int>(kDiagonal * spot.ratio);
  painter.setPen(QPen(Qt::black, std::max(1, static_cast<int>(spot.ratio))));
  painter.drawLine(spot.icon, spot.icon + QPoint(length, length));
}

void paintPicture(QPainter& painter, const Surface& picture, const CellSpot& spot) {
  if (picture.width() == 0 || picture.height() == 0) return;
  const ScreenScale scale(std::max(picture.width(), picture.height()), 1, spot.ratio);
  const QSize size(picture.width() * scale.cellSize(), picture.height() * scale.cellSize());
  painter.drawImage(spot.icon, imageOf(picture, scale, QRect(QPoint(0, 0), size)));
}

}  // namespace

QString shownLabel(const ListCell& cell, const QFont& font, int width) {
  const QFontMetrics metrics(font);
  return metrics.elidedText(printable(toText(cell.label)), Qt::ElideRight, width - markWidth(cell, metrics));
}

void paintCell(QPainter& painter, const ListCell& cell, const CellSpot& spot) {
  painter.fillRect(spot.cell, ground());
  if (!cell.isDrawn) return;
  paintLabel(painter, cell, spot);
  if (cell.valid)
    paintPicture(painter, cell.picture, spot);
  else
    paintDiagonal(painter, spot);
}

void paintMark(QPainter& painter, const CellSpot& spot, const QPalette& palette) {
  paintFocusRing(painter, spot.cell, accentOn(ground(), palette), spot.ratio);
}

}  // namespace gp
