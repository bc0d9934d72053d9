#include "drawing/Tools.h"

#include "colour/ColorSelection.h"
#include "document/Announcements.h"
#include "document/Display.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "document/IconsPanel.h"
#include "document/PanelNumbers.h"
#include "drawing/DrawState.h"
#include "drawing/Regions.h"
#include "drawing/ToolTable.h"
#include "drawing/UndoHistory.h"
#include "platform/ports/MessagePump.h"
#include "platform/text/Numbers.h"

#include <algorithm>
#include <utility>

namespace gp {

int snapToCell(double position, SnapMode mode, int magnification) {
  const int pos = Fix(position);
  const int cell = divide(pos, magnification);
  if (mode == SnapMode::CellCentre) return cell * magnification + magnification / 2;
  const bool nextCorner = magnification / 2.0 <= Mod(pos, magnification);
  return (nextCorner ? cell + 1 : cell) * magnification;
}

Tools::Tools(const Context& context, IconsPanel& iconsPanel, ColorSelection& colors, UndoHistory& history,
             Regions& regions, DrawState& drawState)
    : context_(context),
      state_(context.state),
      display_(context.display),
      iconsPanel_(iconsPanel),
      colors_(colors),
      history_(history),
      regions_(regions),
      drawState_(drawState) {}

void Tools::attach(Tool tool, DrawingTool& worker) { workers_.at(static_cast<std::size_t>(tool)) = &worker; }

DrawingTool* Tools::worker(Tool tool) const { return workers_.at(static_cast<std::size_t>(tool)); }

bool Tools::isToolActive() const { return state_.screen.fraTools[1] && worker(selected_) != nullptr; }

void Tools::locate(const MouseInput& mouse) {
  lastX_ = mouse.x;
  lastY_ = mouse.y;
  mPixelX = Fix(static_cast<double>(mouse.x) / state_.gMagnification);
  mPixelY = Fix(static_cast<double>(mouse.y) / state_.gMagnification);
}

ToolMouse Tools::toolMouse(const MouseInput& mouse) const {
  return {selected_, mPixelX, mPixelY, mouse.x, mouse.y, mouse.modifiers, mouse.byKeyboard};
}

void Tools::press(const MouseInput& mouse) {
  if (iconsPanel_.isHeld()) return;
  // The first press only shows the icon that waits. No tool is selected while the Icons List is open.
  if (mouse.button == kLeftButton && iconsPanel_.showWaitingIcon()) return;
  if (mouse.button != kLeftButton) {
    display_.showPopUpMenu();
    return;
  }
  if (!state_.current().present || !isToolActive()) return;
  locate(mouse);
  worker(selected_)->press(toolMouse(mouse));
  writeDrawnSize();
}

void Tools::move(const MouseInput& mouse) {
  const unsigned move = ++moves_;
  // Every key counts, so that the next one must not overtake it. Of the mouse only the last position does.
  if (!mouse.byKeyboard) context_.pump.pump();
  if (!state_.current().present || iconsPanel_.isHeld() || iconsPanel_.displayWaits()) return;
  // The mouse has moved on during the pump: what is dragged is there already. A freehand stroke takes each position.
  const bool isFreehand = drawState_.isStroke() && !isHeld();
  if (move != moves_ && !isFreehand) return;
  const Surface& disp = state_.picDisp;
  if (mouse.x < 0 || mouse.y < 0 || mouse.x > static_cast<float>(disp.width() - 1) ||
      mouse.y > static_cast<float>(disp.height() - 1)) {
    leave();
    return;
  }
  updateEditingPointer(mouse.x, mouse.y);
  locate(mouse);
  writeReadouts();
  if (isToolActive()) worker(selected_)->move(toolMouse(mouse));
  writeDrawnSize();
}

void Tools::leave() {
  setReadout(Readout::Position, "");
  setReadout(Readout::PixelRgb, "");
}

void Tools::release(const MouseInput& mouse) {
  drawState_.mPainting = drawState_.mErasing = drawState_.mRestoring = false;
  if (iconsPanel_.isHeld() || iconsPanel_.displayWaits()) return;
  if (!state_.current().present) return;
  locate(mouse);
  if (state_.screen.mActivePanel == kCursorPanel) {
    context_.editor.setHotspotByClick(mPixelX, mPixelY);
    return;
  }
  if (colors_.isPickerSelected()) {
    pickColor();
    return;
  }
  if (!isToolActive()) return;
  state_.current().modified = true;
  worker(selected_)->release(toolMouse(mouse));
  writeDrawnSize();
  context_.editor.UpdateCommands();
}

bool Tools::isHeld() const { return isToolActive() && worker(selected_)->isHeld(); }

void Tools::giveUp() {
  if (!isHeld()) return;
  worker(selected_)->giveUp();
  writeDrawnSize();
  context_.editor.UpdateCommands();
}

void Tools::followMagnification() {
  if (isToolActive()) worker(selected_)->followMagnification();
}

void Tools::pickColor() {
  const Color picked = state_.PicIcon.GetPixel(mPixelX, mPixelY);
  if (picked != kNoColor) colors_.setCurrentColor(picked);
}

void Tools::setReadout(Readout which, std::string text) {
  std::string& shown = state_.screen.lblDispXY.at(static_cast<std::size_t>(which));
  if (shown == text) return;
  shown = std::move(text);
  display_.changed(DisplayPart::Readouts);
}

void Tools::writeReadouts() {
  setReadout(Readout::Position, "X=" + std::to_string(mPixelX + 1) + "  Y=" + std::to_string(mPixelY + 1));
  if (state_.screen.pixelRgbVisible) setReadout(Readout::PixelRgb, pixelRgbText());
}

void Tools::writeDrawnSize() {
  const auto size = isToolActive() ? worker(selected_)->drawnSize() : std::nullopt;
  setReadout(Readout::Size, size ? std::to_string(size->width) + " x " + std::to_string(size->height) : "");
}

std::string Tools::pixelRgbText() const {
  if (drawState_.isStroke() || regions_.isDragged()) return {};
  return pixelText(mPixelX, mPixelY);
}

std::string Tools::pixelText(int x, int y) const {
  const Color image = state_.picImage.GetPixel(x, y);
  const Color mask = state_.picMask.GetPixel(x, y);
  if (image == kBlack && mask == kWhite) return "N/A";
  return "RGB: " + std::to_string(redOf(image)) + ", " + std::to_string(greenOf(image)) + ", " +
         std::to_string(blueOf(image));
}

int Tools::pointerAt(float x, float y) const {
  if (!state_.screen.fraTools[1]) return kDefaultPointer;
  if (colors_.isPickerSelected()) return kColorPickerPointer;
  if (!isToolActive()) return kDefaultPointer;
  const int pointer = worker(selected_)->pointer(x, y);
  return pointer == kOwnPicture ? selected_ : pointer;
}

void Tools::updateEditingPointer(float x, float y) {
  const int pointer = pointerAt(x, y);
  if (state_.screen.editingPointer == pointer) return;
  state_.screen.editingPointer = pointer;
  display_.changed(DisplayPart::Pointer);
}

void Tools::selectTool(Tool tool) {
  if (!isAvailable(tool)) return;
  iconsPanel_.CommitPendingPaint();
  colors_.deselectPicker();
  if (state_.screen.mActivePanel != 0) context_.editor.showPanel(0);
  const bool wasSelected = selected_ == tool;
  clearAllTools();
  regions_.clearRegion();
  if (wasSelected) return;
  selected_ = tool;
  worker(tool)->selected();
  toolsChanged();
}

// Cancels the tool's current operation, so that nothing remains half done.
void Tools::deselect() {
  DrawingTool* former = worker(std::exchange(selected_, kNoTool));
  if (former) former->cancel();
  writeDrawnSize();
}

void Tools::toolsChanged() {
  updateEditingPointer(lastX_, lastY_);
  display_.changed(DisplayPart::Tools);
  display_.changed(DisplayPart::Commands);
}

void Tools::selectFromMenu(int tool) {
  selectTool(toolRow(tool).index);
  display_.nudgeMousePointer();
  announceTool();
}

void Tools::pickColorFromMenu() {
  colors_.imgColorPicker();
  display_.nudgeMousePointer();
  announceTool();
}

void Tools::clearFromMenu() {
  imgClearAllTools();
  display_.nudgeMousePointer();
  announceTool();
}

// Keys change the tool away from the keyboard focus.
void Tools::announceTool() {
  if (colors_.isPickerSelected())
    display_.announce(kColorPickerName);
  else
    display_.announce(selected_ == kNoTool ? news::kNoTool : toolName(selected_));
}

void Tools::clearAllTools() {
  setReadout(Readout::Region, "");
  deselect();
  colors_.deselectPicker();
  toolsChanged();
}

void Tools::imgClearAllTools() {
  // The key can be pressed during a drag, which ends first; the recorded step includes its result.
  deselect();
  if (state_.current().present && state_.mRegionExists) history_.recordUndo();
  clearAllTools();
  regions_.clearRegion();
}

void Tools::setBrush(int index) {
  state_.screen.brushIndex = std::clamp(index, 0, kBrushSizes - 1);
  display_.changed(DisplayPart::Tools);
  display_.changed(DisplayPart::Commands);
}

}  // namespace gp
