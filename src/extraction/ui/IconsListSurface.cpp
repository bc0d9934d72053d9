#include "extraction/ui/IconsListSurface.h"

#include "document/ui/SurfacePainting.h"
#include "extraction/ui/ListCellPainting.h"
#include "extraction/ui/ListEvents.h"
#include "platform/qt/FocusRing.h"
#include "platform/qt/PathText.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace gp {
namespace {

constexpr double kLeastPoints = 7;     // of the labels
constexpr double kLabelSize = 7 / 9.;  // of the size of the program's font
constexpr int kLargestIcon = 32;
constexpr int kAboveAndBelow = 12;  // pixels of a row besides its label and icon
constexpr int kLeastWidth = 144;    // three cells without gaps

struct MoveKey {
  int key;
  ListMove move;
};
constexpr MoveKey kMoveKeys[] = {
    {Qt::Key_Left, ListMove::Left}, {Qt::Key_Right, ListMove::Right},   {Qt::Key_Up, ListMove::Up},
    {Qt::Key_Down, ListMove::Down}, {Qt::Key_PageUp, ListMove::PageUp}, {Qt::Key_PageDown, ListMove::PageDown},
    {Qt::Key_Home, ListMove::Home}, {Qt::Key_End, ListMove::End},
};

QFont labelFont(const QFont& base) {
  QFont font = base;
  font.setPointSizeF(std::max(kLeastPoints, QFontInfo(base).pointSizeF() * kLabelSize));
  return font;
}

// The same size in the units of a painter of device pixels.
QFont deviceFont(const QFont& font, double ratio) {
  QFont scaled = font;
  scaled.setPixelSize(std::max(1, static_cast<int>(std::lround(QFontInfo(font).pixelSize() * ratio))));
  return scaled;
}

}  // namespace

IconsListSurface::IconsListSurface(QWidget* parent, const ListEvents& events) : QWidget(parent), events_(events) {
  setObjectName(QStringLiteral("picIconsList"));
  setAccessibleName(QStringLiteral("Icons"));
  setFocusPolicy(Qt::StrongFocus);
  setContextMenuPolicy(Qt::PreventContextMenu);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QRect IconsListSurface::inside() const { return rect().adjusted(kFocusRing, kFocusRing, -kFocusRing, -kFocusRing); }

QSize IconsListSurface::minimumSizeHint() const {
  const int row = QFontMetrics(labelFont(font())).height() + kLargestIcon + kAboveAndBelow;
  return {kLeastWidth + 2 * kFocusRing, kListPages * row + 2 * kFocusRing};
}

void IconsListSurface::setGrid() {
  const QRect room = inside();
  const ListGrid grid(room.width(), room.height(), QFontMetrics(labelFont(font())).height());
  events_.guarded("picIconsListBase_Resize", [&] { events_.list.setGrid(grid); });
  update();
  emit gridChanged();
}

void IconsListSurface::resizeEvent(QResizeEvent*) { setGrid(); }

void IconsListSurface::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::FontChange) return;
  updateGeometry();
  setGrid();
}

QRect IconsListSurface::cellRect(int cell) const {
  const CellPlace place = events_.list.grid().cellPlace(cell);
  return QRect(place.left, place.top, place.width, place.height)
      .translated(inside().topLeft() - QPoint(0, events_.list.scrollValue()));
}

int IconsListSurface::labelWidth(int cell) const {
  const ListGrid& grid = events_.list.grid();
  const CellPlace place = grid.cellPlace(cell);
  return place.left + place.width - grid.labelPlace(cell).left;
}

CellSpot IconsListSurface::spotOf(int cell) const {
  const double ratio = devicePixelRatioF();
  const auto device = [ratio](int position) { return static_cast<int>(std::lround(position * ratio)); };
  const QPoint shift = inside().topLeft() - QPoint(0, events_.list.scrollValue());
  const CellPlace label = events_.list.grid().labelPlace(cell), icon = events_.list.grid().iconPlace(cell);
  const QRect whole = cellRect(cell);
  const QFont font = deviceFont(labelFont(this->font()), ratio);
  const QRect line(device(label.left + shift.x()), device(label.top + shift.y()), device(labelWidth(cell)),
                   QFontMetrics(font).height());
  const QPoint corner(device(whole.left()), device(whole.top()));
  const QPoint end(device(whole.right() + 1) - 1, device(whole.bottom() + 1) - 1);
  return {QRect(corner, end), line, QPoint(device(icon.left + shift.x()), device(icon.top + shift.y())), font, ratio};
}

void IconsListSurface::paintEvent(QPaintEvent* event) {
  DevicePainter painter(this);
  const double ratio = devicePixelRatioF();
  const QRect whole = painter.toDevice(rect()), room = painter.toDevice(inside());
  painter.fillRect(room, QColor(toRgb(kGround)));
  painter.setClipRect(room);
  const std::vector<ListCell>& cells = events_.list.cells();
  for (int i = 0; i < static_cast<int>(cells.size()); ++i)
    if (event->region().intersects(cellRect(i))) paintCell(painter, cells[static_cast<std::size_t>(i)], spotOf(i));
  if (const int marked = events_.list.markedCell(); marked >= 0) paintMark(painter, spotOf(marked), palette());
  painter.setClipping(false);
  if (hasFocus())
    paintFocusRing(painter, whole, accentOn(palette()), ratio);
  else
    paintRing(painter, whole, palette().color(QPalette::Mid), kFocusRing * std::max(1, static_cast<int>(ratio)));
}

void IconsListSurface::refresh() {
  std::vector<bool> drawn;
  for (const ListCell& cell : events_.list.cells()) drawn.push_back(cell.isDrawn);
  const bool isDrawing = events_.list.isDrawing();
  if (isDrawing && wasDrawing_)
    updateAddedCells(drawn);
  else
    update();
  wasDrawing_ = isDrawing;
  drawn_ = std::move(drawn);
  accessibleValueChanged(this);
}

void IconsListSurface::updateAddedCells(const std::vector<bool>& drawn) {
  if (drawn.size() != drawn_.size()) return update();
  for (std::size_t i = 0; i < drawn.size(); ++i)
    if (drawn[i] != drawn_[i]) update(cellRect(static_cast<int>(i)));
}

QString IconsListSurface::accessibleValue() const {
  const std::string marked = events_.list.spokenMark();
  return marked.empty() ? toText(events_.list.countLabel()).simplified() : printable(toText(marked));
}

QPoint IconsListSurface::onList(const QPoint& position) const {
  return position - inside().topLeft() + QPoint(0, events_.list.scrollValue());
}

void IconsListSurface::mouseReleaseEvent(QMouseEvent* event) {
  const bool isRight = event->button() == Qt::RightButton;
  if (!isRight && event->button() != Qt::LeftButton) return;
  if (!inside().contains(event->position().toPoint())) return;
  const QPoint at = onList(event->position().toPoint());
  events_.guarded("picIconsList_MouseUp",
                  [&] { events_.list.click(at.x(), at.y(), isRight ? ListButton::Right : ListButton::Left); });
}

void IconsListSurface::keyPressEvent(QKeyEvent* event) {
  const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const auto* row = std::ranges::find(kMoveKeys, event->key(), &MoveKey::key);
  if (isEnter && (modifiers == Qt::NoModifier || modifiers == Qt::ControlModifier))
    events_.guarded("picIconsList_KeyDown", [&] {
      events_.list.takeMarked(modifiers == Qt::ControlModifier ? ListButton::Right : ListButton::Left);
    });
  else if (modifiers == Qt::NoModifier && row != std::end(kMoveKeys))
    events_.guarded("picIconsList_KeyDown", [&] { events_.list.moveMark(row->move); });
  else
    QWidget::keyPressEvent(event);
}

// The whole text of the cell under the pointer, where the cell shows only a part of it.
bool IconsListSurface::showLabelTip(const QPoint& position, const QPoint& globalPosition) {
  const QPoint at = onList(position);
  const int index = inside().contains(position) ? events_.list.grid().cellAt(at.x(), at.y()) : -1;
  const std::vector<ListCell>& cells = events_.list.cells();
  if (index < 0 || index >= static_cast<int>(cells.size())) return false;
  const ListCell& cell = cells[static_cast<std::size_t>(index)];
  const QString whole = printable(toText(events_.list.wholeLabel(index)));
  if (!cell.isDrawn || shownLabel(cell, labelFont(font()), labelWidth(index)) == whole) return false;
  // Escaped, because rich text would drop parts of a name that look like a tag.
  QToolTip::showText(globalPosition, whole.toHtmlEscaped(), this, cellRect(index));
  return true;
}

bool IconsListSurface::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    if (!showLabelTip(help->pos(), help->globalPos())) QToolTip::hideText();
    return true;
  }
  if (event->type() == QEvent::ScreenChangeInternal) setGrid();
  return QWidget::event(event);
}

}  // namespace gp
