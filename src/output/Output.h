// The room's interface: creates the objects that give information about icons. Contains no logic.
#pragma once

#include "output/Enquiry.h"

namespace gp {

class AlphaCommands;

struct Output {
  Output(const Context& context, Files& files, AlphaCommands& /*alpha*/) : enquiry(context, files) {}

  Enquiry enquiry;
};

}  // namespace gp
