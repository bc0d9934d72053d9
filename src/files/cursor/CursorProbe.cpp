#include "files/cursor/CursorProbe.h"

#include "files/format/IcoLayout.h"
#include "files/format/PngEntry.h"

namespace gp {
namespace {

bool isEditable(const IconFile& file, const IconEntry& entry) {
  const IconEntry shown = shownEntry(file, entry);
  return shown.width == kCursorSide && shown.height == kCursorSide && entry.imageOffset == ico::kSingleImageOffset &&
         entry.hotspotX() < kCursorSide && entry.hotspotY() < kCursorSide;
}

}  // namespace

std::string CursorFacts::joined() const {
  return valid ? "1/" + std::to_string(depth.colors) + "/" + std::to_string(depth.bits) : "0/0/0";
}

CursorFacts probeCursor(const IconFile& file) {
  const IconEntry entry = file.entry(0);
  if (!file.isCursor() || !isEditable(file, entry)) return {};
  return {true, depthOfBits(headerBitCount(file, entry)), entry.hotspotX(), entry.hotspotY()};
}

CursorFacts ProbeCursorFile(const std::string& path) {
  const auto file = readIconFile(path);
  return file ? probeCursor(*file) : CursorFacts{};
}

}  // namespace gp
