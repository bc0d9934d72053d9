// The Panel that rotates the icon by any angle: its list of angles, its slider and its sample, which are kept in step.
// The view shows these values. Antialias smooths the sample only; the icon is never smoothed.
#pragma once

#include "document/Context.h"
#include "document/PanelNumbers.h"
#include "platform/gdi/Surface.h"

#include <string>

namespace gp {

inline constexpr int kLargestAngle = 360;
// Items of cboRotateImageAngle: index i is the angle i - 360 in degrees.
inline constexpr int kAngleCount = 2 * kLargestAngle + 1;
// The side of picRotateImageSample in pixels: the largest icon fits into it at any angle.
inline constexpr int kRotateSampleSide = 70;

class EditingArea;
class Regions;
class UndoHistory;

class RotatePanel {
 public:
  RotatePanel(const Context& context, EditingArea& editingArea, UndoHistory& history, Regions& regions);

  // Shows the Panel with its sample.
  void open();
  static std::string angleText(int index);

  // cboRotateImageAngle: an item was chosen, or a text typed. An index out of range is ignored.
  void pickAngle(int index);
  void setAngleText(const std::string& text);
  // hsrRotateImageAngle, -360 to 360 degrees; other values are limited to this range.
  void setSlider(int angle);
  // ckbRotateImageAntiAlias.
  void setAntialias(bool antialias);

  // The Current Icon is another one or looks different: draws the sample again if the Panel is shown.
  void follow();

  const std::string& cboRotateImageAngle() const { return angleText_; }
  // The angle of the text in degrees, by which the sample and Proceed rotate. It need not be whole and can be larger
  // than the slider allows; 0 for a text without a number.
  double angle() const;
  int hsrRotateImageAngle() const { return slider_; }
  bool ckbRotateImageAntiAlias() const { return antialias_; }
  const Surface& picRotateImageSample() const { return sample_; }

  // Proceed: rotates the icon, which keeps its size and loses the corners outside it. A full turn changes nothing.
  void doRotateProceed();

 private:
  void drawSample();
  void rotateIcon();
  void changed();

  Context context_;
  EditState& state_;
  EditingArea& editingArea_;
  UndoHistory& history_;
  Regions& regions_;
  std::string angleText_ = "0";
  int slider_ = 0;
  bool antialias_ = false;
  Surface sample_{kRotateSampleSide, kRotateSampleSide, kGround};
};

}  // namespace gp
