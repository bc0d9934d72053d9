// The face of the room: what the program states about an icon. It decides nothing.
#pragma once

#include "output/Enquiry.h"

namespace gp {

struct Output {
  Output(const Context& context, Files& files) : enquiry(context, files) {}

  Enquiry enquiry;
};

}  // namespace gp
