#include "drawing/Tools.h"

#include "document/Messages.h"
#include "platform/gdi/Pens.h"
#include "platform/text/Numbers.h"

#include <algorithm>

namespace gp {

namespace {

constexpr int kMenuClearTools = 0;
constexpr int kMenuColorPicker = 2;

}  // namespace

int snapToCell(double position, SnapMode mode, int magnification) {
  const int pos = Fix(position);
  const int cell = divide(pos, magnification);
  if (mode == SnapMode::CellCentre) return cell * magnification + magnification / 2;
  const bool nextCorner = magnification / 2.0 <= Mod(pos, magnification);
  return (nextCorner ? cell + 1 : cell) * magnification;
}

Tools::Tools(EditState& state, Editor& editor, Display& display, EditingArea& editingArea, ColorSelection& colors,
             MessageBoxes& boxes, MessagePump& pump)
    : state_(state),
      editor_(editor),
      display_(display),
      editingArea_(editingArea),
      colors_(colors),
      boxes_(boxes),
      pump_(pump) {}

bool Tools::isToolActive() const { return state_.screen.fraTools[1] && selected_ != kNoTool; }

void Tools::locate(const MouseInput& mouse) {
  mPixelX = Fix(static_cast<double>(mouse.x) / state_.gMagnification);
  mPixelY = Fix(static_cast<double>(mouse.y) / state_.gMagnification);
}

void Tools::press(const MouseInput& mouse) {
  if (mouse.button != kLeftButton) {
    display_.showPopUpMenu();
    return;
  }
  if (!state_.current().present || !isToolActive()) return;
  locate(mouse);
  switch (selected_) {
    case kPaint:
    case kErase:
      state_.current().modified = true;
      (selected_ == kPaint ? mPainting : mErasing) = true;
      stamp();
      editor_.ComposeCurrentIcon();
      editor_.MagnifyIcon();
      break;
    case kRestore:
      mRestoring = true;
      restorePixel();
      break;
    default:
      break;
  }
}

void Tools::move(const MouseInput& mouse) {
  pump_.pump();
  if (!state_.current().present) return;
  const Surface& disp = state_.picDisp;
  if (mouse.x < 0 || mouse.y < 0 || mouse.x > static_cast<float>(disp.width() - 1) ||
      mouse.y > static_cast<float>(disp.height() - 1)) {
    leave();
    return;
  }
  updateEditingPointer();
  locate(mouse);
  writeReadouts();
  if (!isToolActive()) return;
  if (mPainting || mErasing)
    continueStroke();
  else if (mRestoring)
    restorePixel();
}

void Tools::leave() {
  setReadout(Readout::Position, "");
  setReadout(Readout::PixelRgb, "");
}

void Tools::release(const MouseInput& mouse) {
  mPainting = mErasing = mRestoring = mRegionDown = false;
  if (!state_.current().present) return;
  locate(mouse);
  if (colors_.isPickerSelected()) {
    const Color picked = state_.PicIcon.GetPixel(mPixelX, mPixelY);
    if (picked != kNoColor) colors_.setCurrentColor(picked);
    return;
  }
  if (!isToolActive()) return;
  state_.current().modified = true;
  if (selected_ == kPaint || selected_ == kErase) {
    editor_.ComposeCurrentIcon();
    editor_.MagnifyIcon();
    pump_.pump();
    editor_.recordUndo();
  }
  editor_.UpdateCommands();
}

// The brush hangs from its top left pixel and is cut at the right and bottom edges of the icon.
void Tools::stamp() {
  const int last = state_.current().size - 1;
  mDrawX1 = mPixelX;
  mDrawY1 = mPixelY;
  mDrawX2 = std::min(mPixelX + state_.screen.brushIndex, last);
  mDrawY2 = std::min(mPixelY + state_.screen.brushIndex, last);
  const bool paint = selected_ == kPaint;
  FillBox(state_.picImage, mDrawX1, mDrawY1, mDrawX2, mDrawY2, paint ? state_.mCurrentColor : kBlack);
  FillBox(state_.picMask, mDrawX1, mDrawY1, mDrawX2, mDrawY2, paint ? kBlack : kWhite);
}

// Stamps where the pointer is; nothing is interpolated, so a fast drag leaves gaps. The square on picDisp spares the
// grid lines to its left and top, and may run past the right and bottom edge.
void Tools::continueStroke() {
  pump_.pump();
  if (!mPainting && !mErasing) return;
  stamp();
  editor_.ComposeCurrentIcon();
  const int m = state_.gMagnification;
  const int brush = state_.screen.brushIndex;
  auto first = [m](int cell) { return cell == 0 ? 0 : m * cell + 1; };
  editingArea_.showSquare(first(mDrawX1), first(mDrawY1), (mDrawX1 + 1 + brush) * m - 1, (mDrawY1 + 1 + brush) * m - 1,
                          mPainting ? state_.mCurrentColor : kGround);
}

void Tools::restorePixel() {
  const auto container = static_cast<std::size_t>(state_.mCurContainer);
  const Color image = state_.picPanelImage.at(container).GetPixel(mPixelX, mPixelY);
  const Color mask = state_.picPanelMask.at(container).GetPixel(mPixelX, mPixelY);
  if (image == kNoColor || mask == kNoColor) return;
  state_.picImage.SetPixelV(mPixelX, mPixelY, image);
  state_.picMask.SetPixelV(mPixelX, mPixelY, mask);
  editor_.ComposeCurrentIcon();
  editor_.MagnifyIcon();
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

std::string Tools::pixelRgbText() const {
  if (mPainting || mErasing || mRestoring || mRegionDown) return {};
  return pixelText(mPixelX, mPixelY);
}

std::string Tools::pixelText(int x, int y) const {
  const Color image = state_.picImage.GetPixel(x, y);
  const Color mask = state_.picMask.GetPixel(x, y);
  if (image == kBlack && mask == kWhite) return "N/A";
  return "RGB: " + std::to_string(redOf(image)) + ", " + std::to_string(greenOf(image)) + ", " +
         std::to_string(blueOf(image));
}

void Tools::updateEditingPointer() {
  int pointer = kDefaultPointer;
  if (state_.screen.fraTools[1]) {
    if (colors_.isPickerSelected())
      pointer = kColorPickerPointer;
    else if (isToolActive() && selected_ < kRegion)
      pointer = selected_;
  }
  if (state_.screen.editingPointer == pointer) return;
  state_.screen.editingPointer = pointer;
  display_.changed(DisplayPart::Pointer);
}

void Tools::selectTool(int tool) {
  if (!state_.current().present) {
    clearAllTools();
    tellNoIconYet(boxes_);
    return;
  }
  if (!toolRow(tool).available) return;
  editor_.CommitPendingPaint();
  editor_.deselectColorPicker();
  if (state_.screen.mActivePanel != 0) editor_.showPanel(0);
  const bool wasSelected = selected_ == tool;
  if (!wasSelected) clearAllTools();
  selected_ = wasSelected ? kNoTool : tool;
  editor_.clearRegion();
  toolsChanged();
}

void Tools::toolsChanged() {
  updateEditingPointer();
  display_.changed(DisplayPart::Tools);
  display_.changed(DisplayPart::Commands);
}

void Tools::mnuTools(int index) {
  if (index == kMenuClearTools) clearAllTools();
  if (!state_.current().present) {
    if (index != kMenuClearTools) tellNoIconYet(boxes_);
    return;
  }
  if (index == kMenuColorPicker) colors_.imgColorPicker();
  if (index >= kFirstTool) selectTool(index);
  display_.nudgeMousePointer();
}

void Tools::clearAllTools() {
  setReadout(Readout::Region, "");
  selected_ = kNoTool;
  editor_.deselectColorPicker();
  toolsChanged();
}

void Tools::imgClearAllTools() {
  if (state_.current().present && state_.mRegionExists) editor_.recordUndo();
  clearAllTools();
  editor_.clearRegion();
}

void Tools::setBrush(int index) {
  state_.screen.brushIndex = std::clamp(index, 0, kBrushSizes - 1);
  display_.changed(DisplayPart::Tools);
  display_.changed(DisplayPart::Commands);
}

}  // namespace gp
