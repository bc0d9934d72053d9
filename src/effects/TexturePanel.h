// The side panel that presses a pattern into the painted pixels of the icon.
#pragma once

#include "effects/EffectPanel.h"
#include "effects/EffectValues.h"

#include <string>

namespace gp {

class PictureLoader;
class clsGPDialog;
struct FilledList;

// The lists cboTexturize(0) to (2).
enum class TextureList { Depth, Pattern, Style };

class TexturePanel final : public EffectPanel {
 public:
  static constexpr int kNumber = 17;

  TexturePanel(EffectFrame& frame, clsGPDialog& dialog, PictureLoader& pictures);

  // Shows the panel, unless the icon is painted nowhere.
  void open(const EffectRow& effect) override;

  // The entries of a list, which change with the first custom pattern, and its list index. Choices and the custom
  // pattern are kept until the program ends.
  FilledList listOf(TextureList list) const;
  int choiceOf(TextureList list) const;
  // The pattern in use, 48 x 48 pixels.
  const Surface& picTexturize() const { return picTexturize_; }

  // A choice in a list; an index outside it is ignored.
  void pick(TextureList list, int index);
  // Lets the user choose a picture file, whose picture becomes the pattern in use. Shows a message instead for a file
  // that cannot be read or a picture of another size; the pattern then stays.
  void cmdTextureOpen();

 protected:
  IconImage apply(const IconImage& icon) const override;
  void drawSamples() override { drawPattern(); }
  bool mayProceed() override;

 private:
  void drawPattern();
  void load(const std::string& path);

  clsGPDialog& dialog_;
  PictureLoader& pictures_;
  EffectValues values_;
  Surface picTexturize_;
};

}  // namespace gp
