#include "effects/BlendPanel.h"

#include "document/EditState.h"
#include "document/ListTables.h"
#include "effects/Blend.h"
#include "platform/ports/MessagePump.h"
#include "platform/scope/FlagFor.h"
#include "platform/text/Numbers.h"

#include <algorithm>

namespace gp {
namespace {

constexpr const char* kPercentList = "cboBlendIn(1)";
constexpr int kNone = -1;
constexpr Refusal kNoBlend("No blend in yet");

}  // namespace

BlendPanel::BlendPanel(EffectFrame& frame)
    : EffectPanel(frame, kNumber), chosen_(kNone), percentIndex_(fillList(kPercentList).first) {}

void BlendPanel::open(const EffectRow& /*effect*/) {
  if (!frame().mayApply()) return;
  chosen_ = kNone;
  fillContainers();
  if (containers_.empty())
    frame().tell(kNothingToBlend);
  else
    show();
}

std::vector<std::string> BlendPanel::containerEntries() const {
  std::vector<std::string> entries{""};
  for (const int container : containers_) entries.push_back(std::to_string(container + 1));
  return entries;
}

int BlendPanel::containerIndex() const {
  const auto found = std::ranges::find(containers_, chosen_);
  return found == containers_.end() ? 0 : static_cast<int>(found - containers_.begin()) + 1;
}

std::string BlendPanel::lblBlendIn() const {
  return "Base icon ref:  " + std::to_string(frame().state().mCurContainer + 1);
}

void BlendPanel::pickContainer(int index) {
  if (index < 0 || index > static_cast<int>(containers_.size())) return;
  chosen_ = index == 0 ? kNone : containers_[static_cast<std::size_t>(index) - 1];
  doBlendPreview();
}

void BlendPanel::pickPercent(int index) {
  if (index < 0 || index >= static_cast<int>(fillList(kPercentList).entries.size())) return;
  percentIndex_ = index;
  doBlendPreview();
}

bool BlendPanel::fits(int container) const {
  const EditState& state = frame().state();
  if (container == kNone || container == state.mCurContainer || !frame().hasIcon()) return false;
  const auto place = static_cast<std::size_t>(container);
  const IconContainerRec& record = state.mIconRecs.at(place);
  const Surface& image = state.picPanelImage.at(place);
  // An icon that was loaded into another container counts as present only after it was shown.
  return record.used && !record.hasAlpha && image.width() == state.picImage.width() &&
         image.height() == state.picImage.height();
}

void BlendPanel::fillContainers() {
  containers_.clear();
  for (int container = 0; container < kContainerCount; ++container)
    if (fits(container)) containers_.push_back(container);
  if (!fits(chosen_)) chosen_ = kNone;
}

// The list shows the choice before the work begins. What is chosen during the pump is previewed here, and not twice.
void BlendPanel::doBlendPreview() {
  if (mBlendBusy_) return;
  const FlagFor busy(mBlendBusy_);
  frame().context().pump.pump();
  preview();
}

IconImage BlendPanel::apply(const IconImage& icon) const {
  if (!fits(chosen_)) return icon;
  const auto place = static_cast<std::size_t>(chosen_);
  const EditState& state = frame().state();
  const IconImage other{state.picPanelImage.at(place), state.picPanelMask.at(place), {}};
  const std::string percent = fillList(kPercentList).entries.at(static_cast<std::size_t>(percentIndex_));
  return blended(icon, other, roundToInteger(Val(percent)));
}

bool BlendPanel::mayProceed() {
  if (!EffectPanel::mayProceed()) return false;
  if (!fits(chosen_)) frame().tell(kNoBlend);
  return fits(chosen_);
}

}  // namespace gp
