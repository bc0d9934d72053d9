// Palette files: saves the mixer's strip as a bitmap with the extension "pal", and loads any picture of the strip's
// size back into it. Only the size is checked.
#pragma once

#include "document/Context.h"

#include <string>

namespace gp {

class ColorMixer;
class PictureLoader;
class clsGPDialog;

class PaletteFile {
 public:
  // `folder` is the program's folder, the initial folder of the dialogs.
  PaletteFile(const Context& context, clsGPDialog& dialog, PictureLoader& loader, ColorMixer& mixer,
              std::string folder);

  // Lets the user choose a file and copies its picture to the strip, or shows a message that refuses it. The sliders
  // and the current colour do not change.
  void imgLoadPalette();
  // Lets the user choose a name and saves the strip; shows a message when the file cannot be written.
  void imgSavePalette();

 private:
  void prepareDialog();
  void load(const std::string& path);

  Context context_;
  clsGPDialog& dialog_;
  PictureLoader& loader_;
  ColorMixer& mixer_;
  std::string folder_;
};

}  // namespace gp
