// The side panel that shows the Current Icon at its own size on three screen colours, which the user chooses. It
// changes nothing. The colours last for the session.
#pragma once

#include "document/Context.h"
#include "document/IconImage.h"

#include <array>

namespace gp {

class AlphaCommands;
class clsGPDialog;

// How the panel shows the icon: by Mask and image, or with its alpha values.
enum class PreviewForm { ScreenColors, AlphaEffects };

class PreviewPanel {
 public:
  static constexpr int kNumber = 21;  // of fraPanel
  static constexpr int kColors = 3;
  static constexpr const char* kCaption = "Preview - different screen colors";
  static constexpr const char* kAlphaCaption = "Current icon with alpha effects";

  PreviewPanel(const Context& context, clsGPDialog& dialog, AlphaCommands& alpha);

  // Ends the tool, merges a region, and shows the panel in place of another one.
  void open(PreviewForm form);
  // The Current Icon is another one or looks different: draws the pictures again if the panel is shown.
  void follow();
  // cmdPreviewDiffScreenColors: opens the colour dialog. An index out of range is ignored.
  void chooseColor(int i);
  // cmdEditAlphaChannel.
  void editAlphaChannel();

  PreviewForm form() const { return form_; }
  const char* caption() const { return form_ == PreviewForm::AlphaEffects ? kAlphaCaption : kCaption; }
  const Color& color(int i) const { return colors_.at(static_cast<std::size_t>(i)); }
  // The icon on a screen colour, with the size of the icon; without pixels while there is no icon.
  const Surface& picture(int i) const { return pictures_.at(static_cast<std::size_t>(i)); }

 private:
  void draw();
  Surface pictureOn(Color ground, const IconImage& icon) const;

  Context context_;
  EditState& state_;
  clsGPDialog& dialog_;
  AlphaCommands& alpha_;
  PreviewForm form_ = PreviewForm::ScreenColors;
  std::array<Color, kColors> colors_;
  std::array<Surface, kColors> pictures_;
};

}  // namespace gp
