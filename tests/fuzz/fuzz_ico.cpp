// Icon files: directory, probe, and every entry decoded with its stated size and as 32x32.
#include "FuzzInput.h"
#include "files/format/IconDecoder.h"
#include "files/format/IconProbe.h"

#include <cstdint>

namespace {

using gp::fuzz::require;

// A file may state more entries than are worth decoding.
constexpr int kMostEntries = 6;

void decodeAs(std::span<const std::uint8_t> file, const gp::IconEntry& entry, int width, int height) {
  const gp::DecodedIcon decoded = gp::decodeEntry(file, entry, width, height);
  const gp::IconImage& icon = decoded.icon;
  if (!decoded.isRead()) return require(icon.isEmpty());
  require(icon.width() == width && icon.height() == height);
  require(icon.mask.width() == width && icon.mask.height() == height);
  require(icon.hasAlphaValues() || icon.alpha == gp::AlphaMatrix());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::span file(data, size);
  (void)gp::probeIcon(file, true).joined();
  (void)gp::probeIcon(file, false);
  const gp::IconDirectory directory = gp::parseIconDirectory(file);
  for (int i = 0; i < kMostEntries && i < static_cast<int>(directory.entries.size()); ++i) {
    const gp::IconEntry entry = directory.entry(i);
    (void)gp::isUsableEntry(file, entry);
    decodeAs(file, entry, entry.width, entry.height);
    decodeAs(file, entry, 32, 32);
  }
  return 0;
}
