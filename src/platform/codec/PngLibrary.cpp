#include "platform/codec/PngLibrary.h"

namespace gp {

void jumpOnPngError(png_structp png, png_const_charp) { png_longjmp(png, 1); }
void dropPngWarning(png_structp, png_const_charp) {}

}  // namespace gp
