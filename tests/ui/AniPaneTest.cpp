// picANIContainer(0): what its controls forward, what they show, and how they are reached by keyboard and by
// assistive technology.
#include "animation/ui/AniFilmView.h"
#include "document/ui/NoticeLabel.h"
#include "ui/AniPaneFixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QWheelEvent>

#include <string>
#include <vector>

namespace gp {
namespace {

using AniPaneTest = test::AniPaneFixture;

QString accessible(QWidget* widget, QAccessible::Text text) {
  return QAccessible::queryAccessibleInterface(widget)->text(text);
}

struct NamedButton {
  int index;
  const char* tooltip;
  const char* name;
};
constexpr NamedButton kButtons[] = {
    {0, "Close ANI session", "Close ANI session"},
    {1, "Resize", "Resize"},
    {2, "Minimize", "Minimize"},
    {3, "Create new ANI file", "Create new ANI file"},
    {4, "Open ANI file", "Open ANI file"},
    {5, "Save to ANI file -- Cursor-based", "Save to ANI file -- Cursor-based"},
    {6, "Close", "Close"},
    {7, "Set interval between frames", "Set interval between frames"},
    {8, "Test animation", "Test"},
    {9, "Frame property", "Frame property"},
    {10, "From Editing Area", "From Editing Area"},
    {11, "To Editing Area", "To Editing Area"},
    {12, "Add new frame below", "Add new frame below"},
    {13, "Add new frame above", "Add new frame above"},
    {14, "Remove current frame", "Remove current frame"},
    {15, "Load direct from ICO file to current frame", "Load direct from ICO file to current frame"},
    {16, "Shift current up", "Shift current up"},
    {17, "Shift current down", "Shift current down"},
    {18, "Go to one frame up", "Go to one frame up"},
    {19, "Go to one frame down", "Go to one frame down"},
};

TEST_F(AniPaneTest, EachButtonHasItsTooltipAndIsNamedByIt) {
  open();
  ASSERT_EQ(std::size(kButtons), static_cast<std::size_t>(AniSession::kButtonCount));
  for (const NamedButton& row : kButtons) {
    EXPECT_TRUE(button(row.index)->isVisible()) << row.index;
    EXPECT_EQ(button(row.index)->toolTip(), row.tooltip);
    EXPECT_EQ(accessible(button(row.index), QAccessible::Name), row.name);
  }
}

TEST_F(AniPaneTest, TheListsAndTheTickBoxAreNamedInWordsAndAreTheChoicesOfTheSession) {
  open();
  const char* names[] = {"Jiffies", "Hot spot X", "Hot spot Y"};
  const int entries[] = {90, 32, 32};
  for (int i = 0; i < 3; ++i) {
    auto* list = find<QComboBox>(QString("cboANI(%1)").arg(i));
    EXPECT_EQ(list->accessibleName(), names[i]);
    EXPECT_EQ(list->count(), entries[i]);
    const auto labels = QAccessible::queryAccessibleInterface(list)->relations(QAccessible::Label);
    ASSERT_EQ(labels.size(), 1u);
    EXPECT_EQ(labels[0].first->text(QAccessible::Name), names[i]);
  }
  EXPECT_EQ(find<QComboBox>("cboANI(0)")->currentText(), "30");
  find<QComboBox>("cboANI(0)")->setCurrentIndex(6);
  find<QComboBox>("cboANI(1)")->setCurrentIndex(5);
  find<QComboBox>("cboANI(2)")->setCurrentIndex(31);
  auto* singly = find<QCheckBox>("ckbJIFSinglely");
  EXPECT_EQ(singly->text().remove('&'), "Set singly");
  EXPECT_EQ(singly->toolTip(), "Leave unchecked if same jiffies apply to all frames");
  singly->click();
  EXPECT_EQ(session().choices().jiffies, 7);
  EXPECT_EQ(session().choices().hotspotX, 5);
  EXPECT_EQ(session().choices().hotspotY, 31);
  EXPECT_TRUE(session().choices().singly);
  press(3);
  EXPECT_EQ(session().frames().currentFrame().jiffies, 7);
  EXPECT_EQ(find<QComboBox>("cboANI(1)")->currentText(), "0") << "a new film has its hot spot in the corner";
}

TEST_F(AniPaneTest, TheButtonsAreEnabledAsTheSessionSays) {
  open();
  const auto expectEnabled = [this](const char* when) {
    for (int i = 0; i < AniSession::kButtonCount; ++i)
      EXPECT_EQ(button(i)->isEnabled(), session().isEnabled(i)) << when << i;
  };
  expectEnabled("without frames ");
  EXPECT_FALSE(button(14)->isEnabled());
  makeFilm(1);
  expectEnabled("one frame ");
  EXPECT_TRUE(button(14)->isEnabled());
  EXPECT_FALSE(button(18)->isEnabled());
  press(12);
  press(12);
  expectEnabled("at the last of three ");
  EXPECT_FALSE(button(19)->isEnabled());
  EXPECT_TRUE(button(18)->isEnabled());
  press(18);
  expectEnabled("in the middle ");
  EXPECT_TRUE(button(19)->isEnabled());
}

TEST_F(AniPaneTest, TheButtonsChangeTheFilmAndTheLabelsFollow) {
  open();
  EXPECT_TRUE(find("lblANIHint")->isVisible());
  EXPECT_FALSE(find("lblANI(0)")->isVisible());
  makeFilm(3);
  EXPECT_FALSE(find("lblANIHint")->isVisible());
  EXPECT_EQ(valueOf(find("lblANI(0)")), "Frame:  3 / 3");
  EXPECT_EQ(valueOf(find("lblANI(1)")), "Jiffies:  30");
  press(18);
  EXPECT_EQ(valueOf(find("lblANI(0)")), "Frame:  2 / 3");
  find<QComboBox>("cboANI(0)")->setCurrentIndex(11);
  find<QCheckBox>("ckbJIFSinglely")->setChecked(true);
  press(7);
  EXPECT_EQ(valueOf(find("lblANI(1)")), "Jiffies:  12");
  press(16);
  EXPECT_EQ(session().frames().frame(1).jiffies, 12);
  press(14);
  EXPECT_EQ(valueOf(find("lblANI(0)")), "Frame:  1 / 2");
}

TEST_F(AniPaneTest, TheFilmIsSpokenAsFrameNumberAndTime) {
  open();
  EXPECT_EQ(accessible(film(), QAccessible::Name), "Film");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(film())->role(), QAccessible::Canvas);
  EXPECT_EQ(valueOf(film()), "No frames");
  makeFilm(12);
  session().goTo(3);
  find<QComboBox>("cboANI(0)")->setCurrentIndex(5);
  find<QCheckBox>("ckbJIFSinglely")->setChecked(true);
  press(7);
  EXPECT_EQ(valueOf(film()), "Frame 3 of 12, 6 jiffies");
  find<QComboBox>("cboANI(0)")->setCurrentIndex(0);
  press(7);
  EXPECT_EQ(valueOf(film()), "Frame 3 of 12, 1 jiffy");
}

TEST_F(AniPaneTest, WhatAButtonDoesToTheFilmIsAnnouncedWhileTheButtonHasTheFocus) {
  open();
  makeFilm(3);
  auto* notice = form->findChild<NoticeLabel*>();
  button(18)->setFocus();
  key(Qt::Key_Space);
  EXPECT_EQ(notice->text(), "Frame 2 of 3, 30 jiffies");
  film()->setFocus();
  key(Qt::Key_Down);
  EXPECT_EQ(notice->text(), "Frame 2 of 3, 30 jiffies") << "the film speaks for itself";
  button(3)->setFocus();
  display.announce("Opened a.ani");
  boxes.expectAsked("Without saving frames to file first?\n\n", BoxAnswer::Yes);
  key(Qt::Key_Space);
  EXPECT_EQ(notice->text(), "Opened a.ani") << "what the session announces about a file remains";
}

struct FilmKey {
  int key;
  int from, to;  // in a film of twenty frames
};

TEST_F(AniPaneTest, KeysOnTheFilmGoToOtherFrames) {
  open();
  makeFilm(20);
  film()->setFocus();
  const int page = session().film().largeStep() / AniFilm::kCellHeight;
  ASSERT_GT(page, 2);
  const FilmKey keys[] = {{Qt::Key_Up, 5, 4},
                          {Qt::Key_Left, 5, 4},
                          {Qt::Key_Down, 5, 6},
                          {Qt::Key_Right, 5, 6},
                          {Qt::Key_Home, 5, 1},
                          {Qt::Key_End, 5, 20},
                          {Qt::Key_Up, 1, 1},
                          {Qt::Key_Down, 20, 20},
                          {Qt::Key_PageUp, 2, 1},
                          {Qt::Key_PageDown, 19, 20},
                          {Qt::Key_PageDown, 1, 1 + page},
                          {Qt::Key_PageUp, 20, 20 - page}};
  for (const FilmKey& row : keys) {
    session().goTo(row.from);
    key(row.key);
    EXPECT_EQ(session().frames().current(), row.to) << row.key << " from " << row.from;
  }
}

TEST_F(AniPaneTest, KeysOnTheFilmShiftAndRemoveWhereTheButtonsAreEnabled) {
  open();
  film()->setFocus();
  key(Qt::Key_Delete);
  key(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(session().frames().count(), 0);
  makeFilm(3);
  find<QComboBox>("cboANI(0)")->setCurrentIndex(11);
  find<QCheckBox>("ckbJIFSinglely")->setChecked(true);
  press(7);
  film()->setFocus();
  key(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(session().frames().frame(3).jiffies, 12) << "at the end";
  key(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(session().frames().frame(2).jiffies, 12);
  EXPECT_EQ(session().frames().current(), 2);
  key(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(session().frames().frame(3).jiffies, 12);
  key(Qt::Key_Delete);
  EXPECT_EQ(session().frames().count(), 2);
  EXPECT_EQ(session().frames().currentFrame().jiffies, 30);
  EXPECT_TRUE(film()->hasFocus());
}

TEST_F(AniPaneTest, DeleteOnTheFilmDoesNotEraseTheRegion) {
  startWithIcon(32);
  enter();
  state.mRegionExists = true;
  film()->setFocus();
  key(Qt::Key_Delete);
  EXPECT_TRUE(state.mRegionExists);
  state.mRegionExists = false;
}

TEST_F(AniPaneTest, AClickSelectsAFrameAndOneBelowTheLastIsIgnored) {
  open();
  makeFilm(3);
  const QPoint first = onFilm(20, 20);
  const auto clickAt = [&](int cell) {
    QTest::mouseClick(film(), Qt::LeftButton, Qt::NoModifier, onFilm(20, 20 + cell * AniFilm::kCellHeight));
  };
  clickAt(0);
  EXPECT_EQ(session().frames().current(), 1);
  EXPECT_TRUE(film()->hasFocus());
  clickAt(1);
  EXPECT_EQ(session().frames().current(), 2);
  clickAt(3);
  EXPECT_EQ(session().frames().current(), 2);
  QTest::mouseClick(film(), Qt::RightButton, Qt::NoModifier, first);
  EXPECT_EQ(session().frames().current(), 2);
  QTest::mousePress(film(), Qt::LeftButton, Qt::NoModifier, first);
  QTest::mouseRelease(film(), Qt::LeftButton, Qt::NoModifier, QPoint(-5, 20));
  EXPECT_EQ(session().frames().current(), 2) << "released outside";
  for (int i = 0; i < 17; ++i) press(12);
  session().goTo(1);
  QTest::mousePress(film(), Qt::LeftButton, Qt::NoModifier, first);
  QTest::mouseRelease(film(), Qt::LeftButton, Qt::NoModifier, QPoint(20, film()->height() + 20));
  EXPECT_EQ(session().frames().current(), 1) << "released below, where a frame is hidden";
}

TEST_F(AniPaneTest, TheFilmIsShownPixelForPixelAndScrolls) {
  open();
  makeFilm(20);
  session().goTo(1);
  auto* bar = find<QScrollBar>("VsrANISeries");
  EXPECT_EQ(bar->maximum(), session().film().scrollMaximum());
  EXPECT_GT(bar->maximum(), 0);
  EXPECT_EQ(bar->singleStep(), 50);
  EXPECT_EQ(bar->pageStep(), session().film().largeStep());
  const int factor = static_cast<int>(film()->devicePixelRatioF()), edge = qRound(2 * film()->devicePixelRatioF());
  for (const int scroll : {0, 130}) {
    bar->setValue(scroll);
    EXPECT_EQ(session().film().scroll(), scroll);
    const QImage shown = film()->grab().toImage();
    for (int y = 0; y < 120 * factor; ++y)
      for (int x = 0; x < AniFilm::kCellWidth * factor; ++x) {
        const Color wanted = session().film().picFilm().GetPixel(x / factor, y / factor + scroll);
        ASSERT_EQ(shown.pixel(x + edge, y + edge), qRgb(redOf(wanted), greenOf(wanted), blueOf(wanted)))
            << x << ", " << y << " at " << scroll;
      }
  }
  QTest::mouseClick(film(), Qt::LeftButton, Qt::NoModifier, onFilm(20, 30));
  EXPECT_EQ(session().frames().current(), (130 + 30) / 50 + 1) << "the click counts from the top of the film";
}

TEST_F(AniPaneTest, TheWheelScrollsTheFilm) {
  open();
  makeFilm(20);
  session().goTo(1);
  QWidget* strip = find("picANISeriesBase");  // which gets the wheel also from the film
  const QPointF middle = strip->rect().center();
  QWheelEvent notch(middle, strip->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                    false);
  const int step = QApplication::wheelScrollLines() * AniFilm::kCellHeight, maximum = session().film().scrollMaximum();
  ASSERT_GT(maximum, step);
  QApplication::sendEvent(strip, &notch);
  EXPECT_EQ(session().film().scroll(), step);
  for (int turned = step; turned < maximum + 2 * step; turned += step) QApplication::sendEvent(strip, &notch);
  EXPECT_EQ(session().film().scroll(), maximum);
  EXPECT_EQ(session().frames().current(), 1);
}

TEST_F(AniPaneTest, TheTestShowsItsPictureAndItsButtonStops) {
  open();
  makeFilm(2);
  auto* test = find<QPushButton>("cmdANI(8)");
  const int width = test->width();
  click(test);
  EXPECT_TRUE(timer.isRunning());
  EXPECT_EQ(test->text().remove('&'), "Stop");
  EXPECT_EQ(test->width(), width);
  EXPECT_EQ(valueOf(find("picANITest")), "The test runs");
  click(test);
  EXPECT_FALSE(timer.isRunning());
  EXPECT_EQ(test->text().remove('&'), "Test");
  EXPECT_EQ(valueOf(find("picANITest")), "No test");
}

TEST_F(AniPaneTest, ThePictureOfTheTestIsMagnifiedByAWholeFactor) {
  startWithIcon(32);
  enter();
  makeFilm(2);
  press(10);
  press(8);
  timer.tick();
  timer.tick();
  settle();
  const Surface& wanted = session().test().picANITest();
  const QImage shown = find("picANITest")->grab().toImage();
  const int factor = (std::min(shown.width(), shown.height()) - 2) / kFrameSide;
  ASSERT_GE(factor, 2);
  for (int y = 0; y < kFrameSide * factor; ++y)
    for (int x = 0; x < kFrameSide * factor; ++x) {
      const Color color = wanted.GetPixel(x / factor, y / factor);
      ASSERT_EQ(shown.pixel(x + 1, y + 1), qRgb(redOf(color), greenOf(color), blueOf(color))) << x << ", " << y;
    }
}

TEST_F(AniPaneTest, TabFollowsTheEyeAndEachGroupIsOneStop) {
  open();
  makeFilm(3);
  session().goTo(2);
  settle();
  button(1)->setFocus();
  for (const char* name : {"cmdANI(1)", "cmdANI(2)", "cmdANI(0)", "picFilm", "cmdANI(3)", "cmdANI(10)", "cmdANI(12)",
                           "cboANI(0)", "ckbJIFSinglely", "cmdANI(7)", "cboANI(1)", "cboANI(2)", "cmdANI(8)"}) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_FALSE(pane()->isAncestorOf(QApplication::focusWidget()));
  button(18)->setFocus();
  for (const auto& [code, name] : std::vector<std::pair<int, const char*>>{
           {Qt::Key_Right, "cmdANI(19)"}, {Qt::Key_Down, "cmdANI(13)"}, {Qt::Key_End, "cmdANI(9)"}}) {
    key(code);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
  }
}

TEST_F(AniPaneTest, EnterPressesTheFocusedButton) {
  open();
  EXPECT_TRUE(button(3)->hasFocus());
  key(Qt::Key_Return);
  EXPECT_EQ(session().frames().count(), 1);
}

TEST_F(AniPaneTest, TheFocusGoesToTheFilmWhenItsButtonIsDisabled) {
  open();
  makeFilm(2);
  button(18)->setFocus();
  key(Qt::Key_Space);
  EXPECT_FALSE(button(18)->isEnabled());
  EXPECT_TRUE(film()->hasFocus());
}

}  // namespace
}  // namespace gp
