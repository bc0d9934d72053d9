#include "document/EditingArea.h"

#include "document/Compositing.h"
#include "document/Containers.h"
#include "document/Display.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "document/IconImage.h"
#include "document/IconSizes.h"
#include "document/Magnifier.h"
#include "platform/gdi/Pens.h"
#include "platform/gdi/SurfaceOps.h"
#include "platform/ports/MessagePump.h"

namespace gp {

namespace {

constexpr int kEnlargedRoom = 520;  // pixels of picDispContainer from which the enlarged factors fit
constexpr int kLargestSmallIcon = 32;

}  // namespace

EditingArea::EditingArea(const Context& context) : context_(context), state_(context.state), display_(context.display) {
  for (Surface& image : state_.picPanelImage) image.backColor = kBlack;
  for (Surface& icon : state_.picPanelIcon) icon.backColor = kGround;
}

void EditingArea::SizeEditSurfaces(int size) {
  ChooseMagnify(size);
  for (Surface* surface : {&state_.picImage, &state_.picMask, &state_.PicIcon, &state_.picAlpha})
    MakePicSize(*surface, size, size);
}

void EditingArea::SizePanelSurfaces(int size) { sizeContainer(static_cast<std::size_t>(state_.mCurContainer), size); }

void EditingArea::ComposeCurrentIcon() {
  composeIcon(state_.picImage, state_.picMask, state_.PicIcon);
  state_.picImage.makePersistent();
  state_.picMask.makePersistent();
  state_.picAlpha.makePersistent();
}

void EditingArea::UpdatePanelFromCurrent() {
  const auto container = static_cast<std::size_t>(state_.mCurContainer);
  if (SurfaceSizeDiffers(state_.picImage, state_.picPanelImage.at(container)))
    SizePanelSurfaces(state_.picImage.width());
  if (PrepareAlphaRec(state_)) StoreAlphaToRec(state_);
  copyToContainer(container, state_.picImage, state_.picMask);
}

void EditingArea::sizeContainer(std::size_t container, int size) {
  for (Surface* surface :
       {&state_.picPanelIcon.at(container), &state_.picPanelImage.at(container), &state_.picPanelMask.at(container)})
    MakePicSize(*surface, size, size);
}

void EditingArea::copyToContainer(std::size_t container, const Surface& image, const Surface& mask) {
  BitbltPic(image, state_.picPanelImage.at(container));
  BitbltPic(mask, state_.picPanelMask.at(container));
  composeIcon(image, mask, state_.picPanelIcon.at(container));
  display_.changed(DisplayPart::IconsPanel);
}

void EditingArea::storeInContainer(int container, const IconImage& icon) {
  const auto index = static_cast<std::size_t>(container);
  sizeContainer(index, icon.width());
  copyToContainer(index, icon.image, icon.mask);
}

void EditingArea::showSquare(int left, int top, int right, int bottom, Color color) {
  FillBox(state_.picDisp, left, top, right, bottom, color);
  state_.picDisp.makePersistent();
  display_.repaintEditingArea(left, top, right - left + 1, bottom - top + 1);
}

void EditingArea::ChooseMagnify(int size) { state_.gMagnification = zoom_ != 0 ? zoom_ : optionMagnification(size); }

void EditingArea::chooseMagnifyOfEmpty() { state_.gMagnification = optionMagnification(kDefaultIconSize); }

int EditingArea::optionMagnification(int size) const {
  const bool small = size <= kLargestSmallIcon;
  const bool enlarged = state_.options.useEnlargedEditingArea && state_.screen.dispContainerWidth >= kEnlargedRoom &&
                        state_.screen.dispContainerHeight >= kEnlargedRoom;
  if (enlarged) return small ? 15 : 10;
  return small ? 12 : 8;
}

void EditingArea::sizePicDisp(int width, int height) {
  MakePicSize(state_.picDisp, width, height);
  display_.changed(DisplayPart::EditingArea);
}

void EditingArea::BuildGrid() {
  if (!state_.current().present) return;
  fitPicDisp();
  context_.pump.pump();
  // The messages may have given the Editing Area another size.
  state_.PicGrid =
      gridAlone(state_.picImage.width(), state_.picImage.height(), state_.gMagnification, gridOf(state_.gGridColor));
}

// At the same size the pixels stay: a save refreshes only the status bar.
void EditingArea::fitPicDisp() {
  const int width = state_.picImage.width() * state_.gMagnification;
  const int height = state_.picImage.height() * state_.gMagnification;
  if (state_.picDisp.width() != width || state_.picDisp.height() != height) sizePicDisp(width, height);
}

void EditingArea::MagnifyIcon() {
  fitPicDisp();
  drawMagnified(state_.picImage, state_.picMask, state_.gMagnification, gridOf(state_.gGridColor), state_.picDisp);
  state_.picDisp.makePersistent();
  if (state_.mRegionExists) context_.editor.redrawRegion();
  display_.changed(DisplayPart::EditingArea);
  context_.editor.UpdateCommands();
}

void EditingArea::ShowCurrentIcon() {
  state_.current().present = true;
  context_.editor.clearAllTools();
  RefreshStatusBar();
  MagnifyIcon();
}

void EditingArea::showChangedIcon() {
  ComposeCurrentIcon();
  MagnifyIcon();
}

void EditingArea::showEmpty() {
  chooseMagnifyOfEmpty();
  const int side = state_.gMagnification * kDefaultIconSize;
  sizePicDisp(side, side);
}

void EditingArea::RefreshStatusBar() {
  if (state_.mPendingPaint) {
    context_.editor.clearAllTools();
    context_.editor.clearRegion();
  }
  const IconContainerRec& record = state_.current();
  ScreenState& screen = state_.screen;
  screen.progressPercent = -1;
  auto panel = [&screen](StatusPanel which) -> std::string& {
    return screen.lblStatusPanel.at(static_cast<std::size_t>(which));
  };
  if (!screen.aniContainerVisible) panel(StatusPanel::Path) = record.path.trimmed();
  panel(StatusPanel::Discrepancy) = record.isDiscrepant() ? "*" : "";
  panel(StatusPanel::MultiIcon) = record.fromMultiIconFile ? "MIF" : "";
  panel(StatusPanel::Size) = std::to_string(record.size) + " x " + std::to_string(record.size);
  panel(StatusPanel::Alpha) = record.hasAlpha ? "Alpha" : "";
  screen.imgAlphaOnStatusPanel = record.hasAlpha;
  screen.fraTools = {true, true};

  BuildGrid();
  for (DisplayPart part : {DisplayPart::StatusBar, DisplayPart::Tools, DisplayPart::ColorPanel}) display_.changed(part);
  context_.editor.UpdateCommands();
}

void EditingArea::ClearStatusBar() {
  std::string& path = state_.screen.lblStatusPanel.at(static_cast<std::size_t>(StatusPanel::Path));
  const std::string aniPath = state_.screen.aniContainerVisible ? path : std::string();
  state_.screen.lblStatusPanel.fill("");
  path = aniPath;
  state_.screen.imgAlphaOnStatusPanel = false;
  display_.changed(DisplayPart::StatusBar);
}

}  // namespace gp
