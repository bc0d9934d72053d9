// The room's interface: creates the objects that give information about icons. Contains no logic.
#pragma once

#include "output/Enquiry.h"

namespace gp {

struct Output {
  Output(const Context& context, Files& files) : enquiry(context, files) {}

  Enquiry enquiry;
};

}  // namespace gp
