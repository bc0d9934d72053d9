#include "colour/ColorCharts.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

TEST(ColorCharts, TheSmallChartHasItsColoursInEightColumnsAndTwoRows) {
  const Surface chart = CreateColorChart16(10, 12);
  ASSERT_EQ(chart.width(), 80);
  ASSERT_EQ(chart.height(), 24);
  for (int k = 0; k < 16; ++k)
    EXPECT_EQ(chart.GetPixel(k % 8 * 10 + 5, k / 8 * 12 + 6), mChartColors16[static_cast<std::size_t>(k)].color) << k;
}

TEST(ColorCharts, TheSmallChartHasBlackLinesBetweenAllCells) {
  const Surface chart = CreateColorChart16(10, 12);
  for (int y = 0; y < 24; ++y)
    for (int column = 1; column < 8; ++column) EXPECT_EQ(chart.GetPixel(column * 10, y), kBlack);
  for (int x = 0; x < 80; ++x) EXPECT_EQ(chart.GetPixel(x, 12), kBlack);
  EXPECT_EQ(chart.GetPixel(0, 0), kWhite);
}

TEST(ColorCharts, TheLargeChartRunsDownItsColumnsAndHasNoVerticalLines) {
  const Surface chart = CreateColorChart256(14, 16);
  ASSERT_EQ(chart.width(), 16 * 14);
  ASSERT_EQ(chart.height(), 3 * 16);
  for (int k = 0; k < 48; ++k) {
    const Color color = mChartColors256[static_cast<std::size_t>(k)];
    EXPECT_EQ(chart.GetPixel(k / 3 * 14 + 7, k % 3 * 16 + 8), color) << k;
    EXPECT_EQ(chart.GetPixel(k / 3 * 14, k % 3 * 16 + 8), color) << k;
  }
  for (int x = 0; x < chart.width(); ++x) {
    EXPECT_EQ(chart.GetPixel(x, 16), kBlack);
    EXPECT_EQ(chart.GetPixel(x, 32), kBlack);
  }
}

TEST(ColorCharts, APositionBehindTheLastColumnIsOutsideAndTheLowerBorderIsInside) {
  EXPECT_EQ(chartCellAt(ChartKind::Chart16, 8.0, 0.5), -1);
  EXPECT_EQ(chartCellAt(ChartKind::Chart16, 7.99, 0.5), 7);
  EXPECT_EQ(chartCellAt(ChartKind::Chart16, 0.5, 2.0), 8);
  EXPECT_EQ(chartCellAt(ChartKind::Chart16, 0.5, 2.01), -1);
  EXPECT_EQ(chartCellAt(ChartKind::Chart256, 16.0, 0.0), -1);
  EXPECT_EQ(chartCellAt(ChartKind::Chart256, 0.0, 3.0), 2);
  EXPECT_EQ(chartCellAt(ChartKind::Chart256, -0.1, 0.0), -1);
  EXPECT_EQ(chartCellAt(ChartKind::Chart256, 0.0, -0.1), -1);
}

TEST(ColorCharts, TheCellOfALargeChartCountsDownTheColumns) {
  EXPECT_EQ(chartCellAt(ChartKind::Chart256, 2.3, 1.9), 7);
  EXPECT_EQ(chartColor(ChartKind::Chart256, 7), 0x8080FF);
}

TEST(ColorCharts, TheTextOfALargeCellMarksStandardColoursWithStars) {
  EXPECT_EQ(chartText(ChartKind::Chart256, 8), "FFh  RGB(255, 0, 0) ** ");
  EXPECT_EQ(chartText(ChartKind::Chart256, 1), "E0E0E0h  RGB(224, 224, 224) ");
  EXPECT_EQ(chartText(ChartKind::Chart16, 11), "Maroon");
}

TEST(ColorCharts, EachColourIsFoundInItsCellAndEachCellInItsColumnAndRow) {
  for (const ChartKind chart : {ChartKind::Chart16, ChartKind::Chart256}) {
    const ChartShape shape = shapeOf(chart);
    for (int k = 0; k < shape.columns * shape.rows; ++k) {
      EXPECT_EQ(chartCellOf(chart, chartColor(chart, k)), k);
      EXPECT_EQ(chartCellAt(chart, chartPlaceOf(chart, k).column, chartPlaceOf(chart, k).row), k);
    }
    EXPECT_EQ(chartCellOf(chart, 0x010203), -1);
  }
}

TEST(ColorTables, ExactlyTheSixteenNamedColoursAreStandard) {
  int standard = 0;
  for (const NamedColor& entry : mChartColors16) standard += isStandardColor(entry.color);
  EXPECT_EQ(standard, 16);
  EXPECT_FALSE(isStandardColor(0x404040));
  EXPECT_FALSE(isStandardColor(0xE0E0E0));
}

TEST(ColorTables, HtmlColoursHaveTwoDigitsAChannelInTheOrderRedGreenBlue) {
  EXPECT_EQ(hexHtmlColor(255, 0, 10), "FF000A");
  EXPECT_EQ(hexHtmlColor(0, 0, 0), "000000");
}

}  // namespace
}  // namespace gp
