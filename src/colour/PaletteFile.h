// Palette files: the mixer's strip saved as a plain bitmap under the extension "pal", and any picture of the strip's
// size loaded back into it. Only the size is checked. Nothing is kept between calls but what picAuto keeps of a refused
// picture.
#pragma once

#include "colour/ColorMixer.h"
#include "document/Editor.h"
#include "platform/dialogs/clsGPDialog.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/ports/PictureLoader.h"

#include <string>

namespace gp {

class PaletteFile {
 public:
  // `folder` is the program's folder, where the dialogs begin.
  PaletteFile(EditState& state, Editor& editor, MessageBoxes& boxes, clsGPDialog& dialog, PictureLoader& loader,
              ColorMixer& mixer, std::string folder);

  // The user chooses a file; the strip takes its picture, or a box tells why not. Sliders and current colour stay.
  void imgLoadPalette();
  // The user chooses a name; a file that cannot be written ends in a box.
  void imgSavePalette();

 private:
  void bringForward();
  void load(const std::string& path);

  EditState& state_;
  Editor& editor_;
  MessageBoxes& boxes_;
  clsGPDialog& dialog_;
  PictureLoader& loader_;
  ColorMixer& mixer_;
  std::string folder_;
};

}  // namespace gp
