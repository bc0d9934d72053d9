// The common frame of the panels in the right column: a title at the top, the panel's own rows, and Proceed and Close
// at the bottom. Enter presses Proceed, unless the focused control handles it, and Esc presses Close. The owner
// connects the signals to their actions.
#pragma once

#include <QWidget>

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace gp {

class PanelFrame : public QWidget {
  Q_OBJECT

 public:
  // `number` is the index of fraPanel.
  PanelFrame(QWidget* parent, int number);

  // Takes a menu caption, with && for &.
  void setTitle(const QString& title);

  // The layout for the panel's rows, from the top.
  QVBoxLayout* rows() const { return rows_; }
  // Must be called once, after the rows, so that the buttons are last in the Tab order.
  void addButtons();
  // Sets the control that gets the focus when the panel opens; addButtons() sets Proceed. It is not a focus proxy,
  // which would make the frame itself report the focus.
  void setFirstControl(QWidget* control) { firstControl_ = control; }
  void focusFirstControl();
  QWidget* proceedButton() const;

 signals:
  void proceed();
  void closeRequested();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QLabel* makeTitle();

  QLabel* title_;
  QVBoxLayout* rows_;
  QWidget* firstControl_ = nullptr;
  QPushButton* cmdProceed_ = nullptr;
  QPushButton* cmdCancel_ = nullptr;
};

}  // namespace gp
