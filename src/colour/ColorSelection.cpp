#include "colour/ColorSelection.h"

#include "colour/ColorCount.h"
#include "document/Display.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "platform/dialogs/clsGPDialog.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/ports/MessagePump.h"
#include "platform/text/Numbers.h"

namespace gp {

namespace {

constexpr int kManyColors = 256;

}  // namespace

ColorSelection::ColorSelection(const Context& context, clsGPDialog& dialog)
    : context_(context), state_(context.state), display_(context.display), dialog_(dialog) {}

void ColorSelection::setCurrentColor(Color color) {
  state_.mCurrentColor = color;
  display_.changed(DisplayPart::ColorPanel);
}

std::string ColorSelection::chartHover(ChartKind chart, double x, double y) {
  const int cell = chartCellAt(chart, x, y);
  if (cell < 0) return {};
  if (chart == ChartKind::Chart16) return chartText(chart, cell);
  if (!state_.options.tooltip256ColorChart) return {};
  examine(chartColor(chart, cell));
  return chartText(chart, cell);
}

void ColorSelection::chartRelease(ChartKind chart, double x, double y) {
  const int cell = chartCellAt(chart, x, y);
  if (cell >= 0) setCurrentColor(chartColor(chart, cell));
}

// Intended: the HTML value is that of the colour last hovered over, which can differ from the selected one.
void ColorSelection::showCurrentColor() {
  const Color color = state_.mCurrentColor;
  const std::string gap = "\n\n";
  context_.boxes.tell("Currently selected color:      " + gap + std::to_string(color) + " / h" + Hex(color) + gap +
                          "RGB(" + std::to_string(redOf(color)) + ", " + std::to_string(greenOf(color)) + ", " +
                          std::to_string(blueOf(color)) + ") " + gap + "HTML #" +
                          hexHtmlColor(redOf(hover_), greenOf(hover_), blueOf(hover_)),
                      BoxIcon::Information);
}

void ColorSelection::showFrame(ColorFrame frame) {
  state_.screen.colorFrame = frame;
  state_.screen.imgColorPickerVisible = frame != ColorFrame::Chart16;
  state_.screen.fraColorMixerVisible = frame != ColorFrame::Chart16;
  for (DisplayPart part : {DisplayPart::ColorPanel, DisplayPart::Tools, DisplayPart::Commands}) display_.changed(part);
}

void ColorSelection::imgGet16ColorChart() {
  if (state_.screen.colorFrame == ColorFrame::Chart16) return;
  deselectPicker();
  showFrame(ColorFrame::Chart16);
  setCurrentColor(kWhite);
}

void ColorSelection::imgGet256ColorChart() {
  if (state_.screen.colorFrame != ColorFrame::Chart256) showFrame(ColorFrame::Chart256);
}

void ColorSelection::imgReturnTo256ColorChart() { showFrame(ColorFrame::Chart256); }

void ColorSelection::imgGetDirectEntryColor() {
  showFrame(ColorFrame::DirectEntry);
  directEntry_.setText("");
  display_.changed(DisplayPart::ColorPanel);
  display_.focusColorValue();
}

void ColorSelection::imgPopColorChart() {
  Color color = state_.mCurrentColor;
  if (dialog_.ShowColor(color)) setCurrentColor(color);
}

void ColorSelection::chooseColorChart() {
  int count = 0;
  GetColorBitCount_Image(state_.picImage, count);
  if (state_.current().isTrueColor() || count < 1 || count >= kManyColors)
    imgGet256ColorChart();
  else
    imgGet16ColorChart();
}

void ColorSelection::imgColorPicker() {
  context_.editor.clearRegion();
  context_.editor.UpdateCommands();
  const bool select = !pickerSelected_;
  if (select) context_.editor.clearAllTools();
  pickerSelected_ = select;
  for (DisplayPart part : {DisplayPart::Tools, DisplayPart::Commands, DisplayPart::Pointer}) display_.changed(part);
  context_.pump.pump();
}

void ColorSelection::deselectPicker() {
  pickerSelected_ = false;
  display_.changed(DisplayPart::Tools);
}

void ColorSelection::ckbAsHexColorValue() {
  directEntry_.toggleHex();
  display_.changed(DisplayPart::ColorPanel);
  display_.focusColorValue();
}

void ColorSelection::cmdDirectEntryColorValue() {
  if (const auto color = directEntry_.proceed()) setCurrentColor(*color);
  display_.focusColorValue();
}

std::string ColorSelection::picIconTooltip() const {
  return state_.current().present ? "Current icon" : "Current icon (not loaded)";
}

}  // namespace gp
