#include "document/ui/EditingAreaView.h"
#include "document/ui/SurfacePainting.h"
#include "ui/FormFixture.h"

#include <QContextMenuEvent>
#include <QDialog>
#include <QMenu>
#include <QMouseEvent>

namespace gp {
namespace {

class EditingAreaViewTest : public test::FormFixture {
 protected:
  EditingAreaView* view() { return find<EditingAreaView>("picDisp"); }
  void expectViewShowsPicDisp() {
    const QImage shown = view()->grab().toImage();
    ASSERT_EQ(shown.size(), QSize(state.picDisp.width(), state.picDisp.height()));
    int wrong = 0;
    for (int y = 0; y < shown.height(); ++y)
      for (int x = 0; x < shown.width(); ++x)
        if (shown.pixel(x, y) != toRgb(state.picDisp.GetPixel(x, y))) ++wrong;
    EXPECT_EQ(wrong, 0);
  }
  void useTool(Tool tool) { click(QString("imgTool(%1)").arg(static_cast<int>(tool))); }
  Color imageAt(int x, int y) const { return state.picImage.GetPixel(x, y); }
};

TEST_F(EditingAreaViewTest, ShowsEveryPixelOfTheEditingAreaAsItIs) {
  startWithIcon(32);
  state.picImage.SetPixelV(3, 4, rgb(10, 200, 30));
  shell.document().editingArea.ComposeCurrentIcon();
  shell.document().editingArea.MagnifyIcon();
  expectViewShowsPicDisp();
}

TEST_F(EditingAreaViewTest, AStrokeRepaintsItsSquareAndNothingIsLeftBehind) {
  startWithIcon(48);
  useTool(kPaint);
  state.mCurrentColor = rgb(1, 2, 3);
  QTest::mousePress(view(), Qt::LeftButton, {}, middleOf(5, 6));
  QTest::mouseMove(view(), middleOf(7, 8));
  settle();
  expectViewShowsPicDisp();
  QTest::mouseRelease(view(), Qt::LeftButton, {}, middleOf(7, 8));
  EXPECT_EQ(imageAt(5, 6), rgb(1, 2, 3));
  EXPECT_EQ(imageAt(7, 8), rgb(1, 2, 3));
  EXPECT_NE(imageAt(6, 7), rgb(1, 2, 3)) << "a fast drag leaves gaps";
}

TEST_F(EditingAreaViewTest, ABoxThatComesUpDuringAStrokeEndsIt) {
  startWithIcon(48);
  useTool(kPaint);
  state.mCurrentColor = rgb(1, 2, 3);
  QTest::mousePress(view(), Qt::LeftButton, {}, middleOf(5, 6));
  {
    QDialog box(form.get());
    box.setModal(true);
    box.show();
    settle();
    EXPECT_TRUE(shell.drawing().history.canUndo());
  }
  const QPointF at = middleOf(7, 8);
  QMouseEvent move(QEvent::MouseMove, at, view()->mapToGlobal(at), Qt::NoButton, Qt::NoButton, {});
  QApplication::sendEvent(view(), &move);
  EXPECT_EQ(imageAt(5, 6), rgb(1, 2, 3));
  EXPECT_NE(imageAt(7, 8), rgb(1, 2, 3)) << "no button is down";
}

TEST_F(EditingAreaViewTest, AStrokeWhoseReleaseAMenuTookDoesNotGoOnWithoutAButton) {
  startWithIcon(16);
  useTool(kPaint);
  state.mCurrentColor = rgb(1, 2, 3);
  const auto moveTo = [this](int x, int y, Qt::MouseButtons buttons) {
    const QPointF at = middleOf(x, y);
    QMouseEvent move(QEvent::MouseMove, at, view()->mapToGlobal(at), Qt::NoButton, buttons, {});
    QApplication::sendEvent(view(), &move);
  };
  QTest::mousePress(view(), Qt::LeftButton, {}, middleOf(2, 2));
  moveTo(3, 2, Qt::LeftButton);
  QTest::mousePress(view(), Qt::RightButton, {}, middleOf(3, 2));
  find<QMenu>("mnuPopUp")->close();
  moveTo(9, 9, Qt::NoButton);
  EXPECT_EQ(imageAt(3, 2), rgb(1, 2, 3));
  EXPECT_NE(imageAt(9, 9), rgb(1, 2, 3)) << "no button is down";
  EXPECT_EQ(shell.drawing().history.undoCount(), 2);
}

TEST_F(EditingAreaViewTest, OnlyTheSquareThatChangedIsPaintedAgain) {
  startWithIcon(48);
  struct Watch : QObject {
    QRegion painted;
    bool eventFilter(QObject*, QEvent* event) override {
      if (event->type() == QEvent::Paint) painted += static_cast<QPaintEvent*>(event)->region();
      return false;
    }
  } watch;
  settle();
  view()->installEventFilter(&watch);
  display.repaintEditingArea(80, 40, 8, 8);
  settle();
  EXPECT_TRUE(watch.painted.contains(QRect(80, 40, 8, 8)));
  EXPECT_TRUE(QRect(78, 38, 13, 13).contains(watch.painted.boundingRect()));
  view()->removeEventFilter(&watch);
}

TEST_F(EditingAreaViewTest, ShiftCtrlAndAltReachTheTools) {
  startWithIcon(16);
  std::vector<int> seen;
  QObject::connect(view(), &EditingAreaView::pressed, view(),
                   [&](QPointF, Qt::MouseButton, Qt::KeyboardModifiers modifiers) { seen.push_back(modifiers); });
  QTest::mouseClick(view(), Qt::LeftButton, Qt::ShiftModifier, middleOf(0, 0));
  QTest::mouseClick(view(), Qt::LeftButton, Qt::ControlModifier | Qt::AltModifier, middleOf(0, 0));
  EXPECT_EQ(seen, (std::vector<int>{Qt::ShiftModifier, Qt::ControlModifier | Qt::AltModifier}));
}

TEST_F(EditingAreaViewTest, TheReadOutsFollowThePointerAndEmptyWhenItLeaves) {
  startWithIcon(16);
  find<QAction>("mnuOptionsSub(5)")->trigger();
  QTest::mouseMove(view(), middleOf(2, 3));
  settle();
  EXPECT_EQ(valueOf(indexed("lblDispXY", 0)), "X=3  Y=4");
  EXPECT_EQ(valueOf(indexed("lblDispXY", 1)), "RGB: 252, 3, 48");
  EXPECT_TRUE(indexed("lblDispXY", 1)->isVisible());
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(view(), &leave);
  EXPECT_EQ(valueOf(indexed("lblDispXY", 0)), "");
}

TEST_F(EditingAreaViewTest, ArrowsMoveThePixelCursorWithinTheIcon) {
  startWithIcon(16);
  view()->setFocus(Qt::TabFocusReason);
  struct Step {
    int key;
    QPoint then;
  };
  for (const Step& step : {Step{Qt::Key_Right, {1, 0}}, Step{Qt::Key_Down, {1, 1}}, Step{Qt::Key_End, {15, 1}},
                           Step{Qt::Key_Right, {15, 1}}, Step{Qt::Key_PageDown, {15, 15}}, Step{Qt::Key_Home, {0, 15}},
                           Step{Qt::Key_Left, {0, 15}}, Step{Qt::Key_PageUp, {0, 0}}}) {
    key(step.key);
    EXPECT_EQ(view()->pixelCursor(), step.then);
  }
}

TEST_F(EditingAreaViewTest, SpaceAppliesTheToolAtThePixelCursor) {
  startWithIcon(16);
  useTool(kPaint);
  state.mCurrentColor = rgb(9, 8, 7);
  view()->setFocus(Qt::TabFocusReason);
  key(Qt::Key_Right);
  key(Qt::Key_Down);
  key(Qt::Key_Space);
  EXPECT_EQ(imageAt(1, 1), rgb(9, 8, 7));
  EXPECT_NE(imageAt(0, 0), rgb(9, 8, 7));
  EXPECT_TRUE(state.current().modified);
}

TEST_F(EditingAreaViewTest, SpeaksPositionAndColourOfThePixelCursor) {
  startWithIcon(16);
  view()->setFocus(Qt::TabFocusReason);
  key(Qt::Key_Right);
  const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(view());
  EXPECT_EQ(spoken->text(QAccessible::Name), "Editing Area");
  EXPECT_EQ(valueOf(view()), "X=2  Y=1  RGB: 252, 3, 48");
  state.picImage.SetPixelV(1, 0, kBlack);
  state.picMask.SetPixelV(1, 0, kWhite);
  EXPECT_EQ(valueOf(view()), "X=2  Y=1  transparent");
}

TEST_F(EditingAreaViewTest, ThePixelCursorIsSeenOnlyWhileTheKeyboardIsUsed) {
  startWithIcon(16);
  const QImage plain = view()->grab().toImage();
  view()->setFocus(Qt::MouseFocusReason);
  key(Qt::Key_Tab);
  EXPECT_EQ(view()->grab().toImage(), plain);
  view()->setFocus(Qt::TabFocusReason);
  EXPECT_NE(view()->grab().toImage(), plain);
  QTest::mouseClick(view(), Qt::LeftButton, {}, middleOf(3, 3));
  EXPECT_EQ(view()->grab().toImage(), plain);
}

TEST_F(EditingAreaViewTest, ARightClickShowsThePopUpMenuAndTheMenuKeyShowsItAtThePixelCursor) {
  startWithIcon(16);
  auto* menu = find<QMenu>("mnuPopUp");
  QTest::mousePress(view(), Qt::RightButton, {}, middleOf(2, 2));
  EXPECT_TRUE(menu->isVisible());
  EXPECT_FALSE(find<QAction>("mnuPopUpSub(3)")->isEnabled());
  menu->close();
  QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(), QPoint());
  QCoreApplication::sendEvent(view(), &menuKey);
  EXPECT_TRUE(menu->isVisible());
  EXPECT_EQ(menu->pos(), view()->pixelCursorOnScreen());
  menu->close();
  QTest::keyClick(view(), Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_TRUE(menu->isVisible());
  menu->close();
}

TEST_F(EditingAreaViewTest, ThePointerIsThePictureOfTheTool) {
  startWithIcon(16);
  EXPECT_EQ(view()->cursor().shape(), Qt::ArrowCursor);
  useTool(kErase);
  QTest::mouseMove(view(), middleOf(1, 1));
  settle();
  EXPECT_EQ(view()->cursor().shape(), Qt::BitmapCursor);
  useTool(kErase);
  EXPECT_EQ(view()->cursor().shape(), Qt::ArrowCursor);
}

// On a scaled screen: the same number of device pixels for each icon pixel, and grid lines of one device pixel.
TEST(SurfacePainting, FractionalScalesKeepAllCellsEqualAndGridLinesOnePixelWide) {
  constexpr int kCells = 16, kMagnification = 12;
  Surface grid(kCells * kMagnification, kCells * kMagnification, kWhite);
  for (int y = 0; y < grid.height(); ++y)
    for (int x = kMagnification; x < grid.width(); x += kMagnification) grid.SetPixelV(x, y, kBlack);
  for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0}) {
    const ScreenScale scale(kCells, kMagnification, ratio);
    const QImage image = imageOf(grid, scale, QRect(0, 0, scale.deviceSize(), scale.deviceSize()));
    for (int x = 0; x < image.width(); ++x) {
      const bool line = x > 0 && x % scale.cellSize() == 0;
      EXPECT_EQ(image.pixel(x, 5), line ? 0xFF000000U : 0xFFFFFFFFU) << "x " << x << " ratio " << ratio;
    }
  }
}

TEST(SurfacePainting, APartIsWhatTheWholeShowsThere) {
  Surface icon(16, 16, kGround);
  for (int y = 0; y < 16; ++y)
    for (int x = 0; x < 16; ++x) icon.SetPixelV(x, y, rgb(x * 16, y * 16, 7));
  const ScreenScale scale(16, 1, 3);
  const QImage whole = imageOf(icon, scale, QRect(0, 0, 48, 48));
  const QRect part(7, 11, 20, 9);
  EXPECT_EQ(imageOf(icon, scale, part), whole.copy(part));
  EXPECT_EQ(whole.pixel(47, 0), qRgb(240, 0, 7));
}

}  // namespace
}  // namespace gp
