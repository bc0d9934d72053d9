#include "drawing/Transforms.h"

#include "document/CurrentIcon.h"
#include "document/EditState.h"
#include "document/EditingArea.h"
#include "document/Editor.h"
#include "document/Hourglass.h"
#include "document/PanelNumbers.h"
#include "drawing/Regions.h"
#include "drawing/RotatePanel.h"
#include "drawing/Tools.h"
#include "drawing/UndoHistory.h"
#include "platform/ports/MessageBoxes.h"

namespace gp {

namespace {

constexpr const char* kEndShift = "Terminate Shift operation and accept the current image?\n";

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

void Transforms::RotateFlipHoriz() { transform(flippedHorizontally); }
void Transforms::RotateFlipVertical() { transform(flippedVertically); }
void Transforms::RotateLeft() { transform(turnedLeft); }
void Transforms::RotateRight() { transform(turnedRight); }

void Transforms::rotateAtAnyAngle() {
  if (endShift()) rotatePanel_.open();
}

void Transforms::bringColorPanelForward() {
  if (state_.screen.mActivePanel != kColorPanel) context_.editor.showPanel(kColorPanel);
}

void Transforms::transform(IconTransform transformed) {
  if (!endShift()) return;
  bringColorPanelForward();
  if (!regions_.exists()) {
    takeOver(transformed(currentIcon(state_)));
    return;
  }
  const Hourglass hourglass(context_);
  regions_.finishDrag();
  regions_.replaceContent(transformed(regions_.content()));
}

void Transforms::takeOver(const IconImage& icon) {
  replacePixels(state_, icon);
  state_.current().modified = true;
  editingArea_.showChangedIcon();
  history_.recordUndo();
}

}  // namespace gp
