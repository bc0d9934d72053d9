#include "shell/CommandTable.h"
#include "shell/FormPlacement.h"
#include "ui/FormFixture.h"

#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPalette>

namespace gp {
namespace {

class MainFormTest : public test::FormFixture {
 protected:
  // The positions on the form of all controls that must never move.
  std::map<QString, QRect> places() {
    std::map<QString, QRect> result;
    for (const QWidget* widget : form->findChildren<QWidget*>()) {
      const QString name = widget->objectName();
      for (const char* fixed : {"cmdTB", "picPanelIcon", "lblPanelIcon", "imgTool", "imgClear", "imgColorPicker",
                                "PicIcon", "picDispContainer", "lblStatusPanel", "fraPanel", "imgGet", "picColorToUse"})
        if (name.startsWith(fixed)) result[name] = QRect(widget->mapTo(form.get(), QPoint()), widget->size());
    }
    return result;
  }
};

TEST_F(MainFormTest, StartsAtItsSmallestSizeWithRoomForTheEditingArea) {
  start();
  EXPECT_EQ(form->size(), QSize(kFormWidth / kTwipsPerPixel, kFormHeight / kTwipsPerPixel));
  EXPECT_EQ(form->size(), QSize(793, 576));
  EXPECT_GE(find("picDispContainer")->width(), 400);
  EXPECT_GE(find("picDispContainer")->height(), 400);
  EXPECT_EQ(find("picDisp")->size(), QSize(384, 384));
  form->resize(100, 100);
  EXPECT_EQ(form->size(), QSize(793, 576));
}

TEST_F(MainFormTest, AtItsSmallestSizeEveryVisibleControlLiesInsideItsParent) {
  start();
  for (const QWidget* widget : form->findChildren<QWidget*>()) {
    if (!widget->isVisible() || widget->isWindow()) continue;
    EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry())) << widget->objectName().toStdString();
  }
}

TEST_F(MainFormTest, AWiderWindowGivesItsSpaceToTheEditingAreaWhichEnlargesFrom520On) {
  startWithIcon(32);
  const int panelWidth = find("fraPanel(0)")->width();
  const int roomWidth = find("picDispContainer")->width();
  form->resize(793 + 200, 576 + 200);
  settle();
  EXPECT_EQ(find("fraPanel(0)")->width(), panelWidth);
  EXPECT_EQ(find("picDispContainer")->width(), roomWidth + 200);
  EXPECT_EQ(state.gMagnification, 15);
  EXPECT_EQ(find("picDisp")->size(), QSize(480, 480));
}

TEST_F(MainFormTest, NothingMovesWhenIconsOfOtherSizesComeUpOrChartsChange) {
  start();
  const auto before = places();
  EXPECT_GT(before.size(), 60U);
  for (const char* entry : {"mnuFileSub(4)", "mnuFileSub(3)"}) {
    find<QAction>(entry)->trigger();
    settle();
    EXPECT_EQ(places(), before) << entry;
  }
  for (const char* button : {"imgGet256ColorChart", "imgGetDirectEntryColor", "imgGet16ColorChart"}) {
    click(button);
    EXPECT_EQ(places(), before) << button;
  }
}

TEST_F(MainFormTest, TheFileOfTheCommandLineOpensOnceTheFormIsSeen) {
  form = std::make_unique<frmGPEdit>(shell, display, folder.write("a.ico", test::plainIconFile(16, 3)));
  shell.formLoad();
  EXPECT_FALSE(state.current().used);
  form->show();
  EXPECT_TRUE(QTest::qWaitFor([&] { return state.current().present; }));
}

TEST_F(MainFormTest, ClosingAsksAboutUnsavedIconsAndNoKeepsTheFormOpen) {
  start();
  find<QAction>("mnuFileSub(2)")->trigger();
  EXPECT_EQ(shell.selectedTool(), kPaint) << "a new icon is there to be painted on";
  QTest::mouseClick(find("picDisp"), Qt::LeftButton, {}, middleOf(1, 1));
  const std::string question = "The following is not saved yet: \n\nIcon Seq 1    Untitled\n\nProceed to exit still?\n";
  boxes.expectAsked(question, BoxAnswer::No);
  EXPECT_FALSE(form->close());
  EXPECT_TRUE(form->isVisible());
  boxes.expectAsked(question, BoxAnswer::Yes);
  find<QAction>("mnuFileExit")->trigger();
  EXPECT_FALSE(form->isVisible());
}

TEST_F(MainFormTest, TellsItsPlaceInTwips) {
  start();
  form->setPlace({30 * kTwipsPerPixel, 45 * kTwipsPerPixel, 900 * kTwipsPerPixel, 700 * kTwipsPerPixel, false, false});
  EXPECT_EQ(form->pos(), QPoint(30, 45));
  EXPECT_EQ(form->size(), QSize(900, 700));
  EXPECT_EQ(form->place().left, 450);
  EXPECT_EQ(form->place().width, 13500);
  form->maximize();
  EXPECT_TRUE(form->place().maximized);
  EXPECT_EQ(form->place().width, 13500) << "the size that a window returns to";
}

TEST_F(MainFormTest, EveryControlThatTakesTheFocusHasANameForAssistiveTechnology) {
  start();
  for (QWidget* widget : form->findChildren<QWidget*>()) {
    if (widget->focusPolicy() == Qt::NoFocus || widget->isWindow()) continue;
    if (widget->parentWidget() && widget->parentWidget()->inherits("QComboBox")) continue;
    const QString name = QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
    EXPECT_FALSE(name.isEmpty()) << widget->objectName().toStdString();
  }
}

TEST_F(MainFormTest, TabFollowsTheEyeFromTheToolbarToTheColourPanel) {
  start();
  find("cmdTB(0)")->setFocus(Qt::TabFocusReason);
  QStringList visited;
  for (int i = 0; i < 8; ++i) {
    visited << QApplication::focusWidget()->objectName();
    key(Qt::Key_Tab);
  }
  EXPECT_EQ(visited.join(' ').toStdString(),
            "cmdTB(0) picPanelIcon(0) imgUpdIconsPanel imgTool(4) imgShiftDir(1) picDisp picColorToUse cboBrushSize");
}

TEST_F(MainFormTest, TheHourglassCoversTheFormForAsLongAsTheWorkLasts) {
  start();
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
  state.screen.hourglass = true;
  display.changed(DisplayPart::Pointer);
  display.changed(DisplayPart::Pointer);
  ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
  state.screen.hourglass = false;
  display.changed(DisplayPart::Pointer);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

class MainFormLooks : public MainFormTest {
 protected:
  ~MainFormLooks() override { QApplication::setPalette(QPalette()); }
  void showWith48Icon() {
    startWithIcon(48);
    click("imgTool(4)");
    for (int i = 0; i < 48; ++i) {
      state.mCurrentColor = rgb(255 - i * 5, i * 5, 128);
      QTest::mouseClick(find("picDisp"), Qt::LeftButton, {}, middleOf(i, i));
    }
    settle();
  }
};

TEST_F(MainFormLooks, EmptyAtItsSmallestSize) {
  start();
  screenshot("main-empty");
}

TEST_F(MainFormLooks, WithAnIconAtItsSmallestSize) {
  showWith48Icon();
  screenshot("main-smallest");
}

TEST_F(MainFormLooks, WithAnIconAt1280By1024) {
  showWith48Icon();
  form->resize(1280, 1024);
  settle();
  screenshot("main-1280x1024");
}

TEST_F(MainFormLooks, OnADarkDesktop) {
  QPalette dark(QColor(0x30, 0x32, 0x36));
  dark.setColor(QPalette::Base, QColor(0x22, 0x24, 0x28));
  QApplication::setPalette(dark);
  showWith48Icon();
  find("imgTool(5)")->setFocus(Qt::TabFocusReason);
  screenshot("main-dark");
}

TEST_F(MainFormLooks, WithDirectEntryAndAnOpenMenu) {
  showWith48Icon();
  click("imgGetDirectEntryColor");
  screenshot("main-direct-entry");
  auto* menu = find<QMenu>("mnuFile");
  menu->popup(QPoint(0, 0));
  settle();
  EXPECT_TRUE(menu->grab().save(GP_BINARY_DIR "/screens/menu-file.png"));
  menu->close();
}

TEST_F(MainFormTest, DeleteErasesTheRegionAndEscClosesThePanel) {
  startWithIcon(32);
  shell.run(*findCommand("mnuTools", 14));
  QTest::mousePress(find("picDisp"), Qt::LeftButton, {}, middleOf(2, 2));
  QTest::mouseMove(find("picDisp"), middleOf(6, 6));
  QTest::mouseRelease(find("picDisp"), Qt::LeftButton, {}, middleOf(6, 6));
  ASSERT_TRUE(state.mRegionExists);
  find("picDisp")->setFocus();
  key(Qt::Key_Delete);
  EXPECT_FALSE(state.mRegionExists);
  EXPECT_EQ(state.picMask.GetPixel(4, 4), kWhite);
  shell.run(*findCommand("mnuRotateSubmenu", 4));
  settle();
  find("picDisp")->setFocus();
  key(Qt::Key_Escape);
  EXPECT_EQ(state.screen.mActivePanel, 0);
}

}  // namespace
}  // namespace gp
