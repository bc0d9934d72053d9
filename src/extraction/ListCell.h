// What a cell of the Icons List shows.
#pragma once

#include "platform/gdi/Surface.h"

#include <string>

namespace gp {

struct ListCell {
  std::string label;
  bool isMultiIcon = false;  // a red "**" follows the label
  bool isDrawn = false;      // not yet, or the drawing was stopped
  bool valid = true;         // otherwise a diagonal line takes the place of the picture
  int side = 0;              // width and height of the icon, of which the picture can be a smaller copy
  Surface picture{0, 0};     // on the ground of the list
};

}  // namespace gp
