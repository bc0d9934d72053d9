#include "output/PreviewPanel.h"

#include "alpha/AlphaCommands.h"
#include "document/AlphaCompositing.h"
#include "document/Compositing.h"
#include "document/CurrentIcon.h"
#include "document/Display.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "platform/dialogs/clsGPDialog.h"
#include "platform/ports/MessagePump.h"

namespace gp {
namespace {

// A light, a middle and a dark screen.
constexpr std::array<Color, PreviewPanel::kColors> kFirstColors{kWhite, kGround, rgb(32, 32, 32)};

}  // namespace

PreviewPanel::PreviewPanel(const Context& context, clsGPDialog& dialog, AlphaCommands& alpha)
    : context_(context), state_(context.state), dialog_(dialog), alpha_(alpha), colors_(kFirstColors) {}

void PreviewPanel::open(PreviewForm form) {
  context_.pump.pump();
  form_ = form;
  // The caption is announced when the panel comes up.
  context_.display.changed(DisplayPart::SidePanel);
  context_.editor.showPanel(kNumber);
  draw();
}

void PreviewPanel::follow() {
  if (state_.screen.mActivePanel == kNumber) draw();
}

void PreviewPanel::chooseColor(int i) {
  if (i < 0 || i >= kColors) return;
  if (dialog_.ShowColor(colors_.at(static_cast<std::size_t>(i)))) draw();
}

void PreviewPanel::editAlphaChannel() { alpha_.mnuAlphaSub(static_cast<int>(AlphaMode::Edit)); }

void PreviewPanel::draw() {
  const IconImage icon = state_.current().present ? currentIcon(state_) : IconImage();
  for (std::size_t i = 0; i < pictures_.size(); ++i) pictures_.at(i) = pictureOn(colors_.at(i), icon);
  context_.display.changed(DisplayPart::SidePanel);
}

Surface PreviewPanel::pictureOn(Color ground, const IconImage& icon) const {
  Surface picture(icon.width(), icon.height(), ground);
  if (form_ == PreviewForm::AlphaEffects && icon.hasAlphaValues())
    composeAlpha(icon.mask, icon.image, icon.alpha, picture, ground);
  else
    composeIcon(icon.image, icon.mask, picture);
  return picture;
}

}  // namespace gp
