// Cursor files: the result of the probe, and the picture decoded, whether the probe accepts the file or not.
#include "FuzzInput.h"
#include "files/cursor/CursorLoading.h"
#include "files/cursor/CursorProbe.h"

namespace {

using gp::fuzz::require;

constexpr int kSide = 32;

void load(const gp::IconFile& file, const gp::CursorFacts& facts) {
  const gp::DecodedIcon decoded = gp::loadCursorImage(file);
  const gp::IconImage& icon = decoded.icon;
  if (!decoded.isRead()) return require(icon.isEmpty());
  require(icon.width() == kSide && icon.height() == kSide);
  require(icon.mask.width() == kSide && icon.mask.height() == kSide);
  if (!facts.valid) return;
  const gp::IconContainerRec record = gp::recordOfLoadedCursor(facts, icon, "/a/b.cur");
  require(record.isCursor && record.hotspotX == facts.hotspotX && record.hotspotY == facts.hotspotY);
  require(record.hasAlpha == (record.bitCount == gp::kBitsWithAlpha));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const gp::IconFile file = gp::parseIconFile(gp::FileBytes(std::span(data, size)));
  const gp::CursorFacts facts = gp::probeCursor(file);
  require(facts.valid || facts.joined() == "0/0/0");
  if (facts.valid)
    require(facts.hotspotX >= 0 && facts.hotspotX < kSide && facts.hotspotY >= 0 && facts.hotspotY < kSide);
  load(file, facts);
  return 0;
}
