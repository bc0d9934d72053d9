#include "drawing/ClipboardCommands.h"

#include "document/Containers.h"
#include "document/Hourglass.h"
#include "document/Messages.h"
#include "document/PanelNumbers.h"
#include "drawing/ToolTable.h"
#include "platform/gdi/Pens.h"
#include "platform/gdi/RasterOps.h"
#include "platform/gdi/SurfaceOps.h"
#include "platform/text/Numbers.h"

#include <algorithm>
#include <array>

namespace gp {

namespace {

constexpr std::array<int, 4> kIconSizes = {16, 24, 32, 48};
constexpr int kLargestIcon = kIconSizes.back();
constexpr const char* kNoImage = "No image in clipboard yet";
constexpr const char* kNoRegion = "No picture region yet";

// The smallest icon that a picture fits in; the largest there is for what fits in none.
int iconSizeFor(int width, int height) {
  const auto fits = [&](int size) { return size >= std::max(width, height); };
  const auto found = std::ranges::find_if(kIconSizes, fits);
  return found == kIconSizes.end() ? kLargestIcon : *found;
}

std::string sizeText(const ClipboardImage& image) {
  return "Image size is of " + std::to_string(image.width) + "x" + std::to_string(image.height);
}

}  // namespace

ClipboardCommands::ClipboardCommands(EditState& state, Editor& editor, Display& display, MessageBoxes& boxes,
                                     Clipboard& clipboard, Regions& regions)
    : state_(state), editor_(editor), display_(display), boxes_(boxes), clipboard_(clipboard), regions_(regions) {}

// Cut.

void ClipboardCommands::doCutRegion(bool copyFirst) {
  if (!state_.current().present || !regions_.exists()) return;
  if (regions_.isEmpty()) {
    boxes_.tell(kNoRegion);
    return;
  }
  regions_.finishDrag();
  if (state_.screen.mActivePanel != kColorPanel) editor_.showPanel(kColorPanel);
  if (copyFirst) doCopyRegion();
  const bool floating = regions_.isFloating();
  if (floating)
    regions_.dropContent();
  else
    cutContent();
  state_.current().modified = true;
  editor_.ComposeCurrentIcon();
  editor_.MagnifyIcon();
  if (!floating) editor_.recordUndo();
}

void ClipboardCommands::cutContent() {
  const DrawRect at = regions_.pixels();
  const int x1 = roundToInteger(at.x1);
  const int y1 = roundToInteger(at.y1);
  const int x2 = roundToInteger(at.x2);
  const int y2 = roundToInteger(at.y2);
  FillBox(state_.picImage, x1, y1, x2, y2, kBlack);
  FillBox(state_.picMask, x1, y1, x2, y2, kWhite);
  regions_.clearRegion();
}

// Copy.

void ClipboardCommands::doCopyRegion() {
  if (!state_.current().used) {
    tellNoIconYet(boxes_);
    return;
  }
  clipboard_.clear();
  if (regions_.exists()) {
    regions_.finishDrag();
    clipboard_.setImage(pictureOfRegion());
  } else {
    clipboard_.setImage(state_.PicIcon);
  }
  editor_.UpdateCommands();
}

// Transparency is not carried: it arrives as the ground behind it.
Surface ClipboardCommands::pictureOfRegion() const {
  const Surface& image = state_.picImageRegion;
  const Surface& mask = state_.picMaskRegion;
  Surface picture(image.width(), image.height());
  BitBlt(picture, 0, 0, image.width(), image.height(), mask, 0, 0, RasterOp::SRCAND);
  BitBlt(picture, 0, 0, image.width(), image.height(), image, 0, 0, RasterOp::SRCINVERT);
  for (int y = 0; y < mask.height(); ++y)
    for (int x = 0; x < mask.width(); ++x)
      if (mask.GetPixel(x, y) == kWhite) picture.SetPixelV(x, y, kGround);
  return picture;
}

void ClipboardCommands::clearClipboard() {
  clipboard_.clear();
  editor_.UpdateCommands();
}

// Paste.

void ClipboardCommands::doPaste(bool opaque) {
  if (state_.screen.mActivePanel == kIconsListPanel) return;
  ClipboardImage image;
  // The picture is read before anything changes: its owner may have withdrawn it since it was offered.
  if (!clipboard_.hasImage() || !fetch(image)) {
    boxes_.tell(kNoImage);
    return;
  }
  regions_.finishDrag();
  const int container = state_.mCurContainer;
  const bool used = state_.current().used;
  editor_.clearUndoHistory();
  editor_.recordUndo();
  // Recording pumps messages: a picture meant for one icon does not go into another.
  if (state_.mCurContainer != container || state_.current().used != used || !makeRoomFor(image)) return;
  const int width = std::min(image.corner.width(), state_.picImage.width());
  const int height = std::min(image.corner.height(), state_.picImage.height());
  MakePicSize(state_.picTemp, width, height);
  BitBlt(state_.picTemp, 0, 0, width, height, image.corner, 0, 0, RasterOp::SRCCOPY);
  state_.picTemp.makePersistent();
  showPasted(opaque);
}

bool ClipboardCommands::fetch(ClipboardImage& image) {
  if (!clipboard_.getImage(image, kLargestIcon)) return false;
  return image.width > 0 && image.height > 0 && image.corner.width() > 0 && image.corner.height() > 0;
}

// An icon for the picture: the current one, or a new one. False when the user refuses.
bool ClipboardCommands::makeRoomFor(const ClipboardImage& image) {
  const int size = state_.current().size;
  if (state_.current().used) {
    const bool fits = image.width <= size && image.height <= size;
    return fits || boxes_.ask(sizeText(image) + "; too large for current icon.\n\nChange to fit in?");
  }
  const bool isOfIcon = image.width == image.height && isIconSize(image.width);
  if (!isOfIcon && !boxes_.ask(sizeText(image) + ", not of 16x16, 24x24, 32x32 or 48x48.\n\nCreate to fit in?"))
    return false;
  return makeNewIcon(iconSizeFor(image.width, image.height));
}

// Showing an icon pumps messages: false when another container is current, or none is shown, after it.
bool ClipboardCommands::makeNewIcon(int size) {
  const int container = state_.mCurContainer;
  regions_.clearRegion();
  NewRecord(state_);
  PrepareAlphaRec(state_);
  state_.current().size = static_cast<std::int16_t>(size);
  editor_.SizePanelSurfaces(size);
  editor_.SizeEditSurfaces(size);
  state_.picImage.fill(kBlack);
  state_.picMask.fill(kWhite);
  editor_.UpdatePanelFromCurrent();
  editor_.ComposeCurrentIcon();
  editor_.ShowCurrentIcon();
  editor_.chooseColorChart();
  // The size is another: the baseline is the empty icon.
  editor_.clearUndoHistory();
  editor_.recordUndo();
  return state_.mCurContainer == container && state_.current().present && state_.picImage.width() == size;
}

void ClipboardCommands::showPasted(bool opaque) {
  const Hourglass hourglass(state_, display_);
  regions_.clearRegion();
  editor_.clearAllTools();
  editor_.selectTool(kRegion);
  regions_.placePicture(state_.picTemp, opaque);
  state_.picTemp.clearPicture();
}

}  // namespace gp
