// The title bar of the pane: imgANI, the caption, and the buttons that change its size or close it. It reports drags
// and double clicks.
#pragma once

#include <QWidget>

#include <optional>

namespace gp {

class AniButtons;

class AniTitle final : public QWidget {
  Q_OBJECT

 public:
  static constexpr const char* kCaption = "Create/Edit ANI";

  AniTitle(QWidget* parent, AniButtons& buttons);

 signals:
  // The mouse has moved by that much since the last report, with the button down.
  void dragged(QPoint distance);
  void doubleClicked();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  std::optional<QPoint> held_;  // the position of the last report on the screen, while the button is down
  bool dragging_ = false;
};

}  // namespace gp
