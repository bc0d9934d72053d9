// Drop-down lists as the tables of lists fill them.
#pragma once

#include <QString>

class QComboBox;
class QWidget;

namespace gp {

// A list that may be picked from, with the entries that the tables give it by its objectName.
QComboBox* makeList(QWidget* parent, const QString& objectName, const QString& accessibleName);

}  // namespace gp
