// The Panel "Save as cursor": the two lists of the hot spot, and the button that shows it. The view shows the state of
// CursorFiles and forwards input to it.
#pragma once

#include "platform/qt/widgets/PanelFrame.h"

#include <array>

class QComboBox;

namespace gp {

class CursorFiles;

class CursorPanelView : public PanelFrame {
  Q_OBJECT

 public:
  // CursorFiles must outlive the view.
  CursorPanelView(QWidget* parent, CursorFiles& cursors);

  // Shows the hot spot of the lists, which belongs to another icon once one has arrived.
  void refresh();

 signals:
  void showHotspotRequested();

 private:
  void addList(int index, const QString& caption, const QString& name);
  QWidget* makeShowButton();

  CursorFiles& cursors_;
  std::array<QComboBox*, 2> cboCursorHotSpot_{};
};

}  // namespace gp
