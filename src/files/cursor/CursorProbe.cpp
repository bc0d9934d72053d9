#include "files/cursor/CursorProbe.h"

#include "files/format/IcoLayout.h"

namespace gp {
namespace {

bool isEditable(const IconEntry& entry) {
  return entry.width == kCursorSide && entry.height == kCursorSide && entry.imageOffset == ico::kSingleImageOffset &&
         entry.hotspotX() < kCursorSide && entry.hotspotY() < kCursorSide;
}

}  // namespace

std::string CursorFacts::joined() const {
  return valid ? "1/" + std::to_string(colors) + "/" + std::to_string(bits) : "0/0/0";
}

CursorFacts probeCursor(const IconFile& file) {
  const IconEntry entry = file.entry(0);
  if (!file.isCursor() || !isEditable(entry)) return {};
  const int bits = headerBitCount(file, entry);
  return {true, ColorsForBitCount(bits), bits, entry.hotspotX(), entry.hotspotY()};
}

CursorFacts ProbeCursorFile(const std::string& path) {
  const auto file = readIconFile(path);
  return file ? probeCursor(*file) : CursorFacts{};
}

}  // namespace gp
