// How a colour becomes the current one: the charts, direct entry, the colour dialog and the picker; and which frame of
// the colour panel is up. Owns mCurrentColor and the state of the picker.
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

  // Remembers a colour that the pointer is over, which need not be the one selected: mHoverR, mHoverG, mHoverB.
  void examine(Color color) { hover_ = color; }
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

  Context context_;
  EditState& state_;
  Display& display_;
  clsGPDialog& dialog_;
  DirectEntry directEntry_;
  bool pickerSelected_ = false;
  Color hover_ = kBlack;
};

}  // namespace gp
