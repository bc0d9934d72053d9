// The Panel that rotates the icon by any angle: its list of angles, its slider and its sample. The three follow each
// other; the view shows what is here. The sample is smooth where Antialias is on, the icon itself never is.
#pragma once

#include "document/Context.h"
#include "document/PanelNumbers.h"
#include "platform/gdi/Surface.h"

#include <string>

namespace gp {

inline constexpr int kLargestAngle = 360;
// Items of cboRotateImageAngle: index i is the angle i - 360.
inline constexpr int kAngleCount = 2 * kLargestAngle + 1;
// The side of picRotateImageSample: the largest icon fits in it at any angle.
inline constexpr int kRotateSampleSide = 70;

class EditingArea;
class Regions;
class UndoHistory;

class RotatePanel {
 public:
  RotatePanel(const Context& context, EditingArea& editingArea, UndoHistory& history, Regions& regions);

  // Brings the Panel forward with its sample.
  void open();
  static std::string angleText(int index);

  // cboRotateImageAngle: an item was picked, or a text typed. An index outside is ignored.
  void pickAngle(int index);
  void setAngleText(const std::string& text);
  // hsrRotateImageAngle, -360 to 360; values beyond are limited.
  void setSlider(int angle);
  // ckbRotateImageAntiAlias.
  void setAntialias(bool antialias);

  const std::string& cboRotateImageAngle() const { return angleText_; }
  int hsrRotateImageAngle() const { return slider_; }
  bool ckbRotateImageAntiAlias() const { return antialias_; }
  const Surface& picRotateImageSample() const { return sample_; }

  // Proceed: turns the icon, which keeps its size and loses the corners that leave it. A whole turn changes nothing.
  void doRotateProceed();

 private:
  void drawSample();
  void rotateIcon(double angle);
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
