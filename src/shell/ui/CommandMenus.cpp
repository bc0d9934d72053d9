#include "shell/ui/CommandMenus.h"

#include "platform/qt/PathText.h"
#include "platform/qt/Pictures.h"
#include "shell/Shell.h"

#include <QAction>
#include <QHelpEvent>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QToolTip>

#include <algorithm>
#include <string_view>

namespace gp {
namespace {

constexpr std::string_view kHistoryEnding = "History";

// The history entry with index 0 is its separator.
bool isHistorySeparator(const Command& command) {
  return command.index == 0 && std::string_view(command.control).ends_with(kHistoryEnding);
}

// Each separator occupies an index of its array; another control also starts a group.
bool startsGroup(const Command& before, const Command& command) {
  if (isHistorySeparator(command)) return false;
  if (std::string_view(before.control) != command.control) return true;
  return command.index > before.index + 1;
}

QString nameOf(const Command& command) { return toText(objectNameOf(command.control, command.index)); }

}  // namespace

CommandMenus::CommandMenus(QWidget* form, QMenuBar* bar, Shell& shell) : QObject(form), shell_(shell) {
  for (const TopMenu& top : topMenus()) addTopMenu(top, form, bar);
  for (const Command& command : commandTable()) addKey(command, form);
  refresh();
}

void CommandMenus::addTopMenu(const TopMenu& top, QWidget* form, QMenuBar* bar) {
  auto* menu = new QMenu(toText(top.caption), form);
  menu->setObjectName(top.control);
  menu->menuAction()->setObjectName(top.control);
  fill(menu);
  menu->installEventFilter(this);
  connect(menu, &QMenu::aboutToShow, this, &CommandMenus::refresh);
  if (top.inMenuBar)
    bar->addMenu(menu);
  else
    popUp_ = menu;
}

QMenu* CommandMenus::fill(QMenu* menu) {
  const std::string parent = menu->objectName().toStdString();
  const Command* before = nullptr;
  for (const Command& command : commandTable()) {
    if (parent != command.parent) continue;
    if (before && startsGroup(*before, command)) menu->addSeparator();
    addEntry(menu, command);
    before = &command;
  }
  return menu;
}

void CommandMenus::addEntry(QMenu* menu, const Command& command) {
  QAction* action = nullptr;
  if (isHistorySeparator(command)) {
    action = menu->addSeparator();
  } else if (isSubMenu(command)) {
    auto* sub = new QMenu(menu);
    sub->setObjectName(nameOf(command));
    action = menu->addMenu(fill(sub));
  } else {
    action = new QAction(menu);
    menu->addAction(action);
    action->setCheckable(command.checked != nullptr);
    connect(action, &QAction::triggered, this, [this, &command] { run(command); });
  }
  action->setObjectName(nameOf(command));
  if (*command.picture) action->setIcon(Pictures::icon(command.picture));
  if (*command.key) {
    // For display and assistive technology only: a QShortcut, which is independent of the entry, handles the key.
    action->setShortcut(QKeySequence(command.key));
    action->setShortcutContext(Qt::WidgetShortcut);
  }
  entries_.push_back({&command, action});
}

// A key works even while its entry is disabled: the command then shows why it cannot run.
void CommandMenus::addKey(const Command& command, QWidget* form) {
  if (!*command.key || !command.run) return;
  auto* key = new QShortcut(QKeySequence(command.key), form);
  connect(key, &QShortcut::activated, this, [this, &command] { run(command); });
}

void CommandMenus::run(const Command& command) {
  shell_.run(command);
  emit commandRan();
}

void CommandMenus::refresh() {
  for (const auto& [command, action] : entries_) {
    const bool separator = action->isSeparator();
    action->setVisible(isVisible(*command, shell_));
    if (separator) continue;
    action->setText(toText(captionOf(*command, shell_)));
    if (const std::string path = historyPathOf(*command, shell_); !path.empty())
      action->setToolTip(pathToText(path).toHtmlEscaped());
    action->setEnabled(isEnabled(*command, shell_));
    if (action->isCheckable()) action->setChecked(isChecked(*command, shell_));
  }
}

bool CommandMenus::eventFilter(QObject* menu, QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QObject::eventFilter(menu, event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const auto* hovered = static_cast<QMenu*>(menu)->actionAt(help->pos());
  const auto entry = std::ranges::find(entries_, hovered, &Entry::action);
  if (entry == entries_.end() || historyPathOf(*entry->command, shell_).empty()) return false;
  QToolTip::showText(help->globalPos(), hovered->toolTip(), static_cast<QMenu*>(menu));
  return true;
}

}  // namespace gp
