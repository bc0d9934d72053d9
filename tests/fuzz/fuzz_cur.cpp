// Cursor files: the probe's answer, and the picture loaded from what it takes for a cursor and from what it does not.
#include "FuzzInput.h"
#include "files/cursor/CursorLoading.h"
#include "files/cursor/CursorProbe.h"

namespace {

using gp::fuzz::require;

constexpr int kSide = 32;

void load(std::span<const std::uint8_t> file, const gp::CursorFacts& facts) {
  static gp::EditState state;
  gp::Surface image(kSide, kSide), mask(kSide, kSide);
  if (gp::loadCursorPixels(file, state, image, mask) != gp::IconDefect::None) return;
  require(image.width() == kSide && image.height() == kSide);
  require(mask.width() == kSide && mask.height() == kSide);
  if (!facts.valid) return;
  gp::describeLoadedCursor(state, facts, "/a/b.cur");
  const gp::IconContainerRec& record = state.current();
  require(record.isCursor && record.hotspotX == facts.hotspotX && record.hotspotY == facts.hotspotY);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::span file(data, size);
  const gp::CursorFacts facts = gp::probeCursor(file);
  require(facts.valid || facts.joined() == "0/0/0");
  if (facts.valid)
    require(facts.hotspotX >= 0 && facts.hotspotX < kSide && facts.hotspotY >= 0 && facts.hotspotY < kSide);
  load(file, facts);
  return 0;
}
