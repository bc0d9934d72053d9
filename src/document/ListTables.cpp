#include "document/ListTables.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <iterator>

namespace gp {
namespace {

// The text form of a list's numbers. The numbers of a row are in units of the last decimal: tenths or hundredths.
enum class NumberForm { Whole, TenthsAsShort, HundredthsInFull };

struct NumberRow {
  const char* control;
  int from, to, step;
  int first;
  NumberForm form = NumberForm::Whole;
};

constexpr NumberRow kNumberRows[] = {
    {"cboIntervalColor", 5, 30, 1, 12},
    {"cboBrushSize", 1, 6, 1, 0},
    {"cboLeftMargin", 0, 400, 5, 20, NumberForm::HundredthsInFull},
    {"cboTopMargin", 0, 400, 5, 20, NumberForm::HundredthsInFull},
    {"cboPrintSize", 25, 200, 25, 3},
    {"cboCursorHotSpot(0)", 0, 31, 1, 0},
    {"cboCursorHotSpot(1)", 0, 31, 1, 0},
    {"cboFontSize", 7, 24, 1, 1},
    {"cboRotateImageAngle", -360, 360, 1, 360},
    {"cboButtonizePattern", 1, 3, 1, 0},
    {"cboSphere(0)", 0, 10, 1, 5, NumberForm::TenthsAsShort},
    {"cboColorTheme", 100, 0, -10, 0},
    {"cboCast(0)", 0, 255, 1, 127},
    {"cboCast(1)", 0, 255, 1, 127},
    {"cboCast(2)", 0, 255, 1, 127},
    {"cboBrightnessOverall", -90, 90, 5, 18},
    {"cboBrightness(0)", -90, 90, 5, 18},
    {"cboBrightness(1)", -90, 90, 5, 18},
    {"cboBrightness(2)", -90, 90, 5, 18},
    {"cboConfineColors(3)", 1, 354, 1, 127},
    {"cboGradientAngle(0)", 0, 360, 1, 0},
    {"cboGradientAngle(1)", 0, 360, 1, 0},
    {"cboBlendIn(1)", 0, 90, 5, 8},
    {"cboTexturize(0)", 1, 9, 1, 4, NumberForm::TenthsAsShort},
    {"cboAlphaValue", 0, 255, 1, 128},
    {"cboANI(0)", 1, 90, 1, 29},
    {"cboANI(1)", 0, 31, 1, 0},
    {"cboANI(2)", 0, 31, 1, 0},
};

struct TextRow {
  const char* control;
  std::initializer_list<const char*> entries;
  int first;
};

constexpr TextRow kTextRows[] = {
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

constexpr const char* kFontControl = "cboFontName";
constexpr const char* kPreferredFont = "Arial";
constexpr int kTenths = 10;
constexpr int kHundredths = 100;

std::string twoDigits(int value) { return value < kTenths ? "0" + std::to_string(value) : std::to_string(value); }

// Rows with decimals contain no negative numbers.
std::string textOf(int number, NumberForm form) {
  switch (form) {
    case NumberForm::HundredthsInFull:
      return std::to_string(number / kHundredths) + "." + twoDigits(number % kHundredths);
    case NumberForm::TenthsAsShort: {
      const std::string whole = std::to_string(number / kTenths);
      return number % kTenths == 0 ? whole : whole + "." + std::to_string(number % kTenths);
    }
    case NumberForm::Whole:
      break;
  }
  return std::to_string(number);
}

FilledList fill(const NumberRow& row) {
  FilledList list{row.control, {}, row.first};
  const int count = (row.to - row.from) / row.step + 1;
  for (int i = 0; i < count; ++i) list.entries.push_back(textOf(row.from + i * row.step, row.form));
  return list;
}

FilledList fill(const TextRow& row) { return {row.control, {row.entries.begin(), row.entries.end()}, row.first}; }

FilledList fillFonts(std::span<const std::string> fonts) {
  const auto found = std::ranges::find(fonts, kPreferredFont);
  return {
      kFontControl, {fonts.begin(), fonts.end()}, found == fonts.end() ? 0 : static_cast<int>(found - fonts.begin())};
}

constexpr bool hasNoDuplicates() {
  std::array<std::string_view, std::size(kNumberRows) + std::size(kTextRows) + 1> controls{kFontControl};
  auto next = controls.begin() + 1;
  for (const NumberRow& row : kNumberRows) *next++ = row.control;
  for (const TextRow& row : kTextRows) *next++ = row.control;
  std::ranges::sort(controls);
  return std::ranges::adjacent_find(controls) == controls.end();
}
static_assert(hasNoDuplicates());

}  // namespace

FilledList fillList(std::string_view control, std::span<const std::string> screenFonts) {
  const auto isIts = [control](const auto& row) { return row.control == control; };
  if (const auto* row = std::ranges::find_if(kNumberRows, isIts); row != std::end(kNumberRows)) return fill(*row);
  if (const auto* row = std::ranges::find_if(kTextRows, isIts); row != std::end(kTextRows)) return fill(*row);
  if (control == kFontControl) return fillFonts(screenFonts);
  return {std::string(control), {}, 0};
}

}  // namespace gp
