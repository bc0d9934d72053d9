#include "document/ui/Lists.h"

#include "document/ListTables.h"
#include "platform/qt/PathText.h"

#include <QComboBox>
#include <QListView>

namespace gp {
namespace {

constexpr int kVisibleItems = 12;

}  // namespace

QComboBox* makeList(QWidget* parent, const QString& objectName, const QString& accessibleName) {
  auto* combo = new QComboBox(parent);
  combo->setObjectName(objectName);
  combo->setAccessibleName(accessibleName);
  combo->setMaxVisibleItems(kVisibleItems);
  if (auto* view = qobject_cast<QListView*>(combo->view())) view->setUniformItemSizes(true);
  const FilledList list = fillList(objectName.toStdString());
  for (const std::string& entry : list.entries) combo->addItem(toText(entry));
  combo->setCurrentIndex(list.first);
  return combo;
}

}  // namespace gp
