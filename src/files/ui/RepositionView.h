// The pane of frmGPMultiIcon that reorders a file's icons.
#pragma once

#include "files/browser/MultiIconBrowser.h"

#include <QWidget>

#include <array>

class QBoxLayout;
class QPushButton;

namespace gp {

class EntryView;
class TabbedList;

class RepositionView final : public QWidget {
  Q_OBJECT

 public:
  // The browser must outlive the view.
  RepositionView(QWidget* parent, MultiIconBrowser& browser);

  // Shows the browser's current state.
  void refresh();

 private:
  QPushButton* makeButton(const char* name, const char* caption, const char* toolTip,
                          void (MultiIconBrowser::*press)());
  void addKey(QKeyCombination key, QPushButton* button);
  QBoxLayout* makeButtonColumn();
  void enableShift(QPushButton& button, bool enabled);

  MultiIconBrowser& browser_;
  TabbedList* lisReposition_;
  EntryView* preview_;
  std::array<QPushButton*, 2> cmdShift_{};  // up, down
};

}  // namespace gp
