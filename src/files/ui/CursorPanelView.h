// The Panel "Save as cursor": the two lists of the hot spot, and the button that shows it. What they mean is
// CursorFiles' business; the view shows it and forwards what is chosen.
#pragma once

#include "platform/qt/widgets/PanelFrame.h"

#include <array>

class QComboBox;
class QGridLayout;

namespace gp {

class CursorFiles;

class CursorPanelView : public PanelFrame {
  Q_OBJECT

 public:
  // The cursors must outlive the view.
  CursorPanelView(QWidget* parent, CursorFiles& cursors);

  // Shows the hot spot that the lists stand at, which is another icon's when one has come up.
  void refresh();

 signals:
  void showHotspotRequested();

 private:
  QGridLayout* makeLists();
  void addList(QGridLayout* grid, int index, const QString& caption, const QString& name);
  QWidget* makeShowButton();

  CursorFiles& cursors_;
  std::array<QComboBox*, 2> cboCursorHotSpot_{};
};

}  // namespace gp
