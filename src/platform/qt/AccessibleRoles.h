// The accessible interfaces of widgets with a role set by setAccessibleRole.
#pragma once

#include <QAccessible>

class QWidget;

namespace gp {

// Returns the interface for the widget, which the caller owns; null if no role was set.
QAccessibleInterface* makeRoleInterface(QWidget* widget);

}  // namespace gp
