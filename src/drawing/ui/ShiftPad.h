// imgShiftDirBase, the pad of 3 x 3 cells that moves the whole picture: eight directions around imgTool(15), which
// turns Shift on and off. The cells are buttons for the keyboard; the mouse uses the pad as a whole, so that a press
// can end over another cell. The pad looks dimmed while there is nothing to draw on, but still accepts clicks.
#pragma once

#include "drawing/ShiftTool.h"

#include <QWidget>

#include <array>

namespace gp {

class PictureButton;
class RovingFocus;
class Tools;
struct ScreenState;

class ShiftPad : public QWidget {
  Q_OBJECT

 public:
  static constexpr int kSide = 60;  // pixels

  ShiftPad(QWidget* parent, const ScreenState& screen, const Tools& tools, ShiftTool& shift);

  void refresh();
  // The key that selects the tool.
  void setKey(const QString& key);

 signals:
  void toolChosen(int tool);
  void directionReleased(ShiftCell cell);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  bool event(QEvent* event) override;

 private:
  PictureButton* makeDirection(ShiftCell cell);
  PictureButton* makeTool();
  void press(ShiftCell cell);
  void release(ShiftCell cell);
  void letGo();

  const ScreenState& screen_;
  const Tools& tools_;
  ShiftTool& shift_;
  RovingFocus* focus_;
  PictureButton* imgTool_ = nullptr;
  // imgShiftDir, by the index of ShiftCell; the first entry is unused.
  std::array<PictureButton*, kShiftPictureCount> imgShiftDir_{};
  bool held_ = false;  // with the mouse
};

}  // namespace gp
