#include "document/ListTables.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

struct RangeCase {
  const char* control;
  std::size_t count;
  const char* first;
  const char* second;
  const char* last;
  const char* shown;
};

TEST(ListTables, RangesHoldTheirNumbersAsText) {
  const RangeCase cases[] = {
      {"cboIntervalColor", 26, "5", "6", "30", "17"},
      {"cboBrushSize", 6, "1", "2", "6", "1"},
      {"cboLeftMargin", 81, "0.00", "0.05", "4.00", "1.00"},
      {"cboTopMargin", 81, "0.00", "0.05", "4.00", "1.00"},
      {"cboPrintSize", 8, "25", "50", "200", "100"},
      {"cboCursorHotSpot(0)", 32, "0", "1", "31", "0"},
      {"cboCursorHotSpot(1)", 32, "0", "1", "31", "0"},
      {"cboFontSize", 18, "7", "8", "24", "8"},
      {"cboRotateImageAngle", 721, "-360", "-359", "360", "0"},
      {"cboButtonizePattern", 3, "1", "2", "3", "1"},
      {"cboSphere(0)", 11, "0", "0.1", "1", "0.5"},
      {"cboColorTheme", 11, "100", "90", "0", "100"},
      {"cboCast(1)", 256, "0", "1", "255", "127"},
      {"cboCast(2)", 256, "0", "1", "255", "127"},
      {"cboBrightnessOverall", 37, "-90", "-85", "90", "0"},
      {"cboBrightness(1)", 37, "-90", "-85", "90", "0"},
      {"cboBrightness(2)", 37, "-90", "-85", "90", "0"},
      {"cboConfineColors(3)", 354, "1", "2", "354", "128"},
      {"cboGradientAngle(1)", 361, "0", "1", "360", "0"},
      {"cboBlendIn(1)", 19, "0", "5", "90", "40"},
      {"cboTexturize(0)", 9, "0.1", "0.2", "0.9", "0.5"},
      {"cboAlphaValue", 256, "0", "1", "255", "128"},
      {"cboANI(0)", 90, "1", "2", "90", "30"},
      {"cboANI(1)", 32, "0", "1", "31", "0"},
      {"cboANI(2)", 32, "0", "1", "31", "0"},
  };
  for (const RangeCase& row : cases) {
    const FilledList list = fillList(row.control);
    EXPECT_EQ(list.control, row.control);
    ASSERT_EQ(list.entries.size(), row.count) << row.control;
    EXPECT_EQ(list.entries.front(), row.first) << row.control;
    EXPECT_EQ(list.entries[1], row.second) << row.control;
    EXPECT_EQ(list.entries.back(), row.last) << row.control;
    EXPECT_EQ(list.entries.at(list.first), row.shown) << row.control;
  }
}

TEST(ListTables, TextsStandInTheirOrder) {
  const FilledList expected[] = {
      {"cboTextWriteStyle", {"Ordinary", "Hollow", "Embossed", "Engraved", "Shadowed"}, 0},
      {"cboTextSize", {"Normal Size", "Small", "Tiny"}, 0},
      {"cboSphere(1)", {"Normal Size", "Small", "Tiny"}, 0},
      {"cboSharpenSoften", {"Sharpen strong", "Sharpen", "Original", "Soften", "Soften strong"}, 2},
      {"cboConfineColors(0)", {"Optimal", "System"}, 0},
      {"cboConfineColors(1)", {"Optimaized", "Nearest", "Standard VGA"}, 0},
      {"cboConfineColors(2)", {"Select Cutoff", "Weighted", "Ordered"}, 0},
      {"cboSwapElementsOfPixels", {"Original", "B.G.R.", "G.R.B.", "B.R.G.", "G.B.R.", "R.B.G."}, 0},
      {"cboTexturize(1)", {"Pattern 1", "Pattern 2", "Pattern 3"}, 0},
      {"cboTexturize(2)", {"Style 1", "Style 2"}, 0},
      {"cboResizeIcon", {"Auto-Softening", "Without Softening"}, 0},
  };
  for (const FilledList& row : expected) {
    const FilledList list = fillList(row.control);
    EXPECT_EQ(list.control, row.control);
    EXPECT_EQ(list.entries, row.entries) << row.control;
    EXPECT_EQ(list.first, row.first) << row.control;
  }
}

TEST(ListTables, ArialIsShownFirstWhereItIsListed) {
  const std::vector<std::string> fonts{"Agency", "Arial", "Courier"};
  const FilledList list = fillList("cboFontName", fonts);
  EXPECT_EQ(list.first, 1);
  EXPECT_EQ(list.entries, fonts);
}

TEST(ListTables, WithoutArialTheFirstFontIsShown) {
  const std::vector<std::string> fonts{"Agency", "Arial Black"};
  EXPECT_EQ(fillList("cboFontName", fonts).first, 0);
}

TEST(ListTables, AControlWithoutAListHasNoEntries) {
  const FilledList list = fillList("cboNothing");
  EXPECT_EQ(list.control, "cboNothing");
  EXPECT_TRUE(list.entries.empty());
}

}  // namespace
}  // namespace gp
