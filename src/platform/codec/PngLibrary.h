// Calls of libpng. It reports errors by a jump, which leaves no function of the program with objects to destroy: each
// step of a coder runs in runPngStep and returns before the next one starts.
#pragma once

#include <csetjmp>
#include <cstdint>
#include <png.h>
#include <span>

namespace gp {

// Handlers for both coders: errors jump to the step that runs, warnings are dropped.
[[noreturn]] void jumpOnPngError(png_structp png, png_const_charp message);
void dropPngWarning(png_structp png, png_const_charp message);

// The bytes that libpng has not read yet, and the function that gives them to it.
struct PngInput {
  std::span<const std::uint8_t> bytes;
};
void readPngInput(png_structp png, png_bytep out, std::size_t count);

// Runs calls of libpng. Returns false if one fails. The step must not own anything.
template <class Step>
[[nodiscard]] bool runPngStep(png_structp png, const Step& step) {
  if (setjmp(png_jmpbuf(png)) != 0) return false;  // NOLINT: the interface of libpng
  step();
  return true;
}

}  // namespace gp
