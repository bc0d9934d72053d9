#include "document/ui/EditingAreaView.h"
#include "document/ui/SurfacePainting.h"
#include "ui/FormFixture.h"

#include <QScrollBar>
#include <QWheelEvent>

namespace gp {
namespace {

constexpr int kNotch = QWheelEvent::DefaultDeltasPerStep;

class EditingAreaZoomTest : public test::FormFixture {
 protected:
  EditingAreaView* view() { return find<EditingAreaView>("picDisp"); }
  EditingAreaRoom* room() { return find<EditingAreaRoom>("picDispContainer"); }
  QWidget* viewport() { return room()->viewport(); }
  bool hasBars() { return room()->horizontalScrollBar()->isVisible() || room()->verticalScrollBar()->isVisible(); }

  void keys(int code, int times, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
    for (int i = 0; i < times; ++i) key(code, modifiers);
  }
  // At a position of the viewport, which gets the wheel also from the view.
  void wheel(const QPoint& at, int turn, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
    QWheelEvent event(at, viewport()->mapToGlobal(at), {}, {0, turn}, Qt::NoButton, modifiers, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(viewport(), &event);
    settle();
  }
  // The cell of an icon pixel, in the viewport.
  QRect cellOf(const QPoint& pixel) {
    const int m = state.gMagnification;
    return QRect(view()->pos() + pixel * m, QSize(m, m));
  }
  bool isInView(const QPoint& pixel) { return viewport()->rect().contains(cellOf(pixel)); }
  void expectZoom(int magnification) {
    EXPECT_EQ(state.gMagnification, magnification);
    EXPECT_EQ(view()->width(), state.picImage.width() * magnification);
  }
  void expectCentred() {
    EXPECT_EQ(view()->pos(),
              QPoint((viewport()->width() - view()->width()) / 2, (viewport()->height() - view()->height()) / 2));
  }
  void useTool(Tool tool) { click(QString("imgTool(%1)").arg(static_cast<int>(tool))); }
};

TEST_F(EditingAreaZoomTest, WithoutAZoomNothingScrollsAtAnySizeOfTheIcon) {
  startWithIcon(48);
  for (const auto& [newIcon, magnification] :
       {std::pair{2, 15}, std::pair{3, 15}, std::pair{4, 10}, std::pair{5, 15}}) {
    state.current().modified = state.current().neverSaved = false;
    shell.run(*findCommand("mnuFileSub", newIcon));
    form->resize(form->minimumSize());
    settle();
    expectZoom(magnification == 15 ? 12 : 8);
    EXPECT_FALSE(hasBars()) << newIcon;
    form->resize(1280, 1024);
    settle();
    expectZoom(magnification);
    EXPECT_FALSE(hasBars()) << newIcon;
    expectCentred();
  }
}

TEST_F(EditingAreaZoomTest, TheKeysZoomWhereverTheFocusIs) {
  startWithIcon(16);
  for (QWidget* focused :
       {static_cast<QWidget*>(view()), indexed("imgTool", 5), indexed("picPanelIcon", 2), find("cboBrushSize")}) {
    focused->setFocus(Qt::TabFocusReason);
    keys(Qt::Key_Plus, 1);
    expectZoom(13);
    keys(Qt::Key_Equal, 1);
    expectZoom(14);
    keys(Qt::Key_Plus, 1);
    expectZoom(15);
    keys(Qt::Key_Plus, 1, Qt::ControlModifier | Qt::KeypadModifier);
    expectZoom(16);
    keys(Qt::Key_Minus, 5);
    expectZoom(11);
    keys(Qt::Key_0, 1);
    expectZoom(12);
  }
  keys(Qt::Key_Plus, 1, {});
  keys(Qt::Key_Plus, 1, Qt::ControlModifier | Qt::AltModifier);
  expectZoom(12);
}

TEST_F(EditingAreaZoomTest, ScrollBarsAreThereOnlyWhileTheIconDoesNotFit) {
  startWithIcon(16);
  const QSize size = room()->size();
  keys(Qt::Key_Plus, 40);
  expectZoom(40);
  EXPECT_TRUE(room()->horizontalScrollBar()->isVisible());
  EXPECT_TRUE(room()->verticalScrollBar()->isVisible());
  EXPECT_EQ(room()->size(), size);
  keys(Qt::Key_Minus, 40);
  expectZoom(4);
  EXPECT_FALSE(hasBars());
  expectCentred();
}

TEST_F(EditingAreaZoomTest, TheScrolledAreaShowsPicDispAndTakesTheMouse) {
  startWithIcon(16);
  useTool(kPaint);
  state.mCurrentColor = rgb(1, 2, 3);
  keys(Qt::Key_Plus, 40);
  room()->horizontalScrollBar()->setValue(130);
  room()->verticalScrollBar()->setValue(77);
  const QPoint at = cellOf({9, 8}).center();
  QTest::mouseClick(view(), Qt::LeftButton, {}, view()->mapFrom(viewport(), at));
  EXPECT_EQ(state.picImage.GetPixel(9, 8), rgb(1, 2, 3));
  settle();
  const QImage shown = viewport()->grab().toImage();
  int wrong = 0;
  for (int y = 0; y < shown.height(); ++y)
    for (int x = 0; x < shown.width(); ++x)
      wrong += shown.pixel(x, y) != toRgb(state.picDisp.GetPixel(x + 130, y + 77));
  EXPECT_EQ(wrong, 0);
}

TEST_F(EditingAreaZoomTest, ThePixelCursorIsAlwaysInView) {
  startWithIcon(48);
  view()->setFocus(Qt::TabFocusReason);
  key(Qt::Key_Home);
  keys(Qt::Key_Plus, 40);
  EXPECT_TRUE(isInView({0, 0}));
  for (const int code : {Qt::Key_End, Qt::Key_PageDown, Qt::Key_Left, Qt::Key_Up, Qt::Key_Home, Qt::Key_PageUp}) {
    key(code);
    EXPECT_TRUE(isInView(view()->pixelCursor())) << code;
  }
  for (int i = 0; i < 47; ++i) {
    key(Qt::Key_Right);
    EXPECT_TRUE(isInView(view()->pixelCursor())) << i;
  }
  keys(Qt::Key_Minus, 20);
  for (int i = 0; i < 24; ++i) {
    key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_TRUE(isInView(view()->pixelCursor())) << state.gMagnification;
  }
}

TEST_F(EditingAreaZoomTest, TheWheelWithCtrlKeepsThePixelUnderTheMouse) {
  startWithIcon(48);
  const QPoint at(200, 150);
  const auto pixelAt = [this](const QPoint& place) {
    const QPoint onView = view()->mapFrom(viewport(), place);
    return QPoint(onView.x() / state.gMagnification, onView.y() / state.gMagnification);
  };
  wheel(at, kNotch);
  expectZoom(9);
  for (int i = 0; i < 10; ++i) wheel(at, kNotch);
  const QPoint pixel = pixelAt(at);
  for (int i = 0; i < 9; ++i) {
    wheel(at, kNotch);
    EXPECT_EQ(pixelAt(at), pixel) << state.gMagnification;
  }
  expectZoom(40);
  for (int i = 0; i < 9; ++i) {
    wheel(at, -kNotch);
    EXPECT_EQ(pixelAt(at), pixel) << state.gMagnification;
  }
}

TEST_F(EditingAreaZoomTest, PartsOfANotchAddUpAndTheWheelAloneScrolls) {
  startWithIcon(16);
  for (int i = 0; i < 7; ++i) wheel({5, 5}, kNotch / 8);
  expectZoom(12);
  wheel({5, 5}, kNotch / 8);
  expectZoom(13);
  keys(Qt::Key_Plus, 40);
  room()->verticalScrollBar()->setValue(0);
  wheel({5, 5}, -kNotch, {});
  expectZoom(40);
  EXPECT_EQ(room()->verticalScrollBar()->value(), 60);
}

TEST_F(EditingAreaZoomTest, AZoomStaysInALargerWindowAndCtrl0TakesWhatTheOptionGives) {
  startWithIcon(16);
  keys(Qt::Key_Plus, 1);
  form->resize(1280, 1024);
  settle();
  expectZoom(13);
  keys(Qt::Key_0, 1);
  expectZoom(15);
  find<QAction>("mnuOptionsSub(3)")->trigger();
  expectZoom(12);
}

TEST_F(EditingAreaZoomTest, AHeldMouseScrollsTheAreaAtItsEdge) {
  startWithIcon(16);
  useTool(kPaint);
  keys(Qt::Key_Plus, 40);
  room()->horizontalScrollBar()->setValue(0);
  const auto moveTo = [this](const QPoint& place) {
    const QPointF at = view()->mapFrom(viewport(), place);
    QMouseEvent move(QEvent::MouseMove, at, view()->mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(view(), &move);
  };
  QTest::mousePress(view(), Qt::LeftButton, {}, view()->mapFrom(viewport(), QPoint(100, 100)));
  moveTo({300, 100});
  EXPECT_EQ(room()->horizontalScrollBar()->value(), 0);
  moveTo({viewport()->width() + 30, 100});
  EXPECT_EQ(room()->horizontalScrollBar()->value(), 31);
  moveTo({viewport()->width() + 30, 100});
  EXPECT_EQ(room()->horizontalScrollBar()->value(), 62);
  QTest::mouseRelease(view(), Qt::LeftButton, {}, QPoint(100, 100));
}

TEST_F(EditingAreaZoomTest, ARegionAndTheKeyboardThatHoldsItFollow) {
  startWithIcon(16);
  useTool(kRegion);
  view()->setFocus(Qt::TabFocusReason);
  key(Qt::Key_Space);
  key(Qt::Key_Right);
  keys(Qt::Key_Plus, 2);
  key(Qt::Key_Down);
  key(Qt::Key_Return);
  EXPECT_EQ(valueOf(indexed("lblDispXY", 2)), "Region: Start [1, 1]   W=2 H=2");
  EXPECT_EQ(state.screen.regionOutline, (RegionOutline{0, 0, 28, 28, true, true}));
  key(Qt::Key_Space);
  keys(Qt::Key_Minus, 3);
  key(Qt::Key_Right);
  key(Qt::Key_Space);
  EXPECT_EQ(valueOf(indexed("lblDispXY", 2)), "Region: Start [2, 1]   W=2 H=2");
}

// The region on the screen.

TEST_F(EditingAreaZoomTest, TheViewMarksARegionOverPicDisp) {
  startWithIcon(16);
  useTool(kRegion);
  QTest::mousePress(view(), Qt::LeftButton, {}, QPoint(37, 37));
  QTest::mouseMove(view(), QPoint(121, 121));
  QTest::mouseRelease(view(), Qt::LeftButton, {}, QPoint(121, 121));
  settle();
  const QImage shown = view()->grab().toImage();
  for (const int i : {50, 60, 100}) {
    EXPECT_EQ(shown.pixel(36, i), qRgb(0, 0, 0));
    EXPECT_EQ(shown.pixel(35, i), qRgb(255, 255, 255));
    EXPECT_EQ(shown.pixel(i, 120), qRgb(0, 0, 0));
    EXPECT_EQ(shown.pixel(i, 121), qRgb(255, 255, 255));
    EXPECT_EQ(shown.pixel(i, 119), toRgb(state.picDisp.GetPixel(i, 119)));
  }
  EXPECT_EQ(shown.pixel(34, 34), qRgb(255, 255, 255)) << "a handle";
  EXPECT_NE(toRgb(state.picDisp.GetPixel(35, 50)), qRgb(255, 255, 255));
}

TEST_F(EditingAreaZoomTest, AMovedRegionLeavesNoTraceOfItsMark) {
  startWithIcon(16);
  for (const bool onlyArea : {true, false}) {
    state.options.updateOnlyEditingArea = onlyArea;
    useTool(kRegion);
    QTest::mousePress(view(), Qt::LeftButton, {}, QPoint(25, 25));
    QTest::mouseMove(view(), QPoint(97, 97));
    QTest::mouseRelease(view(), Qt::LeftButton, {}, QPoint(97, 97));
    settle();
    QTest::mousePress(view(), Qt::LeftButton, {}, QPoint(60, 60));
    QImage painted;
    for (const int to : {84, 108, 132}) {
      QTest::mouseMove(view(), QPoint(to, 72));
      settle();
      painted = form->screen()->grabWindow(form->winId()).toImage();
    }
    const QImage whole = form->grab().toImage();
    const QRect area(view()->mapTo(form.get(), QPoint()), view()->size());
    ASSERT_TRUE(whole.rect().contains(area) && painted.rect().contains(area));
    EXPECT_EQ(painted.copy(area).convertToFormat(QImage::Format_RGB32),
              whole.copy(area).convertToFormat(QImage::Format_RGB32))
        << onlyArea;
    QTest::mouseRelease(view(), Qt::LeftButton, {}, QPoint(132, 72));
    key(Qt::Key_Escape);
  }
}

TEST_F(EditingAreaZoomTest, TheFormAtSeveralMagnifications) {
  startWithIcon(32);
  useTool(kRegion);
  view()->setFocus(Qt::TabFocusReason);
  key(Qt::Key_Space);
  keys(Qt::Key_Right, 1);
  keys(Qt::Key_Down, 1);
  key(Qt::Key_Return);
  keys(Qt::Key_Minus, 20);
  screenshot("zoom-4");
  keys(Qt::Key_Plus, 30);
  screenshot("zoom-40");
}

}  // namespace
}  // namespace gp
