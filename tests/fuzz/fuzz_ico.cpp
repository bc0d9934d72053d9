// Icon files: directory, probe, and every entry decoded with its stated size and as 32x32.
#include "FuzzIcons.h"
#include "files/format/IconProbe.h"
#include "files/format/PngEntry.h"

#include <cstdint>

namespace {

using gp::fuzz::require;

void decodeAs(const gp::IconFile& file, const gp::IconEntry& entry, int width, int height) {
  const gp::DecodedIcon decoded = gp::decodeEntry(file, entry, width, height);
  const gp::IconImage& icon = decoded.icon;
  if (!decoded.isRead()) return require(icon.isEmpty());
  require(icon.width() == width && icon.height() == height);
  require(icon.mask.width() == width && icon.mask.height() == height);
  require(icon.hasAlphaValues() || icon.alpha == gp::AlphaMatrix());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const gp::IconFile file = gp::parseIconFile(gp::FileBytes(std::span(data, size)));
  (void)gp::probeIcon(file, true).joined();
  (void)gp::probeIcon(file, false);
  for (int i = 0; i < gp::fuzz::entriesToDecode(file); ++i) {
    const gp::IconEntry entry = file.entry(i);
    (void)gp::isUsableEntry(file, entry);
    decodeAs(file, entry, entry.width, entry.height);
    decodeAs(file, entry, 32, 32);
    if (!gp::isPngImage(file, entry)) continue;
    const gp::IconEntry shown = gp::shownEntry(file, entry);
    decodeAs(file, shown, shown.width, shown.height);
  }
  return 0;
}
