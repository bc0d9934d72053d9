#include "effects/ShadesPanel.h"

#include "document/EditState.h"

namespace gp {
namespace {

// By the values of ReliefKind.
constexpr std::array<const char*, ShadesPanel::kCommands.size()> kNames{"Embossed", "Engraved", "Raised", "Shadowed"};

}  // namespace

ShadesPanel::ShadesPanel(EffectFrame& frame) : EffectPanel(frame, kNumber) {}

void ShadesPanel::open(int command) {
  if (!frame().mayApply()) return;
  mEffectKind_ = static_cast<ReliefKind>(command - kCommands.front());
  show();
}

const char* ShadesPanel::lblEffectsSample() const { return kNames.at(static_cast<std::size_t>(mEffectKind_)); }

void ShadesPanel::setUseSelectedColor(bool use) {
  useSelectedColor_ = use;
  preview();
}

IconImage ShadesPanel::apply(const Surface& image, const Surface& mask) const {
  return relief(image, mask, {mEffectKind_, useSelectedColor_ ? frame().state().mCurrentColor : kBlack});
}

}  // namespace gp
