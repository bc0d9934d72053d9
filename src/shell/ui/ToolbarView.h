// picToolbar: the buttons cmdTB(0..26), created from the toolbar table.
#pragma once

#include "shell/CommandTable.h"

#include <QWidget>

#include <vector>

namespace gp {

class PictureButton;
class Shell;

class ToolbarView : public QWidget {
  Q_OBJECT

 public:
  ToolbarView(QWidget* parent, Shell& shell);
  void refresh();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Entry {
    const Command* command;
    PictureButton* button;
  };

  Shell& shell_;
  std::vector<Entry> entries_;
  std::vector<int> separators_;  // x positions, cmdTBSep
};

}  // namespace gp
