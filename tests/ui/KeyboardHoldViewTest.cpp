#include "document/ui/MagnifiedView.h"

#include <QDialog>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace gp {
namespace {

// A view whose presses by keyboard stay down, as with a tool that draws from one point to another.
class KeyboardHoldView : public testing::Test {
 protected:
  KeyboardHoldView() {
    view->setHoldQuestion([this] { return holds; });
    QObject::connect(view, &MagnifiedView::pressed, view,
                     [this](QPointF at, Qt::MouseButton, auto modifiers, bool by) { log("press", at, modifiers, by); });
    QObject::connect(view, &MagnifiedView::moved, view,
                     [this](QPointF at, auto modifiers, bool by) { log("move", at, modifiers, by); });
    QObject::connect(
        view, &MagnifiedView::released, view,
        [this](QPointF at, Qt::MouseButton, auto modifiers, bool by) { log("release", at, modifiers, by); });
    QObject::connect(view, &MagnifiedView::givenUp, view, [this] { calls << "give up"; });
    QObject::connect(view, &MagnifiedView::left, view, [this] { calls << "leave"; });
    QObject::connect(view, &MagnifiedView::sizeRequested, view,
                     [this](QPoint by) { calls << QString("size %1 %2").arg(by.x()).arg(by.y()); });
  }

  void log(const char* what, QPointF at, Qt::KeyboardModifiers modifiers, bool byKeyboard) {
    const QPoint pixel = (at / magnification - QPointF(0.5, 0.5)).toPoint();
    calls << QString("%1 %2 %3").arg(what).arg(pixel.x()).arg(pixel.y()) +
                 (modifiers & Qt::ShiftModifier ? " shift" : "") + (byKeyboard ? "" : " mouse");
  }
  void key(int code, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(view, static_cast<Qt::Key>(code), modifiers);
  }
  QStringList taken() { return std::exchange(calls, {}); }
  static QPoint middleOf(int x, int y) { return {x * 12 + 6, y * 12 + 6}; }

  int magnification = 12;
  Surface surface{192, 192};
  QDialog dialog;
  MagnifiedView* view = new MagnifiedView(&dialog, "view", "Editing Area", {surface, magnification});
  bool holds = true;
  QStringList calls;
};

TEST_F(KeyboardHoldView, SpacePressesArrowsMoveAndSpaceReleases) {
  key(Qt::Key_Space);
  EXPECT_EQ(taken(), QStringList({"press 0 0"}));
  key(Qt::Key_Right);
  key(Qt::Key_Down);
  key(Qt::Key_End);
  EXPECT_EQ(taken(), QStringList({"move 1 0", "move 1 1", "move 15 1"}));
  key(Qt::Key_Space);
  EXPECT_EQ(taken(), QStringList({"release 15 1"}));
  key(Qt::Key_Space);
  EXPECT_EQ(taken(), QStringList({"press 15 1"}));
}

TEST_F(KeyboardHoldView, EnterReleasesToo) {
  for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
    key(Qt::Key_Space);
    key(enter);
    EXPECT_EQ(taken(), QStringList({"press 0 0", "release 0 0"}));
    key(enter);
    EXPECT_EQ(taken(), QStringList()) << "nothing is held";
  }
}

TEST_F(KeyboardHoldView, EscGivesUpAndIsNotUsedWithoutAHold) {
  key(Qt::Key_Space);
  key(Qt::Key_Right);
  key(Qt::Key_Escape);
  EXPECT_EQ(taken(), QStringList({"press 0 0", "move 1 0", "give up"}));
  QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, {});
  escape.accept();
  view->setParent(nullptr);  // without the dialog, which Esc would close
  QCoreApplication::sendEvent(view, &escape);
  EXPECT_FALSE(escape.isAccepted());
  EXPECT_EQ(taken(), QStringList());
  delete view;
}

TEST_F(KeyboardHoldView, AToolThatWorksAtAPointIsReleasedAtOnce) {
  holds = false;
  key(Qt::Key_Space, Qt::ShiftModifier);
  key(Qt::Key_Right);
  EXPECT_EQ(taken(), QStringList({"press 0 0 shift", "release 0 0 shift", "move 1 0"}));
}

TEST_F(KeyboardHoldView, CtrlWithArrowsMovesByEight) {
  key(Qt::Key_Right, Qt::ControlModifier);
  key(Qt::Key_Down, Qt::ControlModifier);
  key(Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(taken(), QStringList({"move 8 0", "move 8 8", "move 15 8"}));
}

TEST_F(KeyboardHoldView, ShiftIsTheModifierOfThePressOfAMoveAndOfTheRelease) {
  key(Qt::Key_Space, Qt::ShiftModifier);
  key(Qt::Key_Right);
  key(Qt::Key_Space);
  EXPECT_EQ(taken(), QStringList({"press 0 0 shift", "move 1 0 shift", "release 1 0"}));
  key(Qt::Key_Space);
  key(Qt::Key_Right, Qt::ShiftModifier);
  key(Qt::Key_Right);
  key(Qt::Key_Space, Qt::ShiftModifier);
  EXPECT_EQ(taken(), QStringList({"press 1 0", "move 2 0 shift", "move 3 0", "move 3 0 shift", "release 3 0 shift"}));
}

TEST_F(KeyboardHoldView, ShiftWithArrowsAsksForAnotherSizeWhileNothingIsHeld) {
  key(Qt::Key_Right, Qt::ShiftModifier);
  key(Qt::Key_Up, Qt::ShiftModifier);
  key(Qt::Key_Down, Qt::ShiftModifier | Qt::ControlModifier);
  EXPECT_EQ(taken(), QStringList({"size 1 0", "size 0 -1", "size 0 8"}));
  EXPECT_EQ(view->pixelCursor(), QPoint(0, 0));
}

TEST_F(KeyboardHoldView, ARepeatedSpaceIsOne) {
  key(Qt::Key_Space);
  QKeyEvent again(QEvent::KeyPress, Qt::Key_Space, {}, " ", true);
  QCoreApplication::sendEvent(view, &again);
  EXPECT_EQ(taken(), QStringList({"press 0 0"}));
}

TEST_F(KeyboardHoldView, AHoldThatACommandHasEndedIsOver) {
  key(Qt::Key_Space);
  holds = false;
  key(Qt::Key_Return);
  key(Qt::Key_Right);
  key(Qt::Key_Space);
  EXPECT_EQ(taken(), QStringList({"press 0 0", "move 1 0", "press 1 0", "release 1 0"}));
}

TEST_F(KeyboardHoldView, TheMouseIsNotReportedWhileTheKeyboardHolds) {
  key(Qt::Key_Space);
  QTest::mouseMove(view, middleOf(7, 7));
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(view, &leave);
  EXPECT_EQ(taken(), QStringList({"press 0 0"}));
  EXPECT_EQ(view->pixelCursor(), QPoint(0, 0));
}

TEST_F(KeyboardHoldView, APressOfTheMouseGivesUpTheHoldFirst) {
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
    key(Qt::Key_Space);
    taken();
    QTest::mousePress(view, button, {}, middleOf(7, 7));
    EXPECT_EQ(taken(), QStringList({"give up", "press 7 7 mouse"}));
    QTest::mouseRelease(view, button, {}, middleOf(7, 7));
    EXPECT_EQ(taken(), QStringList({"release 7 7 mouse"}));
  }
}

TEST_F(KeyboardHoldView, KeysDoNothingWhileTheMouseIsHeld) {
  QTest::mousePress(view, Qt::LeftButton, {}, middleOf(7, 7));
  taken();
  for (const int code : {Qt::Key_Space, Qt::Key_Right, Qt::Key_Home}) key(code);
  key(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(taken(), QStringList());
  EXPECT_EQ(view->pixelCursor(), QPoint(7, 7));
  QTest::mouseRelease(view, Qt::LeftButton, {}, middleOf(8, 7));
  EXPECT_EQ(taken(), QStringList({"release 8 7 mouse"}));
}

TEST_F(KeyboardHoldView, TheFocusOrAWindowThatTakesTheKeysGivesUp) {
  (new QVBoxLayout(&dialog))->addWidget(view);
  auto* other = new QWidget(&dialog);
  other->setFocusPolicy(Qt::StrongFocus);
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  view->setFocus(Qt::TabFocusReason);
  key(Qt::Key_Space);
  other->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(taken(), QStringList({"press 0 0", "give up"}));
  view->setFocus(Qt::TabFocusReason);
  key(Qt::Key_Space);
  QDialog question(&dialog);
  question.setModal(true);
  question.show();
  QCoreApplication::processEvents();
  EXPECT_EQ(taken(), QStringList({"press 0 0", "give up"})) << "once";
}

TEST_F(KeyboardHoldView, AHeldMouseReleasesAtItsPixelAlsoAfterAZoom) {
  QTest::mousePress(view, Qt::LeftButton, {}, middleOf(3, 5));
  magnification = 24;
  surface.resize(16 * 24, 16 * 24);
  view->refresh();
  taken();
  QEvent blocked(QEvent::WindowBlocked);
  QCoreApplication::sendEvent(view, &blocked);
  EXPECT_EQ(taken(), QStringList({"release 3 5 mouse"}));
}

}  // namespace
}  // namespace gp
