// Accessibility of the program's own widgets. A widget class that paints its content inherits AccessibleValue besides
// QWidget: its accessible name is the one set with setAccessibleName, and its content is reported as text if the widget
// is a static text, otherwise as description. Other widgets get a role by setAccessibleRole. None of this code runs
// while no assistive technology is active.
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

// Gives a widget another role than that of its class: a group, a radio button, a live region. A button of that role
// reports whether it is checked and can be pressed; a slider or progress bar reports its value. Its tooltip is its
// description, unless it only repeats the name. Must be called before the
// widget is shown.
void setAccessibleRole(QWidget* widget, QAccessible::Role role);
// The same for a container of controls, with its name.
void makeGroup(QWidget* widget, const QString& name, QAccessible::Role role = QAccessible::Grouping);
// Reports the key of a button with a role; the key itself is handled elsewhere.
void setAccessibleKey(QWidget* widget, const QString& key);
// Keeps a widget from assistive technology, because another one says the same.
void hideFromAccessibility(QWidget* widget);

// Sets the description. Reports only a change, which QWidget::setAccessibleDescription does not ensure.
void setDescription(QWidget* widget, const QString& description);

// Reports that the value of a widget with AccessibleValue has changed. Does nothing without assistive technology.
void accessibleValueChanged(QWidget* widget);

}  // namespace gp
