// Sizes and places of picANIContainer(0), how it appears and goes, and where the focus is then.
#include "document/PanelNumbers.h"
#include "ui/AniPaneFixture.h"

#include <set>

namespace gp {
namespace {

class AniPanePlaceTest : public test::AniPaneFixture {
 protected:
  QWidget* column() { return find("fraPanel(0)")->parentWidget(); }
  QWidget* title() { return find("fraANITitle"); }
  // Drags the title by a distance on the screen.
  void drag(QPoint distance) {
    const QPoint from(60, 10);
    QTest::mousePress(title(), Qt::LeftButton, Qt::NoModifier, from);
    // The title moves with the pointer.
    const QPoint target = title()->mapToGlobal(from) + distance;
    for (int step = 0; step < 2; ++step) QTest::mouseMove(title(), title()->mapFromGlobal(target));
    QTest::mouseRelease(title(), Qt::LeftButton, Qt::NoModifier, title()->mapFromGlobal(target));
    settle();
  }
  std::set<int> visibleButtons() {
    std::set<int> found;
    for (int i = 0; i < AniSession::kButtonCount; ++i)
      if (button(i)->isVisible()) found.insert(i);
    return found;
  }
};

TEST_F(AniPanePlaceTest, ThePaneCoversTheColumnAtNormalSize) {
  start();
  EXPECT_FALSE(pane()->isVisible());
  enter();
  EXPECT_TRUE(pane()->isVisible());
  EXPECT_EQ(pane()->geometry(), column()->geometry());
  EXPECT_FALSE(column()->isVisible()) << "Tab must not reach what is covered";
  EXPECT_TRUE(button(3)->hasFocus());
  form->resize(form->size() + QSize(150, 90));
  settle();
  EXPECT_EQ(pane()->geometry(), column()->geometry());
}

TEST_F(AniPanePlaceTest, ThePaneNeedsNoLargerForm) {
  open();
  form->resize(1, 1);
  settle();
  EXPECT_EQ(form->size(), QSize(793, 576));
  EXPECT_GE(pane()->height(), pane()->minimumSizeHint().height());
  EXPECT_GE(pane()->width(), pane()->minimumSizeHint().width());
}

TEST_F(AniPanePlaceTest, TheCompactPaneLeavesTheChartsFree) {
  open();
  makeFilm(5);
  press(1);
  EXPECT_EQ(session().paneSize(), AniPaneSize::Compact);
  EXPECT_EQ(pane()->width(), column()->width());
  EXPECT_EQ(pane()->geometry().bottom(), column()->geometry().bottom());
  EXPECT_TRUE(column()->isVisible());
  click("imgGet256ColorChart");
  const QWidget* chart = find("fraofColorPanel(4)");
  EXPECT_TRUE(chart->isVisible());
  EXPECT_LT(chart->mapTo(form.get(), QPoint(0, chart->height())).y(), pane()->mapTo(form.get(), QPoint(0, 0)).y());
  EXPECT_EQ(visibleButtons(), (std::set<int>{0, 1, 2, 8, 10, 11, 18, 19}));
  EXPECT_GE(session().film().largeStep(), 3 * AniFilm::kCellHeight);
  EXPECT_TRUE(find("lblANI(0)")->isVisible());
  EXPECT_TRUE(find("picANITest")->isVisible());
  press(1);
  EXPECT_EQ(session().paneSize(), AniPaneSize::Normal);
  EXPECT_EQ(pane()->geometry(), column()->geometry());
  EXPECT_EQ(visibleButtons().size(), 20u);
}

TEST_F(AniPanePlaceTest, TheMinimizedPaneIsItsTitleAndADoubleClickRestoresIt) {
  open();
  for (const char* target : {"fraANITitle", "imgANI", "lblANITitle"}) {
    press(2);
    EXPECT_EQ(session().paneSize(), AniPaneSize::Minimized);
    EXPECT_LT(pane()->height(), 40);
    EXPECT_EQ(pane()->geometry().bottom(), column()->geometry().bottom());
    EXPECT_TRUE(column()->isVisible());
    EXPECT_EQ(visibleButtons(), (std::set<int>{0, 1, 2}));
    QTest::mouseDClick(find(target), Qt::LeftButton);
    settle();
    EXPECT_EQ(session().paneSize(), AniPaneSize::Normal) << target;
    EXPECT_EQ(pane()->geometry(), column()->geometry());
  }
}

TEST_F(AniPanePlaceTest, TheTitleDragsThePaneAndItStaysInsideTheForm) {
  open();
  press(2);
  const QPoint home = pane()->pos();
  drag({-100, -60});
  EXPECT_EQ(pane()->pos(), home + QPoint(-100, -60));
  drag({-5000, -5000});
  EXPECT_EQ(pane()->pos(), QPoint(0, 0));
  drag({5000, 5000});
  const QRect room = pane()->parentWidget()->rect();
  EXPECT_EQ(pane()->geometry().bottomRight(), room.bottomRight());
  form->resize(form->size() + QSize(200, 200));
  settle();
  drag({5000, 5000});
  form->resize(1, 1);
  settle();
  EXPECT_TRUE(pane()->parentWidget()->rect().contains(pane()->geometry())) << "the form became smaller";
}

TEST_F(AniPanePlaceTest, ATremblingHandDoesNotMoveThePane) {
  open();
  const QRect place = pane()->geometry();
  drag({2, 1});
  EXPECT_EQ(pane()->geometry(), place);
}

TEST_F(AniPanePlaceTest, TheColumnIsFreeWhileThePaneIsElsewhere) {
  open();
  drag({-300, 0});
  EXPECT_TRUE(column()->isVisible());
  drag({5000, 0});
  EXPECT_TRUE(pane()->parentWidget()->rect().contains(pane()->geometry()));
}

TEST_F(AniPanePlaceTest, AMaximizedFormAndANewAppearanceLayThePaneOutAgain) {
  open();
  drag({-300, 0});
  form->setWindowState(Qt::WindowMaximized);
  settle();
  EXPECT_EQ(pane()->geometry(), column()->geometry());
  drag({-200, 0});
  form->setWindowState(Qt::WindowNoState);
  settle();
  EXPECT_EQ(pane()->geometry(), column()->geometry());
  drag({-200, 0});
  press(0);
  enter();
  EXPECT_EQ(pane()->geometry(), column()->geometry());
}

TEST_F(AniPanePlaceTest, EscClosesThePaneAndTheEditingAreaGetsTheFocus) {
  open();
  makeFilm(2);
  film()->setFocus();
  session().goTo(1);
  boxes.expectAsked("Without saving frames to file first?\n\n", BoxAnswer::No);
  key(Qt::Key_Escape);
  EXPECT_TRUE(pane()->isVisible());
  boxes.expectAsked("Without saving frames to file first?\n\n", BoxAnswer::Yes);
  key(Qt::Key_Escape);
  EXPECT_FALSE(pane()->isVisible());
  EXPECT_TRUE(column()->isVisible());
  EXPECT_TRUE(find("picDisp")->hasFocus());
  enter();
  EXPECT_EQ(session().frames().count(), 2) << "the film survives";
  EXPECT_TRUE(film()->hasFocus());
}

TEST_F(AniPanePlaceTest, TheFocusStaysInThePaneWhenItsControlIsHidden) {
  open();
  makeFilm(2);
  find("cboANI(0)")->setFocus();
  session().cmdANI(1);
  settle();
  EXPECT_TRUE(film()->hasFocus());
  session().cmdANI(2);
  settle();
  EXPECT_TRUE(button(1)->hasFocus());
}

TEST_F(AniPanePlaceTest, ThePaneDoesNotTakeTheFocusFromTheEditingArea) {
  open();
  makeFilm(2);
  find("picDisp")->setFocus();
  session().goTo(1);
  session().cmdANI(1);
  settle();
  EXPECT_TRUE(find("picDisp")->hasFocus());
}

TEST_F(AniPanePlaceTest, ASidePanelTakesThePlaceOfThePane) {
  startWithIcon(32);
  enter();
  shell.showPanel(kRotatePanel);
  settle();
  EXPECT_FALSE(pane()->isVisible());
  EXPECT_TRUE(find("fraPanel(4)")->isVisible());
}

}  // namespace
}  // namespace gp
