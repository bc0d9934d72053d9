// The side panel that writes a line of text. Proceed makes it a floating region, which the user drags to its place.
#pragma once

#include "effects/EffectPanel.h"
#include "effects/WriteText.h"

#include <array>
#include <string>
#include <vector>

namespace gp {

class Drawing;
class clsGPDialog;

class TextPanel final : public EffectPanel {
 public:
  static constexpr int kNumber = 5;
  // imgFontStyle: bold, italic, underline, strikeout.
  static constexpr int kFontStyles = 4;

  TextPanel(EffectFrame& frame, clsGPDialog& dialog, TextDrawing& textDrawing, Drawing& drawing);

  // Shows the panel with the angle 0 and the families that the system has now. All other choices are those of before;
  // a family that is gone is replaced by the first choice of the list.
  void open(const EffectRow& effect) override;

  // txbWriteText.
  const std::string& text() const { return text_; }
  // The entries of cboFontName, and the index of the chosen one; -1 when there are none.
  const std::vector<std::string>& families() const { return families_; }
  int familyIndex() const;
  // The text has a size that fits the icon, or a number of points: list index of cboTextSize and of cboFontSize, of
  // which one is -1.
  int sizeIndex() const { return pointsIndex_ < 0 ? static_cast<int>(size_) : -1; }
  int pointsIndex() const { return pointsIndex_; }
  // List index of cboTextWriteStyle.
  int styleIndex() const { return static_cast<int>(settings_.style); }
  bool hasFontStyle(int i) const { return font_.*styleAt(i); }
  const Color& color() const { return settings_.color; }
  // hsrTextWriteSampleAngle, in degrees.
  int angle() const { return settings_.angle; }
  // "Aa" as the text is written, on the ground.
  const Surface& picTextWriteAngleSample() const { return angleSample_; }

  void setText(const std::string& text);
  // An index outside the list is ignored. A family that the system does not have is refused.
  void pickFamily(int index);
  void pickSize(int index);
  void pickPoints(int index);
  void pickStyle(int index);
  void toggleFontStyle(int i);
  // cmdTextColor: opens the colour dialog. Colours that the style draws itself are refused.
  void chooseColor();
  // Angles out of range are limited to it.
  void setAngle(int angle);

 protected:
  // The icon with the text at its upper left corner.
  IconImage apply(const IconImage& icon) const override;
  void drawSamples() override;
  bool mayProceed() override;
  void commit() override;
  // The region records its step when it ends.
  void finish() override;

 private:
  static bool TextFont::*styleAt(int i);
  void listFamilies();
  bool hasFamily() const;
  void refuseFamily(const std::string& family);
  // The text as it is written on an icon of this size; empty when no pixel of it is visible.
  IconImage content(int iconWidth, int iconHeight) const;
  IconImage contentOfLine(const std::string& line, int pixels, int iconWidth, int iconHeight) const;
  // The size of the font in pixels, in an icon of that height.
  int pixelsFor(int iconHeight) const;

  clsGPDialog& dialog_;
  TextDrawing& textDrawing_;
  Drawing& drawing_;
  std::string text_;
  std::vector<std::string> families_;
  TextFont font_;  // without its size, which depends on the icon
  TextSize size_ = TextSize::Normal;
  int pointsIndex_ = -1;
  TextSettings settings_;
  Surface angleSample_;
};

}  // namespace gp
