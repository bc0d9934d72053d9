#include "drawing/Transforms.h"

#include "document/EditState.h"
#include "document/EditingArea.h"
#include "document/Editor.h"
#include "document/Hourglass.h"
#include "document/PanelNumbers.h"
#include "drawing/Regions.h"
#include "drawing/RotatePanel.h"
#include "drawing/Tools.h"
#include "drawing/UndoHistory.h"
#include "platform/gdi/Stretch.h"
#include "platform/gdi/SurfaceOps.h"
#include "platform/ports/MessageBoxes.h"

namespace gp {

namespace {

constexpr const char* kEndShift = "Terminate Shift operation and accept the current image?\n";

void mirrorHorizontally(const Surface& source, Surface& target) {
  const int width = source.width();
  const int height = source.height();
  StretchBlt(target, width - 1, 0, -width, height, source, 0, 0, width, height, RasterOp::SRCCOPY);
}

void mirrorVertically(const Surface& source, Surface& target) {
  const int width = source.width();
  const int height = source.height();
  StretchBlt(target, 0, height - 1, width, -height, source, 0, 0, width, height, RasterOp::SRCCOPY);
}

void turnLeft(const Surface& source, Surface& target) {
  for (int i = 0; i < source.width(); ++i)
    for (int j = 0; j < source.height(); ++j) target.SetPixelV(j, source.width() - 1 - i, source.GetPixel(i, j));
}

void turnRight(const Surface& source, Surface& target) {
  for (int i = 0; i < source.width(); ++i)
    for (int j = 0; j < source.height(); ++j) target.SetPixelV(source.height() - 1 - j, i, source.GetPixel(i, j));
}

}  // namespace

Transforms::Transforms(const Context& context, EditingArea& editingArea, UndoHistory& history, Regions& regions,
                       Tools& tools, RotatePanel& rotatePanel)
    : context_(context),
      state_(context.state),
      editingArea_(editingArea),
      history_(history),
      regions_(regions),
      tools_(tools),
      rotatePanel_(rotatePanel) {}

bool Transforms::endShift() {
  if (tools_.selectedTool() != kShift) return true;
  if (!context_.boxes.ask(kEndShift)) return false;
  tools_.clearAllTools();
  return true;
}

void Transforms::RotateFlipHoriz() { transform(mirrorHorizontally, false); }
void Transforms::RotateFlipVertical() { transform(mirrorVertically, false); }
void Transforms::RotateLeft() { transform(turnLeft, true); }
void Transforms::RotateRight() { transform(turnRight, true); }

void Transforms::rotateAtAnyAngle() {
  if (endShift()) rotatePanel_.open();
}

void Transforms::bringColorPanelForward() {
  if (state_.screen.mActivePanel != kColorPanel) context_.editor.showPanel(kColorPanel);
}

// `turns`: the transformation exchanges width and height.
void Transforms::transform(Transform transformPixels, bool turns) {
  if (!endShift()) return;
  bringColorPanelForward();
  const auto transformed = [&](const Surface& image, const Surface& mask) {
    const int width = turns ? image.height() : image.width();
    const int height = turns ? image.width() : image.height();
    IconImage icon{Surface(width, height), Surface(width, height), {}};
    transformPixels(image, icon.image);
    transformPixels(mask, icon.mask);
    return icon;
  };
  if (!regions_.exists()) {
    takeOver(transformed(state_.picImage, state_.picMask));
    return;
  }
  const Hourglass hourglass(context_);
  regions_.finishDrag();
  regions_.replaceContent(transformed(regions_.content().image, regions_.content().mask));
}

void Transforms::takeOver(const IconImage& icon) {
  BitbltPic(icon.image, state_.picImage);
  BitbltPic(icon.mask, state_.picMask);
  state_.current().modified = true;
  editingArea_.showChangedIcon();
  history_.recordUndo();
}

}  // namespace gp
