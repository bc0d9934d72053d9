// Texts from outside: paths, patterns, filters and typed numbers.
#include "FuzzInput.h"
#include "platform/dialogs/clsGPDialog.h"
#include "platform/text/FixedText.h"
#include "platform/text/Numbers.h"
#include "platform/text/Paths.h"

#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  for (int part = 0; part <= 6; ++part) (void)gp::ParseFileName(text, static_cast<gp::PathPart>(part));
  (void)gp::ShortenPath(text);
  (void)gp::matchesPattern(text, "*.ico");
  (void)gp::parseFilter(text);
  (void)gp::Val(text);
  (void)gp::valueOfHex(text);
  const gp::FixedText<32> field(text);
  gp::fuzz::require(gp::countCharacters(field.padded()) == 32);
  return 0;
}
