#include "platform/qt/widgets/PictureButton.h"
#include "shell/CommandTable.h"
#include "ui/FormFixture.h"

#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QShortcut>

namespace gp {
namespace {

class Menus : public test::FormFixture {
 protected:
  QStringList entriesOf(const QString& menu) {
    QStringList entries;
    for (const QAction* action : find<QMenu>(menu)->actions())
      entries << (action->isSeparator() ? QString("-") : action->objectName());
    return entries;
  }
};

TEST_F(Menus, EveryCommandStandsInItsMenuWithCaptionKeyAndState) {
  start();
  for (const Command& command : commandTable()) {
    const QString name = toText(objectNameOf(command.control, command.index));
    const auto* action = find<QAction>(name);
    ASSERT_TRUE(action);
    EXPECT_TRUE(find<QMenu>(command.parent)->actions().contains(const_cast<QAction*>(action))) << name.toStdString();
    if (action->isSeparator()) continue;
    EXPECT_EQ(action->text().toStdString(), captionOf(command, shell));
    EXPECT_EQ(action->shortcut(), QKeySequence(command.key)) << name.toStdString();
    EXPECT_EQ(action->isVisible(), isVisible(command, shell)) << name.toStdString();
    EXPECT_EQ(action->isEnabled(), action->isVisible() && isEnabled(command, shell)) << name.toStdString();
    EXPECT_EQ(action->menu() != nullptr, isSubMenu(command));
  }
}

TEST_F(Menus, TheBarShowsAllTopMenusButThePopUp) {
  start();
  QStringList captions;
  for (const QAction* action : form->menuBar()->actions()) captions << action->text();
  EXPECT_EQ(captions.join('|').toStdString(),
            "&File|&Toolbox|&Edit|&Rotate|Effe&cts|&Brush|&Palette|I&nquiry|&Options|E&xtract|Ani&mation|&Alpha|&Help");
}

TEST_F(Menus, SeparatorsStandWhereAnIndexIsSkipped) {
  start();
  EXPECT_EQ(entriesOf("mnuEdit").join(' ').toStdString(),
            "mnuEditSub(0) mnuEditSub(1) mnuEditSub(2) - mnuEditSub(4) mnuEditSub(5) mnuEditSub(6) mnuEditSub(7) "
            "mnuEditSub(8) mnuEditSub(9) - mnuEditSub(11) mnuEditSub(12) mnuEditSub(13)");
  EXPECT_EQ(entriesOf("mnuFile").mid(entriesOf("mnuFile").indexOf("mnuFileSub(20)")).join(' ').toStdString(),
            "mnuFileSub(20) - mnuFileSub(22) - mnuFileHistory(1) mnuFileHistory(2) mnuFileHistory(3) mnuFileHistory(4) "
            "mnuFileHistory(5) mnuFileHistory(6) - mnuFileExit");
  EXPECT_EQ(entriesOf("mnuANIFile").join(' ').toStdString(),
            "mnuANIFileCreateOrEdit - mnuANIFileHistory(1) mnuANIFileHistory(2) mnuANIFileHistory(3)");
}

TEST_F(Menus, AnEntryWithAKeyRunsByItEvenWhileItIsDisabledAndSaysWhyNot) {
  start();
  EXPECT_FALSE(find<QAction>("mnuFileSub(12)")->isEnabled());
  boxes.expectTold("No icon in Editing Area yet", BoxIcon::None);
  key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(boxes.done());
  key(Qt::Key_E, Qt::ControlModifier);
  EXPECT_EQ(state.current().size, 16);
  EXPECT_TRUE(state.current().present);
}

TEST_F(Menus, NoTwoCommandsThatRunShareAKey) {
  start();
  QStringList keys;
  for (const QShortcut* shortcut : form->findChildren<QShortcut*>()) keys << shortcut->key().toString();
  EXPECT_EQ(keys.removeDuplicates(), 0);
  EXPECT_TRUE(keys.contains("Ctrl+N"));
}

TEST_F(Menus, EntriesFollowTheStateOnceTheEventsAreThrough) {
  start();
  find<QAction>("mnuFileSub(2)")->trigger();
  settle();
  EXPECT_TRUE(find<QAction>("mnuFileSub(13)")->isEnabled());
  find<QAction>("mnuOptionsSubGrid(4)")->trigger();
  settle();
  EXPECT_TRUE(find<QAction>("mnuOptionsSubGrid(4)")->isChecked());
  EXPECT_FALSE(find<QAction>("mnuOptionsSubGrid(0)")->isChecked());
}

TEST_F(Menus, HistoryEntriesAppearWithTheirSeparator) {
  start();
  EXPECT_FALSE(find<QAction>("mnuFileHistory(0)")->isVisible());
  shell.AddHistory("/a/icon.ico");
  settle();
  EXPECT_TRUE(find<QAction>("mnuFileHistory(0)")->isVisible());
  EXPECT_EQ(find<QAction>("mnuFileHistory(1)")->text(), "&1 /a/icon.ico");
  EXPECT_FALSE(find<QAction>("mnuFileHistory(2)")->isVisible());
}

class Toolbar : public test::FormFixture {};

TEST_F(Toolbar, HasItsTwentySevenButtonsWithTooltipsAndPictures) {
  start();
  EXPECT_EQ(toolbarTable().size(), 27U);
  for (const ToolbarButton& row : toolbarTable()) {
    const auto* button = find<PictureButton>(QString("cmdTB(%1)").arg(row.index));
    EXPECT_EQ(button->toolTip(), row.tooltip);
    EXPECT_EQ(button->accessibleName(), row.tooltip);
    EXPECT_FALSE(button->icon().isNull()) << row.tooltip;
    EXPECT_EQ(button->size(), QSize(24, 24));
    EXPECT_EQ(button->isEnabled(), isEnabled(*findCommand(row.control, row.commandIndex), shell)) << row.tooltip;
  }
}

TEST_F(Toolbar, AButtonRunsItsCommandAndFollowsItsState) {
  start();
  EXPECT_FALSE(indexed("cmdTB", 4)->isEnabled());
  click("cmdTB(1)");
  EXPECT_EQ(state.current().size, 16);
  EXPECT_TRUE(indexed("cmdTB", 4)->isEnabled());
}

TEST_F(Toolbar, TabReachesItOnceAndArrowsMoveWithinIt) {
  start();
  int stops = 0;
  for (const ToolbarButton& row : toolbarTable()) stops += indexed("cmdTB", row.index)->focusPolicy() != Qt::NoFocus;
  EXPECT_EQ(stops, 1);
  indexed("cmdTB", 0)->setFocus(Qt::TabFocusReason);
  key(Qt::Key_Right);
  key(Qt::Key_Right);
  EXPECT_EQ(QApplication::focusWidget(), indexed("cmdTB", 2));
  key(Qt::Key_Home);
  EXPECT_EQ(QApplication::focusWidget(), indexed("cmdTB", 0));
  EXPECT_EQ(indexed("cmdTB", 2)->focusPolicy(), Qt::NoFocus);
}

class StatusBar : public test::FormFixture {};

TEST_F(StatusBar, ItsPanelsAreNamedAndTheirTextIsTheirValue) {
  startWithIcon(24);
  const char* names[] = {"File", "Headers", "Several icons", "Icon size", "Alpha"};
  for (int i = 0; i < kStatusPanelCount; ++i) EXPECT_EQ(indexed("lblStatusPanel", i)->accessibleName(), names[i]);
  EXPECT_EQ(valueOf(indexed("lblStatusPanel", 3)), "24 x 24");
  EXPECT_EQ(valueOf(indexed("lblStatusPanel", 0)).toStdString(), folder.file("icon.ico"));
  EXPECT_EQ(valueOf(indexed("lblStatusPanel", 4)), "");
  EXPECT_FALSE(find("imgAlphaOnStatusPanel")->isVisible());
}

TEST_F(StatusBar, ProgressShowsOnlyWhileThereIsSome) {
  start();
  const QRect place = find("picProgressContainer")->geometry();
  state.screen.progressPercent = 40;
  display.changed(DisplayPart::StatusBar);
  auto* bar = find("picProgressContainer")->findChild<QProgressBar*>();
  ASSERT_TRUE(bar);
  EXPECT_TRUE(bar->isVisible());
  state.screen.progressPercent = -1;
  display.changed(DisplayPart::StatusBar);
  EXPECT_FALSE(bar->isVisible());
  EXPECT_EQ(find("picProgressContainer")->geometry(), place);
}

}  // namespace
}  // namespace gp
