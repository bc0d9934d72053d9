// The right column: shows one of the panels fraPanel(n) at a time, all of the same size. A panel's widget is created
// when it is first shown, from the table in PanelStack.cpp or, for effects, in EffectViews.cpp.
#pragma once

#include <QWidget>

#include <map>

class QStackedLayout;

namespace gp {

class QtDisplay;
class Shell;

class PanelStack : public QWidget {
  Q_OBJECT

 public:
  PanelStack(QWidget* parent, Shell& shell, QtDisplay& display);

  // Shows a panel. Does nothing for a panel without a widget.
  void showPanel(int number);

 signals:
  // A side panel with the focus has closed: another widget must take the focus.
  void focusGivenBack();

 private:
  QWidget* panel(int number);

  Shell& shell_;
  QtDisplay& display_;
  QStackedLayout* stack_;
  std::map<int, QWidget*> made_;
};

}  // namespace gp
