#include "cli/ImageFile.h"

#include "cli/Console.h"
#include "cli/Streams.h"
#include "files/cursor/CursorLoading.h"
#include "files/format/IconProbe.h"
#include "files/format/PngEntry.h"

namespace gp::cli {
namespace {

constexpr int kSideOfZero = 256;

std::optional<IconFile> openFile(const std::string& path, bool withCursors) {
  auto file = readIconInput(path);
  const bool fits = file && (file->isIcon() || (withCursors && file->isCursor()));
  if (fits && file->directory.presentCount() != 0) return file;
  complain(path, describe(file ? IconDefect::NotAnIcon : IconDefect::NotReadable));
  return std::nullopt;
}

bool isUsableCursor(const IconFile& file) {
  const CursorFacts facts = probeCursor(file);
  return facts.valid && facts.depth.isShown() && (!isPngImage(file, file.entry(0)) || loadCursorImage(file).isRead());
}

std::optional<DecodedImage> decodeCursor(const IconFile& file) {
  const CursorFacts facts = probeCursor(file);
  if (!facts.valid || !facts.depth.isShown()) return std::nullopt;
  DecodedIcon decoded = loadCursorImage(file);
  if (!decoded.isRead()) return std::nullopt;
  return DecodedImage{std::move(decoded.icon), facts.depth.hasAlpha()};
}

}  // namespace

std::optional<IconFile> openImageFile(const std::string& path) { return openFile(path, true); }
std::optional<IconFile> openIconFile(const std::string& path) { return openFile(path, false); }

int sideOf(int side) { return side == 0 ? kSideOfZero : side; }

bool isUsableImage(const IconFile& file, int index) {
  if (!file.isCursor()) return isUsableEntry(file, file.entry(index));
  return index == 0 && isUsableCursor(file);
}

std::optional<DecodedImage> decodeImage(const IconFile& file, int index) {
  if (file.isCursor()) return index == 0 ? decodeCursor(file) : std::nullopt;
  const IconEntry entry = file.entry(index);
  DecodedIcon decoded = decodeUsableEntry(file, entry);
  if (!decoded.isRead()) return std::nullopt;
  return DecodedImage{std::move(decoded.icon), corrected(depthOfEntry(shownEntry(file, entry))).hasAlpha()};
}

}  // namespace gp::cli
