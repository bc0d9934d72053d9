#include "document/ui/EmptyArea.h"

#include <QPainter>
#include <QWidget>

namespace gp {
namespace {

constexpr QRgb kInk = 0xFF303030;  // the ground is the same in every theme
constexpr int kMargin = 24;        // beside the text, pixels
constexpr int kFlags = Qt::AlignCenter | Qt::TextWordWrap;

// Lines end after a comma if that leaves lines that fit.
QString fittedText(QPainter& painter, const QRect& room) {
  const QString text(kEmptyAreaText);
  QString clauses = text;
  clauses.replace(' ', QChar::Nbsp).replace(QString(",") + QChar::Nbsp, ", ");
  return room.contains(painter.boundingRect(room, kFlags, clauses)) ? clauses : text;
}

}  // namespace

void paintEmptyArea(QWidget& widget) {
  QPainter painter(&widget);
  painter.setPen(QColor(kInk));
  const QRect room = widget.rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
  painter.drawText(room, kFlags, fittedText(painter, room));
}

}  // namespace gp
