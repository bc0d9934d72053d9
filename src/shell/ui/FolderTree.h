// DirListBox1: the folders on the path to the chosen one, the chosen one, and the folders in it. A double click or
// Enter requests to open a folder, Enter on the chosen one to accept it, Backspace to go up.
#pragma once

#include "shell/DirChooser.h"

#include <QTreeWidget>

#include <string>
#include <vector>

namespace gp {

class FolderTree final : public QTreeWidget {
  Q_OBJECT

 public:
  explicit FolderTree(QWidget* parent);

  // Shows the rows and selects the innermost open folder.
  void setRows(const std::vector<FolderRow>& rows);

 signals:
  void openRequested(const QString& path);
  void upRequested();
  void acceptRequested();

 protected:
  // Draws no expand signs, because rows cannot be collapsed.
  void drawBranches(QPainter*, const QRect&, const QModelIndex&) const override {}
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void enterCurrent();
  void openCurrent();

  const QTreeWidgetItem* chosen_ = nullptr;  // the innermost open folder
};

}  // namespace gp
