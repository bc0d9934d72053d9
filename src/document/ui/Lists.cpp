#include "document/ui/Lists.h"

#include "platform/qt/PathText.h"

#include <QComboBox>
#include <QLabel>

namespace gp {
namespace {

constexpr int kVisibleItems = 12;

QStringList toTexts(const std::vector<std::string>& entries) {
  QStringList texts;
  for (const std::string& entry : entries) texts << toText(entry);
  return texts;
}

QStringList entriesOf(const QComboBox* list) {
  QStringList texts;
  for (int i = 0; i < list->count(); ++i) texts << list->itemText(i);
  return texts;
}

}  // namespace

QComboBox* makeList(QWidget* parent, const QString& objectName, const QString& accessibleName) {
  return makeList(parent, fillList(objectName.toStdString()), accessibleName);
}

QComboBox* makeList(QWidget* parent, const FilledList& list, const QString& accessibleName) {
  auto* combo = new QComboBox(parent);
  combo->setObjectName(toText(list.control));
  combo->setAccessibleName(accessibleName);
  combo->setMaxVisibleItems(kVisibleItems);
  combo->addItems(toTexts(list.entries));
  combo->setCurrentIndex(list.first);
  return combo;
}

// The accessible name of a list is the entry it shows. Its purpose is stated only by its label.
QComboBox* makeUnlabelledList(QWidget* parent, const QString& objectName, const QString& accessibleName) {
  QComboBox* combo = makeList(parent, objectName, accessibleName);
  auto* label = new QLabel(accessibleName, parent);
  label->setBuddy(combo);
  label->hide();
  return combo;
}

void showEntries(QComboBox* list, const std::vector<std::string>& entries) {
  const QStringList texts = toTexts(entries);
  if (entriesOf(list) == texts) return;
  list->clear();
  list->addItems(texts);
}

}  // namespace gp
