#include "cli/ImageFile.h"

#include "animation/format/AniFile.h"
#include "cli/Console.h"
#include "cli/Streams.h"
#include "files/cursor/CursorLoading.h"
#include "files/format/IconProbe.h"
#include "files/format/PngEntry.h"
#include "platform/text/Utf8.h"

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

// Empty for a file that gpicon prints about.
const char* refusalOf(const IconFile& file, const std::string& path) {
  if (isAnimated(file, path)) {
    const AniDefect defect = readAniFile(file.span()).defect;
    return defect == AniDefect::NotAnimated ? describe(defect) : "";
  }
  return file.isIcon() || file.isCursor() ? "" : describe(IconDefect::NotAnIcon);
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

std::optional<IconFile> accepted(std::optional<IconFile> file, const std::string& path) {
  const char* const reason = file ? refusalOf(*file, path) : describe(IconDefect::NotReadable);
  if (*reason == '\0') return file;
  complain(path, reason);
  return std::nullopt;
}

std::optional<IconFile> openAnyFile(const std::string& path) {
  auto file = accepted(readImageInput(path), path);
  if (!file || isAnimated(*file, path) || file->directory.presentCount() != 0) return file;
  complain(path, describe(IconDefect::NotAnIcon));
  return std::nullopt;
}

bool isNamedAni(const std::string& path) { return endsWithAnyCase(path, ".ani"); }

bool isAnimated(const IconFile& file, const std::string& path) {
  return isRiffFile(file.span()) || (isNamedAni(path) && !file.isIcon() && !file.isCursor());
}

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
