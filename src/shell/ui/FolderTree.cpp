#include "shell/ui/FolderTree.h"

#include "platform/qt/PathText.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QStyle>

namespace gp {
namespace {

constexpr int kPathRole = Qt::UserRole;
constexpr int kIndentation = 14;  // pixels per level

QTreeWidgetItem* makeItem(const FolderRow& row, const QIcon& icon) {
  auto* item = new QTreeWidgetItem({toText(row.name)});
  item->setIcon(0, icon);
  item->setData(0, kPathRole, pathToText(row.path));
  // Escaped, because rich text would drop parts of a name that look like a tag.
  item->setToolTip(0, pathToText(row.path).toHtmlEscaped());
  return item;
}

}  // namespace

FolderTree::FolderTree(QWidget* parent) : QTreeWidget(parent) {
  setColumnCount(1);
  setHeaderHidden(true);
  setRootIsDecorated(false);
  setItemsExpandable(false);
  setIndentation(kIndentation);
  setTextElideMode(Qt::ElideMiddle);
  setUniformRowHeights(true);
  connect(this, &QTreeWidget::itemDoubleClicked, this, &FolderTree::openCurrent);
}

void FolderTree::setRows(const std::vector<FolderRow>& rows) {
  clear();
  const QIcon icons[] = {style()->standardIcon(QStyle::SP_DirClosedIcon),
                         style()->standardIcon(QStyle::SP_DirOpenIcon)};
  QTreeWidgetItem* innermost = nullptr;
  for (const FolderRow& row : rows) {
    QTreeWidgetItem* item = makeItem(row, icons[row.isOpen ? 1 : 0]);
    if (innermost)
      innermost->addChild(item);
    else
      addTopLevelItem(item);
    if (row.isOpen) innermost = item;
  }
  expandAll();
  setCurrentItem(innermost);
  chosen_ = innermost;
}

// The view would forward Enter to the form's default button.
void FolderTree::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      enterCurrent();
      break;
    case Qt::Key_Backspace:
      emit upRequested();
      break;
    default:
      QTreeWidget::keyPressEvent(event);
  }
}

void FolderTree::enterCurrent() {
  if (currentItem() && currentItem() == chosen_)
    emit acceptRequested();
  else
    openCurrent();
}

void FolderTree::openCurrent() {
  if (const QTreeWidgetItem* item = currentItem()) emit openRequested(item->data(0, kPathRole).toString());
}

}  // namespace gp
