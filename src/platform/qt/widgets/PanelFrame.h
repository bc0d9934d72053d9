// The frame that the panels of the right column share: title on top, the panel's own rows, and at the bottom Proceed
// and Close. Enter anywhere in it is Proceed, unless a control has a use of its own for it, and Esc is Close. What the
// two do is told by whoever handles the signals.
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

  // Written like a menu's caption, with && for &.
  void setTitle(const QString& title);

  // Where the panel puts its rows, from the top.
  QVBoxLayout* rows() const { return rows_; }
  // Called once, after the rows, so that Tab comes to the buttons last.
  void addButtons();
  // What takes the focus when the panel comes up: Proceed, until another control is named after addButtons. It is no
  // focus proxy, with which the frame itself would tell that it has the focus.
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
