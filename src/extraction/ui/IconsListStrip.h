// picIconsListBase: the visible part of the panel of icons, with its scroll bar VsrIconsList.
#pragma once

#include <QWidget>

class QScrollBar;

namespace gp {

class IconsListSurface;
struct ListEvents;

class IconsListStrip final : public QWidget {
  Q_OBJECT

 public:
  // The events must outlive the widget.
  IconsListStrip(QWidget* parent, const ListEvents& events);

  void refresh();
  IconsListSurface* surface() const { return picIconsList_; }

 protected:
  void wheelEvent(QWheelEvent* event) override;

 private:
  void refreshBar();

  const ListEvents& events_;
  IconsListSurface* picIconsList_;
  QScrollBar* VsrIconsList_;
};

}  // namespace gp
