// The common frame of the panels in the right column: a title at the top, the panel's rows, and Proceed and Close at
// the bottom. A row has its label in the first column and its control in the second. Rows that do not fit scroll. Enter
// presses Proceed, unless the focused control handles it, and Esc presses Close. The owner connects the signals to
// their actions.
#pragma once

#include <QWidget>

class QGridLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;

namespace gp {

class PanelFrame : public QWidget {
  Q_OBJECT

 public:
  // `number` is the index of fraPanel.
  PanelFrame(QWidget* parent, int number);

  // The name of the frame, a menu caption with && for &. It is the title of a panel that has no other one.
  void setCaption(const QString& caption);
  const QString& caption() const { return caption_; }
  // The name of what the panel does, if it has another one; the caption is then above it.
  void setTitle(const QString& title);
  // The heading that is shown last: the title, or else the caption.
  QString title() const { return titleText_.isEmpty() ? caption_ : titleText_; }

  // Sets the control that gets the focus when the panel opens; addButtons() sets Proceed. It is not a focus proxy,
  // which would make the frame itself report the focus.
  void setFirstControl(QWidget* control) { firstControl_ = control; }
  void focusFirstControl();
  QWidget* proceedButton() const;
  QWidget* closeButton() const;

 signals:
  void proceed();
  void closeRequested();

 protected:
  // Adds a row. A long caption is above its control, from the first column on; one without a control is alone in its
  // row. The caption may have an access letter.
  QLabel* addRow(const QString& objectName, const QString& caption, QWidget* control = nullptr);
  // Puts another control in the place of the last row's control. At most one of them may be visible.
  void addControl(QWidget* control);
  // Adds a row that is as wide as the panel.
  void addWide(QWidget* content);
  // Adds a row that gets all the height that the others leave.
  void addTall(QWidget* content);
  // One of these must be called once, after the rows, so that the buttons are last in the Tab order. A panel that only
  // shows something has no Proceed, and Enter closes it.
  void addButtons();
  void addCloseButton();
  // The parent of what is added.
  QWidget* rows() const { return rows_; }

  void keyPressEvent(QKeyEvent* event) override;

 private:
  QLabel* makeHeading();
  QWidget* makeRows();
  QHBoxLayout* makeButtonRow();
  void addClose(QHBoxLayout* row);
  void showHeadings();

  QString caption_, titleText_;
  QLabel* frameCaption_;
  QLabel* title_;
  QWidget* rows_ = nullptr;
  QGridLayout* grid_ = nullptr;
  QWidget* firstControl_ = nullptr;
  QPushButton* cmdProceed_ = nullptr;
  QPushButton* cmdCancel_ = nullptr;
};

}  // namespace gp
