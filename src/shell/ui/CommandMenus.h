// The menu bar and the pop-up menu, created from the command table, and the commands' keys. refresh() reads captions,
// enabling and ticks from the table.
#pragma once

#include "shell/CommandTable.h"

#include <QObject>

#include <vector>

class QAction;
class QMenu;
class QMenuBar;
class QWidget;

namespace gp {

class Shell;

class CommandMenus : public QObject {
  Q_OBJECT

 public:
  // `form` owns menus and keys.
  CommandMenus(QWidget* form, QMenuBar* bar, Shell& shell);

  QMenu* popUpMenu() const { return popUp_; }
  // Updates all entries.
  void refresh();

  // Shows the tooltips of history entries, and of no others: those would only repeat the captions.
  bool eventFilter(QObject* menu, QEvent* event) override;

 signals:
  // A command has run from a menu or by its key.
  void commandRan();

 private:
  struct Entry {
    const Command* command;
    QAction* action;
  };

  void addTopMenu(const TopMenu& top, QWidget* form, QMenuBar* bar);
  QMenu* fill(QMenu* menu);
  void addEntry(QMenu* menu, const Command& command);
  void addKey(const Command& command, QWidget* form);
  void run(const Command& command);

  Shell& shell_;
  QMenu* popUp_ = nullptr;
  std::vector<Entry> entries_;
};

}  // namespace gp
