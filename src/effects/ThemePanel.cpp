#include "effects/ThemePanel.h"

#include "document/ListTables.h"
#include "effects/ColorTheme.h"
#include "effects/EffectTable.h"
#include "platform/dialogs/clsGPDialog.h"
#include "platform/text/Numbers.h"

namespace gp {
namespace {

constexpr const char* kList = "cboColorTheme";
constexpr Refusal kNoSelection("No selection of color yet");

}  // namespace

ThemePanel::ThemePanel(EffectFrame& frame, clsGPDialog& dialog) : EffectPanel(frame, kNumber), dialog_(dialog) {}

void ThemePanel::pickColor() {
  Color color = color_ == kNoColor ? kBlack : color_;
  if (!dialog_.ShowColor(color)) return;
  color_ = color;
  preview();
}

void ThemePanel::pickPercent(int choice) {
  if (choice < 0 || choice >= static_cast<int>(fillList(kList).entries.size())) return;
  choice_ = choice;
  preview();
}

bool ThemePanel::usesPercent() const { return color_ != kNoColor && hasPercent(color_); }

IconImage ThemePanel::apply(const IconImage& icon) const {
  if (color_ == kNoColor) return icon;
  return withColorTheme(icon, color_, roundToInteger(Val(fillList(kList).entries[static_cast<std::size_t>(choice_)])));
}

bool ThemePanel::mayProceed() {
  if (!EffectPanel::mayProceed()) return false;
  if (color_ == kNoColor) frame().tell(kNoSelection);
  return color_ != kNoColor;
}

}  // namespace gp
