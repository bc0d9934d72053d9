#include "effects/SpherePanel.h"

#include "document/Compositing.h"
#include "document/Display.h"
#include "platform/dialogs/clsGPDialog.h"
#include "platform/ports/MessageBoxes.h"

namespace gp {
namespace {

constexpr const char* kReplaces = "Sphere creation will replace the current image on icon, if any.\n\nProceed?";
constexpr int kFactors = 11;

}  // namespace

SpherePanel::SpherePanel(EffectFrame& frame, clsGPDialog& dialog)
    : EffectPanel(frame, kNumber), dialog_(dialog), settings_(sphereSettings(firstValues(kSphere.settings))) {
  drawSphere();
}

void SpherePanel::open(const EffectRow& /*effect*/) {
  if (!frame().mayApply()) return;
  const IconImage icon = frame().currentIcon();
  if (refusalOfSize(icon, settings_.size).text) settings_.size = largestSphere(icon.width());
  show();
}

void SpherePanel::pickFactor(int index) {
  if (index < 0 || index >= kFactors) return;
  settings_.factorTenths = index;
  preview();
}

void SpherePanel::pickSize(int index) {
  if (index < 0 || index >= kSphereSizes) return;
  const auto size = static_cast<SphereSize>(index);
  const Refusal refusal = frame().hasIcon() ? refusalOfSize(frame().currentIcon(), size) : Refusal();
  if (refusal.text) {
    // The list shows the former choice again.
    frame().context().display.changed(DisplayPart::SidePanel);
    frame().tell(refusal);
    return;
  }
  settings_.size = size;
  preview();
}

void SpherePanel::clickSample(int x, int y) {
  if (!isOnSphere(x, y, settings_.size)) {
    frame().tell(kClickOnSphere);
    return;
  }
  settings_.light = lightOfClick(x, y, settings_.size);
  preview();
}

void SpherePanel::chooseColor() {
  if (dialog_.ShowColor(settings_.color)) preview();
}

IconImage SpherePanel::apply(const IconImage& icon) const { return sphereIcon(icon.width(), icon.height(), settings_); }

void SpherePanel::drawSphere() {
  const IconImage ball = sphereIcon(kSphereSampleSide, kSphereSampleSide, settings_);
  PicSphere_ = composedIcon(ball.image, ball.mask);
}

bool SpherePanel::mayProceed() {
  if (!EffectPanel::mayProceed()) return false;
  if (const Refusal refusal = refusalOfSize(frame().currentIcon(), settings_.size); refusal.text) {
    frame().tell(refusal);
    return false;
  }
  return frame().context().boxes.ask(kReplaces);
}

}  // namespace gp
