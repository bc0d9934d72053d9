// A list of one-line texts with tabs, shown in columns at tab stops. One item can be selected by mouse or keyboard, and
// the user cannot clear the selection; in a read-only list nothing can be selected. The list owns its texts. Assistive
// technology gets an item's columns separated by commas.
#pragma once

#include <QListWidget>

#include <string>
#include <vector>

namespace gp {

// The start of each column of an item and the end of the last one, in pixels.
struct TabbedColumns {
  std::vector<int> begins;
  int end = 0;
};

class TabbedList final : public QListWidget {
  Q_OBJECT

 public:
  // Tab stops are in dialog units, quarters of the font's average letter width, in ascending order. After the last one,
  // more stops follow at the distance of the last two.
  TabbedList(QWidget* parent, const QString& objectName, const QString& accessibleName, std::vector<int> tabStops);

  // Texts are UTF-8. Changed texts clear the selection; equal texts change nothing.
  void setItems(const std::vector<std::string>& texts);
  // -1 or an index out of range clears the selection.
  void setSelected(int item);
  int selected() const;  // -1 for none
  // In a read-only list the keyboard moves through the items without selecting them.
  void setReadOnly(bool readOnly);

  // A column that reaches the next stop moves the following columns to later stops; blanks at its end are ignored.
  TabbedColumns columnsOf(const QString& text) const;

  QSize sizeHint() const override;         // as wide as the widest item
  QSize minimumSizeHint() const override;  // the same width, and a few items high

 signals:
  // The user has selected another item. Not emitted for setSelected().
  void itemChosen(int item);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void changeEvent(QEvent* event) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;

 private:
  void reportChoice();
  int stopAfter(int position) const;
  int widestItem() const;

  std::vector<int> tabStops_;
  std::vector<std::string> texts_;
  int known_ = -1;  // the selected item that was last set or reported
  mutable int widest_ = -1;
};

}  // namespace gp
