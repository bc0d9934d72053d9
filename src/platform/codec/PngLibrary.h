// Calls of libpng. It reports errors by a jump, which leaves no function of the program with objects to destroy: each
// step of a coder runs in runPngStep and returns before the next one starts.
#pragma once

#include <csetjmp>
#include <png.h>

namespace gp {

// Handlers for both coders: errors jump to the step that runs, warnings are dropped.
[[noreturn]] void jumpOnPngError(png_structp png, png_const_charp message);
void dropPngWarning(png_structp png, png_const_charp message);

// Runs calls of libpng. Returns false if one fails. The step must not own anything.
template <class Step>
[[nodiscard]] bool runPngStep(png_structp png, const Step& step) {
  if (setjmp(png_jmpbuf(png)) != 0) return false;  // NOLINT: the interface of libpng
  step();
  return true;
}

}  // namespace gp
