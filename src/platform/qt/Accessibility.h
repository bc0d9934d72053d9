// What the program's own widgets tell assistive technology. A widget class that paints its content inherits
// AccessibleValue beside QWidget: its accessible name stays what setAccessibleName gave it, and its content is offered
// both as text and as description. Nothing of this runs while no assistive technology is there.
#pragma once

#include <QAccessible>
#include <QString>

class QWidget;

namespace gp {

class AccessibleValue {
 public:
  virtual ~AccessibleValue() = default;
  // What the widget shows at this moment, in words.
  virtual QString accessibleValue() const = 0;
  virtual QAccessible::Role accessibleRole() const { return QAccessible::StaticText; }
};

// Once, before the first window.
void installAccessibility();

// The value of a widget that inherits AccessibleValue is another one now. Does nothing when nobody listens.
void accessibleValueChanged(QWidget* widget);

}  // namespace gp
