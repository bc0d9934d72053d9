#include "drawing/ui/ToolBox.h"
#include "platform/qt/widgets/PictureButton.h"
#include "ui/FormFixture.h"

namespace gp {
namespace {

class ToolBoxTest : public test::FormFixture {
 protected:
  PictureButton* tool(int index) { return find<PictureButton>(QString("imgTool(%1)").arg(index)); }
};

TEST_F(ToolBoxTest, EveryToolHasItsTooltipAndTheNameBeforeItsBracket) {
  start();
  for (const ToolRow& row : toolTable()) {
    EXPECT_EQ(tool(row.index)->toolTip(), row.tooltip);
    EXPECT_EQ(tool(row.index)->accessibleName().toStdString(), toolName(row.index));
    EXPECT_FALSE(tool(row.index)->icon().isNull()) << row.tooltip;
    EXPECT_TRUE(tool(row.index)->isVisible());
    EXPECT_TRUE(tool(row.index)->isEnabled());
  }
  EXPECT_EQ(tool(kErase)->accessibleName(), "Erase");
}

TEST_F(ToolBoxTest, ToolsAreRadioButtonsWithoutTheirNameInTheDescription) {
  startWithIcon(16);
  click(tool(kErase));
  for (const ToolRow& row : toolTable()) {
    const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(tool(row.index));
    EXPECT_EQ(spoken->role(), QAccessible::RadioButton);
    EXPECT_EQ(spoken->text(QAccessible::Name).toStdString(), toolName(row.index));
    EXPECT_EQ(spoken->text(QAccessible::Description).toStdString(), toolHint(row.index));
    EXPECT_EQ(static_cast<bool>(spoken->state().checked), row.index == kErase);
  }
  EXPECT_EQ(toolHint(kErase), "paint transparent");
  EXPECT_EQ(toolHint(kLine), "+Shift key if for straight line");
  EXPECT_EQ(toolHint(kPaint), "");
  QAccessibleInterface* picker = QAccessible::queryAccessibleInterface(find("imgColorPicker"));
  EXPECT_EQ(picker->role(), QAccessible::RadioButton);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(find("fraTools(1)"))->role(), QAccessible::Grouping);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(find("fraTools(1)"))->text(QAccessible::Name), "Tools");
}

TEST_F(ToolBoxTest, ToolsCarryTheKeysOfTheirMenuEntries) {
  startWithIcon(16);
  const auto keyOf = [this](const QString& name) {
    QAccessibleInterface* button = QAccessible::queryAccessibleInterface(find(name));
    return button->actionInterface()->keyBindingsForAction(button->actionInterface()->actionNames().front());
  };
  EXPECT_EQ(keyOf("imgTool(4)"), QStringList("F4"));
  EXPECT_EQ(keyOf("imgTool(14)"), QStringList("Shift+F7"));
  EXPECT_EQ(keyOf("imgTool(15)"), QStringList("Shift+F8"));
  EXPECT_EQ(keyOf("imgClearAllTools"), QStringList("F2"));
  EXPECT_EQ(keyOf("imgColorPicker"), QStringList("F3"));
  EXPECT_EQ(keyOf("cmdTB(4)"), QStringList("Ctrl+S"));
  EXPECT_EQ(keyOf("cmdTB(14)"), QStringList());
}

TEST_F(ToolBoxTest, ASelectedToolIsSunkenAndASecondClickTurnsItOff) {
  startWithIcon(16);
  click(tool(kPaint));
  EXPECT_TRUE(tool(kPaint)->isChecked());
  click(tool(kErase));
  EXPECT_FALSE(tool(kPaint)->isChecked());
  EXPECT_TRUE(tool(kErase)->isChecked());
  click(tool(kErase));
  EXPECT_FALSE(tool(kErase)->isChecked());
  EXPECT_EQ(shell.drawing().tools.selectedTool(), kNoTool);
}

TEST_F(ToolBoxTest, WithoutAnIconTheToolsLookDimmedAndAClickSaysWhy) {
  start();
  EXPECT_TRUE(tool(kPaint)->isDimmed());
  EXPECT_TRUE(tool(kPaint)->isEnabled());
  boxes.expectTold("No icon in Editing Area yet", BoxIcon::None);
  click(tool(kPaint));
  EXPECT_TRUE(boxes.done());
  EXPECT_FALSE(tool(kPaint)->isChecked());
  find<QAction>("mnuFileSub(2)")->trigger();
  EXPECT_FALSE(tool(kPaint)->isDimmed());
}

TEST_F(ToolBoxTest, TheColourPickerShowsBesideTheLargeChartOnlyAndMovesNothing) {
  startWithIcon(16);
  click("imgGet16ColorChart");
  const QRect place = tool(kShift)->geometry();
  EXPECT_FALSE(find("imgColorPicker")->isVisible());
  click("imgGet256ColorChart");
  EXPECT_TRUE(find("imgColorPicker")->isVisible());
  EXPECT_EQ(tool(kShift)->geometry(), place);
}

TEST_F(ToolBoxTest, ThePickerTakesAColourFromTheIconAndClearToolsEndsIt) {
  startWithIcon(16);
  click("imgGet256ColorChart");
  click("imgColorPicker");
  EXPECT_TRUE(find<PictureButton>("imgColorPicker")->isChecked());
  QTest::mouseClick(find("picDisp"), Qt::LeftButton, {}, middleOf(2, 2));
  EXPECT_EQ(state.mCurrentColor, rgb(252, 3, 48));
  EXPECT_FALSE(state.current().modified);
  click("imgClearAllTools");
  EXPECT_FALSE(find<PictureButton>("imgColorPicker")->isChecked());
}

TEST_F(ToolBoxTest, ArrowsMoveOverTheTwoColumns) {
  startWithIcon(16);
  tool(kPaint)->setFocus(Qt::TabFocusReason);
  key(Qt::Key_Right);
  EXPECT_EQ(QApplication::focusWidget(), tool(kErase));
  key(Qt::Key_Left);
  key(Qt::Key_Down);
  EXPECT_EQ(QApplication::focusWidget(), tool(kFill));
  key(Qt::Key_Space);
  EXPECT_EQ(shell.drawing().tools.selectedTool(), kFill);
}

}  // namespace
}  // namespace gp
