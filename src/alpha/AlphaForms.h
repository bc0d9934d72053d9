// The modal form that the alpha commands show. The main form implements this interface.
#pragma once

#include "alpha/AlphaOutcome.h"

namespace gp {

class AlphaForms {
 public:
  virtual ~AlphaForms() = default;
  // Shows frmGPAlpha with an icon and returns when it is closed.
  virtual AlphaOutcome showAlpha(const IconImage& icon, AlphaMode mode) = 0;
};

}  // namespace gp
