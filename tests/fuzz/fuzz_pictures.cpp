// Pictures from the clipboard and from palette files: the checks before they are decoded.
#include "FuzzInput.h"
#include "platform/files/BitmapFile.h"
#include "platform/files/WholePicture.h"

#include <cstddef>
#include <cstdint>
#include <span>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::span bytes(data, size);
  (void)gp::isWholeJpeg(bytes);
  (void)gp::isWholeGif(bytes);
  (void)gp::isWholePng(bytes);
  const bool isWhole = gp::isWholeBitmap(bytes);
  const int rows = gp::rowsFromTheTop(bytes);
  gp::fuzz::require(rows >= 0);
  // Each row takes bytes, unless a pixel has no bits.
  if (isWhole && rows > 0 && bytes[28] != 0) gp::fuzz::require(static_cast<std::size_t>(rows) <= size);
  return 0;
}
