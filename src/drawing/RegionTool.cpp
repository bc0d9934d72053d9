#include "drawing/RegionTool.h"

#include "document/ScreenState.h"
#include "drawing/Regions.h"
#include "drawing/Tools.h"
#include "drawing/UndoHistory.h"
#include "platform/ports/MessagePump.h"

namespace gp {

RegionTool::RegionTool(const Context& context, UndoHistory& history, Regions& regions, Tools& tools)
    : context_(context), history_(history), regions_(regions), tools_(tools) {}

void RegionTool::press(const ToolMouse& mouse) {
  const bool taken = mouse.byKeyboard ? regions_.pressPixel(mouse.pixelX, mouse.pixelY)
                                      : regions_.press(static_cast<double>(mouse.x), static_cast<double>(mouse.y));
  if (!taken) return merge();
  pumpWhileSizing();
}

void RegionTool::move(const ToolMouse& mouse) {
  if (mouse.byKeyboard)
    regions_.movePixel(mouse.pixelX, mouse.pixelY, mouse.modifiers);
  else
    regions_.move(static_cast<double>(mouse.x), static_cast<double>(mouse.y), mouse.modifiers);
  pumpWhileSizing();
}

void RegionTool::release(const ToolMouse& /*mouse*/) {
  const bool wasSizing = regions_.phase() == RegionPhase::Sizing;
  regions_.release();
  if (wasSizing) context_.pump.pump();
}

void RegionTool::cancel() { regions_.cancel(); }

bool RegionTool::isHeld() const { return regions_.isDragged(); }

void RegionTool::giveUp() { regions_.giveUp(); }

void RegionTool::followMagnification() { regions_.followMagnification(); }

std::optional<DrawnSize> RegionTool::drawnSize() const { return regions_.drawnSize(); }

// The region stays merged where it is, and a new one can be drawn.
void RegionTool::merge() {
  tools_.clearAllTools();
  // Recorded below, also for a region that was only marked, because recording processes events.
  history_.dropOpenStep();
  regions_.clearRegion();
  tools_.selectTool(kRegion);
  history_.recordUndo();
}

void RegionTool::pumpWhileSizing() {
  if (regions_.phase() == RegionPhase::Sizing) context_.pump.pump();
}

int RegionTool::pointer(float x, float y) const {
  switch (regions_.pointerAt(static_cast<double>(x), static_cast<double>(y))) {
    case RegionPointer::Cross:
      return kCrossPointer;
    case RegionPointer::Custom:
      return kOwnPicture;
    case RegionPointer::HorizontalResize:
      return kHorizontalResizePointer;
    case RegionPointer::VerticalResize:
      return kVerticalResizePointer;
    case RegionPointer::Move:
      return kMovePointer;
    case RegionPointer::Default:
      break;
  }
  return kDefaultPointer;
}

}  // namespace gp
