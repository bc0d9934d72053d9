#include "drawing/RotatePanel.h"

#include "document/Hourglass.h"
#include "drawing/RotateSurface.h"
#include "platform/gdi/RasterOps.h"
#include "platform/gdi/SurfaceOps.h"
#include "platform/text/Numbers.h"

#include <algorithm>

namespace gp {

namespace {

// What the sample shows around the picture at the ends of its diagonal.
constexpr int kSampleMargin = 2;

bool isWholeTurn(double angle) { return angle == 0 || angle == kLargestAngle || angle == -kLargestAngle; }

}  // namespace

RotatePanel::RotatePanel(EditState& state, Editor& editor, Display& display, Regions& regions)
    : state_(state), editor_(editor), display_(display), regions_(regions) {}

std::string RotatePanel::angleText(int index) { return std::to_string(index - kLargestAngle); }

void RotatePanel::open() {
  editor_.showPanel(kRotatePanel);
  drawSample();
}

void RotatePanel::pickAngle(int index) {
  if (index < 0 || index >= kAngleCount) return;
  setSlider(index - kLargestAngle);
}

void RotatePanel::setAngleText(const std::string& text) {
  angleText_ = text;
  slider_ = std::clamp(roundToInteger(Val(text)), -kLargestAngle, kLargestAngle);
  changed();
}

void RotatePanel::setSlider(int angle) {
  slider_ = std::clamp(angle, -kLargestAngle, kLargestAngle);
  angleText_ = std::to_string(slider_);
  changed();
}

void RotatePanel::setAntialias(bool antialias) {
  antialias_ = antialias;
  changed();
}

void RotatePanel::changed() {
  if (!state_.mInLoad) drawSample();
}

void RotatePanel::drawSample() {
  Surface& work = state_.picImageTemp;
  const int side = diagonalOf(state_.PicIcon.width(), state_.PicIcon.height()) + kSampleMargin;
  MakePicSize(work, side, side);
  work.fill(kGround);
  rotateSurface(state_.picImage, work,
                {.angleDegrees = static_cast<double>(slider_),
                 .skipBackground = true,
                 .backgroundColor = kBlack,
                 .antialias = antialias_});
  sample_.clearPicture();
  BitBlt(sample_, 0, 0, kRotateSampleSide, kRotateSampleSide, work, (side - kRotateSampleSide) / 2,
         (side - kRotateSampleSide) / 2, RasterOp::SRCCOPY);
  sample_.makePersistent();
  work.clearPicture();
  if (onChange) onChange();
}

void RotatePanel::doRotateProceed() {
  const double angle = Val(angleText_);
  if (isWholeTurn(angle) || !state_.current().present) {
    editor_.closePanels();
    return;
  }
  rotateIcon(angle);
  editor_.closePanels();
  // It pumps messages, and so comes when the Panel can no longer be used.
  editor_.recordUndo();
}

void RotatePanel::rotateIcon(double angle) {
  const Hourglass hourglass(state_, display_);
  regions_.finishDrag();
  regions_.clearRegion();
  rotateInto(state_.picImage, state_.picImageTemp, angle, kBlack);
  rotateInto(state_.picMask, state_.picMaskTemp, angle, kWhite);
  state_.current().modified = true;
  editor_.ComposeCurrentIcon();
  editor_.MagnifyIcon();
}

// The work Surface is as wide as the diagonal, rounded to the nearest pixel, and the offset truncated: so the middle of
// the icon stays where it is.
void RotatePanel::rotateInto(Surface& picture, Surface& work, double angle, Color background) {
  const int side = diagonalOf(picture.width(), picture.height());
  MakePicSize(work, side, side);
  work.fill(background);
  rotateSurface(picture, work, {.angleDegrees = angle, .skipBackground = true, .backgroundColor = background});
  const int offX = divide(side - picture.width(), 2);
  const int offY = divide(side - picture.height(), 2);
  BitBlt(picture, 0, 0, picture.width(), picture.height(), work, offX, offY, RasterOp::SRCCOPY);
  picture.makePersistent();
  work.clearPicture();
}

}  // namespace gp
