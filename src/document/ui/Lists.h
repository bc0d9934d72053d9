// Drop-down lists, filled from the tables of lists.
#pragma once

#include "document/ListTables.h"

#include <QString>

#include <string>
#include <vector>

class QComboBox;
class QWidget;

namespace gp {

// A list that cannot be edited, with the entries that the tables have for its objectName.
QComboBox* makeList(QWidget* parent, const QString& objectName, const QString& accessibleName);

// The same with entries that the caller has; the list's control is its objectName.
QComboBox* makeList(QWidget* parent, const FilledList& list, const QString& accessibleName);

// The same without a visible label: screen readers find its name in a hidden one.
QComboBox* makeUnlabelledList(QWidget* parent, const QString& objectName, const QString& accessibleName);

// Replaces the entries of a list where they differ; an open list is not disturbed otherwise. The list may then show
// another entry.
void showEntries(QComboBox* list, const std::vector<std::string>& entries);

}  // namespace gp
