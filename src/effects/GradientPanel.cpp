#include "effects/GradientPanel.h"

#include "document/EditState.h"
#include "platform/dialogs/clsGPDialog.h"

#include <algorithm>
#include <utility>

namespace gp {
namespace {

constexpr int kWholeTurn = 360;

bool isIndex(int i, std::size_t count) { return i >= 0 && i < static_cast<int>(count); }

}  // namespace

GradientPanel::GradientPanel(EffectFrame& frame, clsGPDialog& dialog) : EffectPanel(frame, kNumber), dialog_(dialog) {
  const EffectValues first = firstValues(kGradient.settings);
  colors_ = {first.color(indexOf(GradientSetting::From)), first.color(indexOf(GradientSetting::To))};
}

void GradientPanel::open(const EffectRow& effect) {
  if (frame().mayApply(effect, valuesOf(kind_))) show();
}

EffectValues GradientPanel::valuesOf(GradientKind kind) const {
  return {static_cast<int>(kind), colors_[0], colors_[1],
          isStraight(kind) ? angles_.at(static_cast<std::size_t>(kind)) : 0,
          kind == GradientKind::Spherical ? center() : kMiddlePoint};
}

int GradientPanel::center() const {
  const int side = iconSide();
  return side == centerSide_ ? center_ : pointValue(side / 2, side / 2);
}

void GradientPanel::pickKind(int kind) {
  if (!isIndex(kind, kGradientKinds)) return;
  kind_ = static_cast<GradientKind>(kind);
  preview();
}

void GradientPanel::pickAngle(int i, int index) {
  if (!isIndex(i, angles_.size()) || index < 0 || index > kWholeTurn) return;
  angles_.at(static_cast<std::size_t>(i)) = index;
  preview();
}

void GradientPanel::clickCenter(int x, int y) {
  const int side = iconSide();
  if (!isIndex(x, static_cast<std::size_t>(side)) || !isIndex(y, static_cast<std::size_t>(side))) return;
  center_ = pointValue(x, y);
  centerSide_ = side;
  preview();
}

void GradientPanel::chooseColor(int i) {
  if (isIndex(i, colors_.size()) && dialog_.ShowColor(colors_.at(static_cast<std::size_t>(i)))) preview();
}

void GradientPanel::swapColors() {
  std::swap(colors_[0], colors_[1]);
  preview();
}

IconImage GradientPanel::apply(const IconImage& icon) const { return paintedBehind(icon, drawnSample(kind_)); }

int GradientPanel::iconSide() const { return frame().hasIcon() ? frame().state().picImage.width() : 0; }

const Surface& GradientPanel::drawnSample(GradientKind kind) const {
  Sample& sample = samples_.at(static_cast<std::size_t>(kind));
  const int side = iconSide();
  const EffectValues values = valuesOf(kind);
  if (sample.picture.width() != side || sample.values != values)
    sample = {.picture = gradientPicture(side, side, values), .values = values};
  return sample.picture;
}

void GradientPanel::drawSamples() {
  for (int kind = 0; kind < kGradientKinds; ++kind) drawnSample(static_cast<GradientKind>(kind));
}

bool GradientPanel::mayProceed() { return frame().mayApply(kGradient, valuesOf(kind_)); }

}  // namespace gp
