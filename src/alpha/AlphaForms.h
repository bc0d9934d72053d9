// The modal form that the alpha commands show. The main form implements this interface.
#pragma once

#include "alpha/AlphaOutcome.h"

#include <optional>

namespace gp {

class AlphaForms {
 public:
  virtual ~AlphaForms() = default;
  // Shows frmGPAlpha with an icon and returns when it is closed. `resumed` has the values of a session whose outcome
  // could not be saved: the screen goes on with them.
  virtual AlphaOutcome showAlpha(const IconImage& icon, AlphaMode mode, const std::optional<AlphaMatrix>& resumed) = 0;
};

}  // namespace gp
