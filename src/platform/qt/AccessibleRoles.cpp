#include "platform/qt/AccessibleRoles.h"

#include "platform/qt/Accessibility.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAccessibleWidget>
#include <QProgressBar>
#include <QVariant>

#include <type_traits>

namespace gp {
namespace {

constexpr const char* kRoleProperty = "accessibleRole";
constexpr const char* kKeyProperty = "accessibleKey";

class RoleInterface : public QAccessibleWidget {
 public:
  RoleInterface(QWidget* shown, QAccessible::Role role) : QAccessibleWidget(shown, role) {}

  QString text(QAccessible::Text kind) const override {
    const QString text = QAccessibleWidget::text(kind);
    return kind == QAccessible::Description && text == QAccessibleWidget::text(QAccessible::Name) ? QString() : text;
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    if (role() == QAccessible::NoRole) state.invisible = true;
    return state;
  }
  // The entries of a list claim to be visible even while the list is hidden.
  int childCount() const override { return widget()->isVisible() ? QAccessibleWidget::childCount() : 0; }
};

class ButtonInterface final : public RoleInterface {
 public:
  ButtonInterface(QAbstractButton* shown, QAccessible::Role role) : RoleInterface(shown, role), button_(*shown) {}

  QAccessible::State state() const override {
    QAccessible::State state = RoleInterface::state();
    state.checkable = button_.isCheckable();
    state.checked = button_.isChecked();
    state.pressed = button_.isDown();
    return state;
  }
  QStringList actionNames() const override {
    QStringList names = RoleInterface::actionNames();
    if (button_.isEnabled()) names.prepend(button_.isCheckable() ? toggleAction() : pressAction());
    return names;
  }
  void doAction(const QString& name) override {
    if (name == pressAction() || name == toggleAction())
      button_.animateClick();
    else
      RoleInterface::doAction(name);
  }
  QStringList keyBindingsForAction(const QString& name) const override {
    const QString key = button_.property(kKeyProperty).toString();
    return name == setFocusAction() || key.isEmpty() ? QStringList() : QStringList(key);
  }

 private:
  QAbstractButton& button_;
};

// Of a QAbstractSlider or QProgressBar.
template <class Range>
class RangeInterface final : public RoleInterface, public QAccessibleValueInterface {
 public:
  RangeInterface(Range* shown, QAccessible::Role role) : RoleInterface(shown, role), range_(*shown) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return RoleInterface::interface_cast(type);
  }
  QVariant currentValue() const override { return range_.value(); }
  void setCurrentValue(const QVariant& value) override {
    if constexpr (std::is_base_of_v<QAbstractSlider, Range>) range_.setValue(value.toInt());
  }
  QVariant minimumValue() const override { return range_.minimum(); }
  QVariant maximumValue() const override { return range_.maximum(); }
  QVariant minimumStepSize() const override { return 1; }

 private:
  Range& range_;
};

}  // namespace

void setAccessibleRole(QWidget* widget, QAccessible::Role role) {
  widget->setProperty(kRoleProperty, static_cast<int>(role));
  // Setting a text, which constructors do, has already made the interface of the former role.
  QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(QAccessible::queryAccessibleInterface(widget)));
}

void setAccessibleKey(QWidget* widget, const QString& key) { widget->setProperty(kKeyProperty, key); }

QAccessibleInterface* makeRoleInterface(QWidget* widget) {
  const QVariant stated = widget->property(kRoleProperty);
  if (!stated.isValid()) return nullptr;
  const auto role = static_cast<QAccessible::Role>(stated.toInt());
  if (auto* button = qobject_cast<QAbstractButton*>(widget)) return new ButtonInterface(button, role);
  if (auto* slider = qobject_cast<QAbstractSlider*>(widget)) return new RangeInterface(slider, role);
  if (auto* progress = qobject_cast<QProgressBar*>(widget)) return new RangeInterface(progress, role);
  return new RoleInterface(widget, role);
}

}  // namespace gp
