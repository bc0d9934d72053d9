// Animated cursor files on their way to X cursor files.
#include "FuzzInput.h"
#include "animation/format/ToXcursor.h"
#include "animation/format/Xcursor.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const gp::ConvertedCursor converted = gp::toXcursor({data, size});
  gp::fuzz::require(converted.isConverted() != converted.bytes.empty());
  if (converted.isConverted()) gp::fuzz::require(gp::readXcursor(converted.bytes).isRead());
  return 0;
}
