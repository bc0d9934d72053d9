// Accessibility of the program's own widgets. A widget class that paints its content inherits AccessibleValue besides
// QWidget: its accessible name is the one set with setAccessibleName, and its content is reported both as text and as
// description. None of this code runs while no assistive technology is active.
#pragma once

#include <QAccessible>
#include <QString>

class QWidget;

namespace gp {

class AccessibleValue {
 public:
  virtual ~AccessibleValue() = default;
  // Returns what the widget currently shows, in words.
  virtual QString accessibleValue() const = 0;
  virtual QAccessible::Role accessibleRole() const { return QAccessible::StaticText; }
};

// Must be called once, before the first window is created.
void installAccessibility();

// Reports that the value of a widget with AccessibleValue has changed. Does nothing without assistive technology.
void accessibleValueChanged(QWidget* widget);

}  // namespace gp
