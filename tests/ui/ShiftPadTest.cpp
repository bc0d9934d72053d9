#include "document/Containers.h"
#include "drawing/ToolTable.h"
#include "drawing/ui/ShiftPad.h"
#include "platform/qt/widgets/PictureButton.h"
#include "support/ShellFixture.h"
#include "ui/Screens.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

namespace gp {
namespace {

// The pad, connected like on the form.
class ShiftPadTest : public test::ShellFixture {
 protected:
  static constexpr int kSize = 16;
  Tools& tools = shell.drawing().tools;
  ShiftTool& shift = shell.drawing().shift;
  QWidget window;
  ShiftPad* pad = nullptr;

  void SetUp() override {
    pad = makePad(window);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  ShiftPad* makePad(QWidget& parent) {
    auto* made = new ShiftPad(&parent, state.screen, tools, shift);
    QObject::connect(made, &ShiftPad::toolChosen, made, [this, made](int tool) {
      shell.chooseTool(toolRow(tool).index);
      made->refresh();
    });
    QObject::connect(made, &ShiftPad::directionReleased, made, [this, made](ShiftCell cell) {
      shell.shiftTowards(cell);
      made->refresh();
    });
    return made;
  }
  // A green pixel at (4, 4) on a transparent ground.
  void makeIcon() {
    IconImage icon = transparentIcon(kSize);
    icon.image.SetPixelV(4, 4, 0x00F000);
    icon.mask.SetPixelV(4, 4, kBlack);
    shell.document().arrival.arrive(icon, NewRecord());
    pad->refresh();
  }
  QPoint pictureAt() const {
    for (int y = 0; y < kSize; ++y)
      for (int x = 0; x < kSize; ++x)
        if (state.picMask.GetPixel(x, y) == kBlack) return {x, y};
    return {-1, -1};
  }
  PictureButton* find(const QString& name) {
    auto* found = pad->findChild<PictureButton*>(name);
    if (!found) ADD_FAILURE() << "no " << name.toStdString();
    return found;
  }
  PictureButton* cell(ShiftCell which) { return find(QString("imgShiftDir(%1)").arg(static_cast<int>(which))); }
  PictureButton* tool() { return find("imgTool(15)"); }
  static QPoint middleOf(int column, int row) { return {20 * column + 10, 20 * row + 10}; }
  void clickCell(int column, int row) { QTest::mouseClick(pad, Qt::LeftButton, {}, middleOf(column, row)); }
  int cellsDown() {
    int down = 0;
    for (const PictureButton* button : pad->findChildren<PictureButton*>()) down += button->isDown();
    return down;
  }
};

TEST_F(ShiftPadTest, ANameATooltipAndAPictureForEachCell) {
  EXPECT_EQ(pad->size(), QSize(60, 60));
  EXPECT_EQ(pad->toolTip(), "Shift image (when middle square is sunken)");
  const char* names[] = {
      "",           "Shift up left",   "Shift up", "Shift up right", "Shift left", "Shift right", "Shift down left",
      "Shift down", "Shift down right"};
  for (int i = 1; i < kShiftPictureCount; ++i) {
    PictureButton* button = cell(static_cast<ShiftCell>(i));
    EXPECT_EQ(button->accessibleName(), names[i]);
    EXPECT_EQ(button->toolTip(), pad->toolTip());
    EXPECT_FALSE(button->icon().isNull());
    EXPECT_EQ(button->size(), QSize(20, 20));
    EXPECT_EQ(shiftCellAt(button->geometry().center().x(), button->geometry().center().y(), 60),
              static_cast<ShiftCell>(i));
  }
  EXPECT_EQ(tool()->accessibleName(), "Set/unset shift image");
  EXPECT_EQ(tool()->toolTip(), "Set/unset shift image");
  EXPECT_EQ(tool()->geometry(), QRect(20, 20, 20, 20));
  EXPECT_EQ(QAccessible::queryAccessibleInterface(cell(ShiftCell::Top))->role(), QAccessible::PushButton);
}

TEST_F(ShiftPadTest, TheMiddleSinksWhileShiftIsOn) {
  makeIcon();
  QTest::mouseClick(tool(), Qt::LeftButton);
  EXPECT_TRUE(tool()->isChecked());
  EXPECT_EQ(tools.selectedTool(), kShift);
  QTest::mouseClick(tool(), Qt::LeftButton);
  EXPECT_FALSE(tool()->isChecked());
  EXPECT_EQ(tools.selectedTool(), kNoTool);
}

TEST_F(ShiftPadTest, AClickOnACellMovesThePictureItsWay) {
  makeIcon();
  QTest::mouseClick(tool(), Qt::LeftButton);
  const QPoint expected[] = {{3, 3}, {4, 3}, {5, 3}, {3, 4}, {-1, -1}, {5, 4}, {3, 5}, {4, 5}, {5, 5}};
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 3; ++column) {
      if (row == 1 && column == 1) continue;
      clickCell(column, row);
      EXPECT_EQ(pictureAt(), expected[3 * row + column]) << column << ' ' << row;
      clickCell(2 - column, 2 - row);
      EXPECT_EQ(pictureAt(), QPoint(4, 4)) << "the way back from " << column << ' ' << row;
    }
  }
}

TEST_F(ShiftPadTest, QuickClicksAreAsManySteps) {
  makeIcon();
  QTest::mouseClick(tool(), Qt::LeftButton);
  QTest::mouseClick(pad, Qt::LeftButton, {}, middleOf(2, 1));
  // The second press of a pair is delivered as a double click.
  QTest::mouseDClick(pad, Qt::LeftButton, {}, middleOf(2, 1));
  QTest::mouseRelease(pad, Qt::LeftButton, {}, middleOf(2, 1));
  EXPECT_EQ(pictureAt(), QPoint(6, 4));
}

TEST_F(ShiftPadTest, ACellLooksPressedWhileTheButtonIsDown) {
  makeIcon();
  QTest::mouseClick(tool(), Qt::LeftButton);
  QTest::mousePress(pad, Qt::LeftButton, {}, middleOf(2, 0));
  EXPECT_TRUE(cell(ShiftCell::TopRight)->isDown());
  EXPECT_EQ(cellsDown(), 1);
  EXPECT_EQ(pictureAt(), QPoint(4, 4)) << "nothing moves before the release";
  QTest::mouseRelease(pad, Qt::LeftButton, {}, middleOf(2, 0));
  EXPECT_EQ(cellsDown(), 0);
  EXPECT_EQ(pictureAt(), QPoint(5, 3));
}

TEST_F(ShiftPadTest, TheReleaseTellsTheCellAndOutsideThePadThereIsNone) {
  makeIcon();
  QTest::mouseClick(tool(), Qt::LeftButton);
  QTest::mousePress(pad, Qt::LeftButton, {}, middleOf(0, 0));
  QTest::mouseRelease(pad, Qt::LeftButton, {}, middleOf(2, 1));
  EXPECT_EQ(pictureAt(), QPoint(5, 4));
  QTest::mousePress(pad, Qt::LeftButton, {}, middleOf(0, 0));
  QTest::mouseRelease(pad, Qt::LeftButton, {}, QPoint(-500, 900));
  EXPECT_EQ(pictureAt(), QPoint(5, 4));
  EXPECT_EQ(cellsDown(), 0);
}

TEST_F(ShiftPadTest, OtherButtonsDoNothingAndDoNotEndAPress) {
  makeIcon();
  QTest::mouseClick(tool(), Qt::LeftButton);
  QTest::mouseClick(pad, Qt::RightButton, {}, middleOf(0, 0));
  EXPECT_EQ(pictureAt(), QPoint(4, 4));
  QTest::mousePress(pad, Qt::LeftButton, {}, middleOf(0, 0));
  QTest::mouseClick(pad, Qt::RightButton, {}, middleOf(2, 2));
  EXPECT_TRUE(cell(ShiftCell::TopLeft)->isDown());
  QTest::mouseRelease(pad, Qt::LeftButton, {}, middleOf(0, 0));
  EXPECT_EQ(pictureAt(), QPoint(3, 3));
}

TEST_F(ShiftPadTest, APressWhoseReleaseGoesElsewhereIsForgotten) {
  makeIcon();
  QTest::mouseClick(tool(), Qt::LeftButton);
  QTest::mousePress(pad, Qt::LeftButton, {}, middleOf(0, 0));
  pad->hide();
  EXPECT_EQ(cellsDown(), 0);
  pad->show();
  QTest::mouseRelease(pad, Qt::LeftButton, {}, middleOf(0, 0));
  EXPECT_EQ(pictureAt(), QPoint(4, 4));
}

TEST_F(ShiftPadTest, WithoutShiftAReleaseSaysToSelectIt) {
  makeIcon();
  boxes.expectTold("Please select Shift first (middle square)", BoxIcon::None);
  clickCell(1, 0);
  EXPECT_TRUE(boxes.done());
  EXPECT_EQ(cellsDown(), 0);
  EXPECT_EQ(pictureAt(), QPoint(4, 4));
}

TEST_F(ShiftPadTest, WithoutAnIconThePadLooksDimmedAndSaysWhy) {
  EXPECT_TRUE(tool()->isDimmed());
  EXPECT_TRUE(cell(ShiftCell::Left)->isDimmed());
  boxes.expectTold("No icon in Editing Area yet", BoxIcon::None);
  clickCell(0, 1);
  EXPECT_TRUE(boxes.done());
  makeIcon();
  EXPECT_FALSE(tool()->isDimmed());
  EXPECT_FALSE(cell(ShiftCell::Left)->isDimmed());
}

TEST_F(ShiftPadTest, TheKeyboardReachesEachCellByArrowsAndMovesWithSpace) {
  makeIcon();
  PictureButton* first = cell(ShiftCell::TopLeft);
  first->setFocus(Qt::TabFocusReason);
  QTest::keyClick(first, Qt::Key_Right);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  ASSERT_EQ(QApplication::focusWidget(), tool());
  QTest::keyClick(tool(), Qt::Key_Space);
  EXPECT_EQ(tools.selectedTool(), kShift);
  QTest::keyClick(tool(), Qt::Key_Down);
  PictureButton* down = cell(ShiftCell::Bottom);
  ASSERT_EQ(QApplication::focusWidget(), down);
  QTest::keyPress(down, Qt::Key_Space);
  EXPECT_TRUE(down->isDown());
  EXPECT_EQ(shift.shownPicture(), static_cast<int>(ShiftCell::Bottom));
  QTest::keyRelease(down, Qt::Key_Space);
  EXPECT_FALSE(down->isDown());
  EXPECT_EQ(pictureAt(), QPoint(4, 5));
}

TEST_F(ShiftPadTest, AKeyThatIsLetGoElsewhereMovesNothing) {
  makeIcon();
  QTest::mouseClick(tool(), Qt::LeftButton);
  PictureButton* left = cell(ShiftCell::Left);
  left->setFocus(Qt::TabFocusReason);
  QTest::keyPress(left, Qt::Key_Space);
  tool()->setFocus(Qt::OtherFocusReason);
  EXPECT_EQ(cellsDown(), 0);
  EXPECT_EQ(pictureAt(), QPoint(4, 4));
}

TEST_F(ShiftPadTest, AssistiveTechnologyMovesThePicture) {
  makeIcon();
  QTest::mouseClick(tool(), Qt::LeftButton);
  QAccessible::queryAccessibleInterface(cell(ShiftCell::Right))
      ->actionInterface()
      ->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(QTest::qWaitFor([this] { return pictureAt() == QPoint(5, 4); }));
}

TEST_F(ShiftPadTest, IsPhotographed) {
  makeIcon();
  tools.selectTool(kShift);
  test::saveInBothThemes("shift-pad", [this] {
    auto holder = std::make_unique<QWidget>();
    ShiftPad* shown = makePad(*holder);
    shift.padPress(ShiftCell::TopRight);
    shown->refresh();
    shift.padPress(ShiftCell::Rest);
    shown->move(4, 4);
    holder->resize(68, 68);
    return holder;
  });
  EXPECT_TRUE(QFile::exists(GP_BINARY_DIR "/screens/shift-pad-dark.png"));
}

}  // namespace
}  // namespace gp
