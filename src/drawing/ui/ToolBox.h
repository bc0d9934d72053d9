// The tool box: imgTool(4..14), the colour picker and the button that clears all tools, in two columns. It shows the
// state of Tools and forwards clicks. While there is nothing to draw on, it looks dimmed but still accepts clicks.
// Shift is on the ShiftPad.
#pragma once

#include "drawing/ToolTable.h"

#include <QWidget>

#include <array>

class QGridLayout;

namespace gp {

class ColorSelection;
class PictureButton;
class RovingFocus;
class Tools;
struct ScreenState;
struct PictureButtonLook;

class ToolBox : public QWidget {
  Q_OBJECT

 public:
  ToolBox(QWidget* parent, const ScreenState& screen, const Tools& tools, const ColorSelection& colors);

  void refresh();
  // The key of an entry of the Toolbox menu, by its index: a tool, Clear Tools or the colour picker. Others are
  // ignored.
  void setKey(int index, const QString& key);

 signals:
  void toolChosen(int tool);
  void colorPickerChosen();
  void clearAllChosen();

 private:
  PictureButton* button(int index) const;
  PictureButton* add(const QString& objectName, const PictureButtonLook& look);

  const ScreenState& screen_;
  const Tools& tools_;
  const ColorSelection& colors_;
  QGridLayout* grid_;
  RovingFocus* focus_;
  int count_ = 0;
  std::array<PictureButton*, kShift - kFirstTool> imgTool_{};
  PictureButton* imgColorPicker_ = nullptr;
  PictureButton* imgClearAllTools_ = nullptr;
};

}  // namespace gp
