// The list of texts with tab stops, used by mouse and keyboard.
#include "platform/qt/widgets/TabbedList.h"

#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace gp {
namespace {

constexpr int kFirstStop = 30;
constexpr int kSecondStop = 60;

class TabbedListTest : public testing::Test {
 protected:
  TabbedListTest() {
    list.resize(300, 120);
    list.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&list));
  }
  void fill(int count) {
    std::vector<std::string> texts;
    for (int i = 1; i <= count; ++i) texts.push_back(std::to_string(i) + "\t-8\t256-Color");
    list.setItems(texts);
  }
  void key(Qt::Key code) { QTest::keyClick(&list, code); }
  void clickItem(int item, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers, list.visualItemRect(list.item(item)).center());
  }
  // The width of a tab stop in whole pixels, rounded up.
  int pixels(int units) const {
    const double average =
        QFontMetricsF(list.font()).horizontalAdvance("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz") / 52;
    int whole = 0;
    while (whole < units * average / 4) ++whole;
    return whole;
  }
  std::vector<int> chosen() const {
    std::vector<int> items;
    for (const auto& signal : spy) items.push_back(signal.first().toInt());
    return items;
  }

  TabbedList list{nullptr, "lisIcons", "Icons in file", {kFirstStop, kSecondStop}};
  QSignalSpy spy{&list, &TabbedList::itemChosen};
};

TEST_F(TabbedListTest, EachTabGoesToTheNextStop) {
  const TabbedColumns columns = list.columnsOf("1\t8\tx");
  EXPECT_EQ(columns.begins, (std::vector<int>{0, pixels(kFirstStop), pixels(kSecondStop)}));
  EXPECT_EQ(columns.end, pixels(kSecondStop) + list.fontMetrics().horizontalAdvance("x"));
}

TEST_F(TabbedListTest, AColumnThatReachesTheNextStopPushesToTheOneAfter) {
  const TabbedColumns columns = list.columnsOf("a text that is too wide\t8");
  EXPECT_GT(columns.begins[1], list.fontMetrics().horizontalAdvance("a text that is too wide"));
  const QString filling(1 + pixels(kFirstStop) / list.fontMetrics().horizontalAdvance("i"), 'i');
  EXPECT_EQ(list.columnsOf(filling + "\t8").begins[1], pixels(kSecondStop));
}

TEST_F(TabbedListTest, BlanksAtTheEndOfAColumnPushNothing) {
  const int letter = list.fontMetrics().horizontalAdvance('i');
  const QString nearlyFull(pixels(kFirstStop) / letter - 2, 'i');
  EXPECT_EQ(list.columnsOf(nearlyFull + "        \t8").begins[1], pixels(kFirstStop));
}

TEST_F(TabbedListTest, BehindTheLastStopMoreFollowAtTheLastDistance) {
  const TabbedColumns columns = list.columnsOf("1\t2\t3\t4\t5");
  EXPECT_EQ(columns.begins[3], pixels(90));
  EXPECT_EQ(columns.begins[4], pixels(120));
}

TEST_F(TabbedListTest, AOneColumnTextHasNoTabs) {
  EXPECT_EQ(list.columnsOf("").begins, std::vector<int>{0});
  EXPECT_EQ(list.columnsOf("").end, 0);
}

TEST_F(TabbedListTest, ItsWidthTakesTheWidestItemAndNoScrollBarComes) {
  list.setItems({"1\t2", "1\t2\ta rather wide text in the last column of the second item"});
  const int widest = list.columnsOf(list.item(1)->text()).end;
  EXPECT_GE(list.sizeHint().width(), widest);
  EXPECT_GE(list.minimumSizeHint().width(), widest);
  EXPECT_EQ(list.horizontalScrollBar()->maximum(), 0);
}

TEST_F(TabbedListTest, AssistiveTechnologyHearsColumnsWithCommas) {
  list.setItems({"Ref 3  \t32 BPP\tTrue-Color\t   32 x  32"});
  EXPECT_EQ(list.item(0)->data(Qt::AccessibleTextRole).toString(), "Ref 3, 32 BPP, True-Color, 32 x 32");
  QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&list);
  EXPECT_EQ(accessible->text(QAccessible::Name), "Icons in file");
  EXPECT_EQ(accessible->child(0)->text(QAccessible::Name), "Ref 3, 32 BPP, True-Color, 32 x 32");
}

TEST_F(TabbedListTest, WhatTheProgramSelectsIsNotTold) {
  fill(3);
  EXPECT_EQ(list.selected(), -1);
  list.setSelected(2);
  EXPECT_EQ(list.selected(), 2);
  fill(2);
  EXPECT_EQ(list.selected(), -1);
  list.setSelected(1);
  list.setSelected(-1);
  EXPECT_EQ(list.selected(), -1);
  list.setSelected(7);
  EXPECT_EQ(list.selected(), -1);
  QApplication::processEvents();
  EXPECT_EQ(spy.count(), 0);
}

TEST_F(TabbedListTest, EqualTextsKeepTheSelection) {
  fill(3);
  list.setSelected(1);
  fill(3);
  EXPECT_EQ(list.selected(), 1);
}

TEST_F(TabbedListTest, AClickChoosesOnce) {
  fill(3);
  list.setSelected(0);
  clickItem(2);
  clickItem(2);
  QApplication::processEvents();
  EXPECT_EQ(chosen(), std::vector<int>{2});
  EXPECT_EQ(list.selected(), 2);
}

TEST_F(TabbedListTest, NoClickSelectsNothing) {
  fill(2);
  list.setSelected(1);
  clickItem(1, Qt::ControlModifier);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.viewport()->rect().bottomLeft());
  EXPECT_EQ(list.selected(), 1);
  EXPECT_EQ(spy.count(), 0);
}

TEST_F(TabbedListTest, KeysMoveAndChoose) {
  fill(40);
  list.setSelected(0);
  for (const Qt::Key code : {Qt::Key_Down, Qt::Key_End, Qt::Key_Up, Qt::Key_Home, Qt::Key_Home}) key(code);
  QApplication::processEvents();
  EXPECT_EQ(chosen(), (std::vector<int>{1, 39, 38, 0}));
  key(Qt::Key_PageDown);
  EXPECT_GT(list.selected(), 1);
  key(Qt::Key_PageUp);
  EXPECT_EQ(list.selected(), 0);
}

TEST_F(TabbedListTest, TheFirstKeyAfterNothingChoosesTheFirstItem) {
  fill(3);
  list.clearFocus();
  list.setFocus(Qt::TabFocusReason);
  key(Qt::Key_Down);
  EXPECT_EQ(chosen(), std::vector<int>{0});
}

TEST_F(TabbedListTest, TheProgramMayGoBackToTheFormerItemDuringTheNotification) {
  fill(3);
  list.setSelected(0);
  const auto back = QObject::connect(&list, &TabbedList::itemChosen, [this] { list.setSelected(0); });
  key(Qt::Key_Down);
  clickItem(2);
  QApplication::processEvents();
  EXPECT_EQ(chosen(), (std::vector<int>{1, 2}));
  EXPECT_EQ(list.selected(), 0);
  EXPECT_EQ(list.currentRow(), 0);
  QObject::disconnect(back);
  key(Qt::Key_Down);
  EXPECT_EQ(list.selected(), 1);
}

TEST_F(TabbedListTest, AssistiveTechnologyCanChoose) {
  fill(3);
  list.setSelected(0);
  list.selectionModel()->setCurrentIndex(list.model()->index(2, 0), QItemSelectionModel::ClearAndSelect);
  QApplication::processEvents();
  EXPECT_EQ(chosen(), std::vector<int>{2});
}

TEST_F(TabbedListTest, AListForReadingSelectsNothing) {
  list.setReadOnly(true);
  fill(3);
  clickItem(1);
  key(Qt::Key_Down);
  QApplication::processEvents();
  EXPECT_EQ(list.selected(), -1);
  EXPECT_EQ(spy.count(), 0);
}

// The letters are painted in the reported columns.
TEST_F(TabbedListTest, LettersStandInTheirColumns) {
  list.setItems({"\tI\tI"});
  const int row = list.visualItemRect(list.item(0)).height();
  const QImage picture = list.viewport()->grab().toImage().scaled(list.viewport()->size());
  std::vector<int> inked;
  for (int x = 0; x < picture.width(); ++x)
    for (int y = 0; y < row; ++y)
      if (picture.pixelColor(x, y) != picture.pixelColor(picture.width() - 1, row - 1)) {
        inked.push_back(x);
        break;
      }
  ASSERT_FALSE(inked.empty());
  const int letter = list.fontMetrics().horizontalAdvance("I");
  const std::vector<int> begins = list.columnsOf("\tI\tI").begins;
  EXPECT_GE(inked.front(), begins[1]);
  EXPECT_LE(inked.front(), begins[1] + letter + 4);
  EXPECT_GE(inked.back(), begins[2]);
  EXPECT_LE(inked.back(), begins[2] + letter + 4);
}

}  // namespace
}  // namespace gp
