// Drop-down lists, filled from the tables of lists.
#pragma once

#include "document/ListTables.h"

#include <QString>

class QComboBox;
class QWidget;

namespace gp {

// A list that cannot be edited, with the entries that the tables have for its objectName.
QComboBox* makeList(QWidget* parent, const QString& objectName, const QString& accessibleName);

// The same with entries that the caller has; the list's control is its objectName.
QComboBox* makeList(QWidget* parent, const FilledList& list, const QString& accessibleName);

// The same without a visible label: screen readers find its name in a hidden one.
QComboBox* makeUnlabelledList(QWidget* parent, const QString& objectName, const QString& accessibleName);

}  // namespace gp
