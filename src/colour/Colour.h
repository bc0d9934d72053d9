// The room's interface: creates the charts, the mixer and the palette files for the rooms to the right.
#pragma once

#include "colour/ColorMixer.h"
#include "colour/ColorSelection.h"
#include "colour/PaletteFile.h"

#include <string>
#include <utility>

namespace gp {

struct Colour {
  // `folder` is the program's folder, the initial folder of the palette file dialogs.
  Colour(const Context& context, clsGPDialog& dialog, PictureLoader& pictures, std::string folder)
      : selection(context, dialog),
        mixer(context, selection),
        paletteFile(context, dialog, pictures, mixer, std::move(folder)) {}

  ColorSelection selection;
  ColorMixer mixer;
  PaletteFile paletteFile;
};

}  // namespace gp
