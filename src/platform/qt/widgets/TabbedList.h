// A list of one-line texts with tabs in them, which stand in columns at tab stops. One item can be selected, by mouse
// or keyboard, and there is no way to select none again; a list for reading only lets nothing be selected. It owns its
// texts. Assistive technology hears an item's columns with commas between them.
#pragma once

#include <QListWidget>

#include <string>
#include <vector>

namespace gp {

// Where the columns of an item begin, and where the last one ends, in pixels.
struct TabbedColumns {
  std::vector<int> begins;
  int end = 0;
};

class TabbedList final : public QListWidget {
  Q_OBJECT

 public:
  // Tab stops are in dialog units: quarters of the font's average letter. They rise; after the last one more follow
  // at the distance of the last two.
  TabbedList(QWidget* parent, const QString& objectName, const QString& accessibleName, std::vector<int> tabStops);

  // Texts are UTF-8. Other texts than before come with nothing selected, equal ones change nothing.
  void setItems(const std::vector<std::string>& texts);
  // -1 selects nothing, as does an item that is not there.
  void setSelected(int item);
  int selected() const;  // -1 for none
  // For reading only: the keyboard moves through it, nothing gets selected.
  void setReadOnly(bool readOnly);

  // A column that reaches the next stop pushes what follows to the one after; blanks at its end count for nothing.
  TabbedColumns columnsOf(const QString& text) const;

  QSize sizeHint() const override;         // as wide as the widest item
  QSize minimumSizeHint() const override;  // as wide, and some items high

 signals:
  // The user has selected another item. Never sent for what the program selects.
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
  void tellChoice();
  int stopBehind(int position) const;
  int widestItem() const;

  std::vector<int> tabStops_;
  std::vector<std::string> texts_;
  int known_ = -1;  // the selected item as the program knows it
  mutable int widest_ = -1;
};

}  // namespace gp
