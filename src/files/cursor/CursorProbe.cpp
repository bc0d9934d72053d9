#include "files/cursor/CursorProbe.h"

#include "files/format/IcoDirectory.h"
#include "files/format/IcoLayout.h"
#include "files/format/IconFileBytes.h"

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

CursorFacts probeCursor(std::span<const std::uint8_t> file) {
  const IconDirectory directory = parseIconDirectory(file);
  const IconEntry entry = directory.entry(0);
  if (!directory.isCursor() || !isEditable(entry)) return {};
  const int bits = headerBitCount(file, entry);
  return {true, ColorsForBitCount(bits), bits, entry.hotspotX(), entry.hotspotY()};
}

CursorFacts ProbeCursorFile(const std::string& path) {
  const auto bytes = readIconFile(path);
  return bytes ? probeCursor(bytes->span()) : CursorFacts{};
}

}  // namespace gp
