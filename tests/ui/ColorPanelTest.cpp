#include "colour/ui/ColorPanel.h"
#include "document/ui/SurfacePainting.h"
#include "platform/qt/widgets/CaptionFrame.h"
#include "ui/FormFixture.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>

namespace gp {
namespace {

class ColorPanelTest : public test::FormFixture {
 protected:
  // The centre of a cell of the chart.
  QPoint cell(QWidget* chart, int columns, int rows, int column, int row) {
    return {chart->width() / columns * column + chart->width() / columns / 2,
            chart->height() / rows * row + chart->height() / rows / 2};
  }
  QWidget* chart256() { return find("picColorChart(0)"); }
  QWidget* chart16() { return find("picColorChart(1)"); }
  QLineEdit* text() { return find<QLineEdit>("txbDirectEntryColorValue"); }
  void type(const QString& keys) { QTest::keyClicks(text(), keys); }
};

TEST_F(ColorPanelTest, TheFramesHaveTheirCaptionsAndOneChartIsUp) {
  start();
  const QStringList captions = {
      "Brush", "S.Color", "Color", "16-Color Palette", "256-Color Palette", "Direct entry of color value"};
  for (int i = 0; i < captions.size(); ++i)
    EXPECT_EQ(find<CaptionFrame>(QString("fraofColorPanel(%1)").arg(i))->caption(), captions[i]);
  const auto visible = [this] {
    return std::vector<bool>{indexed("fraofColorPanel", 3)->isVisible(), indexed("fraofColorPanel", 4)->isVisible(),
                             indexed("fraofColorPanel", 5)->isVisible()};
  };
  EXPECT_EQ(visible(), (std::vector<bool>{true, false, false}));
  click("imgGet256ColorChart");
  EXPECT_EQ(visible(), (std::vector<bool>{false, true, false}));
  click("imgGetDirectEntryColor");
  EXPECT_EQ(visible(), (std::vector<bool>{false, false, true}));
  EXPECT_EQ(QApplication::focusWidget(), text());
  click("imgReturnTo256ColorChart");
  EXPECT_EQ(visible(), (std::vector<bool>{false, true, false}));
}

TEST_F(ColorPanelTest, AReleaseOnAChartChoosesTheColourOfItsCell) {
  start();
  QTest::mouseClick(chart16(), Qt::LeftButton, {}, cell(chart16(), 8, 2, 3, 0));
  EXPECT_EQ(state.mCurrentColor, 0x0000FF);
  QTest::mouseClick(chart16(), Qt::RightButton, {}, cell(chart16(), 8, 2, 5, 1));
  EXPECT_EQ(state.mCurrentColor, 0x008000) << "any button";
  click("imgGet256ColorChart");
  EXPECT_EQ(state.mCurrentColor, 0x008000);
  QTest::mouseClick(chart256(), Qt::LeftButton, {}, cell(chart256(), 16, 3, 2, 1));
  EXPECT_EQ(state.mCurrentColor, 0x8080FF);
  EXPECT_EQ(find("picColorToUse")->grab().toImage().pixel(20, 10), toRgb(0x8080FF));
}

TEST_F(ColorPanelTest, TheChartsShowTheirColours) {
  start();
  const QImage small = chart16()->grab().toImage();
  EXPECT_EQ(small.pixel(cell(chart16(), 8, 2, 3, 0)), toRgb(0x0000FF));
  EXPECT_EQ(small.pixel(cell(chart16(), 8, 2, 0, 1)), toRgb(0xC0C0C0));
  click("imgGet256ColorChart");
  EXPECT_EQ(chart256()->grab().toImage().pixel(cell(chart256(), 16, 3, 15, 2)), toRgb(0x800000));
}

TEST_F(ColorPanelTest, HoveringTellsTheNameAndInTheLargeChartTheValuesIfWanted) {
  start();
  QTest::mouseMove(chart16(), cell(chart16(), 8, 2, 6, 1));
  EXPECT_EQ(chart16()->toolTip(), "Teal");
  click("imgGet256ColorChart");
  QTest::mouseMove(chart256(), cell(chart256(), 16, 3, 2, 1));
  EXPECT_EQ(chart256()->toolTip(), "");
  find<QAction>("mnuOptionsSub(7)")->trigger();
  QTest::mouseMove(chart256(), cell(chart256(), 16, 3, 2, 2));
  EXPECT_EQ(chart256()->toolTip(), "FFh  RGB(255, 0, 0) ** ");
}

TEST_F(ColorPanelTest, ArrowsMoveOverAChartSpeakTheColourAndEnterChooses) {
  start();
  EXPECT_EQ(chart16()->accessibleName(), "16-Color Palette");
  EXPECT_EQ(chart256()->accessibleName(), "256-Color Palette");
  chart16()->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(valueOf(chart16()), "White");
  key(Qt::Key_Right);
  key(Qt::Key_Down);
  EXPECT_EQ(valueOf(chart16()), "Black");
  key(Qt::Key_Return);
  EXPECT_EQ(state.mCurrentColor, kBlack);
  key(Qt::Key_End);
  key(Qt::Key_Space);
  EXPECT_EQ(state.mCurrentColor, 0x800000);
  EXPECT_EQ(valueOf(chart16()), "Navy");
}

TEST_F(ColorPanelTest, DirectEntryTakesOnlyWhatItsFilterLetsPass) {
  start();
  click("imgGetDirectEntryColor");
  type("x1gfF9z-");
  EXPECT_EQ(text()->text(), "1FF9");
  key(Qt::Key_A, Qt::ControlModifier);
  QApplication::clipboard()->setText("#12ab34");
  key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(text()->text(), "12AB34") << "pasted text goes the same way";
  type("7");
  EXPECT_EQ(text()->text(), "12AB34") << "six places";
  key(Qt::Key_Home);
  type("7");
  EXPECT_EQ(text()->text(), "12AB34") << "what stands there stays";
  click("cmdDirectEntryColorValue");
  EXPECT_EQ(state.mCurrentColor, 0x12AB34);
  EXPECT_EQ(QApplication::focusWidget(), text());
}

TEST_F(ColorPanelTest, HexOffShowsTheSameColourInDecimalWithEightPlaces) {
  start();
  click("imgGetDirectEntryColor");
  auto* hex = find<QCheckBox>("ckbAsHexColorValue");
  EXPECT_TRUE(hex->isChecked());
  type("10203");
  hex->click();
  EXPECT_EQ(text()->text(), "66051");
  type("777777");
  EXPECT_EQ(text()->text(), "66051777");
  for (int i = 0; i < 3; ++i) key(Qt::Key_Backspace);
  EXPECT_FALSE(hex->isChecked());
  hex->click();
  EXPECT_EQ(text()->text(), "010203");
  key(Qt::Key_Return);
  EXPECT_EQ(state.mCurrentColor, 0x010203);
}

TEST_F(ColorPanelTest, TheSwatchTellsOfTheCurrentColour) {
  start();
  boxes.expectTold("Currently selected color:      \n\n16777215 / hFFFFFF\n\nRGB(255, 255, 255) \n\nHTML #000000",
                   BoxIcon::Information);
  click("picColorToUse");
  EXPECT_TRUE(boxes.done());
  EXPECT_EQ(find("picColorToUse")->accessibleName(), "Color to use");
}

TEST_F(ColorPanelTest, TheColourDialogSetsTheColourAndCancelKeepsIt) {
  start();
  dialogs.colors = {0x123456, kNoColor};
  click("imgPopColorChart");
  EXPECT_EQ(state.mCurrentColor, 0x123456);
  click("imgPopColorChart");
  EXPECT_EQ(state.mCurrentColor, 0x123456);
}

TEST_F(ColorPanelTest, BrushListAndBrushMenuFollowEachOther) {
  start();
  auto* brush = find<QComboBox>("cboBrushSize");
  ASSERT_EQ(brush->count(), 6);
  EXPECT_EQ(brush->itemText(5), "6");
  EXPECT_EQ(brush->currentIndex(), 0);
  find<QAction>("mnuBrushSize(3)")->trigger();
  settle();
  EXPECT_EQ(brush->currentIndex(), 3);
  brush->setFocus();
  key(Qt::Key_Down);
  EXPECT_EQ(state.screen.brushIndex, 4);
  EXPECT_TRUE(find<QAction>("mnuBrushSize(4)")->isChecked());
  EXPECT_FALSE(find<QAction>("mnuBrushSize(3)")->isChecked());
}

}  // namespace
}  // namespace gp
