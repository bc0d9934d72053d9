// Sets the current colour: by the charts, direct entry, the colour dialog and the picker. Selects the visible frame of
// the colour panel. Owns mCurrentColor and the state of the picker.
#pragma once

#include "colour/ColorCharts.h"
#include "colour/DirectEntry.h"
#include "document/Context.h"

#include <string>

namespace gp {

class clsGPDialog;
enum class ColorFrame;

class ColorSelection {
 public:
  ColorSelection(const Context& context, clsGPDialog& dialog);

  // Stores the colour under the pointer, which need not be the selected one: mHoverR, mHoverG, mHoverB.
  void examine(Color color) { hover_ = color; }
  // Sets the current colour, which picColorToUse shows.
  void setCurrentColor(Color color);

  // The pointer is over a chart, at a position in chart units. Returns the tooltip, which may be empty.
  std::string chartHover(ChartKind chart, double x, double y);
  // A button was released on a chart: the colour there becomes the current one. Ignored outside the cells.
  void chartRelease(ChartKind chart, double x, double y);
  // picColorToUse was clicked: shows a message box with the current colour.
  void showCurrentColor();

  void imgGet16ColorChart();
  void imgGet256ColorChart();
  void imgReturnTo256ColorChart();
  void imgGetDirectEntryColor();
  void imgPopColorChart();
  // Shows the chart for the Current Icon: large for true colour and for counts below 1 or from 256 on.
  void chooseColorChart();

  void imgColorPicker();
  bool isPickerSelected() const { return pickerSelected_; }
  void deselectPicker();

  const DirectEntry& directEntry() const { return directEntry_; }
  // Sets the typed text; its keys have passed the filter.
  void setDirectEntryText(const std::string& text) { directEntry_.setText(text); }
  void ckbAsHexColorValue();
  void cmdDirectEntryColorValue();

  // Returns the tooltip of PicIcon and lblIcon.
  std::string picIconTooltip() const;

 private:
  void showFrame(ColorFrame frame);

  Context context_;
  EditState& state_;
  Display& display_;
  clsGPDialog& dialog_;
  DirectEntry directEntry_;
  bool pickerSelected_ = false;
  Color hover_ = kBlack;
};

}  // namespace gp
