#include "drawing/Transforms.h"

#include "document/Hourglass.h"
#include "document/Messages.h"
#include "document/PanelNumbers.h"
#include "drawing/ToolTable.h"
#include "platform/gdi/Stretch.h"
#include "platform/gdi/SurfaceOps.h"

#include <array>

namespace gp {

namespace {

constexpr const char* kEndShift = "Terminate Shift operation and accept the current image?\n";

void mirrorHorizontally(Surface& target, const Surface& source) {
  const int width = source.width();
  const int height = source.height();
  StretchBlt(target, width - 1, 0, -width, height, source, 0, 0, width, height, RasterOp::SRCCOPY);
}

void mirrorVertically(Surface& target, const Surface& source) {
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

Transforms::Transforms(EditState& state, Editor& editor, Display& display, MessageBoxes& boxes, Regions& regions,
                       RotatePanel& rotatePanel)
    : state_(state), editor_(editor), display_(display), boxes_(boxes), regions_(regions), rotatePanel_(rotatePanel) {}

void Transforms::mnuRotateSubmenu(int index) {
  if (!state_.current().present) {
    tellNoIconYet(boxes_);
    return;
  }
  if (editor_.selectedTool() == kShift) {
    if (!boxes_.ask(kEndShift)) return;
    editor_.clearAllTools();
  }
  static constexpr std::array<void (Transforms::*)(), 4> kRoutines = {
      &Transforms::RotateFlipHoriz, &Transforms::RotateFlipVertical, &Transforms::RotateLeft, &Transforms::RotateRight};
  constexpr int kAnyAngle = kRoutines.size();
  if (index == kAnyAngle)
    rotatePanel_.open();
  else if (index >= 0 && index < kAnyAngle)
    (this->*kRoutines[static_cast<std::size_t>(index)])();
}

void Transforms::RotateFlipHoriz() { flip(mirrorHorizontally); }
void Transforms::RotateFlipVertical() { flip(mirrorVertically); }
void Transforms::RotateLeft() { turn(turnLeft); }
void Transforms::RotateRight() { turn(turnRight); }

void Transforms::bringColorPanelForward() {
  if (state_.screen.mActivePanel != kColorPanel) editor_.showPanel(kColorPanel);
}

void Transforms::flip(Mirror mirror) {
  if (!state_.current().present) return;
  bringColorPanelForward();
  if (regions_.exists()) {
    const Hourglass hourglass(state_, display_);
    regions_.finishDrag();
    for (Surface* surface : {&state_.picImageRegion, &state_.picMaskRegion}) {
      mirror(*surface, *surface);
      surface->makePersistent();
    }
    regions_.contentChanged();
    return;
  }
  MakeSameSize(state_.picImage, state_.picImageTemp);
  MakeSameSize(state_.picMask, state_.picMaskTemp);
  mirror(state_.picImageTemp, state_.picImage);
  mirror(state_.picMaskTemp, state_.picMask);
  takeOver();
}

void Transforms::turn(Turn turnPixels) {
  if (!state_.current().present) return;
  bringColorPanelForward();
  if (regions_.exists()) {
    const Hourglass hourglass(state_, display_);
    regions_.finishDrag();
    turnIntoTemp(turnPixels, state_.picImageRegion, state_.picMaskRegion);
    takeOverRegion();
    return;
  }
  turnIntoTemp(turnPixels, state_.picImage, state_.picMask);
  takeOver();
}

void Transforms::turnIntoTemp(Turn turnPixels, const Surface& image, const Surface& mask) {
  MakePicSize(state_.picImageTemp, image.height(), image.width());
  MakePicSize(state_.picMaskTemp, mask.height(), mask.width());
  turnPixels(image, state_.picImageTemp);
  turnPixels(mask, state_.picMaskTemp);
}

void Transforms::takeOverRegion() {
  MakeSameSize(state_.picImageTemp, state_.picImageRegion);
  BitbltPic(state_.picImageTemp, state_.picImageRegion);
  MakeSameSize(state_.picMaskTemp, state_.picMaskRegion);
  BitbltPic(state_.picMaskTemp, state_.picMaskRegion);
  state_.picImageTemp.clearPicture();
  state_.picMaskTemp.clearPicture();
  regions_.contentTurned();
}

// The whole icon becomes what the temp Surfaces hold.
void Transforms::takeOver() {
  BitbltPic(state_.picImageTemp, state_.picImage);
  BitbltPic(state_.picMaskTemp, state_.picMask);
  state_.picImageTemp.clearPicture();
  state_.picMaskTemp.clearPicture();
  state_.current().modified = true;
  editor_.ComposeCurrentIcon();
  editor_.MagnifyIcon();
  editor_.recordUndo();
}

}  // namespace gp
