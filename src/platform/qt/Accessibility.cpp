#include "platform/qt/Accessibility.h"

#include "platform/qt/AccessibleRoles.h"

#include <QAccessibleWidget>
#include <QWidget>

#include <utility>

namespace gp {
namespace {

// The accessible interface of a widget that paints its content. A read-only text reports it as text, with a caret that
// stays at the start; other widgets as description, which is what screen readers speak of a focused one. Reporting it
// in both ways would have it read twice.
class ValueInterface final : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  ValueInterface(QWidget* shown, const AccessibleValue& value)
      : QAccessibleWidget(shown, value.accessibleRole()), announced_(value.accessibleValue()) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface && isText()) return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }
  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Value) return value();
    if (kind == QAccessible::Description) return isText() || value() == name() ? QString() : value();
    return QAccessibleWidget::text(kind);
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    return state;
  }

  void announce() {
    const QString now = value();
    if (now == announced_) return;
    const QString before = std::exchange(announced_, now);
    if (isText()) {
      QAccessibleTextUpdateEvent change(widget(), 0, before, now);
      QAccessible::updateAccessibility(&change);
    } else {
      QAccessibleEvent change(widget(), QAccessible::DescriptionChanged);
      QAccessible::updateAccessibility(&change);
    }
  }

  int characterCount() const override { return static_cast<int>(value().size()); }
  QString text(int start, int end) const override { return value().mid(start, end - start); }
  int cursorPosition() const override { return 0; }
  void setCursorPosition(int) override {}
  int selectionCount() const override { return 0; }
  void selection(int, int* start, int* end) const override { *start = *end = 0; }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  void scrollToSubstring(int, int) override {}
  QRect characterRect(int) const override { return rect(); }
  int offsetAtPoint(const QPoint&) const override { return 0; }
  QString attributes(int, int* start, int* end) const override {
    *start = 0;
    *end = characterCount();
    return {};
  }

 private:
  bool isText() const { return role() == QAccessible::StaticText; }
  QString name() const { return QAccessibleWidget::text(QAccessible::Name); }
  // Queried on each call: while a widget is being destroyed, its value is gone before its interface.
  QString value() const {
    const auto* shown = dynamic_cast<const AccessibleValue*>(object());
    return shown ? shown->accessibleValue() : QString();
  }

  QString announced_;
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
  auto* widget = qobject_cast<QWidget*>(object);
  if (!widget) return nullptr;
  const auto* value = dynamic_cast<const AccessibleValue*>(object);
  return value ? new ValueInterface(widget, *value) : makeRoleInterface(widget);
}

}  // namespace

void installAccessibility() { QAccessible::installFactory(makeInterface); }

void makeGroup(QWidget* widget, const QString& name, QAccessible::Role role) {
  setAccessibleRole(widget, role);
  widget->setAccessibleName(name);
}

void hideFromAccessibility(QWidget* widget) { setAccessibleRole(widget, QAccessible::NoRole); }

void setDescription(QWidget* widget, const QString& description) {
  if (widget->accessibleDescription() != description) widget->setAccessibleDescription(description);
}

void accessibleValueChanged(QWidget* widget) {
  if (!QAccessible::isActive()) return;
  auto* shown = dynamic_cast<ValueInterface*>(QAccessible::queryAccessibleInterface(widget));
  if (shown) shown->announce();
}

}  // namespace gp
