#include "drawing/ClipboardCommands.h"

#include "document/AlphaGreys.h"
#include "document/Announcements.h"
#include "document/Containers.h"
#include "document/CurrentIcon.h"
#include "document/Display.h"
#include "document/Document.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "document/Hourglass.h"
#include "document/Messages.h"
#include "document/PanelNumbers.h"
#include "drawing/FloatingContent.h"
#include "drawing/Regions.h"
#include "drawing/Tools.h"
#include "drawing/UndoHistory.h"
#include "platform/gdi/Pens.h"
#include "platform/gdi/RasterOps.h"
#include "platform/ports/Clipboard.h"
#include "platform/text/Numbers.h"

#include <algorithm>
#include <utility>

namespace gp {

namespace {

constexpr const char* kNoRegion = "No picture region yet";

std::string sizeText(const ClipboardImage& image) {
  return "Image size is of " + std::to_string(image.width) + "x" + std::to_string(image.height);
}

// Returns the alpha values of a copied icon as greys: those of transparent pixels are 0, and only these, so that the
// picture has the icon's transparent pixels wherever it is pasted.
Surface alphaToCopy(const IconImage& icon) {
  Surface greys(icon.width(), icon.height(), kBlack);
  for (int y = 0; y < icon.height(); ++y)
    for (int x = 0; x < icon.width(); ++x)
      if (icon.mask.GetPixel(x, y) == kBlack || icon.image.GetPixel(x, y) != kBlack)
        greys.SetPixelV(x, y, greyOf(std::max(1, static_cast<int>(icon.alphaAt(x, y)))));
  return greys;
}

Surface topLeftOf(const Surface& picture, int width, int height) {
  Surface corner(width, height);
  BitBlt(corner, 0, 0, width, height, picture, 0, 0, RasterOp::SRCCOPY);
  return corner;
}

}  // namespace

ClipboardCommands::ClipboardCommands(const Context& context, Document& document, UndoHistory& history, Regions& regions,
                                     Tools& tools, Clipboard& clipboard)
    : context_(context),
      state_(context.state),
      document_(document),
      history_(history),
      regions_(regions),
      tools_(tools),
      clipboard_(clipboard) {}

// Cut.

void ClipboardCommands::doCutRegion(bool copyFirst) {
  if (regions_.isEmpty()) {
    context_.boxes.tell(kNoRegion);
    return;
  }
  regions_.finishDrag();
  if (state_.screen.mActivePanel != kColorPanel) context_.editor.showPanel(kColorPanel);
  if (copyFirst) copy();
  const bool pasted = regions_.isPasted();
  // What the region has changed is a step before the cut. A pasted picture that is cut again is no step.
  if (!pasted) history_.recordOpenStep();
  if (regions_.isFloating())
    regions_.dropContent();
  else
    cutContent();
  state_.current().modified = true;
  history_.openStep();
  document_.editingArea.showChangedIcon();
  if (pasted)
    history_.recordOpenStep();
  else
    history_.recordUndo();
  context_.display.announce(copyFirst ? news::kCutAndCopied : news::kErased);
}

void ClipboardCommands::cutContent() {
  const DrawRect at = regions_.pixels();
  const int x1 = roundToInteger(at.x1);
  const int y1 = roundToInteger(at.y1);
  const int x2 = roundToInteger(at.x2);
  const int y2 = roundToInteger(at.y2);
  FillBox(state_.picImage, x1, y1, x2, y2, kBlack);
  FillBox(state_.picMask, x1, y1, x2, y2, kWhite);
  FillBox(state_.picAlpha, x1, y1, x2, y2, kOpaqueGrey);
  regions_.clearRegion();
}

// Copy.

void ClipboardCommands::doCopyRegion() {
  copy();
  context_.display.announce(news::kCopied);
}

void ClipboardCommands::copy() {
  clipboard_.clear();
  const bool hasAlpha = AlphaRecIsReady(state_);
  if (regions_.exists()) {
    regions_.finishDrag();
    clipboard_.setImage(pictureOfRegion(), hasAlpha ? alphaToCopy(regions_.content()) : Surface());
  } else {
    clipboard_.setImage(state_.PicIcon, hasAlpha ? alphaToCopy(currentIcon(state_)) : Surface());
  }
  context_.editor.UpdateCommands();
}

// Transparent pixels are copied in the colour kGround. Only an icon with alpha is copied with its transparency.
Surface ClipboardCommands::pictureOfRegion() const {
  const Surface& image = regions_.content().image;
  const Surface& mask = regions_.content().mask;
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
  context_.editor.UpdateCommands();
  context_.display.announce(news::kClipboardCleared);
}

// Paste.

void ClipboardCommands::doPaste(bool opaque) {
  ClipboardImage image;
  // The picture is read before anything changes, because its owner may have withdrawn it.
  if (!fetch(image)) {
    context_.boxes.tell(kNoClipboardImage);
    return;
  }
  regions_.finishDrag();
  // A refusal leaves the history as it is.
  if (!makeRoomFor(image) || !startHistory()) return;
  showPasted(contentToPaste(image, opaque), opaque);
}

// An icon with alpha takes the picture's alpha values over; any other gets the picture as it looks.
IconImage ClipboardCommands::contentToPaste(const ClipboardImage& image, bool opaque) const {
  const int width = std::min(image.corner.width(), state_.picImage.width());
  const int height = std::min(image.corner.height(), state_.picImage.height());
  if (image.hasAlpha() && AlphaRecIsReady(state_))
    return contentWithAlpha(topLeftOf(image.colors, width, height), topLeftOf(image.alpha, width, height), opaque);
  const Surface picture = topLeftOf(image.corner, width, height);
  return opaque ? opaqueContentOf(picture) : contentOf(picture, state_.PicIcon.backColor);
}

// Makes the icon beneath the picture the baseline. Recording processes events: returns false when another icon came up,
// into which the picture is not pasted.
bool ClipboardCommands::startHistory() {
  const unsigned icon = state_.iconSerial;
  history_.clearUndoHistory();
  history_.recordUndo();
  return state_.iconSerial == icon;
}

bool ClipboardCommands::fetch(ClipboardImage& image) {
  if (!clipboard_.getImage(image, kLargestIconSize)) return false;
  return image.width > 0 && image.height > 0 && image.corner.width() > 0 && image.corner.height() > 0;
}

// Ensures that there is an icon to paste into: the current one or a new one. Returns false when the user refuses.
bool ClipboardCommands::makeRoomFor(const ClipboardImage& image) {
  const int size = state_.current().size;
  if (state_.current().used) {
    const bool fits = image.width <= size && image.height <= size;
    return fits || context_.boxes.ask(sizeText(image) + "; too large for current icon.\n\nChange to fit in?");
  }
  const bool isOfIcon = image.width == image.height && isIconSize(image.width);
  if (!isOfIcon && !context_.boxes.ask(sizeText(image) + ", not of 16x16, 24x24, 32x32 or 48x48.\n\nCreate to fit in?"))
    return false;
  return makeNewIcon(iconSizeFor(image.width, image.height));
}

// Showing an icon processes events. Returns false when the new icon is no longer the current one.
bool ClipboardCommands::makeNewIcon(int size) {
  const unsigned arriving = state_.iconSerial + 1;
  document_.arrival.arrive(transparentIcon(size), NewRecord());
  return state_.iconSerial == arriving;
}

void ClipboardCommands::showPasted(IconImage content, bool opaque) {
  const Hourglass hourglass(context_);
  placeContent(tools_, regions_, std::move(content), opaque);
  context_.display.announce(news::kPasted);
}

}  // namespace gp
