// fraPanel(21): the icon on three screen colours, each with its colour and the button that changes it. It stores
// nothing: refresh() shows what the PreviewPanel contains. The PreviewPanel must outlive it.
#pragma once

#include "output/PreviewPanel.h"
#include "platform/qt/widgets/PanelFrame.h"

#include <array>

class QGridLayout;
class QPushButton;

namespace gp {

class ColorButton;
class ScreenColorView;

class PreviewPanelView final : public PanelFrame {
  Q_OBJECT

 public:
  PreviewPanelView(QWidget* parent, PreviewPanel& panel);

  // The Current Icon has changed.
  void follow();
  // Shows caption, colours and pictures of the PreviewPanel.
  void refresh();

 signals:
  void editAlphaRequested();

 private:
  // What is shown of one screen colour.
  struct Row {
    ScreenColorView* picture = nullptr;
    QLabel* label = nullptr;
    ColorButton* button = nullptr;
  };

  void addPictures();
  void addPicture(QGridLayout* grid, int i);
  void addAlphaControls();

  PreviewPanel& panel_;
  std::array<Row, PreviewPanel::kColors> rows_;
  QLabel* lblRemarksAlpha_ = nullptr;
  QPushButton* cmdEditAlphaChannel_ = nullptr;
};

}  // namespace gp
