// The room's interface: creates the commands on alpha values. Contains no logic.
#pragma once

#include "alpha/AlphaCommands.h"

namespace gp {

struct Alpha {
  Alpha(const FilesContext& context, IconSaver& saver) : commands(context, saver) {}

  AlphaCommands commands;
};

}  // namespace gp
