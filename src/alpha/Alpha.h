// The room's interface: creates the commands on alpha values. Contains no logic.
#pragma once

#include "alpha/AlphaCommands.h"

namespace gp {

struct Alpha {
  explicit Alpha(const FilesContext& context) : commands(context) {}

  AlphaCommands commands;
};

}  // namespace gp
