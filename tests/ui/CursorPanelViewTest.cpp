// The panel "Save as cursor" on the main form, used by mouse and keyboard.
#include "document/PanelNumbers.h"
#include "ui/FormFixture.h"
#include "ui/Screens.h"

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>

namespace gp {
namespace {

constexpr int kBlinkMilliseconds = 900;
constexpr int kSize = 32;
constexpr int kColorIndex = 5;

// An opaque cursor of 16 colours, all pixels of one colour.
std::string cursorFile(int hotspotX, int hotspotY) {
  constexpr std::size_t kType = 2, kX = 10, kY = 12;
  std::string bytes = test::plainIconFile(kSize, kColorIndex);
  bytes[kType] = 2;
  bytes[kX] = static_cast<char>(hotspotX);
  bytes[kY] = static_cast<char>(hotspotY);
  return bytes;
}

class CursorPanelViewTest : public test::FormFixture {
 protected:
  void startWithPanel(int hotspotX = 7, int hotspotY = 30) {
    start(folder.write("hand.cur", cursorFile(hotspotX, hotspotY)));
    find<QAction>("mnuFileSub(18)")->trigger();
    settle();
    pump.waitedMilliseconds = 0;
  }
  QComboBox* list(int index) { return find<QComboBox>(QString("cboCursorHotSpot(%1)").arg(index)); }
  std::pair<int, int> lists() { return {list(0)->currentIndex(), list(1)->currentIndex()}; }
  std::pair<int, int> spot() { return {shell.files().cursorFiles.hotspotX(), shell.files().cursorFiles.hotspotY()}; }
  // The label of a list; its accessible name is its content.
  static QString labelOf(QWidget* control) {
    const auto related = QAccessible::queryAccessibleInterface(control)->relations(QAccessible::Label);
    return related.isEmpty() ? QString() : related.first().first->text(QAccessible::Name);
  }
  void expectSpot(int x, int y) {
    EXPECT_EQ(spot(), std::pair(x, y));
    EXPECT_EQ(lists(), std::pair(x, y));
  }
  void clickArea(int x, int y) {
    QTest::mouseClick(find("picDisp"), Qt::LeftButton, {}, middleOf(x, y));
    settle();
  }
  QRgb shownAt(int x, int y) { return find("picDisp")->grab().toImage().pixel(middleOf(x, y)); }
  bool isPanelUp() { return state.screen.mActivePanel == kCursorPanel && find("fraPanel(2)")->isVisible(); }
};

TEST_F(CursorPanelViewTest, TheCommandBringsItUpWithTheHotSpotOfTheCursor) {
  startWithPanel();
  EXPECT_TRUE(isPanelUp());
  EXPECT_FALSE(find("fraPanel(0)")->isVisible());
  EXPECT_EQ(find("fraPanel(2)")->accessibleName(), "Save as cursor");
  EXPECT_EQ(find("fraPanel(2)")->findChild<QLabel*>()->text(), "Save as cursor");
  EXPECT_EQ(find("cmdCancel")->toolTip(), "Close/cancel");
  expectSpot(7, 30);
}

TEST_F(CursorPanelViewTest, TheListsFollowAnIconThatIsOpenedUnderIt) {
  startWithPanel();
  bool ok = false;
  shell.doOpenIconFileQuietly(folder.write("other.ico", test::plainIconFile(32, 3)), ok);
  settle();
  ASSERT_TRUE(isPanelUp());
  expectSpot(0, 0);
}

TEST_F(CursorPanelViewTest, BothListsHoldZeroTo31AndEveryControlHasAName) {
  startWithPanel();
  for (const int index : {0, 1}) {
    ASSERT_EQ(list(index)->count(), 32);
    EXPECT_EQ(list(index)->itemText(0), "0");
    EXPECT_EQ(list(index)->itemText(31), "31");
    EXPECT_FALSE(list(index)->isEditable());
  }
  EXPECT_EQ(labelOf(list(0)), "Hot spot X:");
  EXPECT_EQ(labelOf(list(1)), "Hot spot Y:");
  QStringList names;
  for (const char* button : {"cmdShowHotspot", "cmdProceed", "cmdCancel"})
    names << QAccessible::queryAccessibleInterface(find(button))->text(QAccessible::Name);
  EXPECT_EQ(names, (QStringList{"Show hotspot", "Proceed", "Close"}));
}

TEST_F(CursorPanelViewTest, TheKeyboardChoosesInTheLists) {
  startWithPanel();
  EXPECT_EQ(QApplication::focusWidget(), list(0));
  key(Qt::Key_Up);
  key(Qt::Key_Tab);
  key(Qt::Key_End);
  expectSpot(6, 31);
  key(Qt::Key_Home);
  expectSpot(6, 0);
  QTest::keyClicks(list(1), "25");
  settle();
  expectSpot(6, 25);
  EXPECT_EQ(pump.waitedMilliseconds, 0) << "nothing blinks until it is asked for";
}

TEST_F(CursorPanelViewTest, TheMouseChoosesInTheLists) {
  startWithPanel();
  // Within the double click time, a list takes a release for that of the press which opened it.
  const int interval = QApplication::doubleClickInterval();
  QApplication::setDoubleClickInterval(1);
  for (const int index : {0, 1}) {
    QTest::mouseClick(list(index), Qt::LeftButton);
    settle();
    QAbstractItemView* items = list(index)->view();
    ASSERT_TRUE(items->isVisible());
    const QModelIndex item = items->model()->index(12 + index, 0);
    items->scrollTo(item);
    QTest::qWait(10);
    QTest::mouseClick(items->viewport(), Qt::LeftButton, {}, items->visualRect(item).center());
    settle();
  }
  QApplication::setDoubleClickInterval(interval);
  expectSpot(12, 13);
}

TEST_F(CursorPanelViewTest, TabFollowsTheEyeAndTheLettersLeadToTheLists) {
  startWithPanel();
  for (const char* name : {"cboCursorHotSpot(0)", "cboCursorHotSpot(1)", "cmdShowHotspot", "cmdProceed", "cmdCancel"}) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
    key(Qt::Key_Tab);
  }
  find("cmdCancel")->setFocus();
  key(Qt::Key_Y, Qt::AltModifier);
  EXPECT_EQ(QApplication::focusWidget(), list(1));
  key(Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(QApplication::focusWidget(), list(0));
}

TEST_F(CursorPanelViewTest, TheButtonShowsTheSpotOnTheEditingArea) {
  startWithPanel();
  list(0)->setFocus();
  key(Qt::Key_Home);
  const QRgb before = shownAt(0, 30);
  std::vector<QRgb> seen;
  std::function<void()> look = [&] {
    seen.push_back(shownAt(0, 30));
    if (seen.size() < 6) pump.inside = look;
  };
  pump.inside = look;
  click("cmdShowHotspot");
  const QRgb red = qRgb(255, 0, 0), white = qRgb(255, 255, 255);
  EXPECT_EQ(seen, (std::vector<QRgb>{red, white, red, white, red, white}));
  EXPECT_EQ(shownAt(0, 30), before);
  EXPECT_EQ(pump.waitedMilliseconds, kBlinkMilliseconds);
}

TEST_F(CursorPanelViewTest, SpaceOnTheButtonShowsTheSpotAndDoesNotProceed) {
  startWithPanel();
  find("cmdShowHotspot")->setFocus();
  key(Qt::Key_Space);
  EXPECT_EQ(pump.waitedMilliseconds, kBlinkMilliseconds);
  EXPECT_TRUE(isPanelUp());
}

TEST_F(CursorPanelViewTest, TheButtonPressedWhileTheSpotBlinksIsIgnored) {
  startWithPanel();
  pump.inside = [this] { click("cmdShowHotspot"); };
  click("cmdShowHotspot");
  EXPECT_EQ(pump.waitedMilliseconds, kBlinkMilliseconds);
}

TEST_F(CursorPanelViewTest, AClickOnTheEditingAreaFillsBothListsAndShowsTheSpot) {
  startWithPanel();
  clickArea(20, 3);
  expectSpot(20, 3);
  EXPECT_EQ(pump.waitedMilliseconds, kBlinkMilliseconds);
  EXPECT_FALSE(state.current().modified);
  clickArea(31, 0);
  expectSpot(31, 0);
}

TEST_F(CursorPanelViewTest, TheKeyboardSetsTheSpotOnTheEditingArea) {
  startWithPanel();
  find("picDisp")->setFocus(Qt::TabFocusReason);
  key(Qt::Key_Home);
  key(Qt::Key_Right);
  key(Qt::Key_Space);
  EXPECT_EQ(lists(), spot());
  EXPECT_EQ(spot().first, 1);
  EXPECT_EQ(pump.waitedMilliseconds, kBlinkMilliseconds);
}

TEST_F(CursorPanelViewTest, AListChangedWhileTheSpotBlinksHolds) {
  startWithPanel();
  pump.inside = [this] {
    list(0)->setFocus();
    key(Qt::Key_Home);
  };
  click("cmdShowHotspot");
  expectSpot(0, 30);
}

TEST_F(CursorPanelViewTest, ProceedSavesWithTheListsAndClosesThePanel) {
  startWithPanel();
  list(1)->setFocus();
  key(Qt::Key_Up);
  dialogs.paths = {folder.file("saved.cur")};
  click("cmdProceed");
  std::string expected = cursorFile(7, 29);
  ASSERT_EQ(dialogs.requests.size(), 1U);
  EXPECT_EQ(dialogs.requests[0].fileName, "hand");
  const std::string file = folder.read("saved.cur");
  ASSERT_GT(file.size(), 22U);
  EXPECT_EQ(file.substr(0, 8), expected.substr(0, 8));
  EXPECT_EQ(file[10], 7);
  EXPECT_EQ(file[12], 29);
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
  EXPECT_TRUE(find("fraPanel(0)")->isVisible());
}

TEST_F(CursorPanelViewTest, EnterOnAListIsProceed) {
  startWithPanel();
  dialogs.paths = {folder.file("saved.cur")};
  list(0)->setFocus();
  key(Qt::Key_Return);
  EXPECT_FALSE(folder.read("saved.cur").empty());
}

TEST_F(CursorPanelViewTest, EscAndCloseLeaveWithoutSaving) {
  startWithPanel();
  key(Qt::Key_Escape);
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
  find<QAction>("mnuFileSub(18)")->trigger();
  settle();
  EXPECT_TRUE(isPanelUp());
  click("cmdCancel");
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
  EXPECT_TRUE(dialogs.requests.empty());
}

TEST_F(CursorPanelViewTest, EscWhileTheSpotBlinksClosesThePanelAndLeavesNoMark) {
  startWithPanel();
  const QRgb before = shownAt(7, 30);
  pump.inside = [this] { key(Qt::Key_Escape); };
  click("cmdShowHotspot");
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
  EXPECT_LT(pump.waitedMilliseconds, kBlinkMilliseconds);
  EXPECT_EQ(shownAt(7, 30), before);
}

TEST_F(CursorPanelViewTest, CtrlHRevealsTheOriginalSpotWhateverTheListsHold) {
  startWithPanel();
  clickArea(1, 1);
  pump.waitedMilliseconds = 0;
  QRgb seen = 0;
  std::function<void()> look = [&] {
    if (!shell.files().cursorFiles.mark().isFlashing())
      pump.inside = look;
    else
      seen = shownAt(7, 30);
  };
  pump.inside = look;
  find("picDisp")->setFocus();
  key(Qt::Key_H, Qt::ControlModifier);
  EXPECT_EQ(pump.waitedMilliseconds, kBlinkMilliseconds);
  EXPECT_EQ(seen, qRgb(255, 0, 0));
  expectSpot(1, 1);
}

TEST_F(CursorPanelViewTest, ASmallerIconHasTheCommandDisabled) {
  startWithIcon(24);
  EXPECT_FALSE(find<QAction>("mnuFileSub(18)")->isEnabled());
}

TEST_F(CursorPanelViewTest, EveryControlLiesInsideItsPanelAndNoTextIsCut) {
  startWithPanel();
  for (const QWidget* widget : find("fraPanel(2)")->findChildren<QWidget*>()) {
    if (!widget->isVisible() || widget->isWindow()) continue;
    EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry())) << widget->objectName().toStdString();
    const auto* label = qobject_cast<const QLabel*>(widget);
    if (label && label->wordWrap()) {
      EXPECT_GE(label->height(), label->heightForWidth(label->width()));
    }
  }
}

TEST_F(CursorPanelViewTest, TheListsStandBelowEachOther) {
  startWithPanel();
  EXPECT_EQ(list(0)->geometry().left(), list(1)->geometry().left());
  EXPECT_EQ(list(0)->width(), list(1)->width());
}

TEST_F(CursorPanelViewTest, IsPhotographedWhileTheSpotIsShown) {
  startWithPanel();
  pump.inside = [this] { screenshot("cursor-panel"); };
  clickArea(20, 3);
  const QPalette light = QApplication::palette();
  QApplication::setPalette(test::darkPalette());
  settle();
  pump.inside = [this] { screenshot("cursor-panel-dark"); };
  clickArea(12, 25);
  QApplication::setPalette(light);
  EXPECT_TRUE(QFile::exists(GP_BINARY_DIR "/screens/cursor-panel-dark.png"));
}

}  // namespace
}  // namespace gp
