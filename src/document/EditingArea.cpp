#include "document/EditingArea.h"

#include "document/Compositing.h"
#include "document/Display.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "document/IconImage.h"
#include "document/PatternCells.h"
#include "platform/gdi/Pens.h"
#include "platform/gdi/RasterOps.h"
#include "platform/gdi/Stretch.h"
#include "platform/gdi/SurfaceOps.h"
#include "platform/ports/MessagePump.h"

#include <algorithm>
#include <array>

namespace gp {

namespace {

constexpr int kEnlargedRoom = 520;  // pixels of picDispContainer from which the enlarged factors fit
constexpr int kLargestSmallIcon = 32;
constexpr int kFirstPattern = -1;
constexpr Color kPatternLines = 0x606060;

constexpr std::array<Color, kGridCount> kGridColors = {0x606060, 0x000000, 0x800000, -1, -2, -3, kNoGrid};
constexpr Color kDottedGrid = kGridColors[2];

struct Extent {
  int width;
  int height;
};

// The icon's size as PicIcon has it; anything odd counts as 32.
Extent iconExtent(const Surface& icon) {
  if (isIconSize(icon.width()) && isIconSize(icon.height())) return {icon.width(), icon.height()};
  return {kDefaultIconSize, kDefaultIconSize};
}

void stretchWhole(Surface& target, const Surface& source, const Extent& from, RasterOp op) {
  StretchBlt(target, 0, 0, target.width(), target.height(), source, 0, 0, from.width, from.height, op);
}

}  // namespace

Color gridColorOf(int index) { return kGridColors.at(static_cast<std::size_t>(index)); }

EditingArea::EditingArea(const Context& context) : context_(context), state_(context.state), display_(context.display) {
  for (Surface& image : state_.picPanelImage) image.backColor = kBlack;
  for (Surface& icon : state_.picPanelIcon) icon.backColor = kGround;
}

void EditingArea::SizeEditSurfaces(int size) {
  ChooseMagnify(size);
  for (Surface* surface : {&state_.picImage, &state_.picMask, &state_.PicIcon}) MakePicSize(*surface, size, size);
}

void EditingArea::SizePanelSurfaces(int size) { sizeContainer(static_cast<std::size_t>(state_.mCurContainer), size); }

void EditingArea::ComposeCurrentIcon() {
  composeIcon(state_.picImage, state_.picMask, state_.PicIcon);
  state_.picImage.makePersistent();
  state_.picMask.makePersistent();
}

void EditingArea::UpdatePanelFromCurrent() {
  const auto container = static_cast<std::size_t>(state_.mCurContainer);
  if (SurfaceSizeDiffers(state_.picImage, state_.picPanelImage.at(container)))
    SizePanelSurfaces(state_.picImage.width());
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

void EditingArea::ChooseMagnify(int size) {
  const bool small = size <= kLargestSmallIcon;
  const bool enlarged = state_.options.useEnlargedEditingArea && state_.screen.dispContainerWidth >= kEnlargedRoom &&
                        state_.screen.dispContainerHeight >= kEnlargedRoom;
  if (enlarged)
    state_.gMagnification = small ? 15 : 10;
  else
    state_.gMagnification = small ? 12 : 8;
}

void EditingArea::sizePicDisp(int width, int height) {
  MakePicSize(state_.picDisp, width, height);
  display_.changed(DisplayPart::EditingArea);
}

void EditingArea::BuildGrid() {
  if (!state_.current().present) return;
  const int width = state_.PicIcon.width() * state_.gMagnification;
  const int height = state_.PicIcon.height() * state_.gMagnification;
  MakePicSize(state_.PicGrid, width, height);
  // What is shown stays when there is no other size: a save only refreshes the status bar.
  if (SurfaceSizeDiffers(state_.picDisp, state_.PicGrid)) sizePicDisp(width, height);
  context_.pump.pump();

  if (state_.gGridColor == kNoGrid) return;
  if (state_.gGridColor < 0) {
    // The pump may have let the form get another size, and the grid with it.
    tilePattern(state_.PicGrid.width(), state_.PicGrid.height());
    drawGridLines(kPatternLines);
  } else if (state_.gGridColor == kDottedGrid) {
    drawGridDots(state_.gGridColor);
  } else {
    drawGridLines(state_.gGridColor);
  }
}

void EditingArea::drawGridLines(Color color) {
  Surface& grid = state_.PicGrid;
  const int step = state_.gMagnification;
  for (int x = step; x < grid.width(); x += step) FillBox(grid, x, 0, x, grid.height() - 1, color);
  for (int y = step; y < grid.height(); y += step) FillBox(grid, 0, y, grid.width() - 1, y, color);
}

void EditingArea::drawGridDots(Color color) {
  Surface& grid = state_.PicGrid;
  const int step = state_.gMagnification;
  for (int y = step; y < grid.height(); y += step)
    for (int x = step; x < grid.width(); x += step) grid.SetPixelV(x, y, color);
}

void EditingArea::tilePattern(int width, int height) {
  for (Surface& tile : picTile_) MakePicSize(tile, width, height);
  TilePicture(patternCell(kFirstPattern - state_.gGridColor), picTile_[0]);
  picTile_[0].makePersistent();
}

void EditingArea::MagnifyIcon() {
  const Extent icon = iconExtent(state_.PicIcon);
  state_.picDisp.clearPicture();
  stretchWhole(state_.picDisp, state_.PicIcon, icon, RasterOp::SRCCOPY);
  overlayGrid();
  state_.picDisp.makePersistent();
  if (state_.mRegionExists) context_.editor.redrawRegion();
  display_.changed(DisplayPart::EditingArea);
  context_.editor.UpdateCommands();
}

void EditingArea::overlayGrid() {
  if (state_.gGridColor == kNoGrid) return;
  if (state_.gGridColor < 0) overlayPattern();
  Surface& disp = state_.picDisp;
  BitBlt(disp, 0, 0, disp.width(), disp.height(), state_.PicGrid, 0, 0, RasterOp::SRCAND);
}

// On a patterned grid the pattern, not the ground, shows through transparent pixels.
void EditingArea::overlayPattern() {
  const Extent icon = iconExtent(state_.PicIcon);
  Surface& ground = picTile_[1];
  BitbltPic(picTile_[0], ground);
  stretchWhole(ground, state_.picMask, icon, RasterOp::SRCAND);
  stretchWhole(ground, state_.picImage, icon, RasterOp::SRCINVERT);
  BitBlt(state_.picDisp, 0, 0, ground.width(), ground.height(), ground, 0, 0, RasterOp::SRCCOPY);
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
  ChooseMagnify(kDefaultIconSize);
  const int side = state_.gMagnification * kDefaultIconSize;
  sizePicDisp(side, side);
}

void EditingArea::RefreshStatusBar() {
  if (state_.mPendingPaint) {
    context_.editor.clearUndoHistory();
    context_.editor.clearAllTools();
    state_.mPendingPaint = false;
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
  state_.screen.lblStatusPanel.fill("");
  state_.screen.imgAlphaOnStatusPanel = false;
  display_.changed(DisplayPart::StatusBar);
}

}  // namespace gp
