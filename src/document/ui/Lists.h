// Combo boxes filled from the list tables.
#pragma once

#include <QString>

class QComboBox;
class QWidget;

namespace gp {

// Returns a combo box that cannot be edited, with the entries that the tables have for its objectName.
QComboBox* makeList(QWidget* parent, const QString& objectName, const QString& accessibleName);

// The same for a list without a visible label: screen readers read its name from a hidden label.
QComboBox* makeUnlabelledList(QWidget* parent, const QString& objectName, const QString& accessibleName);

}  // namespace gp
