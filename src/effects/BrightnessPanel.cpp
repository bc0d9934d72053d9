#include "effects/BrightnessPanel.h"

#include "document/EditState.h"
#include "document/ListTables.h"
#include "effects/EffectTable.h"
#include "effects/EffectTexts.h"
#include "platform/text/Numbers.h"

namespace gp {
namespace {

// All lists of the panel have the same entries.
constexpr const char* kList = "cboBrightnessOverall";

}  // namespace

BrightnessPanel::BrightnessPanel(EffectFrame& frame) : EffectPanel(frame, kNumber) {}

void BrightnessPanel::open(const EffectRow& effect) {
  forget();
  EffectPanel::open(effect);
}

void BrightnessPanel::adjust(BrightnessOf channel, int choice) {
  const FilledList list = fillList(kList);
  if (choice < 0 || choice >= static_cast<int>(list.entries.size())) return;
  if (!gChangedBrightness()) forget();
  table_.change(channel, roundToInteger(Val(list.entries[static_cast<std::size_t>(choice)])));
  isChanged_ = true;
  preview();
}

void BrightnessPanel::cmdBrightnessRestore() {
  forget();
  preview();
}

bool BrightnessPanel::gChangedBrightness() const { return isChanged_ && icon_ == frame().state().iconSerial; }

IconImage BrightnessPanel::apply(const IconImage& icon) const { return gChangedBrightness() ? table_.on(icon) : icon; }

bool BrightnessPanel::mayProceed() {
  if (!EffectPanel::mayProceed()) return false;
  if (!gChangedBrightness()) frame().tell(kNothingChanged);
  return gChangedBrightness();
}

void BrightnessPanel::forget() {
  table_ = {};
  isChanged_ = false;
  icon_ = frame().state().iconSerial;
}

}  // namespace gp
