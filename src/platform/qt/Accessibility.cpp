#include "platform/qt/Accessibility.h"

#include <QAccessibleWidget>
#include <QWidget>

#include <utility>

namespace gp {
namespace {

// The accessible interface of a read-only text: the whole value, with a caret that stays at the start.
class ValueInterface final : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  ValueInterface(QWidget* shown, const AccessibleValue& value)
      : QAccessibleWidget(shown, value.accessibleRole()), announced_(value.accessibleValue()) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }
  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Value || kind == QAccessible::Description) return value();
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
    QAccessibleTextUpdateEvent textChange(widget(), 0, before, now);
    QAccessible::updateAccessibility(&textChange);
    QAccessibleEvent descriptionChange(widget(), QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&descriptionChange);
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
  // Queried on each call: while a widget is being destroyed, its value is gone before its interface.
  QString value() const {
    const auto* shown = dynamic_cast<const AccessibleValue*>(object());
    return shown ? shown->accessibleValue() : QString();
  }

  QString announced_;
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
  const auto* value = dynamic_cast<const AccessibleValue*>(object);
  return value ? new ValueInterface(static_cast<QWidget*>(object), *value) : nullptr;
}

}  // namespace

void installAccessibility() { QAccessible::installFactory(makeInterface); }

void accessibleValueChanged(QWidget* widget) {
  if (!QAccessible::isActive()) return;
  auto* shown = dynamic_cast<ValueInterface*>(QAccessible::queryAccessibleInterface(widget));
  if (shown) shown->announce();
}

}  // namespace gp
