// The marks on the colour charts: the current colour and the keyboard's cell.
#include "colour/ui/ColorChartView.h"
#include "document/ui/SurfacePainting.h"
#include "platform/qt/FocusRing.h"
#include "ui/Contrast.h"
#include "ui/FormFixture.h"

namespace gp {
namespace {

constexpr int kWindows[] = {239, 53, 0};
constexpr int kFrame = ColorChartView::kFrame;

struct Chart {
  const char* button;
  const char* name;
  ChartKind kind;
};
constexpr Chart kCharts[] = {{"imgGet16ColorChart", "picColorChart(1)", ChartKind::Chart16},
                             {"imgGet256ColorChart", "picColorChart(0)", ChartKind::Chart256}};

class ColorChartViewTest : public test::FormFixture {
 protected:
  ~ColorChartViewTest() override { QApplication::setPalette(QPalette()); }

  QRect cellRect(const Chart& chart, int cell) {
    const ChartShape shape = shapeOf(chart.kind);
    const QSize size((find(chart.name)->width() - 2 * kFrame) / shape.columns,
                     (find(chart.name)->height() - 2 * kFrame) / shape.rows);
    const ChartPlace place = chartPlaceOf(chart.kind, cell);
    return {QPoint(kFrame + place.column * size.width(), kFrame + place.row * size.height()), size};
  }
  void choose(Color color) {
    state.mCurrentColor = color;
    display.changed(DisplayPart::ColorPanel);
    settle();
  }
  QImage picture(const Chart& chart) { return test::seen(*find(chart.name)); }
};

// The ring is white within black.
TEST_F(ColorChartViewTest, TheCellOfTheCurrentColourHasARingThatIsSeenOnItsColour) {
  start();
  for (const Chart& chart : kCharts) {
    click(chart.button);
    const ChartShape shape = shapeOf(chart.kind);
    for (int cell = 0; cell < shape.columns * shape.rows; ++cell) {
      SCOPED_TRACE(std::string(chart.name) + " " + std::to_string(cell));
      choose(chartColor(chart.kind, cell));
      const QImage image = picture(chart);
      const QRect place = cellRect(chart, cell);
      EXPECT_EQ(image.pixelColor(place.topLeft()), QColor(Qt::black));
      EXPECT_EQ(image.pixelColor(place.bottomRight()), QColor(Qt::black));
      EXPECT_EQ(image.pixelColor(place.topLeft() + QPoint(1, 1)), QColor(Qt::white));
      EXPECT_EQ(image.pixelColor(place.bottomRight() - QPoint(1, 1)), QColor(Qt::white));
      EXPECT_EQ(image.pixel(place.center()), toRgb(chartColor(chart.kind, cell)));
      EXPECT_GE(std::max(test::contrast(Qt::white, image.pixelColor(place.center())),
                         test::contrast(Qt::black, image.pixelColor(place.center()))),
                test::kLeastContrast);
    }
  }
}

TEST_F(ColorChartViewTest, AColourThatTheChartDoesNotHaveHasNoRing) {
  start();
  for (const Chart& chart : kCharts) {
    click(chart.button);
    choose(rgb(1, 2, 3));
    const QImage none = picture(chart);
    choose(chartColor(chart.kind, 5));
    const QImage ringed = picture(chart);
    // The outer ring can lie on the line between two cells, which is black as well.
    const QRect cell = cellRect(chart, 5), ring = test::differenceOf(none, ringed);
    EXPECT_TRUE(cell.contains(ring));
    EXPECT_TRUE(ring.contains(cell.adjusted(1, 1, -1, -1)));
    choose(rgb(3, 2, 1));
    EXPECT_EQ(picture(chart), none);
  }
}

TEST_F(ColorChartViewTest, TheKeysStartAtTheCurrentColour) {
  start();
  for (const Chart& chart : kCharts) {
    click(chart.button);
    const ChartShape shape = shapeOf(chart.kind);
    const int below = chart.kind == ChartKind::Chart16 ? shape.columns : 1;
    choose(chartColor(chart.kind, 4));
    find("cmdTB(0)")->setFocus(Qt::TabFocusReason);
    find(chart.name)->setFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    EXPECT_EQ(state.mCurrentColor, chartColor(chart.kind, 4)) << "the cell itself";
    key(Qt::Key_PageUp);
    key(Qt::Key_Down);
    key(Qt::Key_Space);
    const ChartPlace place = chartPlaceOf(chart.kind, 4);
    const int top = chart.kind == ChartKind::Chart16 ? place.column : place.column * shape.rows;
    EXPECT_EQ(state.mCurrentColor, chartColor(chart.kind, top + below)) << "one below the top of its column";
    EXPECT_EQ(valueOf(find(chart.name)), toText(chartText(chart.kind, top + below)).trimmed());
    choose(chartColor(chart.kind, 0));
    key(Qt::Key_Space);
    EXPECT_EQ(state.mCurrentColor, chartColor(chart.kind, 0)) << "a colour chosen elsewhere meanwhile";
  }
}

TEST_F(ColorChartViewTest, AnotherWindowInBetweenDoesNotMoveTheKeysCell) {
  start();
  choose(chartColor(ChartKind::Chart16, 2));
  QWidget* chart = find("picColorChart(1)");
  chart->setFocus(Qt::TabFocusReason);
  key(Qt::Key_Down);
  QFocusEvent back(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
  QApplication::sendEvent(chart, &back);
  key(Qt::Key_Space);
  EXPECT_EQ(state.mCurrentColor, chartColor(ChartKind::Chart16, 10));
}

TEST_F(ColorChartViewTest, TheKeysCellHasARingInTheAccentColourAndTheCurrentOneKeepsItsRing) {
  for (const int lightness : kWindows) {
    SCOPED_TRACE(lightness);
    QApplication::setPalette(test::paletteOf(lightness));
    start();
    const Chart& chart = kCharts[0];
    choose(chartColor(chart.kind, 9));
    find(chart.name)->setFocus(Qt::TabFocusReason);
    const QColor accent = accentOn(find(chart.name)->palette());
    QImage image = picture(chart);
    EXPECT_EQ(image.pixelColor(cellRect(chart, 9).topLeft()), accent) << "both are one cell";
    EXPECT_EQ(image.pixelColor(cellRect(chart, 9).topLeft() + QPoint(2, 2)), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(cellRect(chart, 9).topLeft() + QPoint(3, 3)), QColor(Qt::white));
    key(Qt::Key_Right);
    image = picture(chart);
    const QPoint corner = cellRect(chart, 10).topLeft();
    EXPECT_EQ(image.pixelColor(corner), accent);
    EXPECT_EQ(image.pixelColor(corner + QPoint(1, 1)), accent);
    EXPECT_GE(test::contrast(image.pixelColor(corner + QPoint(2, 2)), accent), test::kLeastContrast);
    EXPECT_EQ(image.pixelColor(cellRect(chart, 9).topLeft()), QColor(Qt::black));
    form.reset();
  }
}

}  // namespace
}  // namespace gp
