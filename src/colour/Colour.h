// The face of the room: makes the charts, the mixer and the palette files, and hands them to the rooms to the right. It
// decides nothing.
#pragma once

#include "colour/ColorMixer.h"
#include "colour/ColorSelection.h"
#include "colour/PaletteFile.h"

#include <string>
#include <utility>

namespace gp {

struct Colour {
  // `folder` is the program's folder, where the dialogs on palette files begin.
  Colour(const Context& context, clsGPDialog& dialog, PictureLoader& pictures, std::string folder)
      : selection(context, dialog),
        mixer(context, selection),
        paletteFile(context, dialog, pictures, mixer, std::move(folder)) {}

  ColorSelection selection;
  ColorMixer mixer;
  PaletteFile paletteFile;
};

}  // namespace gp
