// Resets the upper halves of the processor's vector registers, which Qt's painting can leave in use. As long as they
// are, each loop over floating-point numbers takes several times longer on some processors.
#pragma once

namespace gp {

// Does nothing on processors without such registers.
void resetVectorRegisters();

}  // namespace gp
