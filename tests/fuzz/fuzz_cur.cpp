// Cursor files: the result of the probe, and the picture decoded, whether the probe accepts the file or not. A cursor
// that is written reads back.
#include "FuzzIcons.h"
#include "files/cursor/CursorLoading.h"
#include "files/cursor/CursorProbe.h"
#include "files/format/IconWriter.h"

namespace {

using gp::fuzz::require;

constexpr int kSide = 32;

void rewrite(const gp::IconImage& icon, const gp::IconContainerRec& record) {
  const gp::ColorDepth depth = gp::depthToWrite(icon, record);
  const gp::fuzz::Bytes written = gp::composeCursor(icon, depth, record.hotspotX, record.hotspotY);
  const gp::IconFile file = gp::parseIconFile(gp::FileBytes(written));
  const gp::CursorFacts facts = gp::probeCursor(file);
  require(facts.valid && facts.depth == depth);
  require(facts.hotspotX == record.hotspotX && facts.hotspotY == record.hotspotY);
  const gp::DecodedIcon again = gp::loadCursorImage(file);
  require(again.isRead() && gp::fuzz::sameIcon(again.icon, gp::fuzz::asWritten(icon, depth)));
}

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
  rewrite(icon, record);
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
