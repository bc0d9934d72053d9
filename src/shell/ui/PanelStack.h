// The right column: exactly one of the panels fraPanel(n) at a time, all of one size. A panel's widget is made when it
// is first shown; which widget that is stands in the table of PanelStack.cpp, for effects in that of EffectViews.cpp.
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

  // Brings a panel up. One that has no widget yet leaves the column as it is.
  void showPanel(int number);

 signals:
  // A side panel that had the focus has closed: something else is to take it.
  void focusGivenBack();

 private:
  QWidget* panel(int number);

  Shell& shell_;
  QtDisplay& display_;
  QStackedLayout* stack_;
  std::map<int, QWidget*> made_;
};

}  // namespace gp
