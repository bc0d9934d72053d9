// What the alpha screen is asked to do and what it leaves when it closes. The screen itself changes nothing.
#pragma once

#include "document/IconImage.h"

#include <string>

namespace gp {

// The entry of the menu that opens the screen.
enum class AlphaMode { Edit = 0, Convert = 1 };

enum class AlphaResult {
  None = 0,         // closed or aborted: nothing is to happen
  ConvertTo24 = 1,  // the icon without alpha, as it looked
  SaveChanged = 2,  // the icon had alpha, and its values have been edited
  SaveNew = 3,      // the icon had none and has got values
};

struct AlphaOutcome {
  AlphaResult result = AlphaResult::None;
  std::string target;  // the chosen file
  IconImage icon;      // the icon to save; without alpha values after ConvertTo24
  // The values when the screen closed, with which it goes on if the icon cannot be saved.
  AlphaMatrix values = AlphaMatrix();
};

}  // namespace gp
