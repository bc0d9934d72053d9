#include "drawing/RotatePanel.h"

#include "document/Announcements.h"
#include "document/CurrentIcon.h"
#include "document/Display.h"
#include "document/EditState.h"
#include "document/EditingArea.h"
#include "document/Editor.h"
#include "document/Hourglass.h"
#include "drawing/IconTransforms.h"
#include "drawing/Regions.h"
#include "drawing/RotateSurface.h"
#include "drawing/UndoHistory.h"
#include "platform/gdi/RasterOps.h"
#include "platform/text/Numbers.h"

#include <algorithm>

namespace gp {

namespace {

// Pixels that the sample shows around the picture at both ends of its diagonal together.
constexpr int kSampleMargin = 2;

}  // namespace

RotatePanel::RotatePanel(const Context& context, EditingArea& editingArea, UndoHistory& history, Regions& regions)
    : context_(context), state_(context.state), editingArea_(editingArea), history_(history), regions_(regions) {}

std::string RotatePanel::angleText(int index) { return std::to_string(index - kLargestAngle); }

void RotatePanel::open() {
  context_.editor.showPanel(kRotatePanel);
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

double RotatePanel::angle() const { return Val(angleText_); }

void RotatePanel::follow() {
  if (state_.screen.mActivePanel == kRotatePanel) drawSample();
}

void RotatePanel::setAntialias(bool antialias) {
  antialias_ = antialias;
  changed();
}

void RotatePanel::changed() {
  if (!state_.mInLoad) drawSample();
}

void RotatePanel::drawSample() {
  const int side = diagonalOf(state_.PicIcon.width(), state_.PicIcon.height()) + kSampleMargin;
  Surface work(side, side, kGround);
  rotateSurface(state_.picImage, work,
                {.angleDegrees = angle(), .skipBackground = true, .backgroundColor = kBlack, .antialias = antialias_});
  sample_.clearPicture();
  BitBlt(sample_, 0, 0, kRotateSampleSide, kRotateSampleSide, work, (side - kRotateSampleSide) / 2,
         (side - kRotateSampleSide) / 2, RasterOp::SRCCOPY);
  sample_.makePersistent();
  context_.display.changed(DisplayPart::SidePanel);
}

void RotatePanel::doRotateProceed() {
  if (isWholeTurn(angle()) || !state_.current().present) {
    context_.editor.closePanels();
    return;
  }
  rotateIcon();
  context_.editor.closePanels();
  // Recording processes events, so it is the last step: the Panel must be closed by then.
  context_.display.announce(news::kApplied);
  history_.recordUndo();
}

void RotatePanel::rotateIcon() {
  const Hourglass hourglass(context_);
  regions_.finishDrag();
  regions_.clearRegion();
  replacePixels(state_, rotatedIcon(currentIcon(state_), angle()));
  state_.current().modified = true;
  editingArea_.showChangedIcon();
}

}  // namespace gp
