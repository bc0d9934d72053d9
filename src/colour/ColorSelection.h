// How a colour becomes the current one: the charts, direct entry, the colour dialog and the picker; and which frame of
// the colour panel is up. Owns mCurrentColor and the state of the picker.
#pragma once

#include "colour/ColorCharts.h"
#include "colour/DirectEntry.h"
#include "document/Display.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "platform/dialogs/clsGPDialog.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/ports/MessagePump.h"

#include <string>

namespace gp {

class ColorSelection {
 public:
  ColorSelection(EditState& state, Editor& editor, Display& display, MessageBoxes& boxes, MessagePump& pump,
                 clsGPDialog& dialog);

  // Makes a colour the current one, shown by picColorToUse.
  void setCurrentColor(Color color);

  // The pointer is over a chart, at a position in chart units. Gives the tooltip, which may be empty.
  std::string chartHover(ChartKind chart, double x, double y);
  // A button was released on a chart: its colour becomes the current one. Nothing outside.
  void chartRelease(ChartKind chart, double x, double y);
  // picColorToUse release: the box that tells of the current colour.
  void tellCurrentColor();

  void imgGet16ColorChart();
  void imgGet256ColorChart();
  void imgReturnTo256ColorChart();
  void imgGetDirectEntryColor();
  void imgPopColorChart();
  // The chart that fits the Current Icon: large for true colour and for counts below 1 or from 256 on.
  void chooseColorChart();

  void imgColorPicker();
  bool isPickerSelected() const { return pickerSelected_; }
  void deselectPicker();

  const DirectEntry& directEntry() const { return directEntry_; }
  // What the user types; keys have passed the filter.
  void setDirectEntryText(const std::string& text) { directEntry_.setText(text); }
  void ckbAsHexColorValue();
  void cmdDirectEntryColorValue();

  // Tooltip of PicIcon and lblIcon.
  std::string picIconTooltip() const;

 private:
  void showFrame(ColorFrame frame);

  EditState& state_;
  Editor& editor_;
  Display& display_;
  MessageBoxes& boxes_;
  MessagePump& pump_;
  clsGPDialog& dialog_;
  DirectEntry directEntry_;
  bool pickerSelected_ = false;
};

}  // namespace gp
