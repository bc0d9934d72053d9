#include "platform/codec/PngLibrary.h"

#include <cstring>

namespace gp {

void jumpOnPngError(png_structp png, png_const_charp) { png_longjmp(png, 1); }
void dropPngWarning(png_structp, png_const_charp) {}

void readPngInput(png_structp png, png_bytep out, std::size_t count) {
  auto& input = *static_cast<PngInput*>(png_get_io_ptr(png));
  if (count > input.bytes.size()) png_error(png, "cut short");
  std::memcpy(out, input.bytes.data(), count);
  input.bytes = input.bytes.subspan(count);
}

}  // namespace gp
