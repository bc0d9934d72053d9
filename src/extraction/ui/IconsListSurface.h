// picIconsList: the visible part of the panel of icons, and the choice of an icon by mouse and keyboard.
#pragma once

#include "platform/qt/Accessibility.h"

#include <QWidget>

#include <vector>

namespace gp {

struct CellSpot;
struct ListEvents;

class IconsListSurface final : public QWidget, public AccessibleValue {
  Q_OBJECT

 public:
  // The events must outlive the widget.
  IconsListSurface(QWidget* parent, const ListEvents& events);

  // Shows the list again. While it is drawn, only the cells that were added are painted.
  void refresh();

  // The marked icon, or how many there are.
  QString accessibleValue() const override;
  QAccessible::Role accessibleRole() const override { return QAccessible::List; }
  // Four rows of cells at least.
  QSize minimumSizeHint() const override;
  QSize sizeHint() const override { return minimumSizeHint(); }

 signals:
  // The list has another geometry.
  void gridChanged();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool event(QEvent* event) override;

 private:
  // The area within the frame, which shows the list from its scroll position on.
  QRect inside() const;
  // Where a cell is in the widget.
  QRect cellRect(int cell) const;
  int labelWidth(int cell) const;
  CellSpot spotOf(int cell) const;
  QPoint onList(const QPoint& position) const;
  void setGrid();
  void updateAddedCells(const std::vector<bool>& drawn);
  bool showLabelTip(const QPoint& position, const QPoint& globalPosition);

  const ListEvents& events_;
  bool wasDrawing_ = false;
  std::vector<bool> drawn_;  // cells
};

}  // namespace gp
