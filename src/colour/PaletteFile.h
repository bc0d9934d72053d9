// Palette files: the mixer's strip saved as a plain bitmap under the extension "pal", and any picture of the strip's
// size loaded back into it. Only the size is checked. Nothing is kept between calls.
#pragma once

#include "document/Context.h"

#include <string>

namespace gp {

class ColorMixer;
class PictureLoader;
class clsGPDialog;

class PaletteFile {
 public:
  // `folder` is the program's folder, where the dialogs begin.
  PaletteFile(const Context& context, clsGPDialog& dialog, PictureLoader& loader, ColorMixer& mixer,
              std::string folder);

  // The user chooses a file; the strip takes its picture, or a box tells why not. Sliders and current colour stay.
  void imgLoadPalette();
  // The user chooses a name; a file that cannot be written ends in a box.
  void imgSavePalette();

 private:
  void bringForward();
  void load(const std::string& path);

  Context context_;
  clsGPDialog& dialog_;
  PictureLoader& loader_;
  ColorMixer& mixer_;
  std::string folder_;
};

}  // namespace gp
